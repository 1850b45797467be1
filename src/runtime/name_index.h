#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "base/text.h"

namespace qrn {

/// Finds entries, each with a `key` whose case does not count and the `hash` of it. A table of pointers that
/// is at most half full; whatever can't lie at home lies behind it.
template <class Entry>
class NameIndex {
 public:
  bool empty() const { return used_ == 0; }

  Entry* find(std::uint32_t hash, std::string_view name) const {
    if (slots_.empty()) return nullptr;
    for (std::size_t i = home(hash); Entry* entry = slots_[i]; i = next(i)) {
      if (entry->hash == hash && text::sameName(entry->key, name)) return entry;
    }
    return nullptr;
  }

  void insert(Entry& entry) {
    if (2 * ++used_ > slots_.size()) grow();
    put(entry);
  }

  /// The entry has to be here.
  void erase(const Entry& entry) {
    std::size_t hole = home(entry.hash);
    while (slots_[hole] != &entry) hole = next(hole);
    // Those behind close up, as far as that brings none in front of its home.
    for (std::size_t i = next(hole); slots_[i]; i = next(i)) {
      if (steps(home(slots_[i]->hash), i) < steps(hole, i)) continue;
      slots_[hole] = slots_[i];
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

  void put(Entry& entry) {
    std::size_t i = home(entry.hash);
    while (slots_[i]) i = next(i);
    slots_[i] = &entry;
  }

  void grow() {
    constexpr std::size_t kFirst = 32;
    std::vector<Entry*> old(slots_.empty() ? kFirst : 2 * slots_.size());
    old.swap(slots_);
    for (Entry* entry : old) {
      if (entry) put(*entry);
    }
  }

  std::vector<Entry*> slots_;  // a power of two of them
  std::size_t used_ = 0;
};

}  // namespace qrn
