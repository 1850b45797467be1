#include "platform/qt/qt_accessible_text.h"

#include <algorithm>

#include "host/text_box.h"
#include "host/v_scroll_bar.h"
#include "platform/qt/qt_accessible.h"
#include "platform/qt/qt_guard.h"
#include "platform/qt/qt_text.h"

namespace qrn::qt {

host::TextBox* QtAccessibleText::box() const { return dynamic_cast<host::TextBox*>(owner_.node().control); }

QString QtAccessibleText::shown() const { return box() ? toQString(box()->shownText()) : QString(); }

// ---- to read ----

QString QtAccessibleText::text(int start, int end) const {
  const QString all = shown();
  const int last = end < 0 ? static_cast<int>(all.size()) : end;  // as tools say "to the end"
  return all.mid(std::max(start, 0), std::max(last - std::max(start, 0), 0));
}

int QtAccessibleText::characterCount() const { return static_cast<int>(shown().size()); }

int QtAccessibleText::selectionCount() const { return box() && box()->SelLength() > 0 ? 1 : 0; }

void QtAccessibleText::selection(int index, int* start, int* end) const {
  *start = *end = 0;
  if (index != 0 || selectionCount() == 0) return;
  const QString all = shown();
  *start = unitsBefore(all, box()->SelStart());
  *end = unitsBefore(all, box()->SelStart() + box()->SelLength());
}

int QtAccessibleText::cursorPosition() const {
  return box() ? unitsBefore(shown(), box()->SelStart() + box()->SelLength()) : 0;
}

void QtAccessibleText::removeSelection(int index) {
  if (index == 0) setCursorPosition(cursorPosition());
}

void QtAccessibleText::setSelection(int index, int start, int end) {
  if (index != 0 || !box()) return;
  const QString all = shown();
  const std::int32_t from = codePointsBefore(all, std::min(start, end));
  box()->select(from, codePointsBefore(all, std::max(start, end)) - from);
}

// Where single letters stand only the native editor knows.
QRect QtAccessibleText::characterRect(int) const { return {}; }

int QtAccessibleText::offsetAtPoint(const QPoint&) const { return -1; }

QString QtAccessibleText::attributes(int, int* start, int* end) const {
  *start = 0;
  *end = characterCount();
  return {};
}

// ---- to write ----

void QtAccessibleText::replaceText(int start, int end, const QString& text) {
  const host::AccessibleNode target = owner_.node();
  if (!box()) return;
  // The text itself: what is shown of a password would be entered as one.
  QString all = toQString(box()->Text());
  const int size = static_cast<int>(all.size());
  const int from = std::clamp(start, 0, size), to = end < 0 ? size : std::clamp(end, from, size);
  all.replace(from, to - from, text);
  guarded([&] { target.enter(toUtf8(all)); });
}

// ---- scroll bars ----

host::VScrollBar* QtAccessibleValue::bar() const {
  return dynamic_cast<host::VScrollBar*>(owner_.node().control);
}

QVariant QtAccessibleValue::currentValue() const { return bar() ? bar()->Value() : 0; }

void QtAccessibleValue::setCurrentValue(const QVariant& value) {
  const host::AccessibleNode target = owner_.node();
  if (bar()) guarded([&] { target.enter(toUtf8(value.toString())); });
}

QVariant QtAccessibleValue::maximumValue() const { return bar() ? bar()->Max() : 0; }

QVariant QtAccessibleValue::minimumValue() const { return bar() ? bar()->Min() : 0; }

QVariant QtAccessibleValue::minimumStepSize() const { return bar() ? bar()->SmallChange() : 0; }

}  // namespace qrn::qt
