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

// A program may set letters and lengths that the user can't type. What the user leaves of those stays as it
// is.
std::string TextBox::admitted(std::string_view typed, std::int32_t caret) const {
  const std::size_t room = std::min(text_.size(), typed.size());
  const auto isInside = [&](std::size_t at) { return at < typed.size() && (typed[at] & 0xC0) == 0x80; };
  // Where letters are doubled the caret tells which of them is new: it stands behind that.
  const std::size_t behind =
      caret < 0 ? 0 : typed.size() - text::byteOffset(typed, static_cast<std::size_t>(caret));
  std::size_t end = 0;
  while (end < std::min(behind, room) && typed[typed.size() - 1 - end] == text_[text_.size() - 1 - end])
    ++end;
  while (end > 0 && isInside(typed.size() - end)) --end;
  std::size_t start = 0;
  while (start < room - end && typed[start] == text_[start]) ++start;
  while (start > 0 && isInside(start)) --start;

  std::string inserted(typed.substr(start, typed.size() - end - start));
  if (upperCase_) inserted = qrn::upperCase(std::string_view(inserted));
  if (maxLength_ > 0) {
    const std::size_t most = std::max(static_cast<std::size_t>(maxLength_), text::length(text_));
    const std::size_t kept =
        text::length(typed.substr(0, start)) + text::length(typed.substr(typed.size() - end));
    inserted = text::slice(inserted, 0, most - std::min(most, kept));
  }
  return std::string(typed.substr(0, start)).append(inserted).append(typed.substr(typed.size() - end));
}

void TextBox::userTyped(std::string_view text, std::int32_t selStart, std::int32_t selLength) {
  std::string wanted = admitted(text, selStart);
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
