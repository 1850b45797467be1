#pragma once

#include <QLineEdit>
#include <QPointer>
#include <utility>

#include "platform/qt/qt_text_history.h"

namespace qrn::qt {

/// A line edit that keeps what can be undone while the program corrects what is typed: Qt's own forgets
/// everything whenever its text is set.
class QtLineEdit final : public QLineEdit {
 public:
  explicit QtLineEdit(QWidget* parent);

  /// The program's text. It can't be undone, nor can what was before, unless it answers an edit.
  void write(const QString& text);
  /// Tells of an edit of the user. It is one step along with all that is written meanwhile.
  template <class Tell>
  void tellEdit(Tell&& tell) {
    const QPointer<QWidget> alive(this);
    telling_ = true;
    std::forward<Tell>(tell)();
    if (alive) endEdit();
  }

  void undoEdit();
  void redoEdit();
  /// The edit that is told of is one of those two: the text is one that has been here before.
  bool goingBack() const { return goingBack_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  TextState state() const { return {text(), cursorPosition()}; }
  void endEdit();
  void goTo(const TextState& state);

  TextHistory history_;
  bool telling_ = false;
  bool goingBack_ = false;
};

}  // namespace qrn::qt
