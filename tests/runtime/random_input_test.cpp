// What holds for any input, tried with random ones. The seed is printed with a failure.
#include "runtime/random_input.h"

#include "runtime/format.h"
#include "runtime/hex.h"
#include "runtime/like.h"
#include "runtime/val.h"

namespace qrn::test {
namespace {

TEST_F(RandomInput, ADoubleComesBackFromItsTextToFifteenDigits) {
  for (int round = 0; round < 20000; ++round) {
    const double original = number();
    const std::string written = CStr(original);
    const double back = CDbl(written);
    ASSERT_LE(std::fabs(back - original), std::fabs(original) * 5.1e-15) << written;
    ASSERT_EQ(CStr(back), written);
  }
}

TEST_F(RandomInput, ADoubleComesBackInEveryLocale) {
  const LocaleScope german(deDE());
  for (int round = 0; round < 5000; ++round) {
    const std::string written = CStr(number());
    ASSERT_EQ(CStr(CDbl(written)), written);
  }
}

TEST_F(RandomInput, WholeNumbersCurrencyAndDatesComeBackExactly) {
  for (int round = 0; round < 20000; ++round) {
    const auto whole = static_cast<std::int32_t>(bits());
    ASSERT_EQ(CLng(CStr(whole)), whole);
    ASSERT_EQ(CLng("&H" + Hex(whole)), whole);
    const Currency amount{static_cast<std::int64_t>(bits())};
    ASSERT_EQ(CCur(CStr(amount)), amount);
    const Date moment = date();
    const CivilTime civil = splitDate(moment);
    ASSERT_EQ(joinDate(civil), moment) << CStr(moment);
    ASSERT_EQ(splitDate(CDate(CStr(moment))), civil) << CStr(moment);
  }
}

TEST_F(RandomInput, FixedDecimalsAreThoseOfTheFifteenDigits) {
  const CompiledFormat format("0.000");
  for (int round = 0; round < 50000; ++round) {
    const double original = std::fmod(number(), 1e9);
    // The slow way: fifteen digits as a Decimal, a half added, three decimals cut out of the text.
    std::string expected = (Decimal::fromDouble(std::fabs(original)) + CDec("0.0005")).toText();
    if (expected.find('.') == std::string::npos) expected += '.';
    expected = (expected + "000").substr(0, expected.find('.') + 4);
    if (original < 0) expected.insert(0, 1, '-');
    ASSERT_EQ(format.apply(original), expected) << shown(original);
  }
}

TEST_F(RandomInput, TiesAreFoundAmongShortDecimals) {
  for (int round = 0; round < 50000; ++round) {
    const std::int64_t thousandths = static_cast<std::int64_t>(below(100000000)) * 10 + 5;
    const double value = static_cast<double>(thousandths) / 1000;  // 15 digits of it end in a 5
    const std::int64_t hundredths = thousandths / 10 + 1;
    std::string expected = std::to_string(hundredths);
    if (expected.size() < 3) expected.insert(0, 3 - expected.size(), '0');
    expected.insert(expected.size() - 2, ".");
    ASSERT_EQ(Format(value, "0.00"), expected) << shown(value);
  }
}

}  // namespace
}  // namespace qrn::test
