#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/date.h"
#include "runtime/locale.h"
#include "runtime/pattern_reader.h"

namespace qrn {

/// A date pattern, read once: d to dddddd, w ww, m to mmmm, q, y yy yyyy, h hh, n nn, s ss, ttttt, c, the
/// separators / and :, and the forms of AM/PM, which also make the clock one of twelve hours. An m that
/// follows an h means minutes.
class DateFormat {
 public:
  explicit DateFormat(std::string_view pattern);
  /// Error 6 outside the calendar.
  std::string apply(Date date, const Locale& locale) const;

  /// Whether the rest of a pattern starts with something only a date can fill in.
  static bool startsWithDatePart(const PatternReader& reader);

 private:
  enum class Part : std::uint8_t {
    Literal,
    DateSeparator,
    TimeSeparator,
    General,
    Day,
    Day2,
    DayAbbreviation,
    DayName,
    ShortDate,
    LongDate,
    Weekday,
    Week,
    Month,
    Month2,
    MonthAbbreviation,
    MonthName,
    Quarter,
    DayOfYear,
    Year2,
    Year4,
    Hour,
    Hour2,
    Minute,
    Minute2,
    Second,
    Second2,
    LongTime,
    AmPmUpper,
    AmPmLower,
    APUpper,
    APLower,
    AmPmLocal
  };
  struct Token {
    Part part;
    std::size_t length;  // of a literal; the literals stand one behind the other in literals_
  };
  struct Moment;

  void readLetter(PatternReader& reader, std::string_view letter);
  bool readAmPm(PatternReader& reader);
  void addRun(PatternReader& reader, char letter, std::initializer_list<Part> byLength);
  void addLiteral(std::string_view text);
  void addPart(Part part);
  void write(std::string& out, const Moment& moment) const;
  void writePart(std::string& out, Part part, const Moment& moment) const;
  static bool writeDayPart(std::string& out, Part part, const Moment& moment);
  static bool writeMonthPart(std::string& out, Part part, const Moment& moment);
  bool writeTimePart(std::string& out, Part part, const Moment& moment) const;
  static void writeLocalPattern(std::string& out, Part part, const Moment& moment);

  std::vector<Token> tokens_;
  std::string literals_;
  bool twelveHours_ = false;
  bool afterHour_ = false;  // while reading: the latest part was the hour
};

/// The short date and the long time, or only the one that says something.
std::string generalDateText(Date date, const Locale& locale);

}  // namespace qrn
