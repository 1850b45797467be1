#pragma once

#include <string_view>

#include "host/editor.h"
#include "host/list_entries.h"

namespace qrn::host {

/// What drop lists and list boxes have in common: their entries.
class ListEditor : public Editor, public ListEntries {
 public:
  /// Where typing a character leads: to the next entry that begins with it, in either case, from the top
  /// again at the end. The current one when there is none.
  std::int32_t indexTypedTo(char32_t character) const;

  std::intptr_t windowMessage(const Message& message) override;

  // The entries are what tools see in a list.
  std::int32_t accessibleCount() const override { return ListCount(); }
  AccessibleNode accessibleChild(std::int32_t index) override { return {this, index}; }
  std::int32_t accessibleIndexOf(const AccessibleNode& child) override {
    return child.control == this && child.entry < ListCount() ? child.entry : -1;
  }

 protected:
  std::string_view listName() const override { return typeName(); }
  void entriesChanged() override;
  void currentChanged() override { touched(Aspect::Content); }
};

}  // namespace qrn::host
