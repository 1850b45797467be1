#include "runtime/conversions.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "base/letter_case.h"
#include "runtime/date_text.h"
#include "runtime/errors.h"
#include "runtime/locale.h"
#include "runtime/number_text.h"
#include "runtime/rounding.h"

namespace qrn {
namespace {

using Type = Variant::Type;

constexpr int kCurrencyDecimals = 4;

[[noreturn]] void raiseMismatch() { raiseRunTimeError(kTypeMismatch); }

// For the types that no number can be made of.
[[noreturn]] void raiseNotANumber(const Variant& value) {
  raiseRunTimeError(value.isNull() ? kInvalidUseOfNull : kTypeMismatch);
}

NumberText numberFrom(const std::string& text) {
  std::optional<NumberText> number = readNumberText(text, currentLocale());
  if (!number) raiseMismatch();
  return *std::move(number);
}

template <class Integer>
Integer checkedWhole(std::int64_t whole) {
  using Limits = std::numeric_limits<Integer>;
  if (whole < Limits::min() || whole > Limits::max()) raiseRunTimeError(kOverflow);
  return static_cast<Integer>(whole);
}

template <class Integer>
Integer wholeFrom(double value) {
  // Written so that NaN fails as well; the bounds are those of 64 bits, checkedWhole has the narrower ones.
  if (!(std::fabs(value) < 9.2e18)) raiseRunTimeError(kOverflow);
  return checkedWhole<Integer>(static_cast<std::int64_t>(roundHalfEven(value)));
}

// The number in units of 10^-decimals, half to even. Rounded once: cut to the digits of a Decimal first, what
// lies just above a tie would become one.
std::int64_t wholeUnits(const NumberText& number, int decimals) {
  const std::int64_t exponent = number.exponent + decimals;
  const std::int64_t wholeDigits = static_cast<std::int64_t>(number.digits.size()) + exponent;
  if (exponent >= 0 || wholeDigits < 0)
    return Decimal::fromDigits(number.negative, number.digits, exponent).toInt64();
  // One digit behind the point, and one that says whether there is anything else.
  std::string digits = number.digits.substr(0, static_cast<std::size_t>(wholeDigits) + 1);
  digits += number.digits.find_first_not_of('0', digits.size()) == std::string::npos ? '0' : '1';
  return Decimal::fromDigits(number.negative, digits, -2).toInt64();
}

// Bits as wide as the type are taken as they stand: &HFFFF is -1 as an Integer, 65535 as a Long.
template <class Integer>
Integer wholeFrom(const NumberText& number) {
  using Unsigned = std::make_unsigned_t<Integer>;
  if (number.isBits) {
    if (number.bits > std::numeric_limits<Unsigned>::max()) raiseRunTimeError(kOverflow);
    return static_cast<Integer>(static_cast<Unsigned>(number.bits));
  }
  return checkedWhole<Integer>(wholeUnits(number, 0));
}

template <class Integer>
Integer wholeFrom(const Variant& value) {
  switch (value.type()) {
    case Type::Empty: return 0;
    case Type::Boolean: return *value.get<bool>() ? -1 : 0;
    case Type::Integer: return *value.get<std::int16_t>();
    case Type::Long: return checkedWhole<Integer>(*value.get<std::int32_t>());
    case Type::Single: return wholeFrom<Integer>(static_cast<double>(*value.get<float>()));
    case Type::Double: return wholeFrom<Integer>(*value.get<double>());
    case Type::Currency:
      return checkedWhole<Integer>(divideHalfEven(value.get<Currency>()->tenThousandths, Currency::kUnit));
    case Type::Decimal: return checkedWhole<Integer>(value.get<Decimal>()->toInt64());
    case Type::Date: return wholeFrom<Integer>(value.get<Date>()->serial);
    case Type::String: return wholeFrom<Integer>(numberFrom(*value.get<std::string>()));
    default: raiseNotANumber(value);
  }
}

bool boolFromText(const std::string& text) {
  const Locale& locale = currentLocale();
  for (const std::string_view word : {std::string_view("True"), std::string_view(locale.trueText)}) {
    if (sameLetters(text, word)) return true;
  }
  for (const std::string_view word : {std::string_view("False"), std::string_view(locale.falseText)}) {
    if (sameLetters(text, word)) return false;
  }
  return doubleFromText(text) != 0;
}

// Only a plain number in the machine's own notation goes this way; whatever is left over needs the whole
// reader.
bool readPlainDouble(std::string_view text, double& value) {
  const std::size_t sign = text.starts_with('-') ? 1 : 0;
  if (text.size() <= sign || text[sign] < '0' || text[sign] > '9') return false;
  if (currentLocale().decimalSeparator != "." && text.find('.') != std::string_view::npos) return false;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  return result.ec == std::errc{} && result.ptr == text.data() + text.size();
}

Currency currencyFrom(double value) {
  const double scaled = value * Currency::kUnit;
  if (!(std::fabs(scaled) < 9223372036854775807.0)) raiseRunTimeError(kOverflow);
  // The exact product is whole + fraction + rest: a Double has fewer digits than a large Currency.
  double whole = std::floor(scaled), rest = std::fma(value, Currency::kUnit, -scaled);
  const double fraction = scaled - whole;
  auto units = static_cast<std::int64_t>(whole);
  if (std::fabs(rest) >= 1) {
    whole = std::floor(rest);
    units += static_cast<std::int64_t>(whole);
    rest -= whole;
  }
  const double beyondHalf = fraction - 0.5 + rest;
  const bool up = beyondHalf > 0 || (beyondHalf == 0 && units % 2 != 0);
  return {units + (up ? 1 : 0)};
}

Currency currencyFrom(const NumberText& number) { return {wholeUnits(number, kCurrencyDecimals)}; }

Decimal decimalFrom(Currency value) {
  const Decimal whole(value.tenThousandths);
  return Decimal::fromMantissa(whole.isNegative(), whole.mantissa(), kCurrencyDecimals);
}

// Where digits are grouped by the mark that stands between days and months, a day that does not exist would
// read as a number, and make a date thousands of years off.
bool isRatherADate(const std::string& text) {
  const std::string& mark = currentLocale().dateSeparator;
  return !mark.empty() && mark == currentLocale().groupSeparator && text.find(mark) != std::string::npos;
}

Date checkedDate(double serial) {
  const Date date{serial};
  if (!isInCalendar(date)) raiseRunTimeError(kOverflow);
  return date;
}

}  // namespace

bool CBool(const Variant& value) {
  switch (value.type()) {
    case Type::Boolean: return *value.get<bool>();
    case Type::Currency: return value.get<Currency>()->tenThousandths != 0;
    case Type::Decimal: return !value.get<Decimal>()->isZero();
    case Type::String: return boolFromText(*value.get<std::string>());
    default: return CDbl(value) != 0;
  }
}

std::int16_t CInt(const Variant& value) { return wholeFrom<std::int16_t>(value); }

std::int32_t CLng(const Variant& value) { return wholeFrom<std::int32_t>(value); }

float CSng(const Variant& value) {
  if (const float* single = value.get<float>()) return *single;
  const double wide = CDbl(value);
  if (std::fabs(wide) > static_cast<double>(std::numeric_limits<float>::max())) raiseRunTimeError(kOverflow);
  return static_cast<float>(wide);
}

double CDbl(const Variant& value) {
  switch (value.type()) {
    case Type::Empty: return 0;
    case Type::Boolean: return *value.get<bool>() ? -1 : 0;
    case Type::Integer: return *value.get<std::int16_t>();
    case Type::Long: return *value.get<std::int32_t>();
    case Type::Single: return static_cast<double>(*value.get<float>());
    case Type::Double: return *value.get<double>();
    case Type::Currency: return value.get<Currency>()->toDouble();
    case Type::Decimal: return value.get<Decimal>()->toDouble();
    case Type::Date: return value.get<Date>()->serial;
    case Type::String: return doubleFromText(*value.get<std::string>());
    default: raiseNotANumber(value);
  }
}

Currency CCur(const Variant& value) {
  switch (value.type()) {
    case Type::Currency: return *value.get<Currency>();
    case Type::Decimal:
      return {(value.get<Decimal>()->rounded(kCurrencyDecimals) * Decimal(Currency::kUnit)).toInt64()};
    case Type::String: return currencyFrom(numberFrom(*value.get<std::string>()));
    default: return currencyFrom(CDbl(value));
  }
}

Decimal CDec(const Variant& value) {
  constexpr int kSingleDigits = 7;
  switch (value.type()) {
    case Type::Single: return Decimal::fromDouble(static_cast<double>(*value.get<float>()), kSingleDigits);
    case Type::Double:
    case Type::Date: return Decimal::fromDouble(CDbl(value));
    case Type::Currency: return decimalFrom(*value.get<Currency>());
    case Type::Decimal: return *value.get<Decimal>();
    case Type::String: {
      const NumberText number = numberFrom(*value.get<std::string>());
      return Decimal::fromDigits(number.negative, number.digits, number.exponent);
    }
    default: return Decimal(CLng(value));
  }
}

Date CDate(const Variant& value) {
  if (const Date* date = value.get<Date>()) return *date;
  if (const std::string* text = value.get<std::string>()) {
    if (const std::optional<Date> date = readDateText(*text, currentLocale(), currentYear())) return *date;
    if (isRatherADate(*text)) raiseMismatch();
  }
  return checkedDate(CDbl(value));
}

double doubleFromText(std::string_view text) {
  double value = 0;
  if (readPlainDouble(text, value)) return value;
  const std::optional<NumberText> number = readNumberText(text, currentLocale());
  if (!number) raiseMismatch();
  return toDouble(*number);
}

}  // namespace qrn
