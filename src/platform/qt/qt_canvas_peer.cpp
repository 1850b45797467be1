#include "platform/qt/qt_canvas_peer.h"

#include "host/user_control.h"

namespace qrn::qt {

QtCanvasPeer::QtCanvasPeer(QtPlatform& platform, host::UserControl& control)
    : QtPeer(new QtCanvas(platform, control)), control_(control) {
  showAsControl();
}

QtCanvasPeer::~QtCanvasPeer() {
  if (canvas()) canvas()->release();
}

void QtCanvasPeer::invalidate(const Rect& area) {
  if (canvas()) canvas()->update(QRectF(area.left, area.top, area.width, area.height).toAlignedRect());
}

void QtCanvasPeer::takeFocus() {
  if (!canvas()) return;
  canvas()->keepFocus();
  canvas()->tellToolsOfFocus();
}

void QtCanvasPeer::accessibleChanged(host::Control& control, host::Aspect aspect) {
  if (canvas()) canvas()->tellToolsOfChange(control, aspect);
}

void QtCanvasPeer::apply(host::Aspect aspect) {
  if (aspect == host::Aspect::Place) {
    canvas()->followSize();
    showAsControl();
  } else {
    canvas()->update();
  }
}

// Shown again only if it was hidden here: else it is the host's business when it is shown.
void QtCanvasPeer::showAsControl() {
  if (control_.Visible() != hidden_) return;
  hidden_ = !hidden_;
  canvas()->setVisible(!hidden_);
}

}  // namespace qrn::qt
