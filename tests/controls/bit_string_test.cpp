#include "values/bit_string.h"

#include <gtest/gtest.h>

namespace qrn {
namespace {

std::string with(std::string s, int i, bool bit) {
  BitStringSet(s, i, bit);
  return s;
}

TEST(BitString, CountsItsBitsFromTheRight) {
  EXPECT_TRUE(BitStringGet("100", 2));
  EXPECT_FALSE(BitStringGet("100", 1));
  EXPECT_FALSE(BitStringGet("100", 0));
}

TEST(BitString, ReadsZeroBeyondItsEnd) {
  EXPECT_FALSE(BitStringGet("111", 3));
  EXPECT_FALSE(BitStringGet("", 0));
  EXPECT_FALSE(BitStringGet("1", 32767));
}

TEST(BitString, ReadsEveryCharacterButOneAsZero) {
  EXPECT_FALSE(BitStringGet("2", 0));
  EXPECT_FALSE(BitStringGet("x", 0));
}

TEST(BitString, ReplacesABitInPlace) {
  EXPECT_EQ(with("000", 1, true), "010");
  EXPECT_EQ(with("111", 2, false), "011");
}

TEST(BitString, GrowsByTheNextBit) {
  EXPECT_EQ(with("", 0, true), "1");
  EXPECT_EQ(with("", 0, false), "0");
  EXPECT_EQ(with("11", 2, false), "011");
}

TEST(BitString, IsFilledUpWithZerosOnTheLeft) {
  EXPECT_EQ(with("1", 4, true), "10001");
  EXPECT_EQ(with("", 3, true), "1000");
}

}  // namespace
}  // namespace qrn
