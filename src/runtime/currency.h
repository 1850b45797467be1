#pragma once

#include <compare>
#include <cstdint>

namespace qrn {

/// A fixed-point amount: a 64-bit count of ten-thousandths, so four decimals and about fifteen digits before
/// them.
struct Currency {
  static constexpr std::int64_t kUnit = 10000;

  std::int64_t tenThousandths = 0;

  /// The value must not exceed a 64-bit count of ten-thousandths.
  static constexpr Currency fromWhole(std::int64_t whole) { return {whole * kUnit}; }

  /// Nearest double; exact up to 2^53 ten-thousandths.
  constexpr double toDouble() const { return static_cast<double>(tenThousandths) / kUnit; }

  friend constexpr bool operator==(Currency, Currency) = default;
  friend constexpr auto operator<=>(Currency, Currency) = default;
};

}  // namespace qrn
