// Format, row by row: whole patterns as panels use them, at the edges of numbers, calendar and clock.
#include "runtime/format_rows.h"

namespace qrn::test {
namespace {

TEST(FormatExamples, OneNumberInEachSign) {
  expectFormats({
      {5, "0", "5"},
      {-5, "0", "-5"},
      {0.5, "0", "1"},
      {5, "0.00", "5.00"},
      {-5, "0.00", "-5.00"},
      {0.5, "0.00", "0.50"},
      {5, "#,##0", "5"},
      {-5, "#,##0", "-5"},
      {0.5, "#,##0", "1"},
      {5, "$#,##0;($#,##0)", "$5"},
      {-5, "$#,##0;($#,##0)", "($5)"},
      {0.5, "$#,##0;($#,##0)", "$1"},
      {5, "$#,##0.00;($#,##0.00)", "$5.00"},
      {-5, "$#,##0.00;($#,##0.00)", "($5.00)"},
      {0.5, "$#,##0.00;($#,##0.00)", "$0.50"},
      {5, "0%", "500%"},
      {-5, "0%", "-500%"},
      {0.5, "0%", "50%"},
      {5, "0.00%", "500.00%"},
      {-5, "0.00%", "-500.00%"},
      {0.5, "0.00%", "50.00%"},
      {5, "0.00E+00", "5.00E+00"},
      {-5, "0.00E+00", "-5.00E+00"},
      {0.5, "0.00E+00", "5.00E-01"},
      {5, "0.00E-00", "5.00E00"},
      {-5, "0.00E-00", "-5.00E00"},
      {0.5, "0.00E-00", "5.00E-01"},
      {0, "$#,##0;;\\Z\\e\\r\\o", "Zero"},
      {-7, "$#,##0;;\\Z\\e\\r\\o", "-$7"},
      {5459.4, "##,##0.00", "5,459.40"},
      {334.9, "###0.00", "334.90"},
      {23, "", "23"},
  });
}

TEST(FormatExamples, FourSectionsForEveryKindOfNumber) {
  constexpr const char* kSections = "+0.0;-0.00;\"none\";\"?\"";
  expectFormats({
      {1.25, kSections, "+1.3"},
      {-1.255, kSections, "-1.26"},
      {0.0, kSections, "none"},
      {-0.0, kSections, "none"},
      {Null{}, kSections, "?"},
      {Empty{}, kSections, "?"},
      {false, kSections, "none"},
      {true, kSections, "-1.00"},
      {std::int16_t{-3}, kSections, "-3.00"},
      {Currency{-12550}, kSections, "-1.26"},
      {Currency{0}, kSections, "none"},
      {CDec("-0.000"), kSections, "none"},
      {CDec("-1.2550"), kSections, "-1.26"},
      {"-2", kSections, "-2.00"},
      {"(2)", kSections, "-2.00"},
      {"nothing", kSections, "nothing"},
      // The section is chosen by the number and not by what is left of it.
      {0.001, kSections, "+0.0"},
      {-0.001, kSections, "-0.00"},
  });
}

TEST(FormatExamples, NumbersAtTheirLimits) {
  const std::string zeros(12, '0');
  expectFormats({
      {CDec("79228162514264337593543950335"), "0", "79228162514264337593543950335"},
      {CDec("-79228162514264337593543950335"), "0.0", "-79228162514264337593543950335.0"},
      {CDec("7.9228162514264337593543950335"), "0." + std::string(28, '0'), "7.9228162514264337593543950335"},
      {CDec("0.0000000000000000000000000001"), "0.0E+0", "1.0E-28"},
      {CDec("0.5000000000000000000000000000"), "0", "1"},
      {CDec("0.4999999999999999999999999999"), "0", "0"},
      {CDec("9999999999999999999999999999.5"), "#,##0", "10,000,000,000,000,000,000,000,000,000"},
      {Currency{std::numeric_limits<std::int64_t>::max()}, "#,##0.0000", "922,337,203,685,477.5807"},
      {Currency{std::numeric_limits<std::int64_t>::min()}, "#,##0.0000;(0.00)", "(922337203685477.58)"},
      {1e15, "0", "1000000000000000"},
      {999999999999999.0, "0", "999999999999999"},
      {999999999999999.5, "0", "1000000000000000"},
      {1e308, "0.0E+0", "1.0E+308"},
      {5e-324, "0.0E+0", "4.9E-324"},
      {-5e-324, "0.00", "-0.00"},
      {123456789.0, "0,,.00", "123.46"},
      {999500.0, "0,", "1000"},
      {999499.0, "0,", "999"},
      {500.0, "0,", "1"},
      {499.0, "0,", "0"},
      {1234567890.0, "#,##0,,", "1,235"},
      {0.00015, "0.00%", "0.02%"},
      {1e13, "0%", "1000000000000000%"},
      {1e-15, "0.000000000000000", "0.000000000000001"},
      {0.1F, "0.000", "0.100"},
      {2147483647, "#,##0", "2,147,483,647"},
  });
}

TEST(FormatExamples, DatesAtTheEdgesOfYearsAndCalendar) {
  constexpr const char* kDay = "ddd d mmm yyyy";
  expectFormats({
      {joinDate({100, 1, 1}), kDay, "Fri 1 Jan 0100"},
      {joinDate({1582, 10, 15}), kDay, "Fri 15 Oct 1582"},
      {joinDate({1600, 2, 29}), kDay, "Tue 29 Feb 1600"},
      {joinDate({1752, 9, 14}), kDay, "Thu 14 Sep 1752"},
      {joinDate({1899, 12, 29}), kDay, "Fri 29 Dec 1899"},
      {joinDate({1899, 12, 30}), kDay, "Sat 30 Dec 1899"},
      {joinDate({1899, 12, 31}), kDay, "Sun 31 Dec 1899"},
      {joinDate({1900, 1, 1}), kDay, "Mon 1 Jan 1900"},
      {joinDate({1900, 2, 28}), kDay, "Wed 28 Feb 1900"},
      {joinDate({1900, 3, 1}), kDay, "Thu 1 Mar 1900"},
      {joinDate({1993, 1, 27}), "dddd, mmm d yyyy", "Wednesday, Jan 27 1993"},
      {joinDate({2000, 2, 29}), kDay, "Tue 29 Feb 2000"},
      {joinDate({2100, 2, 28}), kDay, "Sun 28 Feb 2100"},
      {joinDate({2400, 2, 29}), kDay, "Tue 29 Feb 2400"},
      {joinDate({9999, 12, 31}), kDay, "Fri 31 Dec 9999"},
      {joinDate({2004, 2, 29}), "y", "60"},
      {joinDate({2004, 12, 31}), "y", "366"},
      {joinDate({2003, 12, 31}), "y", "365"},
      {joinDate({1900, 12, 31}), "y", "365"},
      {joinDate({2004, 3, 31}), "q", "1"},
      {joinDate({2004, 4, 1}), "q", "2"},
      {joinDate({2004, 9, 30}), "q", "3"},
      {joinDate({2004, 10, 1}), "q", "4"},
      {joinDate({1905, 1, 1}), "yy", "05"},
      {joinDate({2000, 1, 1}), "yy", "00"},
      {joinDate({1850, 1, 1, 12, 0, 0}), "General Date", "1/1/1850 12:00:00 PM"},
      {"2/29/1900", kDay, "2/29/1900"},
      {"2/29/2000", kDay, "Tue 29 Feb 2000"},
      {0, kDay, "Sat 30 Dec 1899"},
      {-657434, kDay, "Fri 1 Jan 0100"},
      {2958465, kDay, "Fri 31 Dec 9999"},
      {2958465.9999999, kDay, "error 6"},
  });
}

TEST(FormatExamples, TheClockFromMidnightToMidnight) {
  const auto at = [](int hour, int minute, int second) {
    return Variant(joinDate({2004, 7, 5, hour, minute, second}));
  };
  expectFormats({
      {at(0, 0, 0), "h:nn AM/PM", "12:00 AM"},
      {at(0, 59, 59), "h:nn:ss AM/PM", "12:59:59 AM"},
      {at(1, 0, 0), "hh:nn am/pm", "01:00 am"},
      {at(11, 59, 59), "h:nn:ss A/P", "11:59:59 A"},
      {at(12, 0, 0), "h:nn A/P", "12:00 P"},
      {at(12, 30, 0), "hh a/p", "12 p"},
      {at(13, 5, 9), "h:n:s AMPM", "1:5:9 PM"},
      {at(23, 59, 59), "hh:nn:ss AMPM", "11:59:59 PM"},
      {at(17, 4, 23), "h:m:s", "17:4:23"},
      {at(17, 4, 23), "hh:mm:ss AMPM", "05:04:23 PM"},
      {at(17, 4, 23), "hhmm", "1704"},
      {at(17, 4, 23), "h:m, m", "17:4, 7"},
      {at(17, 4, 23), "mm/dd hh:mm", "07/05 17:04"},
      {at(17, 4, 23), "hh:ss mm", "17:23 07"},
      {at(17, 4, 23), "mmss", "0723"},
      {at(17, 4, 23), "h d m", "17 5 7"},
      {at(17, 4, 23), "H:N", "17:4"},
      {at(17, 4, 23), "hhh", "1717"},
      {at(17, 4, 23), "nnn", "044"},
      {at(17, 4, 23), "ssss", "2323"},
      {at(0, 0, 0), "ttttt", "12:00:00 AM"},
      {at(0, 0, 0), "c", "7/5/2004"},
      {Date{0.5}, "c", "12:00:00 PM"},
      {Date{0}, "c", "12:00:00 AM"},
      {Date{-0.5}, "hh:nn", "12:00"},
      {Date{-1.75}, "dd hh:nn", "29 18:00"},
  });
}

TEST(FormatExamples, TextsInTheirPlaces) {
  expectFormats({
      {"HELLO", "<", "hello"},
      {"This is it", ">", "THIS IS IT"},
      {"5551234", "@@@-@@@@", "555-1234"},
      {"1234", "@@@-@@@@", "   -1234"},
      {"1234", "!@@@-@@@@", "123-4   "},
      {"1234", "&&&-&&&&", "-1234"},
      {"12345678", "&&&-&&&&", "1234-5678"},
      {"", "@@-@@", "  -  "},
      {"", "&&-&&", "-"},
      {"x", "<\"Y\">", "YX"},
      {"ab", "\\@@@", "@ab"},
      {"ab", "\"&\"&&", "&ab"},
      {"äÖ", "<@@@@", "  äö"},
      {"ab", ";", "ab"},
      {"", "@;\"(empty)\"", "(empty)"},
      {" ", "@;\"(empty)\"", " "},
  });
}

TEST(FormatExamples, GermanNumbersAndDates) {
  const LocaleScope german(deDE());
  const Date leapDay = joinDate({2004, 2, 29, 21, 5, 9});
  expectFormats({
      {1234567.891, "#,##0.00", "1.234.567,89"},
      {-1234.5, "#,##0.0;(#,##0.0)", "(1.234,5)"},
      {0.256, "0.0%", "25,6%"},
      {12345.678, "0.00E+00", "1,23E+04"},
      {1234567.0, "0,", "1235"},
      {CDec("79228162514264337593543950335"), "#,##0", "79.228.162.514.264.337.593.543.950.335"},
      {"1.234,5", "0.00", "1234,50"},
      {"1,234.5", "0.00", "1,234.5"},
      {"7,25 €", "0.0", "7,3"},
      {"-7,25", "Currency", "-7,25 €"},
      {1234.5, "Standard", "1.234,50"},
      {0.5, "Percent", "50,00%"},
      {0.5, "General Number", "0,5"},
      {true, "True/False", "Wahr"},
      {0, "Yes/No", "Nein"},
      {leapDay, "Short Date", "29.02.2004"},
      {leapDay, "Medium Date", "29-Feb-04"},
      {leapDay, "Long Date", "Sonntag, 29. Februar 2004"},
      {leapDay, "General Date", "29.02.2004 21:05:09"},
      {leapDay, "Long Time", "21:05:09"},
      {leapDay, "h:nn AM/PM", "9:05 PM"},
      {leapDay, "h:nn A/P", "9:05 P"},
      {leapDay, "d/m/yyyy", "29.2.2004"},
      {leapDay, "w ww", "7 9"},
      {"29.02.2004", "yyyy-mm-dd", "2004-02-29"},
      {"29. Februar 2004", "yyyy-mm-dd", "2004-02-29"},
      {"29.02.1900", "yyyy", "29.02.1900"},
      {Date{0.5}, "c", "12:00:00"},
  });
}

}  // namespace
}  // namespace qrn::test
