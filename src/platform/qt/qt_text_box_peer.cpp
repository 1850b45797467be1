#include "platform/qt/qt_text_box_peer.h"

#include <QApplication>
#include <QProxyStyle>
#include <algorithm>
#include <utility>

#include "platform/qt/qt_canvas.h"
#include "platform/qt/qt_text.h"

namespace qrn::qt {

Qt::Alignment horizontalAlignment(std::int32_t alignment) {
  if (alignment == host::kAlignLeft) return Qt::AlignLeft;
  return alignment == host::kAlignRight ? Qt::AlignRight : Qt::AlignHCenter;
}

QChar passwordCharacter(const host::TextBox& box) {
  const QString hidden = toQString(box.PasswordChar());
  return hidden.isEmpty() ? QChar() : hidden.front();
}

/// The application's style but for the character that hides others, which a line edit asks its style for.
class HidingStyle final : public QProxyStyle {
 public:
  explicit HidingStyle(QChar hidden)
      : QProxyStyle(QApplication::style()->name()), usual_(QApplication::style()->name()), hidden_(hidden) {}

  bool serves(QChar hidden) const { return hidden == hidden_ && usual_ == QApplication::style()->name(); }
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    if (hint == SH_LineEdit_PasswordCharacter) return hidden_.unicode();
    return QProxyStyle::styleHint(hint, option, widget, data);
  }

 private:
  QString usual_;
  QChar hidden_;
};

QtTextBoxPeer::QtTextBoxPeer(QtCanvas& canvas, host::TextBox& box)
    : QtEditorPeer(canvas, box, new QtLineEdit(&canvas)),
      box_(box),
      line_(static_cast<QtLineEdit&>(*widget())) {
  bringUpToDate();
  QObject::connect(&line_, &QLineEdit::textEdited, context(), [this] { reportText(); });
  QObject::connect(&line_, &QLineEdit::selectionChanged, context(), [this] { reportSelection(); });
  QObject::connect(&line_, &QLineEdit::cursorPositionChanged, context(), [this] { reportSelection(); });
}

void QtTextBoxPeer::applyLook() {
  applyPasswordChar();
  QtEditorPeer::applyLook();
  // Absolute, or a text from right to left would lie at the other side.
  line_.setAlignment(horizontalAlignment(box_.Alignment()) | Qt::AlignVCenter | Qt::AlignAbsolute);
}

void QtTextBoxPeer::applyPasswordChar() {
  const QChar hidden = passwordCharacter(box_);
  line_.setEchoMode(hidden.isNull() ? QLineEdit::Normal : QLineEdit::Password);
  if (hidden.isNull() && hiding_) {
    line_.setStyle(nullptr);
    delete std::exchange(hiding_, nullptr);
  }
  if (hidden.isNull() || (hiding_ && hiding_->serves(hidden))) return;
  auto* style = new HidingStyle(hidden);
  style->setParent(&line_);
  line_.setStyle(style);
  delete std::exchange(hiding_, style);
}

void QtTextBoxPeer::applyEnabled() {
  QtEditorPeer::applyEnabled();
  line_.setReadOnly(box_.Locked());
}

// The control has the limit: it counts code points, and a line edit would cut one in two. A line edit sets
// its text anew for a limit, the one that it has included.
void QtTextBoxPeer::makeRoom(const QString& text) {
  constexpr int kUsual = 32767;
  const int allowed = std::max(kUsual, static_cast<int>(text.size()));
  if (line_.maxLength() < allowed) line_.setMaxLength(allowed);
}

void QtTextBoxPeer::applyContent() {
  const QString text = toQString(box_.Text());
  makeRoom(text);
  if (line_.text() != text) line_.write(text);
  applySelection();
}

void QtTextBoxPeer::applySelection() {
  const QString text = toQString(box_.Text());
  const int start = unitsBefore(text, box_.SelStart());
  const int length = unitsBefore(text, box_.SelStart() + box_.SelLength()) - start;
  const bool selected = line_.hasSelectedText();
  if (length > 0 && (!selected || line_.selectionStart() != start || line_.selectionLength() != length))
    line_.setSelection(start, length);
  else if (length == 0 && (selected || line_.cursorPosition() != start))
    line_.setCursorPosition(start);
}

void QtTextBoxPeer::reportText() {
  line_.tellEdit([this] {
    report([this] {
      const QString text = line_.text();
      const std::int32_t caret = codePointsBefore(text, line_.cursorPosition());
      if (line_.goingBack())
        box_.userWentBack(toUtf8(text), caret);
      else
        box_.userTyped(toUtf8(text), caret);
    });
  });
}

void QtTextBoxPeer::reportSelection() {
  report([this] {
    const QString text = line_.text();
    const bool selected = line_.hasSelectedText();
    const int from = selected ? line_.selectionStart() : line_.cursorPosition();
    const int to = selected ? line_.selectionEnd() : from;
    const std::int32_t start = codePointsBefore(text, from);
    box_.userSelected(start, codePointsBefore(text, to) - start);
  });
}

}  // namespace qrn::qt
