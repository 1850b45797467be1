#include "runtime/val.h"

#include "runtime/outcome.h"

namespace qrn::test {
namespace {

struct ValRow {
  std::string text;
  std::string expected;
};

void expectVals(std::initializer_list<ValRow> rows) {
  for (const ValRow& row : rows) {
    EXPECT_EQ(outcome([&] { return Val(row.text); }), row.expected)
        << "Val(\"" << row.text.substr(0, 60) << "\")";
  }
}

TEST(Val, ReadsTheNumberAtTheStart) {
  expectVals({
      {"", "0"},
      {"0", "0"},
      {"12", "12"},
      {"-12", "-12"},
      {"+12", "12"},
      {"3.5", "3.5"},
      {"-3.5", "-3.5"},
      {".5", "0.5"},
      {"-.5", "-0.5"},
      {"5.", "5"},
      {"24 and 57", "24"},
      {"1.2.3", "1.2"},
      {"12abc", "12"},
      {"abc", "0"},
      {"-", "0"},
      {"+-5", "0"},
      {"--5", "0"},
      {".", "0"},
      {"-.", "0"},
      {"$5", "0"},
      {"(5)", "0"},
      {"1,234", "1"},
      {"0..100", "0"},
      {"5..", "5"},
      {"80000001", "80000001"},
      {"00012", "12"},
      {"-0", "0"},
      {"3,5", "3"},
      {"5%", "5"},
      {"\xff"
       "5",
       "0"},
      {"123456789012345678901234567890", "1.2345678901234568e+29"},
  });
}

TEST(Val, SkipsBlanksWhereverTheyStand) {
  expectVals({
      {"   12", "12"},
      {"2 45 7", "2457"},
      {" 1615 198th Street", "1615198"},
      {"\t1\n2\r3", "123"},
      {"- 5", "-5"},
      {"1 . 5", "1.5"},
      {"1 e 2", "100"},
      {"& H F F", "255"},
      {"   ", "0"},
  });
}

TEST(Val, ReadsExponents) {
  expectVals({
      {"1e3", "1000"},
      {"1E+3", "1000"},
      {"1d3", "1000"},
      {"1.5D-1", "0.15"},
      {"1e", "1"},
      {"1e+", "1"},
      {"1ex", "1"},
      {"e5", "0"},
      {"1e2.5", "100"},
      {"1e2e3", "100"},
      {"1e308", "1e+308"},
      {"1e309", "error 6"},
      {"-1e309", "error 6"},
      {"1e-400", "0"},
      {"0e999", "0"},
      {"1e99999999999999999999", "error 6"},
      {"1e-99999999999999999999", "0"},
  });
}

TEST(Val, ReadsHexadecimalAndOctalAsSignedBits) {
  expectVals({
      {"&HFF", "255"},
      {"&hff", "255"},
      {"&HFFFF", "-1"},
      {"&HFFFF&", "65535"},
      {"&H8000", "-32768"},
      {"&H7FFF", "32767"},
      {"&H10000", "65536"},
      {"&HFFFFFFFF", "-1"},
      {"&H80000000", "-2147483648"},
      {"&H100000000", "error 6"},
      {"&O17", "15"},
      {"&o377", "255"},
      {"&O8", "0"},
      {"&17", "15"},
      {"&H", "0"},
      {"&", "0"},
      {"&HG", "0"},
      {"&HFFx", "255"},
      {"-&HFF", "0"},
      {"&O177777", "-1"},
      {"&H0000FF", "255"},
  });
}

TEST(Val, KnowsNoLocale) {
  const LocaleScope german(deDE());
  expectVals({{"3.5", "3.5"}, {"3,5", "3"}, {"1.234,5", "1.234"}});
}

TEST(Val, AVeryLongTextIsReadInOneGo) {
  expectVals({
      {std::string(100000, '9'), "error 6"},
      {"0." + std::string(100000, '9'), "1"},
      {std::string(100000, ' ') + "7", "7"},
      {std::string(100000, '0') + "7", "7"},
      {"&H" + std::string(100000, 'F'), "error 6"},
      {"&H" + std::string(100000, '0') + "1", "1"},
      {"1e" + std::string(100000, '0') + "2", "100"},
  });
}

}  // namespace
}  // namespace qrn::test
