#pragma once

#include <optional>
#include <string_view>

#include "runtime/date.h"
#include "runtime/locale.h"

namespace qrn {

/// Reads a date, a time or both as people write them: numbers in the locale's order (or the one order that
/// makes a date of them), a year of four digits in front, months by name, a day of the week beside, hours
/// with or without AM and PM. Years below 30 are 20xx, others below 100 are 19xx; a date without a year is
/// one of `thisYear`. Nothing when the text is no date. Linear in the text.
std::optional<Date> readDateText(std::string_view text, const Locale& locale, int thisYear);

/// The year of the system clock, in UTC.
int currentYear();

}  // namespace qrn
