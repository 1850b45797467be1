#pragma once

#include "host/list_editor.h"

namespace qrn::host {

/// A drop-down list: one of its entries is chosen, or none.
class ComboBox final : public ListEditor {
 public:
  std::string_view typeName() const override { return "ComboBox"; }

  /// The chosen entry's text; empty when none is.
  std::string Text() const { return ListIndex() < 0 ? std::string() : List(ListIndex()); }
  bool Locked() const { return locked_; }
  void SetLocked(bool locked) { change(locked_, locked, Aspect::Enabled); }

  void userSelected(std::int32_t index);

 private:
  bool locked_ = false;
};

}  // namespace qrn::host
