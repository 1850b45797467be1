#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/editor.h"

namespace qrn::host {

/// The entries that drop lists and list boxes hold: a text and a number each, counted from 0.
class ListEditor : public Editor {
 public:
  std::int16_t ListCount() const { return static_cast<std::int16_t>(entries_.size()); }
  /// Error 380 outside the list, as for all that take an index.
  const std::string& List(std::int32_t index) const { return entry(index).text; }
  void SetList(std::int32_t index, std::string_view text);
  std::int32_t ItemData(std::int32_t index) const { return entry(index).data; }
  void SetItemData(std::int32_t index, std::int32_t data) { entry(index).data = data; }

  /// Errors: 6 past 32767 entries.
  void AddItem(std::string_view text);
  void RemoveItem(std::int32_t index);
  virtual void Clear();
  /// Where the last AddItem put its entry; -1 before the first.
  std::int16_t NewIndex() const { return newIndex_; }

  /// -1 when none is current.
  std::int32_t ListIndex() const { return listIndex_; }
  /// Errors: 380 below -1 or past the last entry.
  void SetListIndex(std::int32_t index);

  /// Where typing a character leads: to the next entry that begins with it, in either case, from the top
  /// again at the end. The current one when there is none.
  std::int32_t indexTypedTo(char32_t character) const;

  std::intptr_t windowMessage(const Message& message) override;

  /// The widest entry in the holder's scale units; 0 for an empty list. Measured once for each list and font.
  double widestText() const;

  // The entries are what tools see in a list.
  std::int32_t accessibleCount() const override { return ListCount(); }
  AccessibleNode accessibleChild(std::int32_t index) override { return {this, index}; }
  std::int32_t accessibleIndexOf(const AccessibleNode& child) override {
    return child.control == this && child.entry < ListCount() ? child.entry : -1;
  }

 protected:
  struct Entry {
    std::string text;
    std::int32_t data = 0;
    bool selected = false;
  };

  const Entry& entry(std::int32_t index) const;
  Entry& entry(std::int32_t index) { return const_cast<Entry&>(std::as_const(*this).entry(index)); }
  void forgetMeasures() override {
    widest_ = kUnknown;
    Editor::forgetMeasures();
  }

  std::vector<Entry> entries_;
  std::int32_t listIndex_ = -1;

 private:
  void entriesChanged();

  static constexpr double kUnknown = -1;

  mutable double widest_ = kUnknown;
  std::int16_t newIndex_ = -1;
};

}  // namespace qrn::host
