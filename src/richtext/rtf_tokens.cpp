#include "richtext/rtf_tokens.h"

#include <algorithm>

#include "base/ascii.h"
#include "base/text.h"

namespace qrn::richtext {
namespace {

using Kind = RtfToken::Kind;

using ascii::digitValue;
using ascii::isDigit;
using ascii::isLetter;

}  // namespace

RtfToken RtfTokens::next() {
  rest_.remove_prefix(std::min(rest_.find_first_not_of("\r\n"), rest_.size()));
  if (rest_.empty()) return {};
  switch (rest_.front()) {
    case '{': rest_.remove_prefix(1); return {.kind = Kind::GroupStart};
    case '}': rest_.remove_prefix(1); return {.kind = Kind::GroupEnd};
    case '\\': rest_.remove_prefix(1); return control();
    default: return character();
  }
}

RtfToken RtfTokens::control() {
  if (rest_.empty()) return {};
  if (isLetter(rest_.front())) return word();
  const char symbol = rest_.front();
  rest_.remove_prefix(1);
  if (symbol == '\'') return hex();
  return {.kind = Kind::Symbol, .byte = static_cast<unsigned char>(symbol)};
}

RtfToken RtfTokens::word() {
  const auto length =
      static_cast<std::size_t>(std::find_if_not(rest_.begin(), rest_.end(), isLetter) - rest_.begin());
  RtfToken token{.kind = Kind::Word, .word = rest_.substr(0, length)};
  rest_.remove_prefix(length);
  token.number = number();
  // The blank that ends a word belongs to it.
  if (rest_.starts_with(' ')) rest_.remove_prefix(1);
  if (token.word == "bin") {
    token.kind = Kind::Binary;
    rest_.remove_prefix(
        std::min(rest_.size(), static_cast<std::size_t>(std::max(0, token.number.value_or(0)))));
  }
  return token;
}

std::optional<std::int32_t> RtfTokens::number() {
  const bool negative = rest_.size() > 1 && rest_[0] == '-' && isDigit(rest_[1]);
  if (negative) rest_.remove_prefix(1);
  if (rest_.empty() || !isDigit(rest_.front())) return std::nullopt;
  std::int64_t value = 0;
  for (; !rest_.empty() && isDigit(rest_.front()); rest_.remove_prefix(1))
    value = std::min<std::int64_t>(value * 10 + (rest_.front() - '0'), kMostNumber);
  return static_cast<std::int32_t>(negative ? -value : value);
}

// Without two digits behind it nothing was meant; what stands there is read on its own.
RtfToken RtfTokens::hex() {
  if (rest_.size() < 2) return rest_ = {}, RtfToken{};
  const int high = digitValue(rest_[0]), low = digitValue(rest_[1]);
  if (high > 15 || low > 15) return {.kind = Kind::Symbol, .byte = '\''};
  rest_.remove_prefix(2);
  return {.kind = Kind::Hex, .byte = static_cast<unsigned char>(high * 16 + low)};
}

RtfToken RtfTokens::character() {
  RtfToken token{.kind = Kind::Character, .byte = static_cast<unsigned char>(rest_.front())};
  std::size_t length = 0;
  token.character = text::next(rest_, length);
  token.broken = token.byte >= 0x80 && length == 1;
  rest_.remove_prefix(length);
  return token;
}

}  // namespace qrn::richtext
