#include "runtime/keyed_entries.h"

#include <algorithm>

#include "base/text.h"
#include "runtime/errors.h"

namespace qrn {
namespace {

// Most lists hold a handful of entries: those are compared one by one and need no index.
constexpr std::int32_t kFew = 8;

}  // namespace

std::uint32_t KeyedEntries::hashOf(std::string_view key) {
  return static_cast<std::uint32_t>(text::nameHash(key));
}

KeyedEntry& KeyedEntries::at(std::int32_t position) const {
  if (position < 1 || position > count()) raiseRunTimeError(kSubscriptOutOfRange);
  return *entries_[static_cast<std::size_t>(position) - 1];
}

KeyedEntry* KeyedEntries::find(std::uint32_t hash, std::string_view key) const {
  if (!index_.empty()) return index_.find(hash, key);
  for (KeyedEntry* entry : entries_) {
    if (entry->hash == hash && text::sameName(entry->key, key)) return entry;
  }
  return nullptr;
}

bool KeyedEntries::insert(KeyedEntry& entry, std::int32_t before) {
  if (index_.empty() && count() == kFew) startIndex();
  // Before the index has the entry: from then on nothing may fail.
  if (entries_.size() == entries_.capacity())
    entries_.reserve(std::max<std::size_t>(kFew, 2 * entries_.size()));
  const bool isNew = index_.empty() ? !find(entry.hash, entry.key) : index_.insert(entry);
  if (!isNew) return false;
  entry.position = before >= 1 && before <= count() ? before : count() + 1;
  entries_.insert(entries_.begin() + (entry.position - 1), &entry);
  renumberFrom(entry.position + 1);
  return true;
}

void KeyedEntries::startIndex() {
  NameIndex index;
  for (KeyedEntry* entry : entries_) index.insert(*entry);
  index_ = std::move(index);
}

void KeyedEntries::erase(const KeyedEntry& entry) {
  if (!index_.empty()) index_.erase(entry);
  entries_.erase(entries_.begin() + (entry.position - 1));
  renumberFrom(entry.position);
}

void KeyedEntries::renumberFrom(std::int32_t position) {
  for (; position <= count(); ++position)
    entries_[static_cast<std::size_t>(position) - 1]->position = position;
}

}  // namespace qrn
