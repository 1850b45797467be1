#include "values/hexadecimal.h"

#include <gtest/gtest.h>

#include "runtime/errors.h"

namespace qrn {
namespace {

std::int32_t errorOf(std::string_view text) {
  try {
    HexToLong(text);
    return 0;
  } catch (const RunTimeError& error) {
    return error.number();
  }
}

TEST(HexToLong, ReadsUpperCaseDigits) {
  EXPECT_EQ(HexToLong("0"), 0);
  EXPECT_EQ(HexToLong("9"), 9);
  EXPECT_EQ(HexToLong("A"), 10);
  EXPECT_EQ(HexToLong("F"), 15);
  EXPECT_EQ(HexToLong("12AB"), 0x12AB);
}

TEST(HexToLong, ReadsNothingAsZero) { EXPECT_EQ(HexToLong(""), 0); }

TEST(HexToLong, ReadsUpToTheLargestLong) { EXPECT_EQ(HexToLong("7FFFFFFF"), 0x7FFFFFFF); }

TEST(HexToLong, DoesNotMindZerosInFront) {
  EXPECT_EQ(HexToLong("00000000000FF"), 255);
  EXPECT_EQ(HexToLong(std::string(5000, '0') + "1"), 1);
}

TEST(HexToLong, OverflowsBeyondIt) {
  EXPECT_EQ(errorOf("80000000"), 6);
  EXPECT_EQ(errorOf("FFFFFFFF"), 6);
  EXPECT_EQ(errorOf("100000000"), 6);
  EXPECT_EQ(errorOf(std::string(5000, 'F')), 6);
}

TEST(HexToLong, AnswersMinusOneForEveryOtherCharacter) {
  for (const char* text : {"ff", "G", "@", "1 ", " 1", "-1", "+1", "&HFF", "0x1", "1.5", "\u00e4"}) {
    EXPECT_EQ(HexToLong(text), -1) << text;
  }
}

TEST(HexToLong, LooksAtItsCharactersFromTheLeft) {
  EXPECT_EQ(errorOf("F0000000x"), 6);
  EXPECT_EQ(HexToLong("xF0000000"), -1);
  EXPECT_EQ(HexToLong("0000000x"), -1);
}

}  // namespace
}  // namespace qrn
