#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "runtime/errors.h"
#include "runtime/keyed_entries.h"
#include "runtime/pool.h"

namespace qrn {

/// An ordered collection with 1-based positions and string keys whose case does not count.
template <class T>
class KeyedList {
 public:
  struct Entry : KeyedEntry {
    T value;
  };

  KeyedList() = default;
  KeyedList(const KeyedList&) = delete;
  KeyedList& operator=(const KeyedList&) = delete;
  ~KeyedList() {
    // A value that goes may ask for the others, so it finds none.
    const KeyedEntries going = std::exchange(entries_, {});
    for (std::int32_t position = 1; position <= going.count(); ++position)
      pool_.remove(static_cast<Entry&>(going.at(position)));
  }

  std::int32_t count() const { return entries_.count(); }

  /// Errors: 9 outside 1..count.
  Entry& at(std::int32_t position) const { return static_cast<Entry&>(entries_.at(position)); }

  /// Errors: 5 for an unknown key.
  Entry& at(std::string_view key) const {
    Entry* found = find(key);
    if (!found) raiseRunTimeError(kInvalidProcedureCall);
    return *found;
  }

  /// Null for an unknown key.
  Entry* find(std::string_view key) const { return static_cast<Entry*>(entries_.find(key)); }

  /// Appends, or inserts before a position in 1..count. The entry stays where it is in memory until removed.
  /// Errors: 457 for a key in use.
  Entry& add(std::string key, T value, std::int32_t before = 0) {
    Entry* const added = addNew(std::move(key), std::move(value), before);
    if (!added) raiseRunTimeError(kKeyAlreadyUsed);
    return *added;
  }

  /// The same; null for a key in use.
  Entry* addNew(std::string key, T value, std::int32_t before = 0) {
    const std::uint32_t hash = KeyedEntries::hashOf(key);
    const auto remove = [this](Entry* entry) { pool_.remove(*entry); };
    std::unique_ptr<Entry, decltype(remove)> added(&pool_.add({{std::move(key), hash}, std::move(value)}),
                                                   remove);
    return entries_.insert(*added, before) ? added.release() : nullptr;
  }

  /// Takes the entry out and hands its value to the caller. Errors: 9 outside 1..count.
  T take(std::int32_t position) { return takeEntry(position).value; }

  /// The same with its key.
  Entry takeEntry(std::int32_t position) {
    Entry& entry = at(position);
    entries_.erase(entry);
    Entry taken = std::move(entry);
    pool_.remove(entry);
    return taken;
  }

 private:
  KeyedEntries entries_;
  Pool<Entry> pool_;
};

}  // namespace qrn
