#pragma once

#include <array>
#include <string>

namespace qrn {

/// How numbers, dates and truth values are written where the user lives. A plain value: fill in a copy of one
/// that ships to get another. Patterns are in the language of Format.
struct Locale {
  enum class DateOrder { MonthDayYear, DayMonthYear, YearMonthDay };
  enum class Weekday { Sunday, Monday, Tuesday, Wednesday, Thursday, Friday, Saturday };

  std::string decimalSeparator;
  std::string groupSeparator;
  std::string currencySymbol;
  std::string currencyPattern;

  DateOrder dateOrder = DateOrder::MonthDayYear;
  std::string dateSeparator;
  std::string timeSeparator;
  std::string shortDatePattern;
  std::string longDatePattern;
  std::string longTimePattern;
  Weekday firstWeekday = Weekday::Sunday;

  std::array<std::string, 12> monthNames;          // January first
  std::array<std::string, 12> monthAbbreviations;  // January first
  std::array<std::string, 7> dayNames;             // Sunday first
  std::array<std::string, 7> dayAbbreviations;     // Sunday first
  std::string amText;
  std::string pmText;

  std::string trueText;
  std::string falseText;
  std::string yesText;
  std::string noText;
  std::string onText;
  std::string offText;
};

const Locale& enUS();
const Locale& deDE();

/// The thread's locale; en-US until it is set. Nothing is ever taken from the process.
/// The reference goes stale with the next setCurrentLocale of the same thread.
const Locale& currentLocale();
void setCurrentLocale(const Locale& locale);

}  // namespace qrn
