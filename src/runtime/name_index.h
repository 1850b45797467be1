#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace qrn {

/// Something in a list, with a key whose case does not count.
struct KeyedEntry {
  std::string key;
  std::uint32_t hash;  // of the key
  std::int32_t position = 0;
};

/// Finds entries by their keys. A table of pointers that is at most two thirds full; whatever can't lie at
/// home lies behind it. The hashes stand beside it, so that going past an entry does not touch that one.
class NameIndex {
 public:
  bool empty() const { return used_ == 0; }

  KeyedEntry* find(std::uint32_t hash, std::string_view key) const;
  /// False, and the entry left out, where the key is in use; left out too when memory runs out.
  bool insert(KeyedEntry& entry);
  /// The entry has to be here.
  void erase(const KeyedEntry& entry);

 private:
  std::size_t mask() const { return slots_.size() - 1; }
  std::size_t home(std::uint32_t hash) const { return hash & mask(); }
  std::size_t next(std::size_t i) const { return (i + 1) & mask(); }
  std::size_t steps(std::size_t from, std::size_t to) const { return (to - from) & mask(); }
  void put(std::size_t i, KeyedEntry* entry, std::uint32_t hash) {
    slots_[i] = entry;
    hashes_[i] = hash;
  }
  void grow();

  std::vector<KeyedEntry*> slots_;  // a power of two of them
  std::vector<std::uint32_t> hashes_;
  std::size_t used_ = 0;
};

}  // namespace qrn
