// What every conversion, comparison and format keeps to, whatever it is given.
#include "runtime/compare_values.h"
#include "runtime/format.h"
#include "runtime/hex.h"
#include "runtime/random_input.h"
#include "runtime/val.h"

namespace qrn::test {
namespace {

__extension__ using Int128 = __int128;

bool isAllowed(std::int32_t error) {
  return error == 0 || error == kInvalidProcedureCall || error == kOverflow || error == kTypeMismatch;
}

class AnyValue : public RandomInput {
 protected:
  // Null has a number of its own, and nothing else has it.
  template <class Action>
  void expectAllowed(const Variant& value, Action&& action, const char* name) {
    const std::int32_t error = errorOf(action);
    const bool allowed = value.isNull() ? error == kInvalidUseOfNull : isAllowed(error);
    ASSERT_TRUE(allowed) << name << " of " << described(value) << " raises " << error;
  }
};

TEST_F(AnyValue, ConvertsOrRaisesOneOfTheErrors) {
  for (int round = 0; round < 60000; ++round) {
    const LocaleScope locale(toss() ? enUS() : deDE());
    const Variant v = value();
    expectAllowed(
        v, [&] { return CBool(v); }, "CBool");
    expectAllowed(
        v, [&] { return CInt(v); }, "CInt");
    expectAllowed(
        v, [&] { return CLng(v); }, "CLng");
    expectAllowed(
        v, [&] { return CSng(v); }, "CSng");
    expectAllowed(
        v, [&] { return CDbl(v); }, "CDbl");
    expectAllowed(
        v, [&] { return CCur(v); }, "CCur");
    expectAllowed(
        v, [&] { return CDec(v); }, "CDec");
    expectAllowed(
        v, [&] { return CDate(v); }, "CDate");
    expectAllowed(
        v, [&] { return CStr(v); }, "CStr");
    expectAllowed(
        v, [&] { return Hex(v); }, "Hex");
    if (HasFatalFailure()) return;
  }
}

TEST_F(AnyValue, IsNumericIfItMakesADouble) {
  for (int round = 0; round < 60000; ++round) {
    const LocaleScope locale(toss() ? enUS() : deDE());
    const Variant v = value();
    const bool isDate = v.type() == Variant::Type::Date;
    ASSERT_EQ(isNumeric(v), !isDate && errorOf([&] { return CDbl(v); }) == 0) << described(v);
  }
}

TEST_F(AnyValue, GivesTheSameWholeNumberInEveryWidthThatHoldsIt) {
  for (int round = 0; round < 60000; ++round) {
    const Variant v = value();
    if (errorOf([&] { return CInt(v); }) != 0) continue;
    if (v.isString() && v.get<std::string>()->find('&') != std::string::npos) continue;  // bits have a width
    ASSERT_EQ(CLng(v), CInt(v)) << described(v);
    ASSERT_EQ(CCur(CInt(v)), Currency::fromWhole(CInt(v))) << described(v);
    ASSERT_EQ(CDec(CLng(v)), Decimal(CInt(v))) << described(v);
  }
}

TEST_F(AnyValue, StaysWhatItIsWhenItIsConvertedToItsOwnTypeAgain) {
  for (int round = 0; round < 60000; ++round) {
    const LocaleScope locale(toss() ? enUS() : deDE());
    const Variant v = value();
    ignoringErrors([&] { ASSERT_EQ(CLng(CLng(v)), CLng(v)) << described(v); });
    ignoringErrors([&] { ASSERT_EQ(CCur(CCur(v)), CCur(v)) << described(v); });
    ignoringErrors([&] { ASSERT_EQ(CDec(CDec(v)), CDec(v)) << described(v); });
    ignoringErrors([&] { ASSERT_EQ(CDec(CStr(CDec(v))), CDec(v)) << described(v); });
    ignoringErrors([&] { ASSERT_EQ(CStr(CStr(v)), CStr(v)) << described(v); });
    ignoringErrors([&] { ASSERT_EQ(CBool(CStr(CBool(v))), CBool(v)) << described(v); });
    ignoringErrors([&] { ASSERT_EQ(CLng("&H" + Hex(v)), CLng(v)) << described(v); });
    if (HasFatalFailure()) return;
  }
}

TEST_F(AnyValue, IsFormattedOrRaisesOneOfTheErrors) {
  constexpr std::string_view kNames[] = {"General Number", "Currency",     "Fixed",     "Standard",
                                         "Percent",        "Scientific",   "Yes/No",    "True/False",
                                         "On/Off",         "General Date", "Long Date", "Long Time",
                                         "Medium Date",    "Short Time",   "c"};
  for (int round = 0; round < 60000; ++round) {
    const LocaleScope locale(toss() ? enUS() : deDE());
    std::string pattern = text("00##..,,%Ee+-;\"\\@&<>!dmyhnsqwctAMP/p: $x", 20);
    if (below(4) == 0) pattern = bytes(20);
    if (below(4) == 0) pattern = oneOf(kNames);
    const Variant v = value();
    ASSERT_TRUE(isAllowed(errorOf([&] { return Format(v, pattern); })))
        << described(v) << " as " << testing::PrintToString(pattern);
  }
}

TEST_F(AnyValue, ComparesTheSameWayFromBothSides) {
  for (int round = 0; round < 60000; ++round) {
    const Variant a = value();
    const Variant b = below(8) == 0 ? a : value();
    std::partial_ordering forward = std::partial_ordering::unordered;
    std::partial_ordering backward = forward;
    const std::int32_t error = errorOf([&] { return (forward = compareValues(a, b)) == 0; });
    ASSERT_EQ(errorOf([&] { return (backward = compareValues(b, a)) == 0; }), error)
        << described(a) << " and " << described(b);
    ASSERT_TRUE(isAllowed(error)) << described(a) << " and " << described(b);
    ASSERT_EQ(forward, 0 <=> backward) << described(a) << " and " << described(b);
  }
}

class ExactNumbers : public RandomInput {
 protected:
  /// A plain text of a number of ten-thousandths of hundredths: six decimals, with zeros behind them at
  /// times.
  static std::string textOf(std::int64_t millionths) {
    std::string digits = std::to_string(millionths < 0 ? -millionths : millionths);
    if (digits.size() < 7) digits.insert(0, 7 - digits.size(), '0');
    digits.insert(digits.size() - 6, ".");
    return millionths < 0 ? "-" + digits : digits;
  }

