#pragma once

#include <array>
#include <compare>
#include <cstdint>
#include <string>
#include <string_view>

namespace qrn {

class WideInteger;

/// An exact decimal number: a sign, a mantissa of 96 bits and a scale of 0 to 28 decimals.
/// A result that needs more is rounded half to even at the last digit there is room for; one that is too
/// large raises error 6.
class Decimal {
 public:
  static constexpr int kMaxScale = 28;

  constexpr Decimal() = default;
  explicit Decimal(std::int64_t whole);

  /// digits x 10^exponent. Only '0' to '9' may occur in the digits; there may be any number of them.
  static Decimal fromDigits(bool negative, std::string_view digits, std::int64_t exponent);
  /// The value's first significant digits (15, as texts show them); error 6 if it is not finite.
  static Decimal fromDouble(double value, int significantDigits = 15);
  /// Mantissa from its three words, least significant first; scale 0 to 28.
  static Decimal fromMantissa(bool negative, std::array<std::uint32_t, 3> mantissa, int scale);

  bool isNegative() const { return negative_; }
  bool isZero() const { return mantissa_ == std::array<std::uint32_t, 3>{}; }
  int scale() const { return scale_; }
  const std::array<std::uint32_t, 3>& mantissa() const { return mantissa_; }

  /// Half to even at the given number of decimals.
  Decimal rounded(int decimals) const;
  double toDouble() const;
  /// Half to even; error 6 beyond 64 bits.
  std::int64_t toInt64() const;
  /// The mantissa's digits without the point; "0" for zero.
  std::string digits() const;
  /// Shortest plain form with '.' as the point: no exponent, no trailing zeros.
  std::string toText() const;

  Decimal operator-() const;
  friend Decimal operator+(const Decimal& left, const Decimal& right);
  friend Decimal operator-(const Decimal& left, const Decimal& right) { return left + -right; }
  friend Decimal operator*(const Decimal& left, const Decimal& right);

  /// By value: 1.0 equals 1.00, and zero has no sign.
  friend bool operator==(const Decimal& left, const Decimal& right) { return (left <=> right) == 0; }
  friend std::strong_ordering operator<=>(const Decimal& left, const Decimal& right);

 private:
  // lostDigits says that something other than zero was cut off behind the mantissa.
  static Decimal fitted(bool negative, WideInteger mantissa, std::int64_t scale, bool lostDigits);
  WideInteger wide(int scale) const;

  std::array<std::uint32_t, 3> mantissa_{};  // least significant first
  std::uint8_t scale_ = 0;
  bool negative_ = false;
};

}  // namespace qrn
