#include "runtime/decimal.h"

#include "runtime/random_input.h"

namespace qrn::test {
namespace {

__extension__ using Int128 = __int128;

std::string digitsOf(Int128 value) {
  const bool negative = value < 0;
  std::string text;
  do {
    const int digit = static_cast<int>(value % 10);
    text.insert(text.begin(), static_cast<char>('0' + (digit < 0 ? -digit : digit)));
    value /= 10;
  } while (value != 0);
  return negative ? "-" + text : text;
}

Decimal decimalOf(Int128 value, int scale) {
  const std::string digits = digitsOf(value < 0 ? -value : value);
  return Decimal::fromDigits(value < 0, digits, -scale);
}

Int128 powerOfTen(int exponent) {
  Int128 result = 1;
  for (; exponent > 0; --exponent) result *= 10;
  return result;
}

/// The quotient of a division by a power of ten, half to even.
Int128 shiftedHalfEven(Int128 value, int digits) {
  const Int128 divisor = powerOfTen(digits);
  Int128 quotient = value / divisor;
  Int128 rest = value % divisor;
  if (rest < 0) rest = -rest;
  const bool away = 2 * rest > divisor || (2 * rest == divisor && quotient % 2 != 0);
  if (away) quotient += value < 0 ? -1 : 1;
  return quotient;
}

class DecimalNumbers : public RandomInput {
 protected:
  /// Of 96 bits or fewer, with a sign.
  Int128 mantissa() {
    const auto high = static_cast<Int128>(bits() >> 32) << 64;
    const Int128 all = (high | static_cast<Int128>(bits())) >> (toss() ? 0 : below(96));
    return toss() ? -all : all;
  }
};

TEST_F(DecimalNumbers, AddAndSubtractLikeWholeNumbers) {
  for (int round = 0; round < 20000; ++round) {
    const Int128 a = whole();
    const Int128 b = whole();
    const int scaleA = static_cast<int>(below(9));
    const int scaleB = static_cast<int>(below(9));
    const int scale = std::max(scaleA, scaleB);
    const Int128 wideA = a * powerOfTen(scale - scaleA);
    const Int128 wideB = b * powerOfTen(scale - scaleB);
    const Decimal x = decimalOf(a, scaleA);
    const Decimal y = decimalOf(b, scaleB);
    ASSERT_EQ((x + y).toText(), decimalOf(wideA + wideB, scale).toText())
        << digitsOf(a) << ' ' << digitsOf(b);
    ASSERT_EQ((x - y).toText(), decimalOf(wideA - wideB, scale).toText())
        << digitsOf(a) << ' ' << digitsOf(b);
    ASSERT_EQ(x < y, wideA < wideB) << digitsOf(a) << ' ' << digitsOf(b);
    ASSERT_EQ(x == y, wideA == wideB) << digitsOf(a) << ' ' << digitsOf(b);
  }
}

TEST_F(DecimalNumbers, MultiplyLikeWholeNumbersAndRoundHalfToEven) {
  for (int round = 0; round < 20000; ++round) {
    const Int128 a = whole() >> 16;
    const Int128 b = whole() >> 18;
    const int scaleA = static_cast<int>(below(29));
    const int scaleB = static_cast<int>(below(29));
    const Int128 product = a * b;  // below 2^93, so only the scale can make it round
    const int excess = std::max(scaleA + scaleB - Decimal::kMaxScale, 0);
    const Int128 rounded = shiftedHalfEven(product, std::min(excess, 38));
    const Decimal result = decimalOf(a, scaleA) * decimalOf(b, scaleB);
    ASSERT_EQ(result.toText(), decimalOf(rounded, scaleA + scaleB - excess).toText())
        << digitsOf(a) << 'e' << -scaleA << ' ' << digitsOf(b) << 'e' << -scaleB;
  }
}

TEST_F(DecimalNumbers, RoundLikeWholeNumbers) {
  for (int round = 0; round < 20000; ++round) {
    const Int128 a = whole() / 10 * 10 + 5 * static_cast<int>(below(2));  // ties are common
    const int scale = static_cast<int>(below(19));
    const int decimals = static_cast<int>(below(19));
    const Int128 rounded = decimals >= scale ? a : shiftedHalfEven(a, scale - decimals);
    ASSERT_EQ(decimalOf(a, scale).rounded(decimals).toText(),
              decimalOf(rounded, std::min(scale, decimals)).toText())
        << digitsOf(a) << " scale " << scale << " to " << decimals;
    ASSERT_EQ(std::to_string(decimalOf(a, scale).toInt64()), digitsOf(shiftedHalfEven(a, scale)))
        << digitsOf(a) << " scale " << scale;
  }
}

TEST_F(DecimalNumbers, EveryMantissaComesBackFromItsText) {
  for (int round = 0; round < 20000; ++round) {
    const Decimal value = decimal();
    ASSERT_EQ(CDec(value.toText()), value) << value.toText();
    ASSERT_EQ(value.toText().find('e'), std::string::npos);
  }
}

// With a common scale, sums of 96 bits still fit 128.
TEST_F(DecimalNumbers, OfFullLengthAddUpAndLoseADecimalWhenThereIsNoRoom) {
  const Int128 most = (Int128{1} << 96) - 1;
  int rounded = 0;
  for (int round = 0; round < 20000; ++round) {
    const Int128 a = mantissa();
    const Int128 b = mantissa();
    const int scale = static_cast<int>(below(29));
    Int128 sum = a + b;
    const bool fits = sum <= most && sum >= -most;
    if (!fits) sum = shiftedHalfEven(sum, 1);
    const std::string expected =
        !fits && scale == 0 ? "error 6" : decimalOf(sum, fits ? scale : scale - 1).toText();
    ASSERT_EQ(outcome([&] { return decimalOf(a, scale) + decimalOf(b, scale); }), expected)
        << digitsOf(a) << ' ' << digitsOf(b) << " scale " << scale;
    ASSERT_EQ(outcome([&] { return decimalOf(a, scale) - decimalOf(-b, scale); }), expected)
        << digitsOf(a) << ' ' << digitsOf(b) << " scale " << scale;
    rounded += fits ? 0 : 1;
  }
  EXPECT_GT(rounded, 10);
}

// Nine decimals apart, 96 bits still fit 128.
TEST_F(DecimalNumbers, OfFullLengthCompareLikeWholeNumbers) {
  for (int round = 0; round < 20000; ++round) {
    const Int128 a = mantissa();
    const int apart = static_cast<int>(below(10));
    // Often the same number with other decimals, or one beside it.
    const Int128 b = toss() ? mantissa() : shiftedHalfEven(a, apart) + static_cast<int>(below(3)) - 1;
    const int scale = static_cast<int>(below(20));
    const Decimal left = decimalOf(a, scale + apart);
    const Decimal right = decimalOf(b, scale);
    const Int128 aligned = b * powerOfTen(apart);
    ASSERT_EQ(left <=> right, a <=> aligned) << left.toText() << ' ' << right.toText();
    ASSERT_EQ(right == left, a == aligned) << left.toText() << ' ' << right.toText();
  }
}

TEST_F(DecimalNumbers, ThatDoNotFitOverflow) {
  const Decimal most = CDec("79228162514264337593543950335");
  EXPECT_EQ(outcome([&] { return most + Decimal(1); }), "error 6");
  EXPECT_EQ(outcome([&] { return -most - Decimal(1); }), "error 6");
  EXPECT_EQ(outcome([&] { return most + CDec("0.4"); }), "79228162514264337593543950335");
  EXPECT_EQ(outcome([&] { return most + CDec("0.5"); }), "error 6");
  EXPECT_EQ(outcome([&] { return most * Decimal(2); }), "error 6");
  EXPECT_EQ(outcome([&] { return most * most; }), "error 6");
  EXPECT_EQ(outcome([&] { return most * CDec("0.1"); }), "7922816251426433759354395033.5");
  EXPECT_EQ(outcome([&] { return most - most; }), "0");
  EXPECT_EQ(outcome([&] { return Decimal(std::numeric_limits<std::int64_t>::min()); }),
            "-9223372036854775808");
  EXPECT_EQ(Decimal(std::numeric_limits<std::int64_t>::min()).toInt64(),
            std::numeric_limits<std::int64_t>::min());
  EXPECT_EQ(outcome([&] { return Decimal::fromMantissa(false, {1, 0, 0}, 29); }), "error 5");
}

TEST_F(DecimalNumbers, CompareByValue) {
  EXPECT_EQ(CDec("1.0"), CDec("1.00"));
  EXPECT_EQ(CDec("-0.0"), CDec("0"));
  EXPECT_LT(CDec("-1"), CDec("0.5"));
  EXPECT_LT(CDec("-2"), CDec("-1.99"));
  EXPECT_LT(CDec("0.0000000000000000000000000001"), CDec("79228162514264337593543950335"));
  EXPECT_EQ(Variant(CDec("1.0")), Variant(CDec("1.00")));
}

}  // namespace
}  // namespace qrn::test
