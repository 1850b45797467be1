// Into Date; days are counted from 1899-12-30.
#include <limits>

#include "runtime/date_text.h"
#include "runtime/outcome.h"

namespace qrn::test {
namespace {

constexpr int kThisYear = 2005;

std::string read(const std::string& text) {
  const std::optional<Date> date = readDateText(text, currentLocale(), kThisYear);
  if (!date) return "none";
  const CivilTime civil = splitDate(*date);
  const auto two = [](int number) { return (number < 10 ? "0" : "") + std::to_string(number); };
  return std::to_string(civil.year) + "-" + two(civil.month) + "-" + two(civil.day) + " " + two(civil.hour) +
         ":" + two(civil.minute) + ":" + two(civil.second);
}

struct DateRow {
  std::string text;
  std::string expected;
};

void expectDates(std::initializer_list<DateRow> rows) {
  for (const DateRow& row : rows) EXPECT_EQ(read(row.text), row.expected) << row.text;
}

TEST(DateTexts, NumbersAreReadInTheOrderOfTheLocale) {
  expectDates({
      {"1/2/2003", "2003-01-02 00:00:00"},
      {"01/02/2003", "2003-01-02 00:00:00"},
      {"1-2-2003", "2003-01-02 00:00:00"},
      {"1.2.2003", "2003-01-02 00:00:00"},
      {"1 2 2003", "2003-01-02 00:00:00"},
      {"13/2/2003", "2003-02-13 00:00:00"},
      {"2003/1/2", "2003-01-02 00:00:00"},
      {"2003-01-02", "2003-01-02 00:00:00"},
      {"2003-13-02", "2003-02-13 00:00:00"},
      {"1/2/03", "2003-01-02 00:00:00"},
      {"1/2/29", "2029-01-02 00:00:00"},
      {"1/2/30", "1930-01-02 00:00:00"},
      {"1/2/99", "1999-01-02 00:00:00"},
      {"1/2", "2005-01-02 00:00:00"},
      {"13/2", "2005-02-13 00:00:00"},
      {"3/2004", "2004-03-01 00:00:00"},
      {"2004/3", "2004-03-01 00:00:00"},
      {" 1 / 2 / 2003 ", "2003-01-02 00:00:00"},
  });
}

TEST(DateTexts, MonthsMayBeNamed) {
  expectDates({
      {"5 Jan 2004", "2004-01-05 00:00:00"},
      {"5-Jan-04", "2004-01-05 00:00:00"},
      {"Jan 5, 2004", "2004-01-05 00:00:00"},
      {"January 5 2004", "2004-01-05 00:00:00"},
      {"JANUARY 5 2004", "2004-01-05 00:00:00"},
      {"Jan. 5, 2004", "2004-01-05 00:00:00"},
      {"2004 Jan 5", "2004-01-05 00:00:00"},
      {"5 Jan", "2005-01-05 00:00:00"},
      {"Jan 5", "2005-01-05 00:00:00"},
      {"Jan 2004", "2004-01-01 00:00:00"},
      {"Jan 45", "1945-01-01 00:00:00"},
      {"Monday, January 5, 2004", "2004-01-05 00:00:00"},
      {"Mon 5 Jan 2004", "2004-01-05 00:00:00"},
      {"29 Feb 2004", "2004-02-29 00:00:00"},
      {"5January2004", "2004-01-05 00:00:00"},
  });
}

TEST(DateTexts, TimesStandAloneOrBesideADate) {
  expectDates({
      {"10:20", "1899-12-30 10:20:00"},
      {"10:20:30", "1899-12-30 10:20:30"},
      {"1:20 PM", "1899-12-30 13:20:00"},
      {"1:20PM", "1899-12-30 13:20:00"},
      {"1 pm", "1899-12-30 13:00:00"},
      {"1p", "1899-12-30 13:00:00"},
      {"12:00 AM", "1899-12-30 00:00:00"},
      {"12:00 PM", "1899-12-30 12:00:00"},
      {"13:30 PM", "1899-12-30 13:30:00"},
      {"1/2/2003 10:20", "2003-01-02 10:20:00"},
      {"10:20 1/2/2003", "2003-01-02 10:20:00"},
      {"1/2/2003, 10:20 AM", "2003-01-02 10:20:00"},
      {"5 Jan 2004 1:02:03 pm", "2004-01-05 13:02:03"},
      {"1/2/1850 18:00", "1850-01-02 18:00:00"},
  });
}

TEST(DateTexts, WhatTheCalendarDoesNotKnowIsNoDate) {
  expectDates({
      {"", "none"},
      {"2/30/2003", "none"},
      {"2/29/1900", "none"},
      {"2/29/2000", "2000-02-29 00:00:00"},
      {"29 Feb 2003", "none"},
      {"0/1/2003", "none"},
      {"13/13/2003", "none"},
      {"1/2/99999", "none"},
      {"1/2/0099", "none"},
      {"24:00", "none"},
      {"10:60", "none"},
      {"10:20:60", "none"},
      {"13:00 AM", "none"},
      {"10:", "none"},
      {"10:20:", "none"},
      {"abc", "none"},
      {"Jan", "none"},
      {"Monday", "none"},
      {"Mon 10:20", "none"},
      {"Jan Feb 2004", "none"},
      {"1//2/2003", "none"},
      {"/1/2/2003", "none"},
      {"1/2/2003/", "none"},
      {"1/2/3/4", "none"},
      {"5", "none"},
      {"1.5", "none"},
      {"1,5", "none"},
      {"1,2,2003", "none"},
      {"-5", "none"},
      {"5 6", "none"},
      {"10:20 11:30", "none"},
      {"Jan 5 2004 x", "none"},
      {std::string(100000, '1'), "none"},
      {std::string(100000, '/'), "none"},
      {"\xff\xfe 5 2004", "none"},
  });
}

TEST(DateTexts, AGermanReadsTheDayFirst) {
  const LocaleScope german(deDE());
  expectDates({
      {"1.2.2003", "2003-02-01 00:00:00"},
      {"01.02.03", "2003-02-01 00:00:00"},
      {"1.2.", "2005-02-01 00:00:00"},
      {"1.2", "2005-02-01 00:00:00"},
      {"1/2/2003", "2003-02-01 00:00:00"},
      {"2.13.2003", "2003-02-13 00:00:00"},
      {"2003-02-01", "2003-02-01 00:00:00"},
      {"5. Mai 2004", "2004-05-05 00:00:00"},
      {"5. MÄRZ 2004", "2004-03-05 00:00:00"},
      {"5 Okt 04", "2004-10-05 00:00:00"},
      {"Montag, 5. Januar 2004", "2004-01-05 00:00:00"},
      {"5 March 2004", "2004-03-05 00:00:00"},
      {"1.2.2003 15:04", "2003-02-01 15:04:00"},
      {"1,5", "none"},
  });
}

TEST(CDateOf, NumbersAreTheSerialAndKeepToTheCalendar) {
  expectRows(CDate, {
                        {Empty{}, "0"},
                        {Null{}, "error 94"},
                        {true, "-1"},
                        {36526, "36526"},
                        {36526.25, "36526.25"},
                        {-1.25, "-1.25"},
                        {2958465.75, "2958465.75"},
                        {2958466.0, "error 6"},
                        {-657434.5, "-657434.5"},
                        {-657435.0, "error 6"},
                        {1e300, "error 6"},
                        {std::numeric_limits<double>::infinity(), "error 6"},
                        {std::numeric_limits<double>::quiet_NaN(), "error 6"},
                        {Currency{365265000}, "36526.5"},
                        {CDec("1.5"), "1.5"},
                        {Date{12.5}, "12.5"},
                        {ErrorValue{1}, "error 13"},
                    });
}

TEST(CDateOf, TextsAreDatesFirstAndNumbersOtherwise) {
  expectRows(CDate, {
                        {"12/30/1899", "0"},
                        {"12/31/1899", "1"},
                        {"12/29/1899 6:00", "-1.25"},
                        {"1/1/1900", "2"},
                        {"3/1/1900", "61"},
                        {"2/28/1900", "60"},
                        {"2/29/1900", "error 13"},
                        {"2/29/2000", "36585"},
                        {"1/1/0100", "-657434"},
                        {"12/31/9999", "2958465"},
                        {"12:00", "0.5"},
                        {"1/1/2000 6:00 PM", "36526.75"},
                        {"36526", "36526"},
                        {"1.5", "1.5"},
                        {"-5", "-5"},
                        {"1e300", "error 6"},
                        {"9999999", "error 6"},
                        {"", "error 13"},
                        {"abc", "error 13"},
                        {"13/13/2000", "error 13"},
                    });
}

TEST(CivilTimes, CountForwardWithinNegativeDays) {
  EXPECT_EQ(splitDate({-1.25}), (CivilTime{1899, 12, 29, 6, 0, 0}));
  EXPECT_EQ(joinDate({1899, 12, 29, 6, 0, 0}).serial, -1.25);
  EXPECT_EQ(splitDate({-0.25}), (CivilTime{1899, 12, 30, 6, 0, 0}));
}

TEST(CivilTimes, RoundToTheSecondEvenAcrossMidnight) {
  EXPECT_EQ(splitDate({36525 + 86399.4 / 86400}), (CivilTime{1999, 12, 31, 23, 59, 59}));
  EXPECT_EQ(splitDate({36525 + 86399.6 / 86400}), (CivilTime{2000, 1, 1, 0, 0, 0}));
  EXPECT_EQ(splitDate({-1 - 86399.6 / 86400}), (CivilTime{1899, 12, 30, 0, 0, 0}));
}

TEST(CivilTimes, EveryDayOfTheCalendarComesBack) {
  for (int day = kFirstDay; day <= kLastDay; day += 97) {
    const CivilTime civil = splitDate({static_cast<double>(day)});
    EXPECT_EQ(dayNumber(civil.year, civil.month, civil.day), day);
  }
  EXPECT_EQ(weekdayOf(0), 6);
  EXPECT_EQ(weekdayOf(-1), 5);
  EXPECT_EQ(weekdayOf(36526), 6);  // 2000-01-01
}

TEST(CivilTimes, RefuseDaysAndTimesThatDoNotExist) {
  for (const CivilTime& civil :
       {CivilTime{1900, 2, 29}, CivilTime{99, 1, 1}, CivilTime{10000, 1, 1}, CivilTime{2000, 13, 1},
        CivilTime{2000, 1, 32}, CivilTime{2000, 1, 1, 24}, CivilTime{2000, 1, 1, 0, 60},
        CivilTime{2000, 1, 1, 0, 0, 60}, CivilTime{2000, 1, 1, -1}}) {
    EXPECT_EQ(outcome([&] { return joinDate(civil); }), "error 5");
  }
}

}  // namespace
}  // namespace qrn::test
