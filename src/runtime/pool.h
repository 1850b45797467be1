#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace qrn {

/// Makes objects that stay where they are in memory. It takes room for many at once, which costs less than
/// for each of them, and gives it back when the last one goes. All have to be gone before the pool.
template <class T>
class Pool {
 public:
  Pool() = default;
  Pool(const Pool&) = delete;
  Pool& operator=(const Pool&) = delete;

  T& add(T&& object) {
    if (!free_) addBlock();
    Slot* const slot = free_;
    Slot* const next = slot->next;
    T* const added = std::construct_at(&slot->object, std::move(object));
    free_ = next;
    ++used_;
    return *added;
  }

  void remove(T& object) {
    std::destroy_at(&object);
    auto* const slot = reinterpret_cast<Slot*>(&object);
    slot->next = free_;
    free_ = slot;
    if (--used_ > 0) return;
    free_ = nullptr;
    blocks_.clear();
  }

 private:
  union Slot {
    Slot() : next(nullptr) {}
    ~Slot() {}  // NOLINT(modernize-use-equals-default): the object decides whether it could be
    Slot* next;
    T object;
  };

  void addBlock() {
    constexpr std::size_t kFirst = 4, kMost = 64;
    const std::size_t size = std::min(kFirst << std::min<std::size_t>(blocks_.size(), 8), kMost);
    blocks_.push_back(std::make_unique<Slot[]>(size));
    for (std::size_t i = size; i > 0; --i) {
      Slot& slot = blocks_.back()[i - 1];
      slot.next = free_;
      free_ = &slot;
    }
  }

  std::vector<std::unique_ptr<Slot[]>> blocks_;
  Slot* free_ = nullptr;
  std::size_t used_ = 0;
};

}  // namespace qrn
