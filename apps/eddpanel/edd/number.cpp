#include "edd/number.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>
#include <system_error>

namespace qrn::edd {

namespace {

int baseOf(std::string_view digits) {
  if (digits.starts_with("0x") || digits.starts_with("0X")) return 16;
  if (digits.starts_with("0b") || digits.starts_with("0B")) return 2;
  return 10;
}

template <class T, class... Format>
std::errc parseAll(std::string_view digits, T& value, Format... format) {
  const char* const end = digits.data() + digits.size();
  const auto [stopped, error] = std::from_chars(digits.data(), end, value, format...);
  if (error != std::errc{}) return error;
  return stopped == end ? std::errc{} : std::errc::invalid_argument;
}

[[noreturn]] void refuse(const Token& token, std::errc error) {
  if (error == std::errc::result_out_of_range)
    fail(token, "number " + inQuotes(token.text) + " is out of range");
  fail(token, inQuotes(token.text) + " is not a number");
}

bool fitsInteger(const Number& number, std::uint32_t size, bool isSigned) {
  if (!number.whole) return false;
  const std::uint32_t bits = size * 8 - (isSigned ? 1 : 0);
  const std::uint64_t largest =
      bits >= 64 ? std::numeric_limits<std::uint64_t>::max() : (std::uint64_t{1} << bits) - 1;
  if (!number.negative || number.magnitude == 0) return number.magnitude <= largest;
  return isSigned && number.magnitude - 1 <= largest;
}

}  // namespace

Number parseNumber(const Token& token, bool negative) {
  Number number;
  number.text = (negative ? "-" : "") + std::string(token.text);
  number.negative = negative;
  const int base = baseOf(token.text);
  std::errc error = parseAll(token.text.substr(base == 10 ? 0 : 2), number.magnitude, base);
  number.whole = error == std::errc{};
  if (number.whole) {
    number.value = static_cast<double>(number.magnitude);
  } else if (base == 10) {
    error = parseAll(token.text, number.value, std::chars_format::general);
  }
  if (error != std::errc{}) refuse(token, error);
  if (negative) number.value = -number.value;
  return number;
}

bool fits(const Number& number, const ValueType& type) {
  switch (type.kind) {
    case ValueKind::Integer: return fitsInteger(number, type.size, true);
    case ValueKind::UnsignedInteger:
    case ValueKind::Index:
    case ValueKind::Enumerated:
    case ValueKind::BitEnumerated: return fitsInteger(number, type.size, false);
    case ValueKind::Float: return std::fabs(number.value) <= std::numeric_limits<float>::max();
    default: return true;
  }
}

}  // namespace qrn::edd
