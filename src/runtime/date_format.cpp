#include "runtime/date_format.h"

#include <cstddef>

namespace qrn {
namespace {

// Written with at least so many digits.
void writeNumber(std::string& out, int number, std::size_t digits = 1) {
  const std::string text = std::to_string(number);
  if (text.size() < digits) out.append(digits - text.size(), '0');
  out += text;
}

}  // namespace

struct DateFormat::Moment {
  CivilTime civil;
  int day;  // since 1899-12-30
  const Locale& locale;
  bool nested;  // inside a pattern of the locale, which cannot call for another one

  bool isAfternoon() const { return civil.hour >= 12; }
  bool isMidnight() const { return civil.hour == 0 && civil.minute == 0 && civil.second == 0; }
  int dayOfYear() const { return day - dayNumber(civil.year, 1, 1) + 1; }
  /// 0 for the locale's first day of the week.
  int weekdayFromFirst(int ofDay) const {
    return (weekdayOf(ofDay) - static_cast<int>(locale.firstWeekday) + 7) % 7;
  }
  /// The week of 1 January is the first.
  int weekOfYear() const { return (dayOfYear() - 1 + weekdayFromFirst(day - dayOfYear() + 1)) / 7 + 1; }
};

DateFormat::DateFormat(std::string_view pattern) {
  PatternReader reader(pattern);
  while (!reader.atEnd()) {
    if (readAmPm(reader)) continue;
    const PatternReader::Piece piece = reader.next();
    if (piece.isLiteral) {
      addLiteral(piece.text);
    } else {
      readLetter(reader, piece.text);
    }
  }
}

bool DateFormat::startsWithDatePart(const PatternReader& reader) {
  if (reader.atEnd()) return false;
  PatternReader ahead = reader;
  if (ahead.skipRun('t', 5) == 5) return true;
  for (const std::string_view word : {"AM/PM", "A/P", "AMPM"}) {
    if (ahead.skipWord(word)) return true;
  }
  return std::string_view("cdhmnqswy").find(asciiLower(reader.rest().front())) != std::string_view::npos;
}

void DateFormat::readLetter(PatternReader& reader, std::string_view letter) {
  using enum Part;
  switch (asciiLower(letter.front())) {
    case '/': return addPart(DateSeparator);
    case ':': return addPart(TimeSeparator);
    case 'c': return addPart(General);
    case 'd': return addRun(reader, 'd', {Day, Day2, DayAbbreviation, DayName, ShortDate, LongDate});
    case 'w': return addRun(reader, 'w', {Weekday, Week});
    case 'm':
      if (afterHour_) return addRun(reader, 'm', {Minute, Minute2});
      return addRun(reader, 'm', {Month, Month2, MonthAbbreviation, MonthName});
    case 'q': return addPart(Quarter);
    case 'y': return addRun(reader, 'y', {DayOfYear, Year2, Year2, Year4});
    case 'h': return addRun(reader, 'h', {Hour, Hour2});
    case 'n': return addRun(reader, 'n', {Minute, Minute2});
    case 's': return addRun(reader, 's', {Second, Second2});
    case 't':
      if (reader.rest().size() >= 4 && PatternReader(reader).skipRun('t', 4) == 4) {
        reader.skip(4);
        return addPart(LongTime);
      }
      break;
    default: break;
  }
  addLiteral(letter);
}

bool DateFormat::readAmPm(PatternReader& reader) {
  const bool lower = !reader.atEnd() && reader.rest().front() == 'a';
  if (reader.skipWord("AM/PM")) {
    addPart(lower ? Part::AmPmLower : Part::AmPmUpper);
  } else if (reader.skipWord("A/P")) {
    addPart(lower ? Part::APLower : Part::APUpper);
  } else if (reader.skipWord("AMPM")) {
    addPart(Part::AmPmLocal);
  } else {
    return false;
  }
  twelveHours_ = true;
  return true;
}

// The letter itself has been read; what follows it decides which of the parts is meant.
void DateFormat::addRun(PatternReader& reader, char letter, std::initializer_list<Part> byLength) {
  addPart(byLength.begin()[reader.skipRun(letter, byLength.size() - 1)]);
}

void DateFormat::addLiteral(std::string_view text) {
  literals_ += text;
  if (!tokens_.empty() && tokens_.back().part == Part::Literal) {
    tokens_.back().length += text.size();
  } else {
    tokens_.push_back({Part::Literal, text.size()});
  }
}

void DateFormat::addPart(Part part) {
  tokens_.push_back({part, 0});
  const bool separator = part == Part::DateSeparator || part == Part::TimeSeparator;
  if (!separator) afterHour_ = part == Part::Hour || part == Part::Hour2;
}

std::string DateFormat::apply(Date date, const Locale& locale) const {
  const CivilTime civil = splitDate(date);
  std::string out;
  write(out, {civil, dayNumber(civil.year, civil.month, civil.day), locale, false});
  return out;
}

void DateFormat::write(std::string& out, const Moment& moment) const {
  std::size_t literal = 0;
  for (const Token& token : tokens_) {
    if (token.part == Part::Literal) {
      out.append(literals_, literal, token.length);
      literal += token.length;
    } else {
      writePart(out, token.part, moment);
    }
  }
}

void DateFormat::writePart(std::string& out, Part part, const Moment& moment) const {
  if (part == Part::DateSeparator) {
    out += moment.locale.dateSeparator;
  } else if (part == Part::TimeSeparator) {
    out += moment.locale.timeSeparator;
  } else if (!writeDayPart(out, part, moment) && !writeMonthPart(out, part, moment) &&
             !writeTimePart(out, part, moment) && !moment.nested) {
    writeLocalPattern(out, part, moment);
  }
}

bool DateFormat::writeDayPart(std::string& out, Part part, const Moment& moment) {
  const auto weekday = static_cast<std::size_t>(weekdayOf(moment.day));
  switch (part) {
    case Part::Day: writeNumber(out, moment.civil.day); return true;
    case Part::Day2: writeNumber(out, moment.civil.day, 2); return true;
    case Part::DayAbbreviation: out += moment.locale.dayAbbreviations[weekday]; return true;
    case Part::DayName: out += moment.locale.dayNames[weekday]; return true;
    case Part::Weekday: writeNumber(out, moment.weekdayFromFirst(moment.day) + 1); return true;
    case Part::Week: writeNumber(out, moment.weekOfYear()); return true;
    case Part::DayOfYear: writeNumber(out, moment.dayOfYear()); return true;
    default: return false;
  }
}

bool DateFormat::writeMonthPart(std::string& out, Part part, const Moment& moment) {
  const auto month = static_cast<std::size_t>(moment.civil.month - 1);
  switch (part) {
    case Part::Month: writeNumber(out, moment.civil.month); return true;
    case Part::Month2: writeNumber(out, moment.civil.month, 2); return true;
    case Part::MonthAbbreviation: out += moment.locale.monthAbbreviations[month]; return true;
    case Part::MonthName: out += moment.locale.monthNames[month]; return true;
    case Part::Quarter: writeNumber(out, (moment.civil.month + 2) / 3); return true;
    case Part::Year2: writeNumber(out, moment.civil.year % 100, 2); return true;
    case Part::Year4: writeNumber(out, moment.civil.year, 4); return true;
    default: return false;
  }
}

bool DateFormat::writeTimePart(std::string& out, Part part, const Moment& moment) const {
  const CivilTime& civil = moment.civil;
  const int hour = twelveHours_ ? (civil.hour + 11) % 12 + 1 : civil.hour;
  const bool afternoon = moment.isAfternoon();
  switch (part) {
    case Part::Hour: writeNumber(out, hour); return true;
    case Part::Hour2: writeNumber(out, hour, 2); return true;
    case Part::Minute: writeNumber(out, civil.minute); return true;
    case Part::Minute2: writeNumber(out, civil.minute, 2); return true;
    case Part::Second: writeNumber(out, civil.second); return true;
    case Part::Second2: writeNumber(out, civil.second, 2); return true;
    case Part::AmPmUpper: out += afternoon ? "PM" : "AM"; return true;
    case Part::AmPmLower: out += afternoon ? "pm" : "am"; return true;
    case Part::APUpper: out += afternoon ? "P" : "A"; return true;
    case Part::APLower: out += afternoon ? "p" : "a"; return true;
    case Part::AmPmLocal: out += afternoon ? moment.locale.pmText : moment.locale.amText; return true;
    default: return false;
  }
}

void DateFormat::writeLocalPattern(std::string& out, Part part, const Moment& moment) {
  const Moment inner{moment.civil, moment.day, moment.locale, true};
  const bool general = part == Part::General;
  const bool showsDate = general && (moment.day != 0);
  const bool showsTime = general && (moment.day == 0 || !moment.isMidnight());
  if (showsDate || part == Part::ShortDate) DateFormat(moment.locale.shortDatePattern).write(out, inner);
  if (part == Part::LongDate) DateFormat(moment.locale.longDatePattern).write(out, inner);
  if (showsDate && showsTime) out += ' ';
  if (showsTime || part == Part::LongTime) DateFormat(moment.locale.longTimePattern).write(out, inner);
}

std::string generalDateText(Date date, const Locale& locale) { return DateFormat("c").apply(date, locale); }

}  // namespace qrn
