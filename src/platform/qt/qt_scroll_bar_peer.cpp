#include "platform/qt/qt_scroll_bar_peer.h"

#include "platform/qt/qt_canvas.h"

namespace qrn::qt {

QtScrollBarPeer::QtScrollBarPeer(QtCanvas& canvas, host::VScrollBar& bar)
    : QtChildPeer(canvas, bar, new QtScrollBar(&canvas)),
      bar_(bar),
      widget_(static_cast<QtScrollBar&>(*widget())) {
  widget_.setFocusPolicy(Qt::NoFocus);
  bringUpToDate();
  QObject::connect(&widget_, &QScrollBar::valueChanged, context(),
                   [this](int value) { report([this, value] { bar_.userScrolled(value); }); });
}

void QtScrollBarPeer::applyContent() { widget_.setValue(bar_.Value()); }

void QtScrollBarPeer::applyRange() {
  widget_.setRange(bar_.Min(), bar_.Max());
  widget_.setPageStep(bar_.LargeChange());
  widget_.setSingleStep(bar_.SmallChange());
  applyContent();
}

}  // namespace qrn::qt
