#include "runtime/date_format.h"
#include "runtime/format_rows.h"

namespace qrn::test {
namespace {

const Date kMorning = joinDate({2004, 1, 5, 9, 8, 7});     // a Monday
const Date kEvening = joinDate({2004, 2, 29, 21, 45, 0});  // a leap day, a Sunday
const Date kEarly = joinDate({1850, 7, 14, 6, 0, 0});      // before the count of days begins

TEST(FormatOfDates, WritesDayMonthAndYear) {
  expectFormats({
      {kMorning, "d", "5"},
      {kMorning, "dd", "05"},
      {kMorning, "ddd", "Mon"},
      {kMorning, "dddd", "Monday"},
      {kMorning, "ddddd", "1/5/2004"},
      {kMorning, "dddddd", "Monday, January 5, 2004"},
      {kMorning, "m", "1"},
      {kMorning, "mm", "01"},
      {kMorning, "mmm", "Jan"},
      {kMorning, "mmmm", "January"},
      {kMorning, "yy", "04"},
      {kMorning, "yyyy", "2004"},
      {kMorning, "y", "5"},
      {kEvening, "y", "60"},
      {kMorning, "q", "1"},
      {kEarly, "q", "3"},
      {kMorning, "dd.mm.yyyy", "05.01.2004"},
      {kMorning, "d/m/yy", "5/1/04"},
      {kMorning, "DD-MMM-YYYY", "05-Jan-2004"},
      {kEvening, "dddd d mmmm yyyy", "Sunday 29 February 2004"},
      {kEarly, "yyyy/mm/dd", "1850/07/14"},
      {kEarly, "dddd", "Sunday"},
      {Date{-657434}, "yyyy yy", "0100 00"},
      {Date{0}, "dd/mm/yyyy", "30/12/1899"},
      {Date{2}, "d mmm yyyy", "1 Jan 1900"},
      {Date{60}, "m/d", "2/28"},
      {Date{61}, "m/d", "3/1"},
  });
}

TEST(FormatOfDates, WritesTheTime) {
  expectFormats({
      {kMorning, "h:n:s", "9:8:7"},
      {kMorning, "hh:nn:ss", "09:08:07"},
      {kEvening, "h:nn", "21:45"},
      {kMorning, "h:m", "9:8"},
      {kMorning, "hh:mm:ss", "09:08:07"},
      {kMorning, "m h:mm m", "1 9:08 1"},
      {kMorning, "hh mm", "09 08"},
      {kMorning, "h\\xmm", "9x08"},
      {kMorning, "nn mm", "08 01"},
      {kEvening, "h:nn AM/PM", "9:45 PM"},
      {kEvening, "h:nn am/pm", "9:45 pm"},
      {kEvening, "h:nn A/P", "9:45 P"},
      {kEvening, "h:nna/p", "9:45p"},
      {kEvening, "h:nn AMPM", "9:45 PM"},
      {kMorning, "AM/PM hh", "AM 09"},
      {Date{0.0}, "h AM/PM", "12 AM"},
      {Date{0.5}, "hh AM/PM", "12 PM"},
      {kEvening, "ttttt", "9:45:00 PM"},
      {kEarly, "hh:nn", "06:00"},
      {Date{-1.25}, "dd h", "29 6"},
      {kMorning, "s", "7"},
      {Date{0.999999}, "dd hh:nn:ss", "31 00:00:00"},
  });
}

TEST(FormatOfDates, CountsWeeksFromTheFirstOfJanuary) {
  expectFormats({
      {kMorning, "w", "2"},  // Sunday is 1
      {kEvening, "w", "1"},
      {kMorning, "ww", "2"},  // 2004-01-01 was a Thursday, so the second week began on the 4th
      {joinDate({2004, 1, 3}), "ww", "1"},
      {joinDate({2004, 1, 4}), "ww", "2"},
      {joinDate({2004, 12, 31}), "ww", "53"},
      {joinDate({2000, 12, 31}), "ww", "54"},
      {joinDate({2000, 1, 1}), "w ww", "7 1"},
  });
  const LocaleScope german(deDE());  // Monday is 1
  expectFormats({{kMorning, "w", "1"}, {kEvening, "w", "7"}, {joinDate({2004, 1, 4}), "ww", "1"}});
}

TEST(FormatOfDates, KnowsTheNamedFormats) {
  expectFormats({
      {kMorning, "General Date", "1/5/2004 9:08:07 AM"},
      {kMorning, "c", "1/5/2004 9:08:07 AM"},
      {Date{36526}, "General Date", "1/1/2000"},
      {Date{0.25}, "General Date", "6:00:00 AM"},
      {kMorning, "Long Date", "Monday, January 5, 2004"},
      {kMorning, "Medium Date", "05-Jan-04"},
      {kMorning, "Short Date", "1/5/2004"},
      {kEvening, "Long Time", "9:45:00 PM"},
      {kEvening, "Medium Time", "09:45 PM"},
      {kEvening, "Short Time", "21:45"},
      {kMorning, "short DATE", "1/5/2004"},
  });
}

TEST(FormatOfDates, TakesNumbersAsSerialsAndTextsAsDates) {
  expectFormats({
      {36526, "yyyy-mm-dd", "2000-01-01"},
      {36526.75, "hh:nn", "18:00"},
      {CDec("36526.5"), "hh", "12"},
      {"1/5/2004", "yyyy-mm-dd", "2004-01-05"},
      {"36526", "yyyy", "2000"},
      {"no date", "yyyy", "no date"},
      {true, "dd", "29"},
      {Null{}, "yyyy", ""},
      {Empty{}, "yyyy", ""},
      {3e6, "yyyy", "error 6"},
      {-657435.0, "yyyy", "error 6"},
      {"9999999", "yyyy", "error 6"},
      {ErrorValue{1}, "yyyy", "error 13"},
  });
}

TEST(FormatOfDates, LiteralsStandWhereTheyAre) {
  expectFormats({
      {kMorning, "\"day\" d", "day 5"},
      {kMorning, "\\d d", "d 5"},
      {kMorning, "d, mmm", "5, Jan"},
      {kMorning, "d;m", "5;1"},
      {kMorning, "d #", "5 #"},
      {kMorning, "yyyy\"open", "2004open"},
      {kMorning, "d t", "5 t"},
      {kMorning, "mmmmm", "January1"},
      {kMorning, "yyyyy", "20045"},
      {kMorning, "d a", "5 a"},
      {kMorning, "d°", "5°"},
  });
}

TEST(FormatOfDates, TheLocaleGivesNamesOrderAndSeparators) {
  const LocaleScope german(deDE());
  const Date march = joinDate({2004, 3, 1, 21, 45, 0});
  expectFormats({
      {march, "d. mmmm yyyy", "1. März 2004"},
      {march, "dddd, ddd", "Montag, Mo"},
      {march, "dd/mm/yy", "01.03.04"},
      {march, "Short Date", "01.03.2004"},
      {march, "Long Date", "Montag, 1. März 2004"},
      {march, "Long Time", "21:45:00"},
      {march, "c", "01.03.2004 21:45:00"},
      {march, "mmm", "Mrz"},
  });
}

TEST(FormatOfDates, HostilePatternsCostNoMoreThanTheirLength) {
  constexpr std::size_t kLength = 100000;
  EXPECT_EQ(Format(kMorning, std::string(kLength, 'd')).size(),
            kLength / 6 * 23 + 6);  // the rest of four is a name
  EXPECT_EQ(Format(kMorning, std::string(kLength, 's')).size(), kLength);
  EXPECT_EQ(Format(kMorning, "h" + std::string(kLength, '/')).size(), kLength + 1);
  Locale odd = enUS();
  odd.shortDatePattern = "ddddd c dddddd";  // a pattern that asks for itself
  const LocaleScope scope(odd);
  EXPECT_EQ(Format(kMorning, "ddddd"), "  ");
}

}  // namespace
}  // namespace qrn::test
