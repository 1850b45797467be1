#pragma once

#include "host/list_editor.h"

namespace qrn::host {

/// A drop-down list: one of its entries is chosen, or none.
class ComboBox final : public ListEditor {
 public:
  std::string_view typeName() const override { return "ComboBox"; }

  bool Locked() const { return locked_; }
  void SetLocked(bool locked) { change(locked_, locked, Aspect::Enabled); }

  /// Nothing can be typed into the list, so this is no more than a bit of the window's style.
  bool upperCase() const { return upperCase_; }
  void setUpperCase(bool upperCase) { upperCase_ = upperCase; }

  void userSelected(std::int32_t index);

  std::intptr_t windowStyle(std::intptr_t style) const override;
  void windowStyleChanged(std::intptr_t style) override;

 protected:
  void tellFacts(AccessibleFacts& facts) const override;
  void tellEntryFacts(std::int32_t entry, AccessibleFacts& facts) const override;
  void accessibleAct(std::int32_t entry) override { userSelected(entry); }
  bool accessibleEnter(std::string_view text) override;

 private:
  bool locked_ = false;
  bool upperCase_ = false;
};

}  // namespace qrn::host
