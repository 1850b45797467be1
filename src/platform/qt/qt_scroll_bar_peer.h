#pragma once

#include "host/v_scroll_bar.h"
#include "platform/qt/qt_child_peer.h"
#include "platform/qt/qt_scroll_bar.h"

namespace qrn::qt {

class QtScrollBarPeer final : public QtChildPeer {
 public:
  QtScrollBarPeer(QtCanvas& canvas, host::VScrollBar& bar);
  /// It never has the focus.
  void takeFocus() override {}

 private:
  void applyContent() override;
  void applyRange() override;

  host::VScrollBar& bar_;
  QtScrollBar& widget_;
};

}  // namespace qrn::qt
