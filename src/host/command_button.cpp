#include "host/command_button.h"

#include <string>

#include "host/container_control.h"

namespace qrn::host {
namespace {

// What key code a character has: only letters and digits have one that is the same on every keyboard.
std::int16_t keyCodeOf(char character) {
  if (character >= 'a' && character <= 'z') return static_cast<std::int16_t>(character - 'a' + 'A');
  const bool itself = (character >= 'A' && character <= 'Z') || (character >= '0' && character <= '9');
  return itself ? static_cast<std::int16_t>(character) : std::int16_t{0};
}

// As a person reads it: a single "&" only marks the letter behind it.
std::string withoutMnemonic(std::string_view caption) {
  std::string read;
  for (std::size_t at = 0; at < caption.size(); ++at) {
    if (caption[at] == '&' && ++at == caption.size()) break;
    read += caption[at];
  }
  return read;
}

}  // namespace

void CommandButton::SetCaption(std::string_view caption) {
  if (caption == caption_) return;
  caption_ = caption;
  touched(Aspect::Content);
}

std::int16_t CommandButton::mnemonic() const {
  for (std::size_t at = 0; at + 1 < caption_.size(); ++at) {
    if (caption_[at] != '&') continue;
    if (caption_[++at] != '&') return keyCodeOf(caption_[at]);
  }
  return 0;
}

void CommandButton::userClicked() {
  if (enabledUpToSurface()) raise(Click, "Click");
}

void CommandButton::tellFacts(AccessibleFacts& facts) const {
  facts.role = AccessibleRole::Button;
  facts.name = withoutMnemonic(caption_);
  facts.description = ToolTipText();
  facts.action = AccessibleAction::Press;
  if (const std::int16_t letter = mnemonic())
    facts.shortcut = std::string("Alt+") + static_cast<char>(letter);
}

// Enter is a dialog's own key, but a button with the focus is clicked by it.
std::intptr_t CommandButton::windowMessage(const Message& message) {
  if (message.number != wm::GetDlgCode) return Editor::windowMessage(message);
  return message.wParam == key::Enter ? dlgc::Button | dlgc::WantAllKeys : dlgc::Button;
}

CommandButton* buttonOfMnemonic(const ContainerControl& container, std::int16_t letter) {
  for (Control* control : container.keyboardArea().inside()) {
    if (!control->Visible() || !control->Enabled()) continue;
    if (auto* button = dynamic_cast<CommandButton*>(control); button && button->mnemonic() == letter)
      return button;
    if (const ContainerControl* inner = control->asContainer()) {
      if (CommandButton* found = buttonOfMnemonic(*inner, letter)) return found;
    }
  }
  return nullptr;
}

}  // namespace qrn::host
