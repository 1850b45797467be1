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
TextBox::Edit TextBox::admitted(Edit typed) const {
  const std::string& text = typed.text;
  const std::size_t room = std::min(text_.size(), text.size());
  const auto isInside = [&](std::size_t at) { return at < text.size() && (text[at] & 0xC0) == 0x80; };
  // Where letters are doubled the caret tells which of them is new: it stands behind that.
  const auto caret = static_cast<std::size_t>(std::max(typed.selStart, 0));
  const std::size_t behind = std::min(text.size() - text::byteOffset(text, caret), room);
  std::size_t end = 0;
  while (end < behind && text[text.size() - 1 - end] == text_[text_.size() - 1 - end]) ++end;
  while (end > 0 && isInside(text.size() - end)) --end;
  std::size_t start = 0;
  while (start < room - end && text[start] == text_[start]) ++start;
  while (start > 0 && isInside(start)) --start;

  const std::string_view left = std::string_view(text).substr(0, start);
  const std::string_view right = std::string_view(text).substr(text.size() - end);
  const std::string given = text.substr(start, text.size() - end - start);
  std::string inserted = upperCase_ ? qrn::upperCase(std::string_view(given)) : given;
  if (maxLength_ > 0) {
    const std::size_t most = std::max(static_cast<std::size_t>(maxLength_), text::length(text_));
    const std::size_t kept = text::length(left) + text::length(right);
    inserted = text::slice(inserted, 0, most - std::min(most, kept));
  }
  if (inserted == given) return typed;
  const auto behindIt = static_cast<std::int32_t>(text::length(left) + text::length(inserted));
  return {std::string(left).append(inserted).append(right), std::min(typed.selStart, behindIt), 0};
}

void TextBox::userTyped(std::string_view text, std::int32_t selStart, std::int32_t selLength) {
  take(admitted({std::string(text), selStart, selLength}), text);
}

void TextBox::userWentBack(std::string_view text, std::int32_t selStart) {
  take({std::string(text), selStart, 0}, text);
}

void TextBox::take(Edit wanted, std::string_view given) {
  if (locked_ || !enabledUpToSurface()) wanted.text = text_;
  const bool corrected = wanted.text != given;
  const bool changed = wanted.text != text_;
  if (changed) store(std::move(wanted.text));
  userSelected(wanted.selStart, wanted.selLength);
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
