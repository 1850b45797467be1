// Into Boolean, Integer and Long.
#include <cmath>
#include <limits>

#include "runtime/outcome.h"

namespace qrn::test {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

struct Thing : Object {
  std::string_view typeName() const override { return "Thing"; }
};

TEST(CBoolOf, ANumberIsTrueUnlessItIsZero) {
  expectRows(CBool, {
                        {Empty{}, "false"},
                        {Null{}, "error 94"},
                        {true, "true"},
                        {false, "false"},
                        {std::int16_t{0}, "false"},
                        {std::int16_t{-1}, "true"},
                        {0, "false"},
                        {1, "true"},
                        {2, "true"},
                        {0.0F, "false"},
                        {0.5F, "true"},
                        {0.0, "false"},
                        {-0.0, "false"},
                        {0.1, "true"},
                        {-0.1, "true"},
                        {5e-324, "true"},
                        {kInfinity, "true"},
                        {Currency{0}, "false"},
                        {Currency{1}, "true"},
                        {Currency{std::numeric_limits<std::int64_t>::min()}, "true"},
                        {Decimal(), "false"},
                        {Decimal(5), "true"},
                        {CDec("0.0000000000000000000000000001"), "true"},
                        {Date{0}, "false"},
                        {Date{1}, "true"},
                        {ErrorValue{5}, "error 13"},
                        {std::make_shared<Thing>(), "error 13"},
                    });
}

TEST(CBoolOf, ATextIsOneOfTheWordsOrANumber) {
  expectRows(CBool,
             {
                 {"True", "true"},    {"true", "true"},     {"TRUE", "true"},       {"False", "false"},
                 {"fAlSe", "false"},  {"0", "false"},       {"1", "true"},          {"-1", "true"},
                 {"0.0", "false"},    {"0.25", "true"},     {" 7 ", "true"},        {"1e-3", "true"},
                 {"&H0", "false"},    {"&HFF", "true"},     {"(3)", "true"},        {"", "error 13"},
                 {"Yes", "error 13"}, {"Wahr", "error 13"}, {"truely", "error 13"}, {"1e400", "error 6"},
             });
}

TEST(CBoolOf, ATextMayUseTheWordsOfTheLocale) {
  const LocaleScope german(deDE());
  expectRows(CBool,
             {{"Wahr", "true"}, {"falsch", "false"}, {"True", "true"}, {"0,5", "true"}, {"ja", "error 13"}});
}

TEST(CIntOf, HalvesGoToTheEvenNeighbour) {
  expectRows(CInt, {
                       {0.5, "0"},
                       {1.5, "2"},
                       {2.5, "2"},
                       {3.5, "4"},
                       {-0.5, "0"},
                       {-1.5, "-2"},
                       {-2.5, "-2"},
                       {0.4999999, "0"},
                       {2.5000001, "3"},
                       {1.5F, "2"},
                       {2.5F, "2"},
                       {"0.5", "0"},
                       {"1.5", "2"},
                       {"2.5", "2"},
                       {"2.50001", "3"},
                       {"-3.5", "-4"},
                       {CDec("4.5"), "4"},
                       {CDec("5.5"), "6"},
                       {CDec("-4.5"), "-4"},
                       {Currency{25000}, "2"},
                       {Currency{35000}, "4"},
                       {Currency{-25000}, "-2"},
                       {Currency{-25001}, "-3"},
                       {Date{1.5}, "2"},
                   });
}

TEST(CIntOf, EveryDigitOfATextCountsForATie) {
  const std::string zeros(50, '0');
  expectRows(CInt, {
                       {"2.5" + zeros, "2"},
                       {"2.5" + zeros + "1", "3"},
                       {"-2.5" + zeros + "1", "-3"},
                       {"2.4" + std::string(50, '9'), "2"},
                       {"0.5" + zeros + "1", "1"},
                       {"0.05" + zeros + "1", "0"},
                       {"25" + zeros + "1e-52", "3"},
                       {"25" + zeros + "e-51", "2"},
                       {"32767.5", "error 6"},
                       {"32767.4" + std::string(50, '9'), "32767"},
                       {"-32768.5", "-32768"},
                       {"-32768.5" + zeros + "1", "error 6"},
                       {"0." + zeros + "9", "0"},
                       {"0" + zeros + "7", "7"},
                   });
}

TEST(CIntOf, AnythingOutsideSixteenBitsOverflows) {
  expectRows(CInt, {
                       {32767.0, "32767"},
                       {32767.4, "32767"},
                       {32767.5, "error 6"},
                       {32768, "error 6"},
                       {-32768.0, "-32768"},
                       {-32768.5, "-32768"},
                       {-32768.6, "error 6"},
                       {-32769, "error 6"},
                       {70000, "error 6"},
                       {"70000", "error 6"},
                       {1e300, "error 6"},
                       {-1e300, "error 6"},
                       {kInfinity, "error 6"},
                       {kNaN, "error 6"},
                       {"1e99", "error 6"},
                       {"&H10000", "error 6"},
                       {"&HFFFF", "-1"},
                       {"&H8000", "-32768"},
                       {"&H7FFF", "32767"},
                       {"&O177777", "-1"},
                       {CDec("79228162514264337593543950335"), "error 6"},
                       {Currency{std::numeric_limits<std::int64_t>::max()}, "error 6"},
                       {Date{2958465}, "error 6"},
                   });
}

TEST(CIntOf, ValuesWithoutANumberDoNotMatch) {
  expectRows(CInt, {{Empty{}, "0"},
                    {Null{}, "error 94"},
                    {true, "-1"},
                    {false, "0"},
                    {"", "error 13"},
                    {"abc", "error 13"},
                    {"12a", "error 13"},
                    {"True", "error 13"},
                    {ErrorValue{1}, "error 13"},
                    {std::make_shared<Thing>(), "error 13"}});
}

TEST(CLngOf, HalvesGoToTheEvenNeighbour) {
  expectRows(CLng, {
                       {0.5, "0"},
                       {1.5, "2"},
                       {-1.5, "-2"},
                       {-2.5, "-2"},
                       {65536.5, "65536"},
                       {65537.5, "65538"},
                       {"70000", "70000"},
                       {"70000.5", "70000"},
                       {"70001.5", "70002"},
                       {std::int16_t{-7}, "-7"},
                       {3.0F, "3"},
                       {CDec("123456.5"), "123456"},
                       {Currency{1234565000}, "123456"},
                       {Currency{1234575000}, "123458"},
                       {Date{36526.25}, "36526"},
                   });
}

TEST(CLngOf, AnythingOutsideThirtyTwoBitsOverflows) {
  expectRows(CLng, {
                       {2147483647.0, "2147483647"},
                       {2147483647.4, "2147483647"},
                       {2147483647.5, "error 6"},
                       {-2147483648.0, "-2147483648"},
                       {-2147483648.5, "-2147483648"},
                       {-2147483649.0, "error 6"},
                       {"2147483648", "error 6"},
                       {"&H7FFFFFFF", "2147483647"},
                       {"&H80000000", "-2147483648"},
                       {"&HFFFFFFFF", "-1"},
                       {"&HFFFF", "65535"},
                       {"&H100000000", "error 6"},
                       {"&O37777777777", "-1"},
                       {kInfinity, "error 6"},
                       {-kInfinity, "error 6"},
                       {kNaN, "error 6"},
                       {1e18, "error 6"},
                       {1e19, "error 6"},
                       {"99999999999999999999999999999999999", "error 6"},
                       {"1e-99", "0"},
                   });
}

TEST(CLngOf, TextsAreReadAsPeopleWriteNumbers) {
  expectRows(CLng,
             {
                 {" 12 ", "12"},       {"+12", "12"},         {"-12", "-12"},        {"12-", "-12"},
                 {"(12)", "-12"},      {"1,234", "1234"},     {"$12", "12"},         {"-$12", "-12"},
                 {"$-12", "-12"},      {"($1,234)", "-1234"}, {"1.2e3", "1200"},     {"1D2", "100"},
                 {"- 12", "-12"},      {"&h1f&", "31"},       {"&o17", "15"},        {"--1", "error 13"},
                 {"(12", "error 13"},  {"12)", "error 13"},   {"-(12)", "error 13"}, {"&H", "error 13"},
                 {"&HG", "error 13"},  {"&O8", "error 13"},   {"1 2", "error 13"},   {"1e", "error 13"},
                 {".", "error 13"},    {"-", "error 13"},     {"$", "error 13"},     {"", "error 13"},
                 {Null{}, "error 94"}, {Empty{}, "0"},        {true, "-1"},
             });
}

}  // namespace
}  // namespace qrn::test
