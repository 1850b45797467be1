#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "runtime/currency.h"
#include "runtime/decimal.h"

namespace qrn {

/// A number as its significant decimal digits: 0.d1d2d3… x 10^point, without zeros at either end.
/// Zero has no digits and no sign.
struct DecimalDigits {
  std::array<char, 32> digits;
  std::size_t count = 0;
  int point = 0;
  bool negative = false;

  std::string_view text() const { return {digits.data(), count}; }
  /// The digit of 10^position; '0' wherever there is none.
  char digitAt(int position) const {
    const int index = point - 1 - position;
    return index >= 0 && index < static_cast<int>(count) ? digits[static_cast<std::size_t>(index)] : '0';
  }
  /// Cuts behind the digit of 10^position, ties away from zero.
  void roundAt(int position);
};

/// Significant digits of a double in text, and of a single.
inline constexpr int kDoubleDigits = 15;
inline constexpr int kSingleDigits = 7;

/// The value must be finite; rounded to the given number of digits, at most 17.
DecimalDigits decimalDigits(double value, int significantDigits);
/// Every digit.
DecimalDigits decimalDigits(const Decimal& value);
DecimalDigits decimalDigits(Currency value);

}  // namespace qrn
