#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

#include "base/text.h"
#include "runtime/errors.h"

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

  Entry* find(std::string_view key) const {
    if (!index_) {
      for (const auto& entry : entries_) {
        if (text::sameName(entry->key, key)) return entry.get();
      }
      return nullptr;
    }
    const auto found = index_->find(key);
    return found == index_->end() ? nullptr : *found;
  }

  /// Appends, or inserts before a position in 1..count. The entry stays where it is in memory until removed.
  /// Errors: 457 for a key in use.
  Entry& add(std::string key, T value, std::int32_t before = 0) {
    if (find(key)) raiseRunTimeError(kKeyAlreadyUsed);
    const std::int32_t position = before >= 1 && before <= count() ? before : count() + 1;
    auto entry = std::make_unique<Entry>(Entry{std::move(key), std::move(value), position});
    Entry& added = *entry;
    if (index_) index_->insert(&added);
    entries_.insert(entries_.begin() + (position - 1), std::move(entry));
    renumberFrom(position + 1);
    if (!index_ && count() > kFew) buildIndex();
    return added;
  }

  /// Takes the entry out and hands its value to the caller. Errors: 9 outside 1..count.
  T take(std::int32_t position) {
    Entry& entry = at(position);
    if (index_) index_->erase(&entry);
    T value = std::move(entry.value);
    entries_.erase(entries_.begin() + (position - 1));
    renumberFrom(position);
    return value;
  }

  auto begin() const { return entries_.begin(); }
  auto end() const { return entries_.end(); }

 private:
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(const Entry* entry) const { return text::nameHash(entry->key); }
    std::size_t operator()(std::string_view key) const { return text::nameHash(key); }
  };
  struct Same {
    using is_transparent = void;
    bool operator()(const Entry* a, const Entry* b) const { return a == b; }
    bool operator()(const Entry* a, std::string_view b) const { return text::sameName(a->key, b); }
    bool operator()(std::string_view a, const Entry* b) const { return text::sameName(a, b->key); }
  };

  // Most lists hold a handful of entries: those are compared one by one and need no index.
  static constexpr std::int32_t kFew = 8;

  void buildIndex() {
    index_ = std::make_unique<std::unordered_set<Entry*, Hash, Same>>();
    for (const auto& entry : entries_) index_->insert(entry.get());
  }

  void renumberFrom(std::int32_t position) {
    for (; position <= count(); ++position)
      entries_[static_cast<std::size_t>(position) - 1]->position = position;
  }

  std::vector<std::unique_ptr<Entry>> entries_;
  std::unique_ptr<std::unordered_set<Entry*, Hash, Same>> index_;
};

}  // namespace qrn
