#pragma once

#include "platform/qt/qt_canvas.h"
#include "platform/qt/qt_peer.h"

namespace qrn::qt {

class QtCanvasPeer final : public QtPeer {
 public:
  QtCanvasPeer(QtPlatform& platform, host::UserControl& control);
  ~QtCanvasPeer() override;

  QtCanvas* canvas() const { return static_cast<QtCanvas*>(widget()); }
  void invalidate(const Rect& area) override;
  void takeFocus() override;
  void accessibleChanged(host::Control& control, host::Aspect aspect) override;

 private:
  void apply(host::Aspect aspect) override;
  void showAsControl();

  host::UserControl& control_;
  bool hidden_ = false;
};

}  // namespace qrn::qt
