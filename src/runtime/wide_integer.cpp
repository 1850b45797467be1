#include "runtime/wide_integer.h"

#include <algorithm>

namespace qrn {

bool WideInteger::isZero() const { return fitsIn(0); }

bool WideInteger::fitsIn(std::size_t limbs) const {
  return std::all_of(limbs_.begin() + static_cast<std::ptrdiff_t>(limbs), limbs_.end(),
                     [](std::uint32_t limb) { return limb == 0; });
}

void WideInteger::add(const WideInteger& other) {
  std::uint64_t carry = 0;
  for (std::size_t i = 0; i < kLimbs; ++i) {
    carry += std::uint64_t{limbs_[i]} + other.limbs_[i];
    limbs_[i] = static_cast<std::uint32_t>(carry);
    carry >>= 32;
  }
}

void WideInteger::subtract(const WideInteger& other) {
  std::uint64_t borrow = 0;
  for (std::size_t i = 0; i < kLimbs; ++i) {
    const std::uint64_t difference = std::uint64_t{limbs_[i]} - other.limbs_[i] - borrow;
    limbs_[i] = static_cast<std::uint32_t>(difference);
    borrow = difference >> 63;
  }
}

void WideInteger::multiplyAdd(std::uint32_t factor, std::uint32_t addend) {
  std::uint64_t carry = addend;
  for (std::uint32_t& limb : limbs_) {
    carry += std::uint64_t{limb} * factor;
    limb = static_cast<std::uint32_t>(carry);
    carry >>= 32;
  }
}

void WideInteger::multiplyByPowerOfTen(int exponent) {
  for (; exponent >= 9; exponent -= 9) multiplyAdd(1000000000U, 0);
  for (; exponent > 0; --exponent) multiplyAdd(10U, 0);
}

std::uint32_t WideInteger::divide(std::uint32_t divisor) {
  std::uint64_t remainder = 0;
  for (std::size_t i = kLimbs; i-- > 0;) {
    remainder = (remainder << 32) | limbs_[i];
    limbs_[i] = static_cast<std::uint32_t>(remainder / divisor);
    remainder %= divisor;
  }
  return static_cast<std::uint32_t>(remainder);
}

WideInteger WideInteger::product(const WideInteger& left, const WideInteger& right) {
  WideInteger result;
  for (std::size_t i = 0; i < kLimbs; ++i) {
    std::uint64_t carry = 0;
    for (std::size_t j = 0; i + j < kLimbs; ++j) {
      carry += std::uint64_t{left.limbs_[i]} * right.limbs_[j] + result.limbs_[i + j];
      result.limbs_[i + j] = static_cast<std::uint32_t>(carry);
      carry >>= 32;
    }
  }
  return result;
}

std::strong_ordering operator<=>(const WideInteger& left, const WideInteger& right) {
  return std::lexicographical_compare_three_way(left.limbs_.rbegin(), left.limbs_.rend(),
                                                right.limbs_.rbegin(), right.limbs_.rend());
}

}  // namespace qrn
