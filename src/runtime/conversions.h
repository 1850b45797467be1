#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>

#include "runtime/variant.h"

namespace qrn {

// The conversions between the automation types. Texts are read and written the way of the current locale.
// Each gives a value or raises 6 (the type is too small), 13 (it makes no sense) or 94 (the value is Null).

bool CBool(const Variant& value);
/// Into whole numbers halves go to the even neighbour.
std::int16_t CInt(const Variant& value);
std::int32_t CLng(const Variant& value);
float CSng(const Variant& value);
double CDbl(const Variant& value);
Currency CCur(const Variant& value);
Decimal CDec(const Variant& value);
/// Reads the many written forms of dates and times; a number is taken as the serial.
Date CDate(const Variant& value);
/// Doubles show 15 significant digits, singles 7; those that are not finite "1.#INF", "-1.#INF", "1.#QNAN",
/// "-1.#IND". True and False are the language's words, in every locale.
std::string CStr(const Variant& value);

/// CDbl of a text, without a Variant around it.
double doubleFromText(std::string_view text);
std::string textFromDouble(double value);

template <std::same_as<double> T>
std::string CStr(T value) {
  return textFromDouble(value);
}

}  // namespace qrn
