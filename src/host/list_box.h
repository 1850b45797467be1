#pragma once

#include "host/list_editor.h"

namespace qrn::host {

/// A list whose entries each have a check mark.
class ListBox final : public ListEditor {
 public:
  std::string_view typeName() const override { return "ListBox"; }

  bool Selected(std::int32_t index) const { return entry(index).selected; }
  void SetSelected(std::int32_t index, bool selected);

  /// The user made an entry current, or ticked one off or on.
  void userMovedTo(std::int32_t index);
  void userChecked(std::int16_t index);
  /// A mouse button on the list's own widget; a list without one hears of it as every part does. In pixels of
  /// the list.
  void userPressed(MouseButton button, Point at);
  void userReleased(MouseButton button, Point at);

 protected:
  void gotFocus() override;
  void tellFacts(AccessibleFacts& facts) const override { facts.role = AccessibleRole::List; }
  void tellEntryFacts(std::int32_t entry, AccessibleFacts& facts) const override;
  void accessibleAct(std::int32_t entry) override;
};

}  // namespace qrn::host
