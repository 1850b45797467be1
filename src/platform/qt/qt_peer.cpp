#include "platform/qt/qt_peer.h"

#include <QScopedValueRollback>

#include "platform/qt/qt_canvas.h"

namespace qrn::qt {

QtPeer::~QtPeer() {
  if (!widget_) return;
  QObject::disconnect(widget_, nullptr, &context_, nullptr);
  // Hiding the widget that has the focus would send the focus on to the next one.
  if (auto* canvas = dynamic_cast<QtCanvas*>(widget_->parentWidget())) canvas->takeFocusFrom(*widget_);
  widget_->hide();
  deleteAfterHandlers(*widget_, handlersBefore_);
}

void QtPeer::changed(host::Aspect aspect) {
  if (!widget_) return;
  const QScopedValueRollback applying(applying_, true);
  guarded([&] { apply(aspect); });
}

void QtPeer::invalidate(const Rect&) {
  if (widget_) widget_->update();
}

void QtPeer::takeFocus() {
  if (widget_) widget_->setFocus(Qt::OtherFocusReason);
}

}  // namespace qrn::qt
