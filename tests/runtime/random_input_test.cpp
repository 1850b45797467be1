// What holds for any input, tried with random ones. The seed is printed with a failure.
#include <cmath>
#include <random>

#include "runtime/date_text.h"
#include "runtime/format.h"
#include "runtime/hex.h"
#include "runtime/like.h"
#include "runtime/outcome.h"
#include "runtime/val.h"

namespace qrn::test {
namespace {

class RandomInput : public testing::Test {
 protected:
  std::size_t below(std::size_t limit) { return static_cast<std::size_t>(random_() % limit); }

  std::string text(std::string_view alphabet, std::size_t longest) {
    std::string result(below(longest + 1), ' ');
    for (char& c : result) c = alphabet[below(alphabet.size())];
    return result;
  }

  std::string bytes(std::size_t longest) {
    std::string result(below(longest + 1), ' ');
    for (char& c : result) c = static_cast<char>(below(256));
    return result;
  }

  /// Any finite double, small exponents preferred.
  double number() {
    const double mantissa = static_cast<double>(static_cast<std::int64_t>(random_())) / 9.3e18;
    const int range = below(2) == 0 ? 20 : 300;
    return mantissa * std::pow(10.0, static_cast<int>(below(static_cast<std::size_t>(2 * range))) - range);
  }

  Variant value() {
    switch (below(9)) {
      case 0: return number();
      case 1: return static_cast<float>(number() * 1e-280);
      case 2: return static_cast<std::int32_t>(random_());
      case 3: return static_cast<std::int16_t>(random_());
      case 4: return Currency{static_cast<std::int64_t>(random_())};
      case 5: return Decimal(static_cast<std::int64_t>(random_())) * CDec("0.000001");
      case 6: return Date{std::fmod(number(), 4e6)};
      case 7: return text("0123456789.,-+eEdD$()&HhOo /:amp", 20);
      default: return bytes(20);
    }
  }

  const std::uint64_t seed_ = std::random_device{}();
  std::mt19937_64 random_{seed_};
  testing::ScopedTrace trace_{__FILE__, __LINE__, "seed " + std::to_string(seed_)};
};

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
    const auto whole = static_cast<std::int32_t>(random_());
    ASSERT_EQ(CLng(CStr(whole)), whole);
    ASSERT_EQ(CLng("&H" + Hex(whole)), whole);
    const Currency amount{static_cast<std::int64_t>(random_())};
    ASSERT_EQ(CCur(CStr(amount)), amount);
    const double second = static_cast<double>(random_() % 86400) / 86400;
    const int day = kFirstDay + static_cast<int>(below(kLastDay - kFirstDay));
    const Date date = dateFromParts(day, second);
    const CivilTime civil = splitDate(date);
    ASSERT_EQ(joinDate(civil), date);
    ASSERT_EQ(splitDate(CDate(CStr(date))), civil) << CStr(date);
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

// As plain as can be: every way a run could end is tried.
bool likeByTrying(std::string_view text, std::string_view pattern) {
  if (pattern.empty()) return text.empty();
  if (pattern.front() == '*') {
    for (std::size_t taken = 0; taken <= text.size(); ++taken) {
      if (likeByTrying(text.substr(taken), pattern.substr(1))) return true;
    }
    return false;
  }
  std::size_t length = 1;
  bool admitted = false;
  const char c = text.empty() ? '\0' : text.front();
  if (pattern.front() == '?') {
    admitted = true;
  } else if (pattern.front() == '#') {
    admitted = c >= '0' && c <= '9';
  } else if (pattern.front() == '[') {
    length = pattern.find(']') + 1;
    const bool negated = pattern[1] == '!';
    const std::string_view list = pattern.substr(1, length - 2).substr(negated ? 1 : 0);
    admitted = (list.find(c) != std::string_view::npos) != negated;
  } else {
    admitted = c == pattern.front();
  }
  return !text.empty() && admitted && likeByTrying(text.substr(1), pattern.substr(length));
}

TEST_F(RandomInput, LikeAgreesWithAMatcherThatTriesEverything) {
  constexpr std::string_view kParts[] = {"a", "b", "1", "?", "#", "*", "*", "[ab]", "[!a]", "[b1]"};
  int matches = 0;
  for (int round = 0; round < 50000; ++round) {
    const std::string subject = text("ab1", 8);
    std::string pattern;
    for (std::size_t parts = below(7); parts > 0; --parts) pattern += kParts[below(std::size(kParts))];
    const bool expected = likeByTrying(subject, pattern);
    ASSERT_EQ(Like(subject, pattern), expected) << subject << " Like " << pattern;
    matches += expected ? 1 : 0;
  }
  EXPECT_GT(matches, 1000);
}

// Answers the number of the error, 0 for none. Anything else that is thrown fails the test.
template <class Action>
std::int32_t errorOf(Action&& action) {
  try {
    static_cast<void>(action());
    return 0;
  } catch (const RunTimeError& error) {
    return error.number();
  }
}

bool isAllowed(std::int32_t error) {
  return error == 0 || error == kInvalidProcedureCall || error == kOverflow || error == kTypeMismatch;
}

TEST_F(RandomInput, EveryConversionGivesAValueOrOneOfItsErrors) {
  for (int round = 0; round < 30000; ++round) {
    const Variant v = value();
    const std::string* const written = v.get<std::string>();
    SCOPED_TRACE(written ? *written : std::string(typeName(v.type())));
    ASSERT_TRUE(isAllowed(errorOf([&] { return CBool(v); })));
    ASSERT_TRUE(isAllowed(errorOf([&] { return CInt(v); })));
    ASSERT_TRUE(isAllowed(errorOf([&] { return CLng(v); })));
    ASSERT_TRUE(isAllowed(errorOf([&] { return CSng(v); })));
    ASSERT_TRUE(isAllowed(errorOf([&] { return CDbl(v); })));
    ASSERT_TRUE(isAllowed(errorOf([&] { return CCur(v); })));
    ASSERT_TRUE(isAllowed(errorOf([&] { return CDec(v); })));
    ASSERT_TRUE(isAllowed(errorOf([&] { return CDate(v); })));
    ASSERT_TRUE(isAllowed(errorOf([&] { return CStr(v); })));
    ASSERT_TRUE(isAllowed(errorOf([&] { return Hex(v); })));
    if (written == nullptr) continue;
    ASSERT_TRUE(isAllowed(errorOf([&] { return Val(*written); })));
    ASSERT_EQ(isNumeric(v), errorOf([&] { return CDbl(v); }) == 0);
  }
}

TEST_F(RandomInput, EveryPatternFormatsEveryValueOrFailsWithOneOfTheErrors) {
  for (int round = 0; round < 50000; ++round) {
    const std::string pattern =
        below(4) == 0 ? bytes(20) : text("00##..,,%Ee+-;\"\\@&<>!dmyhnsqwctAMP/p: $x", 20);
    const Variant v = value();
    SCOPED_TRACE(pattern);
    ASSERT_TRUE(isAllowed(errorOf([&] { return Format(v, pattern); })));
  }
}

TEST_F(RandomInput, EveryLikePatternMatchesOrIsInvalid) {
  for (int round = 0; round < 50000; ++round) {
    const std::string pattern = below(4) == 0 ? bytes(12) : text("ab1?*#[]!-", 12);
    const std::int32_t error = errorOf([&] { return Like(text("ab1-]!", 8), pattern); });
    ASSERT_TRUE(error == 0 || error == kInvalidPatternString) << pattern;
  }
}

}  // namespace
}  // namespace qrn::test
