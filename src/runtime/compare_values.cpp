#include "runtime/compare_values.h"

#include <cmath>

#include "runtime/conversions.h"

namespace qrn {
namespace {

using Type = Variant::Type;

bool isTextOrEmpty(const Variant& value) { return value.isString() || value.isEmpty(); }

bool isExact(const Variant& value) { return value.type() == Type::Decimal || value.type() == Type::Currency; }

bool fitsDecimal(const Variant& value) {
  constexpr double kSafelyBelowTheLargest = 7.9e28;
  return isExact(value) || std::fabs(CDbl(value)) < kSafelyBelowTheLargest;
}

std::partial_ordering compareNumbers(const Variant& left, const Variant& right) {
  const bool exact = isExact(left) || isExact(right);
  if (exact && fitsDecimal(left) && fitsDecimal(right)) return CDec(left) <=> CDec(right);
  return CDbl(left) <=> CDbl(right);
}

std::partial_ordering compareTexts(const Variant& left, const Variant& right) {
  return CStr(left).compare(CStr(right)) <=> 0;
}

}  // namespace

std::partial_ordering compareValues(const Variant& left, const Variant& right) {
  if (left.isNull() || right.isNull()) return std::partial_ordering::unordered;
  const bool anyText = left.isString() || right.isString();
  if (!anyText) return compareNumbers(left, right);
  if (isTextOrEmpty(left) && isTextOrEmpty(right)) return compareTexts(left, right);
  // The other one must be a number for this to have an answer.
  static_cast<void>(CDbl(left.isString() ? right : left));
  return left.isString() ? std::partial_ordering::greater : std::partial_ordering::less;
}

}  // namespace qrn
