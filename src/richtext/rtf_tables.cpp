#include "richtext/rtf_tables.h"

#include <algorithm>

#include "base/text.h"
#include "richtext/code_page.h"
#include "richtext/format.h"

namespace qrn::richtext {

void RtfFonts::word(std::string_view word, std::int32_t number) {
  if (word == "f") {
    current_ = number;
    fonts_[number] = {};
  }
  if (!current_) return;
  if (word == "fcharset") fonts_[*current_].charset = number;
  if (word == "cpg") fonts_[*current_].codePage = number;
}

void RtfFonts::character(char32_t c) {
  if (!current_ || c < 0x20) return;
  Font& font = fonts_[*current_];
  if (font.length == kLongestFontName) return;
  ++font.length;
  text::append(font.name, c);
}

const std::string& RtfFonts::name(std::int32_t number) const {
  static const std::string none;
  const auto found = fonts_.find(number);
  return found == fonts_.end() ? none : found->second.name;
}

int RtfFonts::codePage(std::int32_t number, int usual) const {
  const auto found = fonts_.find(number);
  if (found == fonts_.end()) return usual;
  if (found->second.codePage > 0) return found->second.codePage;
  return pageOfCharset(found->second.charset, usual);
}

void RtfColors::word(std::string_view word, std::int32_t number) {
  const int shift = word == "red" ? 0 : word == "green" ? 8 : word == "blue" ? 16 : -1;
  if (shift < 0) return;
  const auto part = static_cast<std::uint32_t>(std::clamp(number, 0, 255));
  current_ = (current_.value_or(0) & ~(0xFFU << shift)) | part << shift;
}

void RtfColors::endEntry() {
  colors_.push_back(current_);
  current_.reset();
}

std::optional<std::uint32_t> RtfColors::color(std::int32_t number) const {
  if (number < 0 || static_cast<std::size_t>(number) >= colors_.size()) return std::nullopt;
  return colors_[static_cast<std::size_t>(number)];
}

}  // namespace qrn::richtext
