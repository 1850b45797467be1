#include "host/list_entries.h"

#include <algorithm>
#include <limits>

#include "runtime/errors.h"

namespace qrn::host {

const ListEntries::Entry& ListEntries::entry(std::int32_t index) const {
  if (index < 0 || index >= ListCount()) raiseRunTimeError(kInvalidPropertyValue, listName());
  return entries_[static_cast<std::size_t>(index)];
}

void ListEntries::SetList(std::int32_t index, std::string_view text) {
  Entry& changed = entry(index);
  if (changed.text == text) return;
  changed.text = text;
  entriesChanged();
}

void ListEntries::AddItem(std::string_view text) {
  if (ListCount() == std::numeric_limits<std::int16_t>::max()) raiseRunTimeError(kOverflow, listName());
  Entry added{.text = std::string(text)};  // it may be a text of this list
  // In small steps: most lists are short, and a panel has many of them.
  if (entries_.size() == entries_.capacity())
    entries_.reserve(std::max<std::size_t>(4, entries_.size() + entries_.size() / 4 + 1));
  entries_.push_back(std::move(added));
  newIndex_ = static_cast<std::int16_t>(ListCount() - 1);
  entriesChanged();
}

void ListEntries::RemoveItem(std::int32_t index) {
  entry(index);
  entries_.erase(entries_.begin() + index);
  if (listIndex_ == index)
    listIndex_ = -1;
  else if (listIndex_ > index)
    --listIndex_;
  entriesChanged();
}

void ListEntries::Clear() {
  entries_.clear();
  listIndex_ = -1;
  entriesChanged();
}

void ListEntries::take(ListEntries&& other) {
  entries_ = std::move(other.entries_);
  listIndex_ = other.listIndex_;
  newIndex_ = other.newIndex_;
  entriesChanged();
}

void ListEntries::SetListIndex(std::int32_t index) {
  if (index == listIndex_) return;
  if (index < -1 || index >= ListCount()) raiseRunTimeError(kInvalidPropertyValue, listName());
  listIndex_ = index;
  currentChanged();
}

}  // namespace qrn::host
