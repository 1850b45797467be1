#pragma once

#include <QPushButton>

#include "host/command_button.h"
#include "platform/qt/qt_child_peer.h"

namespace qrn::qt {

class QtCommandButtonPeer final : public QtEditorPeer {
 public:
  QtCommandButtonPeer(QtCanvas& canvas, host::CommandButton& button);

 private:
  void applyContent() override;

  host::CommandButton& button_;
  QPushButton& widget_;
};

}  // namespace qrn::qt
