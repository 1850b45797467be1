#pragma once

#include <cstdint>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "runtime/conversions.h"
#include "runtime/keyed_list.h"
#include "runtime/rounding.h"
#include "runtime/variant.h"

namespace qrn {

/// A keyed list of objects that callers keep too, with entries that a Variant selects: the object itself, its
/// key, whose case does not count, or its 1-based position. An object has a pointer `entry_` to its own place
/// here, null while it is in no list, so that finding it costs the same however long the list is.
template <class T>
class SelectableList {
 public:
  using Pointer = std::shared_ptr<T>;
  using Entry = typename KeyedList<Pointer>::Entry;

  SelectableList() = default;
  SelectableList(const SelectableList&) = delete;
  SelectableList& operator=(const SelectableList&) = delete;
  ~SelectableList() {
    for (Walk* walk = walk_; walk; walk = walk->around_) walk->list_ = nullptr;
    for (const Pointer& object : *this) object->entry_ = nullptr;
  }

  std::int32_t count() const { return list_.count(); }

  /// Errors: 9 outside 1..count.
  const Pointer& at(std::int32_t position) const { return list_.at(position).value; }

  /// By key or position. Errors: 5 for an unknown key, 9 for a position outside.
  const Pointer& at(const Variant& keyOrPosition) const {
    if (const auto* key = keyOrPosition.get<std::string>()) return list_.at(std::string_view(*key)).value;
    const double position = roundHalfEven(CDbl(keyOrPosition));
    // Also a number that no position could be is one outside.
    return list_.at(position >= 1 && position <= count() ? static_cast<std::int32_t>(position) : 0).value;
  }

  /// 0 when nothing here is selected.
  std::int32_t positionOf(const Variant& selector) const {
    const T* object = nullptr;
    if (const auto* reference = selector.get<ObjectPtr>())
      object = dynamic_cast<const T*>(reference->get());
    else
      ignoringErrors([&] { object = at(selector).get(); });
    const std::int32_t position = object && object->entry_ ? object->entry_->position : 0;
    // It may stand in another list: only that it is found here proves that it is one of ours.
    const bool ours = position >= 1 && position <= count() && at(position).get() == object;
    return ours ? position : 0;
  }

  /// The prefix with the first number above the count that makes no key in use.
  std::string freeKey(std::string_view prefix) const {
    std::string key;
    std::int32_t n = count();
    do {
      key = std::string(prefix) + std::to_string(++n);
    } while (list_.find(key));
    return key;
  }

  /// In front of what is selected, or at the end. Errors: 457 for a key in use.
  void add(std::string key, Pointer object, const std::optional<Variant>& before) {
    T& added = *object;
    added.entry_ = &list_.add(std::move(key), std::move(object), before ? positionOf(*before) : 0);
    shiftWalks(added.entry_->position, +1);
  }

  /// Errors: 9 outside 1..count.
  Pointer take(std::int32_t position) {
    list_.at(position).value->entry_ = nullptr;
    Pointer taken = list_.take(position);
    shiftWalks(position, -1);
    return taken;
  }

  /// Over the objects in their order, while others come and go: none is left out and none is met twice, only
  /// what comes in front of the present one is not met any more. It ends with the list.
  class Walk {
   public:
    explicit Walk(SelectableList& list) : list_(&list), around_(std::exchange(list.walk_, this)) {}
    Walk(const Walk&) = delete;
    Walk& operator=(const Walk&) = delete;
    ~Walk() {
      if (list_) list_->walk_ = around_;
    }
    /// Null at the end.
    T* next() {
      if (!list_ || position_ >= list_->count()) return nullptr;
      return list_->at(++position_).get();
    }

   private:
    friend class SelectableList;
    SelectableList* list_;
    Walk* const around_;  // the one that was under way when this began
    std::int32_t position_ = 0;
  };

  /// Over the objects in their order, by position: whoever removes some on the way skips those that move up.
  class Iterator {
   public:
    explicit Iterator(const KeyedList<Pointer>& list) : list_(&list) {}
    Pointer operator*() const { return list_->at(position_).value; }
    Iterator& operator++() {
      ++position_;
      return *this;
    }
    friend bool operator==(const Iterator& one, std::default_sentinel_t) {
      return one.position_ > one.list_->count();
    }

   private:
    const KeyedList<Pointer>* list_;
    std::int32_t position_ = 1;
  };
  Iterator begin() const { return Iterator(list_); }
  std::default_sentinel_t end() const { return {}; }

 private:
  void shiftWalks(std::int32_t position, std::int32_t by) {
    for (Walk* walk = walk_; walk; walk = walk->around_) {
      if (position <= walk->position_) walk->position_ += by;
    }
  }

  KeyedList<Pointer> list_;
  Walk* walk_ = nullptr;  // the innermost under way
};

}  // namespace qrn
