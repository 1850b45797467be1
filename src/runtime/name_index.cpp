#include "runtime/name_index.h"

#include "base/text.h"

namespace qrn {

KeyedEntry* NameIndex::find(std::uint32_t hash, std::string_view key) const {
  if (slots_.empty()) return nullptr;
  for (std::size_t i = home(hash); KeyedEntry* entry = slots_[i]; i = next(i)) {
    if (hashes_[i] == hash && text::sameName(entry->key, key)) return entry;
  }
  return nullptr;
}

bool NameIndex::insert(KeyedEntry& entry) {
  if (3 * (used_ + 1) > 2 * slots_.size()) grow();
  std::size_t i = home(entry.hash);
  for (; slots_[i]; i = next(i)) {
    if (hashes_[i] == entry.hash && text::sameName(slots_[i]->key, entry.key)) return false;
  }
  put(i, &entry, entry.hash);
  ++used_;
  return true;
}

void NameIndex::erase(const KeyedEntry& entry) {
  std::size_t hole = home(entry.hash);
  while (slots_[hole] != &entry) hole = next(hole);
  // Those behind close up, as far as that brings none in front of its home.
  for (std::size_t i = next(hole); slots_[i]; i = next(i)) {
    if (steps(home(hashes_[i]), i) < steps(hole, i)) continue;
    put(hole, slots_[i], hashes_[i]);
    hole = i;
  }
  slots_[hole] = nullptr;
  --used_;
}

void NameIndex::grow() {
  constexpr std::size_t kFirst = 32;
  const std::size_t size = slots_.empty() ? kFirst : 2 * slots_.size();
  std::vector<KeyedEntry*> entries(size);
  std::vector<std::uint32_t> hashes(size);
  entries.swap(slots_);
  hashes.swap(hashes_);
  for (std::size_t from = 0; from < entries.size(); ++from) {
    if (!entries[from]) continue;
    std::size_t i = home(hashes[from]);
    while (slots_[i]) i = next(i);
    put(i, entries[from], hashes[from]);
  }
}

}  // namespace qrn
