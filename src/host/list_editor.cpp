#include "host/list_editor.h"

#include <algorithm>
#include <limits>

#include "base/text.h"
#include "host/user_control.h"
#include "runtime/errors.h"
#include "runtime/letter_case.h"

namespace qrn::host {

const ListEditor::Entry& ListEditor::entry(std::int32_t index) const {
  if (index < 0 || index >= ListCount()) raiseRunTimeError(kInvalidPropertyValue, typeName());
  return entries_[static_cast<std::size_t>(index)];
}

void ListEditor::SetList(std::int32_t index, std::string_view text) {
  Entry& changed = entry(index);
  if (changed.text == text) return;
  changed.text = text;
  entriesChanged();
}

void ListEditor::AddItem(std::string_view text) {
  if (ListCount() == std::numeric_limits<std::int16_t>::max()) raiseRunTimeError(kOverflow, typeName());
  entries_.push_back({std::string(text)});
  newIndex_ = static_cast<std::int16_t>(ListCount() - 1);
  entriesChanged();
}

void ListEditor::RemoveItem(std::int32_t index) {
  entry(index);
  entries_.erase(entries_.begin() + index);
  if (listIndex_ == index)
    listIndex_ = -1;
  else if (listIndex_ > index)
    --listIndex_;
  entriesChanged();
}

void ListEditor::Clear() {
  entries_.clear();
  listIndex_ = -1;
  entriesChanged();
}

void ListEditor::SetListIndex(std::int32_t index) {
  if (index == listIndex_) return;
  if (index < -1 || index >= ListCount()) raiseRunTimeError(kInvalidPropertyValue, typeName());
  listIndex_ = index;
  touched(Aspect::Content);
}

double ListEditor::widestText() const {
  if (widest_ != kUnknown) return widest_;
  widest_ = 0;
  for (const Entry& one : entries_) widest_ = std::max(widest_, measured(one.text));
  return widest_;
}

void ListEditor::entriesChanged() {
  forgetMeasures();
  touched(Aspect::Entries);
}

std::int32_t ListEditor::indexTypedTo(char32_t character) const {
  std::string wanted;
  text::append(wanted, character);
  wanted = upperCase(std::string_view(wanted));
  const std::int32_t count = ListCount();
  for (std::int32_t step = 1; step <= count; ++step) {
    const std::int32_t index = (listIndex_ + step) % count;
    if (upperCase(std::string_view(List(index))).starts_with(wanted)) return index;
  }
  return listIndex_;
}

std::intptr_t ListEditor::windowMessage(const Message& message) {
  if (message.number == wm::GetDlgCode) return dlgc::WantChars | dlgc::WantArrows;
  return Editor::windowMessage(message);
}

}  // namespace qrn::host
