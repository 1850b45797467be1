#include "support/qt_user.h"

#include <QApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QTest>
#include <QWheelEvent>
#include <algorithm>
#include <iterator>

namespace qrn::test {
namespace {

struct NativeKey {
  std::int16_t code;
  Qt::Key key;
};

constexpr NativeKey kKeys[] = {
    {host::key::Back, Qt::Key_Backspace},
    {host::key::Tab, Qt::Key_Tab},
    {host::key::Enter, Qt::Key_Return},
    {host::key::Escape, Qt::Key_Escape},
    {host::key::Space, Qt::Key_Space},
    {host::key::PageUp, Qt::Key_PageUp},
    {host::key::PageDown, Qt::Key_PageDown},
    {host::key::End, Qt::Key_End},
    {host::key::Home, Qt::Key_Home},
    {host::key::Left, Qt::Key_Left},
    {host::key::Up, Qt::Key_Up},
    {host::key::Right, Qt::Key_Right},
    {host::key::Down, Qt::Key_Down},
    {host::key::Insert, Qt::Key_Insert},
    {host::key::Delete, Qt::Key_Delete},
    {host::key::F1, Qt::Key_F1},
    {host::key::F4, Qt::Key_F4},
    {host::key::F10, Qt::Key_F10},
};

Qt::Key nativeKey(std::int16_t code) {
  const auto* known = std::find_if(std::begin(kKeys), std::end(kKeys),
                                   [&](const NativeKey& one) { return one.code == code; });
  // Letters and digits have the same numbers.
  return known == std::end(kKeys) ? static_cast<Qt::Key>(code) : known->key;
}

Qt::KeyboardModifiers modifiersOf(std::int16_t shift) {
  Qt::KeyboardModifiers result;
  result.setFlag(Qt::ShiftModifier, shift & host::shift::Shift);
  result.setFlag(Qt::ControlModifier, shift & host::shift::Control);
  result.setFlag(Qt::AltModifier, shift & host::shift::Alt);
  return result;
}

Qt::MouseButton nativeButton(host::MouseButton button) {
  switch (button) {
    case host::MouseButton::Right: return Qt::RightButton;
    case host::MouseButton::Middle: return Qt::MiddleButton;
    default: return Qt::LeftButton;
  }
}

QPoint pixelOf(Point at) { return {static_cast<int>(at.x), static_cast<int>(at.y)}; }

}  // namespace

QWidget* QtUser::widgetAt(Point at) const {
  QWidget* child = window_->childAt(pixelOf(at));
  return child ? child : window_.data();
}

QWidget* QtUser::keyboard() const {
  QWidget* focused = QApplication::focusWidget();
  return focused ? focused : window_.data();
}

void QtUser::mouse(QEvent::Type type, Point at, std::optional<host::MouseButton> button) {
  if (!window_) return;
  QWidget* target = widgetAt(at);
  const QPoint place = pixelOf(at);
  const Qt::MouseButton native = button ? nativeButton(*button) : Qt::NoButton;
  const bool down = type != QEvent::MouseButtonRelease && type != QEvent::MouseMove;
  QMouseEvent event(type, target->mapFrom(window_, place), window_->mapToGlobal(place), native,
                    down ? native : Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(target, &event);
}

void QtUser::turnsWheel(Point at, double notches) {
  if (!window_) return;
  QWidget* target = widgetAt(at);
  const QPoint place = pixelOf(at);
  QWheelEvent event(target->mapFrom(window_, place), window_->mapToGlobal(place), {},
                    {0, static_cast<int>(notches * 120)}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                    false);
  QApplication::sendEvent(target, &event);
}

void QtUser::pressesKey(std::int16_t key, std::int16_t shift) {
  if (QWidget* target = keyboard()) QTest::keyClick(target, nativeKey(key), modifiersOf(shift));
}

void QtUser::types(QChar character) {
  QWidget* target = keyboard();
  if (!target) return;
  if (character.unicode() < 0x80)
    QTest::keyClick(target, character.toLatin1());
  else
    QTest::sendKeyEvent(QTest::Click, target, Qt::Key_unknown, QString(character), Qt::NoModifier);
}

bool QtUser::chooses(std::optional<int> entry) {
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  if (!menu) return false;
  for (QAction* action : menu->actions()) {
    if (!entry || action->data().toInt() != *entry) continue;
    menu->setActiveAction(action);
    QTest::keyClick(menu, Qt::Key_Return);
    return true;
  }
  menu->close();
  return true;
}

void QtUser::waits() {
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

}  // namespace qrn::test
