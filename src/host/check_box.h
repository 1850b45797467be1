#pragma once

#include "host/editor.h"

namespace qrn::host {

/// A box that is ticked (1) or not (0).
class CheckBox final : public Editor {
 public:
  CheckBox() : Editor(kButtonFace) {}
  std::string_view typeName() const override { return "CheckBox"; }

  std::int16_t Value() const { return value_; }
  void SetValue(std::int16_t value) { change(value_, value, Aspect::Content); }

  void userToggled();

  std::intptr_t windowMessage(const Message& message) override;

 protected:
  void tellFacts(AccessibleFacts& facts) const override;
  void accessibleAct(std::int32_t) override { userToggled(); }

 private:
  std::int16_t value_ = 0;
};

}  // namespace qrn::host
