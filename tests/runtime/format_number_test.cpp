#include <cmath>
#include <limits>

#include "runtime/format_rows.h"

namespace qrn::test {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(Format, FillsThePlacesOfANumber) {
  expectFormats({
      {3.14159, "0.000", "3.142"},
      {3.0, "0.000", "3.000"},
      {-3.0, "0.000", "-3.000"},
      {0.0, "0.000", "0.000"},
      {12.0, "000", "012"},
      {1234.0, "000", "1234"},
      {12.0, "###", "12"},
      {0.0, "###", ""},
      {0.0, "#.#", "."},
      {5.0, "0.#", "5."},
      {5.25, "0.#", "5.3"},
      {5.25, "0.###", "5.25"},
      {5.25, "0.0##", "5.25"},
      {5.0, "0.0##", "5.0"},
      {0.25, "#.00", ".25"},
      {0.25, ".00", ".25"},
      {12.25, ".00", "12.25"},
      {5.0, "0#", "05"},
      {0.0, "0#", "00"},
      {5.0, "#0", "5"},
      {7, "0", "7"},
      {std::int16_t{-7}, "00", "-07"},
      {2.5F, "0.00", "2.50"},
      {true, "0", "-1"},
      {Date{36526.5}, "0.0", "36526.5"},
      {1e20, "0", "100000000000000000000"},
      {1e-20, "0.00", "0.00"},
      {1e-20, "#", ""},
      {1e-5, "0.00000", "0.00001"},
      {1.5e-7, "0.0000000000", "0.0000001500"},
  });
}

TEST(Format, RoundsHalfAwayAtTheLastDigit) {
  expectFormats({
      {0.5, "0", "1"},
      {1.5, "0", "2"},
      {2.5, "0", "3"},
      {-0.5, "0", "-1"},
      {-2.5, "0", "-3"},
      {0.49, "0", "0"},
      {2.675, "0.00", "2.68"},
      {1.005, "0.00", "1.01"},
      {0.075, "0.00", "0.08"},
      {1.115, "0.00", "1.12"},
      {8.885, "0.00", "8.89"},
      {9.995, "0.00", "10.00"},
      {99.95, "0.0", "100.0"},
      {999.5, "0", "1000"},
      {999999.5, "#,##0", "1,000,000"},
      {0.0005, "0.000", "0.001"},
      {0.00049999, "0.000", "0.000"},
      {Currency{25000}, "0", "3"},
      {Currency{-25000}, "0", "-3"},
      {CDec("0.125"), "0.00", "0.13"},
      {CDec("0.1249999999999999999999999999"), "0.00", "0.12"},
      {0.1 + 0.2, "0.00000000000000000", "0.30000000000000000"},
      {1.0 / 3, "0.00000000000000000000", "0.33333333333333300000"},
      {2.0 / 3, "0.000000000000000", "0.666666666666667"},
      {1234567890123456.0, "0", "1234567890123460"},
  });
}

TEST(Format, AnAmountThatRoundsToZeroKeepsItsSign) {
  expectFormats({
      {-0.001, "0.00", "-0.00"},
      {-0.4, "0", "-0"},
      {-0.0, "0.00", "0.00"},
      {-0.0, "0;neg;zero", "zero"},
      {-0.0, "", "0"},
      {CDec("-0.00"), "0.0", "0.0"},
      {Currency{-1}, "0.00", "-0.00"},
  });
}

TEST(Format, GroupsByThousandsAndScalesByCommas) {
  expectFormats({
      {1234567.0, "#,##0", "1,234,567"},
      {123.0, "#,##0", "123"},
      {0.0, "#,##0", "0"},
      {0.0, "#,###", ""},
      {-1234.5, "#,##0.0", "-1,234.5"},
      {1234567.0, "#,#", "1,234,567"},
      {5.0, "0,000", "0,005"},
      {5.0, "000,000", "000,005"},
      {1234567.0, "0,", "1235"},
      {1234567.0, "0,,", "1"},
      {1900000.0, "0,,", "2"},
      {1900000.0, "0,,.0", "1.9"},
      {1234567.0, "#,##0,", "1,235"},
      {1234567.0, "#,##0,.00", "1,234.57"},
      {1499.0, "0, K", "1 K"},
      {1500.0, "0,\"K\"", "2K"},
      {999999.0, "0,", "1000"},
      {1234.0, "0.00,", "1234.00"},
      {CDec("79228162514264337593543950335"), "#,##0", "79,228,162,514,264,337,593,543,950,335"},
      {1e21, "#,##0", "1,000,000,000,000,000,000,000"},
  });
}

TEST(Format, APercentSignMultipliesByAHundred) {
  expectFormats({
      {0.256, "0.0%", "25.6%"},
      {0.5, "%0", "%50"},
      {1.0, "0%%", "10000%%"},
      {0.005, "0%", "1%"},
      {-0.25, "0%", "-25%"},
      {0.256, "0.0\\%", "0.3%"},
      {0.256, "0.0\"%\"", "0.3%"},
      {12.0, "0,%", "1%"},
  });
}

TEST(Format, WritesAnExponent) {
  expectFormats({
      {12345.678, "0.00E+00", "1.23E+04"},
      {12345.678, "0.00E-00", "1.23E04"},
      {12345.678, "0.00e+0", "1.23e+4"},
      {0.000123, "0.00E+00", "1.23E-04"},
      {0.000123, "0.00e-0", "1.23e-4"},
      {-12345.678, "0.0E+0", "-1.2E+4"},
      {0.0, "0.00E+00", "0.00E+00"},
      {9.999, "0.00E+00", "1.00E+01"},
      {9.995, "0.00E+00", "1.00E+01"},
      {99950.0, "0.00E+00", "1.00E+05"},
      {1e300, "0.0E+00", "1.0E+300"},
      {1e-300, "0.0E+000", "1.0E-300"},
      {12345.0, "##0.0E+0", "123.5E+2"},
      {12345.0, "00.00E+0", "12.35E+3"},
      {5.0, "#.###E+0", "5.E+0"},
      {0.12, ".00E+0", ".12E+0"},
      {5.0, "0E+0", "5E+0"},
      {5.5, "0E+000", "6E+000"},
      {0.5, "0.0%E+0", "5.0%E+1"},
      {1.0, "0e", "1e"},
      {1.0, "0 e\\+", "1 e+"},
      {CDec("12345678901234567890123456789"), "0.000E+0", "1.235E+28"},
  });
}

TEST(Format, LiteralsStandWhereTheyAre) {
  expectFormats({
      {5.0, "$0.00", "$5.00"},
      {-5.0, "$0.00", "-$5.00"},
      {5.0, "(0)", "(5)"},
      {5.0, "+0", "+5"},
      {5.0, "0 Hz", "5 Hz"},
      {5.0, "0.0 mA", "5.0 mA"},
      {5.0, "0 \"days\"", "5 days"},
      {5.0, "\\d0", "d5"},
      {5.0, "\"0.00\"0", "0.005"},
      {5.0, "0\\", "5\\"},
      {5.0, "0\"open", "5open"},
      {5.0, "\\#0", "#5"},
      {5.0, "0°C", "5°C"},
      {5.0, "0 \u03a9", "5 \u03a9"},
      {5551234567.0, "(000) 000-0000", "(555) 123-4567"},
      {12345.0, "0-0", "1234-5"},
      {5.0, "\"kg\"", "kg"},
      {-5.0, "\"kg\"", "-kg"},
      {1.25, "0.0.0", "1.2.5"},
      {5.0, "0\"\"", "5"},
      {5.0, "0:0/0", "0:0/5"},
  });
}

TEST(Format, SectionsAreForSignZeroAndNothing) {
  expectFormats({
      {5.0, "0;(0)", "5"},
      {-5.0, "0;(0)", "(5)"},
      {0.0, "0;(0)", "0"},
      {0.0, "0;(0);zero", "zero"},
      {0.0, "0;(0);\"zero\"", "zero"},
      {-5.0, "0;;\"zero\"", "-5"},
      {0.0, "0;(0);", "0"},
      {Null{}, "0", ""},
      {Null{}, "0;0;0", ""},
      {Null{}, "0;0;0;\"none\"", "none"},
      {Empty{}, "0;0;0;\"none\"", "none"},
      {Empty{}, "0.00", ""},
      {Null{}, "", ""},
      {Empty{}, "", ""},
      {-5.0, "0;0;0;0;0", "5"},
      {-5.0, "0\\;", "-5;"},
      {-5.0, "0\";\"", "-5;"},
      {-0.25, "0.0;0.0-", "0.3-"},
      {5.0, ";0", ""},
      {-5.0, ";0", "5"},
      {1234.5, "#,##0.00;[#,##0.00]", "1,234.50"},
  });
}

TEST(Format, KnowsTheNamedNumberFormats) {
  expectFormats({
      {1234.5, "General Number", "1234.5"},
      {1e20, "general number", "1E+20"},
      {true, "General Number", "-1"},
      {"12.50", "General Number", "12.5"},
      {"abc", "General Number", "abc"},
      {Date{1.5}, "General Number", "1.5"},
      {1234.5, "Currency", "$1,234.50"},
      {-1234.5, "Currency", "($1,234.50)"},
      {1234.567, "Fixed", "1234.57"},
      {0.5, "Fixed", "0.50"},
      {1234.5, "Standard", "1,234.50"},
      {0.256, "Percent", "25.60%"},
      {12345.0, "Scientific", "1.23E+04"},
      {0.0, "Yes/No", "No"},
      {0.1, "Yes/No", "Yes"},
      {true, "True/False", "True"},
      {0, "True/False", "False"},
      {1, "On/Off", "On"},
      {false, "On/Off", "Off"},
      {"0", "Yes/No", "No"},
      {"abc", "Yes/No", "abc"},
      {Null{}, "Yes/No", ""},
      {Null{}, "Currency", ""},
      {5.0, "FIXED", "5.00"},
  });
}

TEST(Format, TextsAreFormattedIfTheyReadAsNumbers) {
  expectFormats({
      {"3.5", "0.00", "3.50"},
      {"1,234.5", "0.00", "1234.50"},
      {"(2)", "0.0", "-2.0"},
      {"&HFF", "0", "255"},
      {"abc", "0.00", "abc"},
      {"", "0.00", ""},
      {"1e400", "0", "error 6"},
      {"3.5", "", "3.5"},
      {"1/2/2003", "0", "1/2/2003"},
  });
}

TEST(Format, TheEmptyPatternIsPlainText) {
  expectFormats({
      {1.5, "", "1.5"},
      {1e15, "", "1E+15"},
      {true, "", "True"},
      {CDec("1.50"), "", "1.5"},
      {Currency{12500}, "", "1.25"},
      {7, "", "7"},
      {"x", "", "x"},
      {ErrorValue{5}, "0", "error 13"},
      {ObjectPtr(), "", "error 13"},
  });
}

TEST(Format, ADoubleThatIsNotFiniteShowsItsMarkerInEveryPattern) {
  for (const char* pattern :
       {"", "0.00", "0.00E+00", "#,##0", "0%", "General Number", "Fixed", "dd.mm.yyyy"}) {
    expectFormats({{kInfinity, pattern, "1.#INF"}, {-kInfinity, pattern, "-1.#INF"}});
    EXPECT_EQ(Format(std::numeric_limits<double>::quiet_NaN(), pattern), "1.#QNAN");
  }
}

TEST(Format, TheLocaleGivesPointGroupsAndWords) {
  const LocaleScope german(deDE());
  expectFormats({
      {1234.5, "#,##0.00", "1.234,50"},
      {0.0, "#.#", ","},
      {1234.5, "Currency", "1.234,50 €"},
      {-1234.5, "Currency", "-1.234,50 €"},
      {"3,5", "0.00", "3,50"},
      {12345.0, "0.0E+0", "1,2E+4"},
      {1, "Yes/No", "Ja"},
      {0, "True/False", "Falsch"},
      {1, "On/Off", "Ein"},
      {kInfinity, "0.0", "1,#INF"},
  });
}

TEST(Format, ACompiledPatternFollowsTheLocaleOfTheMoment) {
  const CompiledFormat fixed("#,##0.0");
  const CompiledFormat currency("Currency");
  EXPECT_EQ(fixed.apply(1234.5), "1,234.5");
  const LocaleScope german(deDE());
  EXPECT_EQ(fixed.apply(1234.5), "1.234,5");
  EXPECT_EQ(currency.apply(1.0), "1,00 €");
}

TEST(Format, HostilePatternsCostNoMoreThanTheirLength) {
  constexpr std::size_t kLength = 100000;
  EXPECT_EQ(Format(1.0, std::string(kLength, '0')).size(), kLength);
  EXPECT_EQ(Format(1.0, std::string(kLength, '#')), "1");
  EXPECT_EQ(Format(1.0, std::string(kLength, '%')), std::string(kLength, '%'));
  EXPECT_EQ(Format(1.0, "0" + std::string(kLength, '%')).size(), 1 + 2 * kLength + kLength);
  EXPECT_EQ(Format(1.0, "0" + std::string(kLength, ',')), "0");
  EXPECT_EQ(Format(1.0, std::string(kLength, ';')), "");
  EXPECT_EQ(Format(1.0, std::string(kLength, '"')), "");
  EXPECT_EQ(Format(1.0, std::string(kLength, '.')), "1" + std::string(kLength, '.'));
  EXPECT_EQ(Format(1.0, std::string(kLength, '\\')).size(), kLength / 2);
  EXPECT_EQ(Format(1.0, "0E+" + std::string(kLength, '0')).size(), kLength + 3);
  EXPECT_EQ(Format(1.0, "0" + std::string(kLength, '\xff')).size(), kLength + 1);
}

}  // namespace
}  // namespace qrn::test
