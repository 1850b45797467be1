#pragma once

#include <string>
#include <string_view>

#include "host/editor.h"

namespace qrn::host {

class ContainerControl;

/// A push button: a click, the space bar, Enter, or Alt with the letter behind the "&" of its caption press
/// it.
class CommandButton final : public Editor {
 public:
  CommandButton() : Editor(kButtonFace) { SetForeColor(kButtonText); }
  std::string_view typeName() const override { return "CommandButton"; }

  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string_view caption);

  Event<> Click;

  /// The upper-case letter or the digit behind the "&", 0 for none; "&&" is a plain "&".
  std::int16_t mnemonic() const;

  void userClicked();

  std::intptr_t windowMessage(const Message& message) override;

 protected:
  void tellFacts(AccessibleFacts& facts) const override;
  void accessibleAct(std::int32_t) override { userClicked(); }

 private:
  std::string caption_;
};

/// The first button in a container, at any depth, that can be pressed and has this letter; null for none.
CommandButton* buttonOfMnemonic(const ContainerControl& container, std::int16_t letter);

}  // namespace qrn::host
