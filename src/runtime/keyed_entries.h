#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "runtime/name_index.h"

namespace qrn {

/// The order and the keys of entries that somebody else makes and keeps where they are: what a list of
/// anything needs to know. Appending and finding cost the same however many there are; inserting before an
/// entry or removing one renumbers those behind it.
class KeyedEntries {
 public:
  static std::uint32_t hashOf(std::string_view key);

  std::int32_t count() const { return static_cast<std::int32_t>(entries_.size()); }
  /// By its position, from 1. Errors: 9 outside 1..count.
  KeyedEntry& at(std::int32_t position) const;
  /// Null for an unknown key.
  KeyedEntry* find(std::string_view key) const { return find(hashOf(key), key); }

  /// Appends, or inserts before a position in 1..count. False, and nothing done, for a key in use; nothing is
  /// done either when memory runs out.
  bool insert(KeyedEntry& entry, std::int32_t before);
  /// Takes an entry out that is here.
  void erase(const KeyedEntry& entry);

 private:
  KeyedEntry* find(std::uint32_t hash, std::string_view key) const;
  void startIndex();
  void renumberFrom(std::int32_t position);

  std::vector<KeyedEntry*> entries_;
  NameIndex index_;  // empty until they are many, then of all until none is left
};

}  // namespace qrn
