#include "platform/qt/qt_canvas.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QToolTip>
#include <algorithm>
#include <iterator>

#include "host/text_box.h"
#include "host/user_control.h"
#include "platform/qt/qt_accessible_parts.h"
#include "platform/qt/qt_geometry.h"
#include "platform/qt/qt_guard.h"
#include "platform/qt/qt_keys.h"
#include "platform/qt/qt_peer.h"
#include "platform/qt/qt_platform.h"
#include "platform/qt/qt_surface.h"
#include "platform/qt/qt_text.h"

namespace qrn::qt {

QtCanvas::QtCanvas(QtPlatform& platform, host::UserControl& control)
    : platform_(platform), control_(&control) {
  // A click on something that takes no focus leaves it where it is.
  setFocusPolicy(Qt::TabFocus);
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
  if (!sizeHint().isEmpty()) resize(sizeHint());
}

QtCanvas::~QtCanvas() = default;

host::Input& QtCanvas::input() const { return control_->input(); }

QSize QtCanvas::sizeHint() const { return control_ ? toPixels(control_->onSurface()).size() : QSize(); }

void QtCanvas::followSize() {
  if (!resizing_ && control_) resize(sizeHint());
}

void QtCanvas::resizeEvent(QResizeEvent*) {
  if (!control_) return;
  const QScopedValueRollback resizing(resizing_, true);
  guarded([this] { control_->Move(control_->Left(), control_->Top(), width(), height()); });
}

void QtCanvas::paintEvent(QPaintEvent* event) {
  if (!control_) return;
  QPainter painter(this);
  guarded([&] {
    QtSurface surface(platform_, painter, fromQt(event->rect()), event->region());
    surface.fill(fromQt(rect()), control_->backColor());
    control_->paintTree(surface);
  });
}

void QtCanvas::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  constexpr QEvent::Type kLooks[] = {QEvent::PaletteChange, QEvent::StyleChange, QEvent::FontChange};
  if (!control_ || std::find(std::begin(kLooks), std::end(kLooks), event->type()) == std::end(kLooks)) return;
  platform_.appearanceChanged();
  if (host::Control* focus = input().focus(); focus && focus->peer())
    focus->peer()->changed(host::Aspect::Look);
  update();
}

bool QtCanvas::event(QEvent* event) {
  if (control_) {
    switch (event->type()) {
      case QEvent::WindowActivate: windowCameBack(); break;
      case QEvent::ToolTip: return showToolTip(static_cast<QHelpEvent&>(*event));
      case QEvent::ShortcutOverride:
      case QEvent::KeyPress:
      case QEvent::KeyRelease:
        if (ownKey(static_cast<QKeyEvent&>(*event))) return true;
        break;
      default: break;
    }
  }
  return QWidget::event(event);
}

// ---- mouse ----

void QtCanvas::mousePressEvent(QMouseEvent* event) { pressed(*event, false); }

void QtCanvas::mouseDoubleClickEvent(QMouseEvent* event) {
  pressed(*event, event->button() == Qt::LeftButton);
}

void QtCanvas::pressed(const QMouseEvent& event, bool again) {
  const auto button = mouseButton(event.button());
  if (!control_ || forwarder_.sending() || !button) return;
  // The focus may scroll what it comes to.
  const Point at = fromQt(event.position());
  const host::Control* const under = input().hit(at);
  const Point before = under->onSurface().topLeft();
  host::Control* editor = nullptr;
  guarded([&] {
    editor = again ? input().doubleClick(at) : input().mouseDown(*button, shiftState(event.modifiers()), at);
  });
  if (!control_) return;
  auto* peer = editor ? static_cast<QtPeer*>(editor->peer()) : nullptr;
  if (QWidget* receiver = peer ? peer->mouseReceiver() : nullptr)
    forwarder_.press(*receiver, event,
                     editor == under ? toQt(editor->onSurface().topLeft() - before) : QPointF());
  else if (!focusIsInside())
    keepFocus();
}

void QtCanvas::mouseMoveEvent(QMouseEvent* event) {
  if (!control_ || forwarder_.sending()) return;
  // A drop list that opened has taken the release.
  if (event->buttons() == Qt::NoButton) forwarder_.end();
  if (forwarder_.active()) return forwarder_.pass(*event);
  showCursorOver(event->position());
  guarded([&] {
    input().mouseMove(mouseButtons(event->buttons()), shiftState(event->modifiers()),
                      fromQt(event->position()));
  });
}

void QtCanvas::leaveEvent(QEvent*) {
  if (control_) guarded([&] { input().mouseLeft(); });
}

void QtCanvas::mouseReleaseEvent(QMouseEvent* event) {
  const auto button = mouseButton(event->button());
  if (!control_ || forwarder_.sending() || !button) return;
  if (forwarder_.active()) return forwarder_.pass(*event);
  guarded([&] { input().mouseUp(*button, shiftState(event->modifiers()), fromQt(event->position())); });
}

void QtCanvas::wheelEvent(QWheelEvent* event) {
  bool used = false;
  const double notches = event->angleDelta().y() / 120.0;
  if (control_ && notches != 0) guarded([&] { used = input().wheel(fromQt(event->position()), notches); });
  event->setAccepted(used);
}

