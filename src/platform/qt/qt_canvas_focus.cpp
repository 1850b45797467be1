#include <QFocusEvent>
#include <QScopedValueRollback>

#include "host/user_control.h"
#include "platform/qt/qt_canvas.h"
#include "platform/qt/qt_guard.h"
#include "platform/qt/qt_peer.h"

namespace qrn::qt {

void QtCanvas::keepFocus() {
  const QScopedValueRollback quiet(quiet_, true);
  setFocus(Qt::OtherFocusReason);
}

void QtCanvas::takeFocusFrom(const QWidget& widget) {
  const QWidget* focus = window()->focusWidget();
  if (focus && (focus == &widget || widget.isAncestorOf(focus))) keepFocus();
}

void QtCanvas::giveFocusTo(QWidget& widget) {
  if (window()->focusWidget() != this) return;
  const QScopedValueRollback quiet(quiet_, true);
  widget.setFocus(Qt::OtherFocusReason);
}

bool QtCanvas::focusIsInside() const {
  const QWidget* focus = window()->focusWidget();
  return focus && (focus == this || isAncestorOf(focus));
}

void QtCanvas::focusInEvent(QFocusEvent* event) {
  if (quiet_ || !control_) return;
  guarded([&] {
    if (host::Control* focus = input().focus()) {
      if (focus->peer())
        focus->peer()->takeFocus();
      else
        tellToolsOfFocus();
    } else if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason) {
      input().moveFocus(event->reason() == Qt::TabFocusReason);
    } else if (event->reason() != Qt::MouseFocusReason) {
      input().surfaceGotFocus();
    }
  });
}

void QtCanvas::focusOutEvent(QFocusEvent* event) { focusLeft(event->reason()); }

// Another window, or a menu, only borrows the focus.
void QtCanvas::focusLeft(Qt::FocusReason reason) {
  const bool borrowed = reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
                        reason == Qt::MenuBarFocusReason;
  if (quiet_ || borrowed || !control_ || focusIsInside()) return;
  guarded([this] { input().surfaceLostFocus(); });
}

// The one that borrowed the focus may have given it to somebody else, and Qt tells that to nobody.
void QtCanvas::windowCameBack() {
  if (!quiet_ && input().focus() && !focusIsInside()) guarded([this] { input().surfaceLostFocus(); });
}

void QtCanvas::leave(bool forward) {
  keepFocus();
  if (QWidget::focusNextPrevChild(forward) || !control_) return;
  // There is nowhere else to go: from one end to the other.
  guarded([&] {
    input().surfaceLostFocus();
    if (control_) input().moveFocus(forward);
  });
}

}  // namespace qrn::qt
