#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/text.h"
#include "runtime/errors.h"
#include "runtime/name_index.h"

namespace qrn {

/// An ordered collection with 1-based positions and string keys whose case does not count.
/// Appending and finding cost the same however long it is; inserting before an entry or removing one
/// renumbers those behind it.
template <class T>
class KeyedList {
 public:
  struct Entry {
    std::string key;
    T value;
    std::int32_t position;
    std::uint32_t hash;  // of the key
  };

  std::int32_t count() const { return static_cast<std::int32_t>(entries_.size()); }

  /// Errors: 9 outside 1..count.
  Entry& at(std::int32_t position) const {
    if (position < 1 || position > count()) raiseRunTimeError(kSubscriptOutOfRange);
    return *entries_[static_cast<std::size_t>(position) - 1];
  }

  /// Errors: 5 for an unknown key.
  Entry& at(std::string_view key) const {
    Entry* found = find(key);
    if (!found) raiseRunTimeError(kInvalidProcedureCall);
    return *found;
  }

  Entry* find(std::string_view key) const { return find(hashOf(key), key); }

  /// Appends, or inserts before a position in 1..count. The entry stays where it is in memory until removed.
  /// Errors: 457 for a key in use.
  Entry& add(std::string key, T value, std::int32_t before = 0) {
    Entry* const added = addNew(std::move(key), std::move(value), before);
    if (!added) raiseRunTimeError(kKeyAlreadyUsed);
    return *added;
  }

  /// The same; null for a key in use.
  Entry* addNew(std::string key, T value, std::int32_t before = 0) {
    const std::uint32_t hash = hashOf(key);
    if (find(hash, key)) return nullptr;
    const std::int32_t position = before >= 1 && before <= count() ? before : count() + 1;
    auto entry = std::make_unique<Entry>(Entry{std::move(key), std::move(value), position, hash});
    Entry& added = *entry;
    if (position > count()) {
      entries_.push_back(std::move(entry));
    } else {
      entries_.insert(entries_.begin() + (position - 1), std::move(entry));
      renumberFrom(position + 1);
    }
    if (!index_.empty())
      index_.insert(added);
    else if (count() > kFew)
      for (const auto& one : entries_) index_.insert(*one);
    return &added;
  }

  /// Takes the entry out and hands its value to the caller. Errors: 9 outside 1..count.
  T take(std::int32_t position) { return std::move(takeEntry(position)->value); }

  /// The same with its key.
  std::unique_ptr<Entry> takeEntry(std::int32_t position) {
    at(position);
    std::unique_ptr<Entry> entry = std::move(entries_[static_cast<std::size_t>(position) - 1]);
    if (!index_.empty()) index_.erase(*entry);
    entries_.erase(entries_.begin() + (position - 1));
    renumberFrom(position);
    return entry;
  }

  auto begin() const { return entries_.begin(); }
  auto end() const { return entries_.end(); }

 private:
  // Most lists hold a handful of entries: those are compared one by one and need no index.
  static constexpr std::int32_t kFew = 8;

  static std::uint32_t hashOf(std::string_view key) {
    return static_cast<std::uint32_t>(text::nameHash(key));
  }

  Entry* find(std::uint32_t hash, std::string_view key) const {
    if (!index_.empty()) return index_.find(hash, key);
    for (const auto& entry : entries_) {
      if (entry->hash == hash && text::sameName(entry->key, key)) return entry.get();
    }
    return nullptr;
  }

  void renumberFrom(std::int32_t position) {
    for (; position <= count(); ++position)
      entries_[static_cast<std::size_t>(position) - 1]->position = position;
  }

  std::vector<std::unique_ptr<Entry>> entries_;
  NameIndex<Entry> index_;
};

}  // namespace qrn