// A right press on a painted editor opens the menu of the real one.
void QtCanvas::contextMenuEvent(QContextMenuEvent* event) { forwarder_.passMenu(*event); }

// What the row or button around an editor offers goes before what its widget does.
bool QtCanvas::offersMenu(const QWidget& editor, const QContextMenuEvent& event) {
  host::Control* control = controlOf(editor);
  if (event.reason() != QContextMenuEvent::Mouse || !control || !control->enabledUpToSurface()) return false;
  const QtPlatform& platform = platform_;
  const int before = platform.menusShown();
  guarded([&] {
    control->Parent()->childMouseUp(*control, host::MouseButton::Right, shiftState(event.modifiers()),
                                    fromQt(QPointF(event.pos())));
  });
  return platform.menusShown() != before;
}

void QtCanvas::showCursorOver(const QPointF& at) {
  const auto* box = dynamic_cast<const host::TextBox*>(input().hit(fromQt(at)));
  const Qt::CursorShape shape = box && box->enabledUpToSurface() ? Qt::IBeamCursor : Qt::ArrowCursor;
  if (cursor().shape() != shape) setCursor(shape);
}

bool QtCanvas::showToolTip(QHelpEvent& event) {
  const host::Control* control = input().hit(fromQt(QPointF(event.pos())));
  while (control && control->ToolTipText().empty()) control = control->Container();
  if (control) {
    // Never read as markup, whatever it looks like.
    const QString text = toQString(control->ToolTipText()).toHtmlEscaped();
    const QString shown = "<span style='white-space: pre-wrap'>" + text + "</span>";
    QToolTip::showText(event.globalPos(), shown, this, toPixels(control->onSurface()));
  } else {
    QToolTip::hideText();
    event.ignore();
  }
  return true;
}

// ---- keys ----

bool QtCanvas::eventFilter(QObject* watched, QEvent* event) {
  if (!control_ || typing_) return false;
  auto& editor = static_cast<QWidget&>(*watched);
  switch (event->type()) {
    case QEvent::ShortcutOverride: {
      const bool ours = wants(static_cast<QKeyEvent&>(*event));
      if (ours) event->accept();
      return ours;
    }
    case QEvent::KeyPress: return keyPressed(static_cast<QKeyEvent&>(*event), &editor);
    case QEvent::KeyRelease: return keyReleased(static_cast<QKeyEvent&>(*event));
    case QEvent::MouseButtonPress:
      return forwarder_.completeDoubleClick(editor, static_cast<QMouseEvent&>(*event));
    case QEvent::ContextMenu: return offersMenu(editor, static_cast<QContextMenuEvent&>(*event));
    case QEvent::FocusOut: focusLeft(static_cast<QFocusEvent&>(*event).reason()); return false;
    default: return false;
  }
}

// A dialog must not take these keys away from an editor.
bool QtCanvas::wants(const QKeyEvent& event) {
  bool wanted = false;
  if (isPlain(event)) guarded([&] { wanted = input().wantsKey(keyCode(event)); });
  return wanted;
}

// Keys of the canvas itself, and those that its editor has left over.
bool QtCanvas::ownKey(QKeyEvent& event) {
  if (!hasFocus()) {
    event.setAccepted(wants(event));
    return true;
  }
  if (event.type() == QEvent::KeyPress) return keyPressed(event, nullptr);
  if (event.type() == QEvent::KeyRelease) return keyReleased(event);
  const bool ours = wants(event);
  if (ours) event.accept();
  return ours;
}

bool QtCanvas::keyPressed(QKeyEvent& event, QWidget* editor) {
  // From now on styles mark what has the focus, as they do where Qt itself moves it.
  if (isTab(event)) window()->setAttribute(Qt::WA_KeyboardFocusChange);
  bool used = false;
  guarded([&] { used = input().keyDown(keyCode(event), shiftState(event.modifiers())); });
  if (used || !control_) return true;
  if (isTab(event)) {
    leave(event.key() == Qt::Key_Tab && !(event.modifiers() & Qt::ShiftModifier));
    return true;
  }
  const std::int16_t typed = typedCharacter(event);
  if (typed == 0) return false;
  std::int16_t remains = typed;
  guarded([&] { remains = input().keyPress(typed); });
  if (remains == typed && control_) return false;
  if (remains != 0 && control_ && editor) type(*editor, event, remains);
  return true;
}

bool QtCanvas::keyReleased(QKeyEvent& event) {
  bool used = false;
  if (!event.isAutoRepeat())
    guarded([&] { used = input().keyUp(keyCode(event), shiftState(event.modifiers())); });
  return used;
}

void QtCanvas::type(QWidget& editor, const QKeyEvent& event, std::int16_t character) {
  int key = 0;
  switch (character) {
    case host::key::Back: key = Qt::Key_Backspace; break;
    case host::key::Enter: key = Qt::Key_Return; break;
    case host::key::Escape: key = Qt::Key_Escape; break;
    default: key = QChar(character).toUpper().unicode();
  }
  const QScopedValueRollback typing(typing_, true);
  QKeyEvent sent(QEvent::KeyPress, key, event.modifiers(), QString(QChar(character)), event.isAutoRepeat());
  QCoreApplication::sendEvent(&editor, &sent);
}

}  // namespace qrn::qt