  static std::int64_t halfEven(std::int64_t value, std::int64_t divisor) {
    std::int64_t quotient = value / divisor;
    const std::int64_t rest = value % divisor < 0 ? -(value % divisor) : value % divisor;
    if (2 * rest > divisor || (2 * rest == divisor && quotient % 2 != 0)) quotient += value < 0 ? -1 : 1;
    return quotient;
  }
};

TEST_F(ExactNumbers, RoundToWholesAndAmountsLikeWholeNumbers) {
  for (int round = 0; round < 50000; ++round) {
    std::int64_t millionths = whole() / 4;
    if (toss()) millionths = millionths / 1000000 * 1000000 + 500000;  // ties are common
    if (toss()) millionths = millionths / 100 * 100 + 50;
    const std::string written = textOf(millionths) + std::string(below(40), '0');
    const std::int64_t wholes = halfEven(millionths, 1000000);
    const bool fitsLong = wholes >= std::numeric_limits<std::int32_t>::min() &&
                          wholes <= std::numeric_limits<std::int32_t>::max();
    const std::string expected = fitsLong ? std::to_string(wholes) : "error 6";
    ASSERT_EQ(outcome([&] { return CLng(written); }), expected) << written;
    ASSERT_EQ(outcome([&] { return CLng(CDec(written)); }), expected) << written;
    ASSERT_EQ(CCur(written).tenThousandths, halfEven(millionths, 100)) << written;
    ASSERT_EQ(CCur(CDec(written)).tenThousandths, halfEven(millionths, 100)) << written;
  }
}

TEST_F(ExactNumbers, JustAboveATieGoAwayFromZero) {
  for (int round = 0; round < 20000; ++round) {
    const std::int64_t millionths = whole() / 4 / 1000000 * 1000000;
    const bool negative = millionths < 0;
    const std::string written =
        std::to_string(millionths / 1000000) + ".5" + std::string(below(60), '0') + "1";
    const std::int64_t wholes = millionths / 1000000 + (negative ? -1 : 1);
    if (millionths == 0 || wholes != static_cast<std::int32_t>(wholes)) continue;
    ASSERT_EQ(CLng(written), wholes) << written;
  }
}

TEST_F(ExactNumbers, AreFormattedDigitByDigit) {
  for (int round = 0; round < 20000; ++round) {
    const Currency amount{whole()};
    const std::int64_t units = amount.tenThousandths;
    // Away from zero at a tie, by way of whole numbers.
    const Int128 magnitude = units < 0 ? -Int128{units} : Int128{units};
    const auto hundredths = static_cast<std::uint64_t>((magnitude + 50) / 100);
    std::string expected = std::to_string(hundredths);
    if (expected.size() < 3) expected.insert(0, 3 - expected.size(), '0');
    expected.insert(expected.size() - 2, ".");
    for (std::size_t group = expected.size() - 3; group > 3; group -= 3) expected.insert(group - 3, ",");
    if (units < 0) expected.insert(0, "-");
    ASSERT_EQ(Format(amount, "#,##0.00"), expected) << units;
    ASSERT_EQ(Format(CDec(amount), "#,##0.00"), expected) << units;
  }
}

TEST_F(ExactNumbers, ComeBackFromTheirTextInEveryLocale) {
  for (int round = 0; round < 20000; ++round) {
    const LocaleScope locale(toss() ? enUS() : deDE());
    const Decimal exact = decimal();
    ASSERT_EQ(CDec(CStr(exact)), exact) << CStr(exact);
    const Currency amount{whole()};
    ASSERT_EQ(CCur(CStr(amount)), amount) << CStr(amount);
    ASSERT_EQ(CCur(Format(amount, "#,##0.0000")), amount) << CStr(amount);
    ASSERT_EQ(CCur(Format(amount, "#,##0.0000;(#,##0.0000)")), amount) << CStr(amount);
    const auto single = static_cast<float>(std::fmod(number(), 1e30));
    ASSERT_LE(std::fabs(CSng(CStr(single)) - single), std::fabs(single) * 1e-6F) << shown(single);
  }
}

TEST_F(ExactNumbers, ValReadsWhatHexAndNumbersWrite) {
  for (int round = 0; round < 20000; ++round) {
    const auto number = static_cast<std::int32_t>(whole());
    ASSERT_EQ(Val("&H" + Hex(number) + "&"), number) << number;
    ASSERT_EQ(Val(std::to_string(number) + " mbar"), number) << number;
    const double real = this->number();
    ASSERT_EQ(CStr(Val(CStr(real))), CStr(real)) << shown(real);
  }
}

class RandomDates : public RandomInput {};

TEST_F(RandomDates, ComeBackFromEveryFullPattern) {
  constexpr std::string_view kPatterns[] = {"yyyy-mm-dd hh:nn:ss",
                                            "d mmm yyyy h:mm:ss AM/PM",
                                            "mmmm d, yyyy hh:mm:ss a/p",
                                            "dddd, d. mmmm yyyy ttttt",
                                            "ddddd ttttt",
                                            "c",
                                            "General Date",
                                            "dd-mmmm-yyyy h:n:s"};
  for (int round = 0; round < 20000; ++round) {
    const LocaleScope locale(toss() ? enUS() : deDE());
    const Date moment = date();
    const std::string_view pattern = oneOf(kPatterns);
    const std::string written = Format(moment, pattern);
    ASSERT_EQ(outcome([&] { return CStr(CDate(written)); }), CStr(moment)) << written << " by " << pattern;
  }
}

TEST_F(RandomDates, AreCountedOneByOne) {
  int year = 100;
  int month = 1;
  int day = 1;
  const auto daysIn = [](int y, int m) {
    const bool leap = y % 4 == 0 && (y % 100 != 0 || y % 400 == 0);
    const int days[] = {31, leap ? 29 : 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return days[m - 1];
  };
  for (int serial = kFirstDay; serial <= kLastDay; ++serial) {
    const CivilTime civil = splitDate({static_cast<double>(serial)});
    if (civil != CivilTime{year, month, day})
      FAIL() << serial << " is not " << year << '-' << month << '-' << day;
    if (++day <= daysIn(year, month)) continue;
    day = 1;
    if (++month <= 12) continue;
    month = 1;
    ++year;
  }
  EXPECT_EQ(year, 10000);
}

TEST_F(RandomDates, AreReadOrRefusedButNeverOutsideTheCalendar) {
  int read = 0;
  for (int round = 0; round < 60000; ++round) {
    const LocaleScope locale(toss() ? enUS() : deDE());
    const std::string written = dateText();
    Date result;
    const std::int32_t error = errorOf([&] { return (result = CDate(written)).serial; });
    ASSERT_TRUE(error == 0 || error == kOverflow || error == kTypeMismatch) << written;
    if (error != 0) continue;
    ++read;
    ASSERT_TRUE(isInCalendar(result)) << written;
    ASSERT_EQ(outcome([&] { return CStr(CDate(CStr(result))); }), outcome([&] { return CStr(result); }))
        << written;
  }
  EXPECT_GT(read, 1000);
}

}  // namespace
}  // namespace qrn::test
