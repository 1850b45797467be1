#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "base/text.h"

namespace qrn {

/// Finds entries, each with a `key` whose case does not count and the `hash` of it. A table of pointers that
/// is at most two thirds full; whatever can't lie at home lies behind it. The hashes stand beside it, so that
/// going past an entry does not touch that one.
template <class Entry>
class NameIndex {
 public:
  bool empty() const { return used_ == 0; }

  Entry* find(std::uint32_t hash, std::string_view name) const {
    if (slots_.empty()) return nullptr;
    for (std::size_t i = home(hash); Entry* entry = slots_[i]; i = next(i)) {
      if (hashes_[i] == hash && text::sameName(entry->key, name)) return entry;
    }
    return nullptr;
  }

  void insert(Entry& entry) {
    if (3 * ++used_ > 2 * slots_.size()) grow();
    put(entry, entry.hash);
  }

  /// The entry has to be here.
  void erase(const Entry& entry) {
    std::size_t hole = home(entry.hash);
    while (slots_[hole] != &entry) hole = next(hole);
    // Those behind close up, as far as that brings none in front of its home.
    for (std::size_t i = next(hole); slots_[i]; i = next(i)) {
      if (steps(home(hashes_[i]), i) < steps(hole, i)) continue;
      slots_[hole] = slots_[i];
      hashes_[hole] = hashes_[i];
      hole = i;
    }
    slots_[hole] = nullptr;
    --used_;
  }

 private:
  std::size_t mask() const { return slots_.size() - 1; }
  std::size_t home(std::uint32_t hash) const { return hash & mask(); }
  std::size_t next(std::size_t i) const { return (i + 1) & mask(); }
  std::size_t steps(std::size_t from, std::size_t to) const { return (to - from) & mask(); }

  void put(Entry& entry, std::uint32_t hash) {
    std::size_t i = home(hash);
    while (slots_[i]) i = next(i);
    slots_[i] = &entry;
    hashes_[i] = hash;
  }

  void grow() {
    constexpr std::size_t kFirst = 32;
    const std::size_t size = slots_.empty() ? kFirst : 2 * slots_.size();
    std::vector<Entry*> entries(size);
    std::vector<std::uint32_t> hashes(size);
    entries.swap(slots_);
    hashes.swap(hashes_);
    for (std::size_t i = 0; i < entries.size(); ++i) {
      if (entries[i]) put(*entries[i], hashes[i]);
    }
  }

  std::vector<Entry*> slots_;  // a power of two of them
  std::vector<std::uint32_t> hashes_;
  std::size_t used_ = 0;
};

}  // namespace qrn
