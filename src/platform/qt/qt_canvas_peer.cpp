#include "platform/qt/qt_canvas_peer.h"

#include "host/user_control.h"

namespace qrn::qt {

QtCanvasPeer::QtCanvasPeer(QtPlatform& platform, host::UserControl& control)
    : QtPeer(new QtCanvas(platform, control)), control_(control) {}

QtCanvasPeer::~QtCanvasPeer() {
  if (canvas()) canvas()->release();
}

void QtCanvasPeer::invalidate(const Rect& area) {
  if (canvas())
    canvas()->update(QRectF(area.left, area.top, area.width, area.height).toAlignedRect());
}

void QtCanvasPeer::takeFocus() {
  if (canvas()) canvas()->keepFocus();
}

void QtCanvasPeer::apply(host::Aspect aspect) {
  if (aspect == host::Aspect::Place) {
    canvas()->followSize();
    // Never shown before its host has shown it.
    if (canvas()->testAttribute(Qt::WA_WState_ExplicitShowHide)) canvas()->setVisible(control_.Visible());
    else if (!control_.Visible()) canvas()->hide();
  } else {
    canvas()->update();
  }
}

}  // namespace qrn::qt
