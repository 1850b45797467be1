#include "host/text_box.h"

#include <algorithm>

#include "base/letter_case.h"
#include "base/text.h"
#include "host/user_control.h"

namespace qrn::host {
void TextBox::store(std::string text) {
  text_ = std::move(text);
  forgetMeasures();
}

void TextBox::SetText(std::string_view text) {
  if (text == text_) return;
  store(std::string(text));
  selStart_ = selLength_ = 0;
  touched(Aspect::Content);
}

void TextBox::SetPasswordChar(std::string_view character) {
  if (character == PasswordChar()) return;
  passwordChar_ = character.empty() ? nullptr : std::make_unique<std::string>(character);
  touched(Aspect::Look);
}

void TextBox::select(std::int32_t start, std::int32_t length) {
  userSelected(start, length);
  touched(Aspect::Content);
}

std::string TextBox::shownText() const {
  if (!passwordChar_) return text_;
  std::string stars;
  for (std::size_t i = text::length(text_); i > 0; --i) stars += *passwordChar_;
  return stars;
}

void TextBox::userTyped(std::string_view text, std::int32_t selStart, std::int32_t selLength) {
  std::string wanted(text);
  if (upperCase_) wanted = qrn::upperCase(std::string_view(wanted));
  if (maxLength_ > 0) wanted = text::slice(wanted, 0, static_cast<std::size_t>(maxLength_));
  if (locked_ || !enabledUpToSurface()) wanted = text_;
  const bool corrected = wanted != text;
  const bool changed = wanted != text_;
  if (changed) store(std::move(wanted));
  userSelected(selStart, selLength);
  if (corrected && peer()) peer()->changed(Aspect::Content);
  if (!changed) return;
  touchedByUser(Aspect::Content);
  Parent()->childChanged(*this);
}

void TextBox::userSelected(std::int32_t start, std::int32_t length) {
  const auto end = static_cast<std::int32_t>(text::length(text_));
  selStart_ = std::clamp(start, 0, end);
  selLength_ = std::clamp(length, 0, end - selStart_);
}

std::intptr_t TextBox::windowMessage(const Message& message) {
  if (message.number == wm::GetDlgCode) return dlgc::WantChars | dlgc::HasSetSel | dlgc::WantArrows;
  return Editor::windowMessage(message);
}

void TextBox::tellFacts(AccessibleFacts& facts) const {
  facts.role = AccessibleRole::Text;
  facts.value = shownText();
  facts.states.readOnly = locked_;
  facts.states.secret = passwordChar_ != nullptr;
}

bool TextBox::accessibleEnter(std::string_view text) {
  userTyped(text, static_cast<std::int32_t>(text::length(text)));
  return true;
}

std::intptr_t TextBox::windowStyle(std::intptr_t style) const {
  return upperCase_ ? style | style::EditUpperCase : style & ~style::EditUpperCase;
}

void TextBox::windowStyleChanged(std::intptr_t style) { setUpperCase((style & style::EditUpperCase) != 0); }

}  // namespace qrn::host
