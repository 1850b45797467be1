#include "runtime/number_format.h"

#include <cmath>

#include "runtime/conversions.h"

namespace qrn {
namespace {

constexpr std::size_t kNegative = 1;
constexpr std::size_t kZero = 2;
constexpr std::size_t kNothing = 3;
constexpr std::size_t kMostSections = 4;

int signOf(const DecimalDigits& digits) {
  if (digits.count == 0) return 0;
  return digits.negative ? -1 : 1;
}

}  // namespace

NumberFormat::NumberFormat(std::string_view pattern) {
  PatternReader reader(pattern);
  do sections_.emplace_back(reader);
  while (!reader.atEnd() && sections_.size() < kMostSections);
}

std::string NumberFormat::apply(double value, const Locale& locale) const {
  if (!std::isfinite(value)) return textFromDouble(value);
  const int sign = value < 0 ? -1 : (value > 0 ? 1 : 0);
  return write(sign, std::fabs(value), locale);
}

std::string NumberFormat::apply(const Decimal& value, const Locale& locale) const {
  const DecimalDigits digits = decimalDigits(value);
  return write(signOf(digits), digits, locale);
}

std::string NumberFormat::apply(Currency value, const Locale& locale) const {
  const DecimalDigits digits = decimalDigits(value);
  return write(signOf(digits), digits, locale);
}

std::string NumberFormat::applyNothing(const Locale& locale) const {
  std::string out;
  if (const NumberSection* section = ownSection(kNothing)) section->write(out, 0.0, locale);
  return out;
}

template <class Magnitude>
std::string NumberFormat::write(int sign, const Magnitude& magnitude, const Locale& locale) const {
  const NumberSection* section = nullptr;
  std::string out;
  if (sign < 0) section = ownSection(kNegative);
  if (sign == 0) section = ownSection(kZero);
  if (sign < 0 && section == nullptr) out += '-';
  (section != nullptr ? *section : sections_.front()).write(out, magnitude, locale);
  return out;
}

const NumberSection* NumberFormat::ownSection(std::size_t index) const {
  return index < sections_.size() && !sections_[index].isEmpty() ? &sections_[index] : nullptr;
}

}  // namespace qrn
