// Into Single and Double.
#include <cmath>
#include <limits>

#include "runtime/outcome.h"

namespace qrn::test {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(CDblOf, APlainTextIsTheNearestDouble) {
  expectRows(CDbl, {
                       {"0", "0"},
                       {"-0", "-0"},
                       {"1", "1"},
                       {"3.14159", "3.14159"},
                       {"-2.5", "-2.5"},
                       {".5", "0.5"},
                       {"-.5", "-0.5"},
                       {"5.", "5"},
                       {"0.1", "0.1"},
                       {"1e3", "1000"},
                       {"1E+3", "1000"},
                       {"25e-1", "2.5"},
                       {"1d3", "1000"},
                       {"1.5D-2", "0.015"},
                       {"00012", "12"},
                       {"9007199254740993", "9007199254740992"},
                       {"123456789012345678901234567890", "1.2345678901234568e+29"},
                       {"4.9406564584124654e-324", "5e-324"},
                       {"1e-400", "0"},
                       {"-1e-400", "-0"},
                       {"1e-99999999999999999999", "0"},
                       {"1.7976931348623157e308", "1.7976931348623157e+308"},
                   });
}

TEST(CDblOf, ATextMayCarrySignsGroupsAndCurrency) {
  expectRows(CDbl, {
                       {"  7  ", "7"},
                       {"\t7\r\n", "7"},
                       {"+7", "7"},
                       {"7-", "-7"},
                       {"7+", "7"},
                       {"(7.5)", "-7.5"},
                       {"( 7.5 )", "-7.5"},
                       {"1,234.5", "1234.5"},
                       {"1,2,3", "123"},
                       {"12,", "12"},
                       {"$7.25", "7.25"},
                       {"7.25$", "7.25"},
                       {"-$7", "-7"},
                       {"$ -7", "-7"},
                       {"($7)", "-7"},
                       {"$(7)", "-7"},
                       {"1,000e2", "1e+05"},
                       {"&HFF", "255"},
                       {"&hff", "255"},
                       {"&O10", "8"},
                       {"&HFFFFFFFF", "4294967295"},
                       {"&H7FFFFFFFFFFFFFFF", "9223372036854775808"},
                       {"&HFFFFFFFFFFFFFFFFF", "error 6"},
                       {"7\xc2\xa0$", "7"},
                   });
}

TEST(CDblOf, ATextThatIsNoNumberDoesNotMatch) {
  expectRows(
      CDbl,
      {
          {"", "error 13"},       {" ", "error 13"},        {"abc", "error 13"},   {"1x", "error 13"},
          {"1.2.3", "error 13"},  {",5", "error 13"},       {"1.5,0", "error 13"}, {"--7", "error 13"},
          {"-7-", "error 13"},    {"(-7)", "error 13"},     {"(7", "error 13"},    {"$$7", "error 13"},
          {"1e+", "error 13"},    {"1e1.5", "error 13"},    {"inf", "error 13"},   {"nan", "error 13"},
          {"1.#INF", "error 13"}, {"0x10", "error 13"},     {"-&H10", "error 13"}, {"1/2/2003", "error 13"},
          {"7 €", "error 13"},    {"\xff\xfe", "error 13"},
      });
}

TEST(CDblOf, OtherTypesKeepTheirAmount) {
  expectRows(CDbl, {
                       {Empty{}, "0"},
                       {true, "-1"},
                       {std::int16_t{-5}, "-5"},
                       {100001, "100001"},
                       {0.5F, "0.5"},
                       {0.1F, "0.10000000149011612"},
                       {2.25, "2.25"},
                       {Currency{12345}, "1.2345"},
                       {CDec("0.1"), "0.1"},
                       {Date{36526.5}, "36526.5"},
                       {CDec("79228162514264337593543950335"), "7.922816251426434e+28"},
                       {kInfinity, "inf"},
                       {Null{}, "error 94"},
                       {ErrorValue{3}, "error 13"},
                       {"1e309", "error 6"},
                       {"-1e309", "error 6"},
                       {"1e99999999999999999999", "error 6"},
                   });
}

TEST(CDblOf, TheLocaleDecidesAboutPointAndComma) {
  const LocaleScope german(deDE());
  expectRows(CDbl, {
                       {"3,5", "3.5"},
                       {"3.5", "35"},
                       {"1.234,5", "1234.5"},
                       {"1,234.5", "error 13"},
                       {"7,25 €", "7.25"},
                       {"-7,25 €", "-7.25"},
                       {"€ 7", "7"},
                       {"$7", "error 13"},
                       {"1,5e2", "150"},
                       {"12", "12"},
                   });
}

TEST(CDblOf, AVeryLongTextIsReadInOneGo) {
  const std::string digits(100000, '7');
  EXPECT_EQ(outcome([&] { return CDbl(digits); }), "error 6");
  EXPECT_EQ(outcome([&] { return CDbl("0." + digits); }), "0.7777777777777778");
  EXPECT_EQ(outcome([&] { return CDbl(std::string(100000, '0') + "1"); }), "1");
  EXPECT_EQ(outcome([&] { return CDbl(std::string(100000, '(')); }), "error 13");
  EXPECT_EQ(outcome([&] { return CDbl("1" + std::string(100000, ',')); }), "1");
  EXPECT_EQ(outcome([&] { return CDbl("&H" + std::string(100000, 'F')); }), "error 6");
}

TEST(CSngOf, TheNearestSingleIsTaken) {
  expectRows(CSng, {
                       {Empty{}, "0"},
                       {Null{}, "error 94"},
                       {true, "-1"},
                       {false, "0"},
                       {std::int16_t{7}, "7"},
                       {16777217, "16777216"},
                       {0.1F, "0.1"},
                       {0.1, "0.1"},
                       {1.0 / 3, "0.33333334"},
                       {-2.5, "-2.5"},
                       {-0.0, "-0"},
                       {1e-46, "0"},
                       {1e-45, "1e-45"},
                       {3.4028234663852886e38, "3.4028235e+38"},
                       {3.5e38, "error 6"},
                       {-3.5e38, "error 6"},
                       {1e300, "error 6"},
                       {kInfinity, "error 6"},
                       {std::numeric_limits<float>::infinity(), "inf"},
                       {std::numeric_limits<double>::quiet_NaN(), "nan"},
                       {Currency{12500}, "1.25"},
                       {Currency{-1}, "-1e-04"},
                       {CDec("0.5"), "0.5"},
                       {CDec("79228162514264337593543950335"), "7.9228163e+28"},
                       {Date{36526.5}, "36526.5"},
                       {"3.14159", "3.14159"},
                       {"1,234.5", "1234.5"},
                       {"(2)", "-2"},
                       {"$3", "3"},
                       {"1e38", "1e+38"},
                       {"1e39", "error 6"},
                       {"-1e39", "error 6"},
                       {"1e400", "error 6"},
                       {"1e-60", "0"},
                       {"&HFF", "255"},
                       {"&O17", "15"},
                       {"", "error 13"},
                       {"abc", "error 13"},
                       {"1.2.3", "error 13"},
                       {" 5 ", "5"},
                       {"5-", "-5"},
                       {ErrorValue{1}, "error 13"},
                   });
}

}  // namespace
}  // namespace qrn::test
