#include "runtime/decimal.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "runtime/errors.h"
#include "runtime/wide_integer.h"

namespace qrn {
namespace {

constexpr std::size_t kMantissaLimbs = 3;

// More digits than the mantissa holds, and few enough that 10^29 times them still fits a WideInteger.
constexpr std::size_t kDigitsRead = 36;

WideInteger widened(const std::array<std::uint32_t, kMantissaLimbs>& mantissa) {
  WideInteger result;
  for (std::size_t i = 0; i < kMantissaLimbs; ++i) result.setLimb(i, mantissa[i]);
  return result;
}

bool roundsUp(std::uint32_t droppedDigit, bool lostDigits, bool odd) {
  return droppedDigit > 5 || (droppedDigit == 5 && (lostDigits || odd));
}

}  // namespace

Decimal::Decimal(std::int64_t whole) : negative_(whole < 0) {
  const auto bits = static_cast<std::uint64_t>(whole);
  const std::uint64_t magnitude = negative_ ? 0 - bits : bits;
  mantissa_ = {static_cast<std::uint32_t>(magnitude), static_cast<std::uint32_t>(magnitude >> 32), 0};
}

Decimal Decimal::fromDigits(bool negative, std::string_view digits, std::int64_t exponent) {
  digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
  const std::string_view read = digits.substr(0, kDigitsRead);
  const std::string_view rest = digits.substr(read.size());
  WideInteger mantissa;
  for (const char digit : read) mantissa.multiplyAdd(10, static_cast<std::uint32_t>(digit - '0'));
  exponent += static_cast<std::int64_t>(rest.size());
  const bool lostDigits = rest.find_first_not_of('0') != std::string_view::npos;
  if (mantissa.isZero() || exponent <= 0)
    return fitted(negative, mantissa, std::max<std::int64_t>(-exponent, 0), lostDigits);
  if (exponent > kMaxScale) raiseRunTimeError(kOverflow);
  mantissa.multiplyByPowerOfTen(static_cast<int>(exponent));
  return fitted(negative, mantissa, 0, lostDigits);
}

Decimal Decimal::fromDouble(double value, int significantDigits) {
  if (!std::isfinite(value)) raiseRunTimeError(kOverflow);
  // "d.ddde+xx": the digits with their point taken out, then the exponent.
  std::array<char, 40> text;
  const auto written = std::to_chars(text.data(), text.data() + text.size(), std::fabs(value),
                                     std::chars_format::scientific, significantDigits - 1);
  const std::string_view scientific(text.data(), static_cast<std::size_t>(written.ptr - text.data()));
  const std::size_t mark = scientific.find('e');
  int exponent = 0;
  std::from_chars(scientific.data() + mark + 2, written.ptr, exponent);
  if (scientific[mark + 1] == '-') exponent = -exponent;
  std::string digits(scientific.substr(0, mark));
  if (digits.size() > 1) digits.erase(1, 1);
  digits.erase(digits.find_last_not_of('0') + 1);
  const auto decimals = static_cast<std::int64_t>(digits.size()) - 1;
  return fromDigits(std::signbit(value), digits, exponent - decimals);
}

Decimal Decimal::fromMantissa(bool negative, std::array<std::uint32_t, 3> mantissa, int scale) {
  if (scale < 0 || scale > kMaxScale) raiseRunTimeError(kInvalidProcedureCall);
  Decimal result;
  result.mantissa_ = mantissa;
  result.scale_ = static_cast<std::uint8_t>(scale);
  result.negative_ = negative && !result.isZero();
  return result;
}

Decimal Decimal::fitted(bool negative, WideInteger mantissa, std::int64_t scale, bool lostDigits) {
  std::uint32_t dropped = 0;
  while (scale > kMaxScale || !mantissa.fitsIn(kMantissaLimbs)) {
    if (scale <= 0) raiseRunTimeError(kOverflow);
    if (mantissa.isZero() && dropped == 0) {
      scale = kMaxScale;
      break;
    }
    lostDigits = lostDigits || dropped != 0;
    dropped = mantissa.divide(10);
    --scale;
  }
  if (roundsUp(dropped, lostDigits, mantissa.isOdd())) {
    mantissa.add(WideInteger(1));
    if (!mantissa.fitsIn(kMantissaLimbs)) return fitted(negative, mantissa, scale, true);
  }
  return fromMantissa(negative, {mantissa.limb(0), mantissa.limb(1), mantissa.limb(2)},
                      static_cast<int>(scale));
}

WideInteger Decimal::wide(int scale) const {
  WideInteger result = widened(mantissa_);
  result.multiplyByPowerOfTen(scale - scale_);
  return result;
}

Decimal Decimal::rounded(int decimals) const {
  if (decimals >= scale_) return *this;
  WideInteger mantissa = widened(mantissa_);
  std::uint32_t dropped = 0;
  bool lostDigits = false;
  for (int scale = scale_; scale > decimals; --scale) {
    lostDigits = lostDigits || dropped != 0;
    dropped = mantissa.divide(10);
  }
  if (roundsUp(dropped, lostDigits, mantissa.isOdd())) mantissa.add(WideInteger(1));
  return fitted(negative_, mantissa, decimals, false);
}

double Decimal::toDouble() const {
  const std::string text = digits() + "e-" + std::to_string(scale_);
  double value = 0;
  std::from_chars(text.data(), text.data() + text.size(), value);
  return negative_ ? -value : value;
}

std::int64_t Decimal::toInt64() const {
  const Decimal whole = rounded(0);
  const std::uint64_t magnitude = (std::uint64_t{whole.mantissa_[1]} << 32) | whole.mantissa_[0];
  const std::uint64_t limit = (std::uint64_t{1} << 63) - (negative_ ? 0 : 1);
  if (whole.mantissa_[2] != 0 || magnitude > limit) raiseRunTimeError(kOverflow);
  return static_cast<std::int64_t>(negative_ ? 0 - magnitude : magnitude);
}

std::string Decimal::digits() const {
  WideInteger rest = widened(mantissa_);
  std::string result;
  do {
    result += static_cast<char>('0' + rest.divide(10));
  } while (!rest.isZero());
  std::reverse(result.begin(), result.end());
  return result;
}

std::string Decimal::toText() const {
  std::string text = digits();
  if (scale_ > 0) {
    const std::size_t scale = scale_;
    if (text.size() <= scale) text.insert(0, scale + 1 - text.size(), '0');
    text.insert(text.size() - scale, 1, '.');
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
  }
  return negative_ ? "-" + text : text;
}

Decimal Decimal::operator-() const { return fromMantissa(!negative_, mantissa_, scale_); }

Decimal operator+(const Decimal& left, const Decimal& right) {
  const int scale = std::max(left.scale(), right.scale());
  WideInteger a = left.wide(scale);
  WideInteger b = right.wide(scale);
  if (left.negative_ == right.negative_) {
    a.add(b);
    return Decimal::fitted(left.negative_, a, scale, false);
  }
  if (a < b) {
    b.subtract(a);
    return Decimal::fitted(right.negative_, b, scale, false);
  }
  a.subtract(b);
  return Decimal::fitted(left.negative_, a, scale, false);
}

Decimal operator*(const Decimal& left, const Decimal& right) {
  const WideInteger mantissa = WideInteger::product(widened(left.mantissa_), widened(right.mantissa_));
  return Decimal::fitted(left.negative_ != right.negative_, mantissa, left.scale() + right.scale(), false);
}

std::strong_ordering operator<=>(const Decimal& left, const Decimal& right) {
  if (left.negative_ != right.negative_) {
    return left.negative_ ? std::strong_ordering::less : std::strong_ordering::greater;
  }
  const int scale = std::max(left.scale(), right.scale());
  const auto order = left.wide(scale) <=> right.wide(scale);
  return left.negative_ ? 0 <=> order : order;
}

}  // namespace qrn
