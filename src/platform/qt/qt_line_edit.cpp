#include "platform/qt/qt_line_edit.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>

namespace qrn::qt {

QtLineEdit::QtLineEdit(QWidget* parent) : QLineEdit(parent) {
  connect(this, &QLineEdit::cursorPositionChanged, this, [this](int, int now) {
    if (!telling_) history_.caretMoved(now);
  });
}

void QtLineEdit::write(const QString& text) {
  setText(text);
  if (!telling_) history_.startWith(state());
}

void QtLineEdit::endEdit() {
  telling_ = false;
  history_.edited(state());
}

void QtLineEdit::undoEdit() {
  if (!isReadOnly() && history_.canUndo()) goTo(history_.undo());
}

void QtLineEdit::redoEdit() {
  if (!isReadOnly() && history_.canRedo()) goTo(history_.redo());
}

void QtLineEdit::goTo(const TextState& state) {
  telling_ = true;
  setText(state.text);
  setCursorPosition(state.caret);
  telling_ = false;
  const QPointer<QWidget> alive(this);
  goingBack_ = true;
  emit textEdited(state.text);
  if (alive) goingBack_ = false;
}

void QtLineEdit::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Undo))
    undoEdit();
  else if (event->matches(QKeySequence::Redo))
    redoEdit();
  else
    QLineEdit::keyPressEvent(event);
}

// Undo and redo come first in Qt's own menu.
void QtLineEdit::contextMenuEvent(QContextMenuEvent* event) {
  QMenu* menu = createStandardContextMenu();
  menu->setAttribute(Qt::WA_DeleteOnClose);
  if (const auto actions = menu->actions(); !isReadOnly() && actions.size() >= 2) {
    const auto turn = [this](QAction& action, bool enabled, void (QtLineEdit::*act)()) {
      disconnect(&action, nullptr, this, nullptr);
      action.setEnabled(enabled);
      connect(&action, &QAction::triggered, this, act);
    };
    turn(*actions[0], history_.canUndo(), &QtLineEdit::undoEdit);
    turn(*actions[1], history_.canRedo(), &QtLineEdit::redoEdit);
  }
  menu->popup(event->globalPos());
}

}  // namespace qrn::qt
