#include <algorithm>
#include <cmath>

#include "runtime/conversions.h"
#include "runtime/date_format.h"
#include "runtime/decimal_digits.h"
#include "runtime/errors.h"
#include "runtime/locale.h"

namespace qrn {
namespace {

using Type = Variant::Type;

std::string nonFiniteText(double value) {
  const std::string number = (std::signbit(value) ? "-1" : "1") + currentLocale().decimalSeparator;
  if (std::isinf(value)) return number + "#INF";
  return number + (std::signbit(value) ? "#IND" : "#QNAN");
}

std::string plainText(const DecimalDigits& digits) {
  std::string text = digits.negative ? "-" : "";
  for (int position = std::max(digits.point, 1) - 1; position >= 0; --position)
    text += digits.digitAt(position);
  const int decimals = static_cast<int>(digits.count) - digits.point;
  if (decimals <= 0) return text;
  text += currentLocale().decimalSeparator;
  for (int position = -1; position >= -decimals; --position) text += digits.digitAt(position);
  return text;
}

// One digit, the point, the rest, and an exponent with a sign and no fewer than two digits.
std::string scientificText(const DecimalDigits& digits) {
  std::string text = digits.negative ? "-" : "";
  text += digits.digits[0];
  if (digits.count > 1) text.append(currentLocale().decimalSeparator).append(digits.text().substr(1));
  const int exponent = digits.point - 1;
  text += exponent < 0 ? "E-" : "E+";
  if (std::abs(exponent) < 10) text += '0';
  return text + std::to_string(std::abs(exponent));
}

// Plain as long as neither side of the point needs more places than there are significant digits.
std::string numberText(double value, int significantDigits) {
  if (!std::isfinite(value)) return nonFiniteText(value);
  const DecimalDigits digits = decimalDigits(value, significantDigits);
  if (digits.count == 0) return "0";
  const int decimals = static_cast<int>(digits.count) - digits.point;
  const bool plain = digits.point <= significantDigits && (digits.point > 0 || decimals <= significantDigits);
  return plain ? plainText(digits) : scientificText(digits);
}

}  // namespace

std::string textFromDouble(double value) { return numberText(value, kDoubleDigits); }

std::string CStr(const Variant& value) {
  switch (value.type()) {
    case Type::Empty: return {};
    case Type::Null: raiseRunTimeError(kInvalidUseOfNull);
    case Type::Boolean: return *value.get<bool>() ? "True" : "False";
    case Type::Integer: return std::to_string(*value.get<std::int16_t>());
    case Type::Long: return std::to_string(*value.get<std::int32_t>());
    case Type::Single: return numberText(static_cast<double>(*value.get<float>()), kSingleDigits);
    case Type::Double: return textFromDouble(*value.get<double>());
    case Type::Currency: return plainText(decimalDigits(*value.get<Currency>()));
    case Type::Decimal: return plainText(decimalDigits(*value.get<Decimal>()));
    case Type::Date: return generalDateText(*value.get<Date>(), currentLocale());
    case Type::String: return *value.get<std::string>();
    case Type::Error: return "Error " + std::to_string(value.get<ErrorValue>()->number);
    case Type::Object: break;
  }
  raiseRunTimeError(kTypeMismatch);
}

}  // namespace qrn
