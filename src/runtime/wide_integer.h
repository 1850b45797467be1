#pragma once

#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>

namespace qrn {

/// An unsigned integer of 224 bits: room for the product, or the aligned sum, of two 96-bit mantissas.
/// Nothing checks for overflow; the callers' bounds leave room.
class WideInteger {
 public:
  static constexpr std::size_t kLimbs = 7;

  constexpr WideInteger() = default;
  explicit constexpr WideInteger(std::uint64_t value)
      : limbs_{static_cast<std::uint32_t>(value), static_cast<std::uint32_t>(value >> 32)} {}

  std::uint32_t limb(std::size_t index) const { return limbs_[index]; }
  void setLimb(std::size_t index, std::uint32_t value) { limbs_[index] = value; }

  bool isZero() const;
  bool isOdd() const { return (limbs_[0] & 1U) != 0; }
  /// Whether no bit above the given number of limbs is set.
  bool fitsIn(std::size_t limbs) const;

  void add(const WideInteger& other);
  /// The other one must not be larger.
  void subtract(const WideInteger& other);
  void multiplyAdd(std::uint32_t factor, std::uint32_t addend);
  void multiplyByPowerOfTen(int exponent);
  /// Leaves the quotient and answers the remainder.
  std::uint32_t divide(std::uint32_t divisor);

  static WideInteger product(const WideInteger& left, const WideInteger& right);

  friend bool operator==(const WideInteger&, const WideInteger&) = default;
  friend std::strong_ordering operator<=>(const WideInteger& left, const WideInteger& right);

 private:
  std::array<std::uint32_t, kLimbs> limbs_{};  // least significant first
};

}  // namespace qrn
