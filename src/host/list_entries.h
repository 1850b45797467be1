#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qrn::host {

/// The entries of a list: a text and a number each, counted from 0, and which of them is current.
class ListEntries {
 public:
  std::int16_t ListCount() const { return static_cast<std::int16_t>(entries_.size()); }
  /// Error 380 outside the list, as for all that take an index.
  const std::string& List(std::int32_t index) const { return entry(index).text; }
  void SetList(std::int32_t index, std::string_view text);
  std::int32_t ItemData(std::int32_t index) const { return entry(index).data; }
  void SetItemData(std::int32_t index, std::int32_t data) { entry(index).data = data; }

  /// The current entry's text; empty when there is none.
  std::string Text() const { return ListIndex() < 0 ? std::string() : List(ListIndex()); }

  /// Errors: 6 past 32767 entries.
  void AddItem(std::string_view text);
  void RemoveItem(std::int32_t index);
  void Clear();
  /// Where the last AddItem put its entry; -1 before the first.
  std::int16_t NewIndex() const { return newIndex_; }

  /// Takes over the entries of another list, and which of them is current.
  void take(ListEntries&& other);

  /// -1 when none is current.
  std::int32_t ListIndex() const { return listIndex_; }
  /// Errors: 380 below -1 or past the last entry.
  void SetListIndex(std::int32_t index);

 protected:
  struct Entry {
    std::string text;
    std::int32_t data = 0;
    bool selected = false;
  };

  ~ListEntries() = default;

  const Entry& entry(std::int32_t index) const;
  Entry& entry(std::int32_t index) { return const_cast<Entry&>(std::as_const(*this).entry(index)); }

  /// Named in errors.
  virtual std::string_view listName() const = 0;
  virtual void entriesChanged() {}
  virtual void currentChanged() {}

  std::vector<Entry> entries_;
  std::int32_t listIndex_ = -1;
  std::int16_t newIndex_ = -1;
};

}  // namespace qrn::host
