#pragma once

#include <QCheckBox>

#include "host/check_box.h"
#include "platform/qt/qt_child_peer.h"

namespace qrn::qt {

class QtCheckBoxPeer final : public QtEditorPeer {
 public:
  QtCheckBoxPeer(QtCanvas& canvas, host::CheckBox& box);

 private:
  void applyContent() override;
  void reportToggle();

  host::CheckBox& box_;
  QCheckBox& widget_;
};

}  // namespace qrn::qt
