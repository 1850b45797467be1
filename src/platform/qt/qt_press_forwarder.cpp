#include "platform/qt/qt_press_forwarder.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QStyleHints>

namespace qrn::qt {

void QtPressForwarder::send(QWidget& receiver, const QMouseEvent& event, int type, QPointF moved) {
  const QScopedValueRollback sending(sending_, true);
  const QPointF local = receiver.mapFromGlobal(event.globalPosition()) + moved;
  QMouseEvent sent(static_cast<QEvent::Type>(type), local, event.globalPosition(), event.button(),
                   event.buttons(), event.modifiers(), event.pointingDevice());
  sent.setTimestamp(event.timestamp());
  QCoreApplication::sendEvent(&receiver, &sent);
}

void QtPressForwarder::press(QWidget& receiver, const QMouseEvent& event, QPointF moved) {
  receiver_ = &receiver;
  moved_ = moved;
  firstClick_ = event.button() == Qt::LeftButton ? &receiver : nullptr;
  firstClickAt_ = event.globalPosition().toPoint();
  firstClickTime_ = event.timestamp();
  send(receiver, event, QEvent::MouseButtonPress, moved);
}

void QtPressForwarder::pass(const QMouseEvent& event) {
  QWidget& receiver = *receiver_;
  if (event.buttons() == Qt::NoButton) end();
  send(receiver, event, event.type(), moved_);
}

void QtPressForwarder::passMenu(const QContextMenuEvent& event) {
  if (!receiver_ || passingMenu_) return;
  const QScopedValueRollback passing(passingMenu_, true);
  const QPointF local = receiver_->mapFromGlobal(QPointF(event.globalPos())) + moved_;
  QContextMenuEvent sent(event.reason(), local.toPoint(), event.globalPos(), event.modifiers());
  QCoreApplication::sendEvent(receiver_, &sent);
}

bool QtPressForwarder::completeDoubleClick(QWidget& receiver, const QMouseEvent& press) {
  if (sending_ || firstClick_ != &receiver) return false;
  firstClick_ = nullptr;
  const auto& hints = *QGuiApplication::styleHints();
  const auto apart = (press.globalPosition().toPoint() - firstClickAt_).manhattanLength();
  const bool second =
      press.button() == Qt::LeftButton && apart <= hints.mouseDoubleClickDistance() &&
      press.timestamp() - firstClickTime_ <= static_cast<quint64>(hints.mouseDoubleClickInterval());
  if (second) send(receiver, press, QEvent::MouseButtonDblClick, {});
  return second;
}

}  // namespace qrn::qt
