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

 protected:
  void gotFocus() override;
};

}  // namespace qrn::host
