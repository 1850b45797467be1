#pragma once

#include <string>
#include <string_view>

#include "host/editor.h"

namespace qrn::host {

/// One line of text to edit.
class TextBox final : public Editor {
 public:
  std::string_view typeName() const override { return "TextBox"; }

  const std::string& Text() const { return text_; }
  void SetText(std::string_view text);
  bool Locked() const { return locked_; }
  void SetLocked(bool locked) { change(locked_, locked, Aspect::Enabled); }
  /// In code points; 0 sets no limit.
  std::int32_t MaxLength() const { return maxLength_; }
  void SetMaxLength(std::int32_t length) { change(maxLength_, length, Aspect::Look); }
  /// Shown for every character; empty shows the text.
  std::string_view PasswordChar() const { return passwordChar_ ? *passwordChar_ : std::string_view(); }
  void SetPasswordChar(std::string_view character);
  bool upperCase() const { return upperCase_; }
  void setUpperCase(bool upperCase) { change(upperCase_, upperCase, Aspect::Look); }

  std::int32_t SelStart() const { return selStart_; }
  std::int32_t SelLength() const { return selLength_; }
  /// Both in code points; kept inside the text.
  void select(std::int32_t start, std::int32_t length);

  /// What a person sees in the box.
  std::string shownText() const;

  void userTyped(std::string_view text, std::int32_t selStart, std::int32_t selLength = 0);
  /// By undo or redo, to a text that has been here: it is taken as it is.
  void userWentBack(std::string_view text, std::int32_t selStart);
  void userSelected(std::int32_t start, std::int32_t length);

  std::intptr_t windowMessage(const Message& message) override;
  std::intptr_t windowStyle(std::intptr_t style) const override;
  void windowStyleChanged(std::intptr_t style) override;

 protected:
  void tellFacts(AccessibleFacts& facts) const override;
  bool accessibleEnter(std::string_view text) override;

 private:
  void store(std::string text);
  struct Edit {
    std::string text;
    std::int32_t selStart;
    std::int32_t selLength;
  };
  Edit admitted(Edit typed) const;
  void take(Edit wanted, std::string_view given);

  std::string text_;
  std::unique_ptr<std::string> passwordChar_;  // null while the text is shown
  std::int32_t maxLength_ = 0;
  std::int32_t selStart_ = 0;
  std::int32_t selLength_ = 0;
  bool locked_ = false;
  bool upperCase_ = false;
};

}  // namespace qrn::host
