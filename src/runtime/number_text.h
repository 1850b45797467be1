#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "runtime/locale.h"

namespace qrn {

/// What a written number says: digits x 10^exponent, or the bits of a hexadecimal or octal text.
struct NumberText {
  bool negative = false;
  std::string digits;  // without leading zeros; empty for zero
  std::int64_t exponent = 0;
  bool isBits = false;     // written with &H or &O, no more than 64 bits
  std::uint64_t bits = 0;  // the same number as the digits
};

/// Reads a number as people write it: blanks around it, a sign before or behind, a currency sign, group
/// separators, parentheses for negative, an exponent after E or D; or &H and &O with hexadecimal or octal
/// digits. Nothing when the text is no number. Linear in the text.
std::optional<NumberText> readNumberText(std::string_view text, const Locale& locale);

/// Nearest double, zero when too small; error 6 when too large.
double toDouble(const NumberText& number);

}  // namespace qrn
