#pragma once

#include <QAccessible>

namespace qrn::host {
class TextBox;
class VScrollBar;
}  // namespace qrn::host

namespace qrn::qt {

class QtAccessible;

/// The text of an editor. Tools read what a person sees, and what they write goes through the row as if it
/// had been typed. Positions are those of Qt, in UTF-16 units.
class QtAccessibleText final : public QAccessibleTextInterface, public QAccessibleEditableTextInterface {
 public:
  explicit QtAccessibleText(QtAccessible& owner) : owner_(owner) {}

  void selection(int index, int* start, int* end) const override;
  int selectionCount() const override;
  void addSelection(int start, int end) override { setSelection(0, start, end); }
  void removeSelection(int index) override;
  void setSelection(int index, int start, int end) override;
  int cursorPosition() const override;
  void setCursorPosition(int position) override { setSelection(0, position, position); }
  QString text(int start, int end) const override;
  int characterCount() const override;
  QRect characterRect(int offset) const override;
  int offsetAtPoint(const QPoint& point) const override;
  void scrollToSubstring(int, int) override {}
  QString attributes(int offset, int* start, int* end) const override;

  void deleteText(int start, int end) override { replaceText(start, end, {}); }
  void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
  void replaceText(int start, int end, const QString& text) override;

 private:
  host::TextBox* box() const;
  QString shown() const;

  QtAccessible& owner_;
};

/// The position of a scroll bar.
class QtAccessibleValue final : public QAccessibleValueInterface {
 public:
  explicit QtAccessibleValue(QtAccessible& owner) : owner_(owner) {}

  QVariant currentValue() const override;
  void setCurrentValue(const QVariant& value) override;
  QVariant maximumValue() const override;
  QVariant minimumValue() const override;
  QVariant minimumStepSize() const override;

 private:
  host::VScrollBar* bar() const;

  QtAccessible& owner_;
};

}  // namespace qrn::qt
