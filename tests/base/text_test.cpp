#include "base/text.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace qrn::text {
namespace {

// One, two, three and four bytes.
const std::string kMixed = "a\u00e4\u20ac\U0001F600z";

std::vector<char32_t> codePoints(std::string_view utf8) {
  std::vector<char32_t> result;
  for (std::size_t at = 0; at < utf8.size();) result.push_back(next(utf8, at));
  return result;
}

std::string encoded(const std::vector<char32_t>& codePoints) {
  std::string result;
  for (const char32_t c : codePoints) append(result, c);
  return result;
}

TEST(Text, IsCountedInCodePoints) {
  EXPECT_EQ(length(""), 0u);
  EXPECT_EQ(length("abc"), 3u);
  EXPECT_EQ(length(kMixed), 5u);
  EXPECT_EQ(codePoints(kMixed), (std::vector<char32_t>{'a', 0xE4, 0x20AC, 0x1F600, 'z'}));
}

TEST(Text, IsCutBetweenCodePoints) {
  EXPECT_EQ(slice(kMixed, 1, 2), "\u00e4\u20ac");
  EXPECT_EQ(slice(kMixed, 3), "\U0001F600z");
  EXPECT_EQ(slice(kMixed, 0, 0), "");
  EXPECT_EQ(slice(kMixed, 4, 100), "z");
  EXPECT_EQ(slice(kMixed, 5), "");
  EXPECT_EQ(slice(kMixed, 99, 1), "");
  EXPECT_EQ(slice("", 0, 5), "");
}

TEST(Text, TurnsPositionsIntoOffsets) {
  EXPECT_EQ(byteOffset(kMixed, 0), 0u);
  EXPECT_EQ(byteOffset(kMixed, 2), 3u);
  EXPECT_EQ(byteOffset(kMixed, 4), 10u);
  EXPECT_EQ(byteOffset(kMixed, 5), kMixed.size());
  EXPECT_EQ(byteOffset(kMixed, 500), kMixed.size());
}

TEST(Text, EveryCodePointSurvivesBeingWrittenAndRead) {
  for (char32_t c = 1; c <= 0x10FFFF; c += c < 0x900 ? 1 : 37) {
    if (c >= 0xD800 && c < 0xE000) continue;
    std::string utf8;
    append(utf8, c);
    std::size_t at = 0;
    ASSERT_EQ(next(utf8, at), c);
    ASSERT_EQ(at, utf8.size());
  }
}

TEST(Text, BrokenBytesComeBackAsOneReplacementEach) {
  const char32_t broken = 0xFFFD;
  using Points = std::vector<char32_t>;
  EXPECT_EQ(codePoints("a\x80z"), (Points{'a', broken, 'z'}));              // stray continuation
  EXPECT_EQ(codePoints("a\xFF\xFEz"), (Points{'a', broken, broken, 'z'}));  // bytes of no sequence
  EXPECT_EQ(codePoints("a\xC3"), (Points{'a', broken}));                    // cut off at the end
  EXPECT_EQ(codePoints("\xE2\x82"), (Points{broken, broken}));
  EXPECT_EQ(codePoints("\xC3(z"), (Points{broken, '(', 'z'}));  // cut off inside
  EXPECT_EQ(codePoints("\xF0\x9F\x98z"), (Points{broken, broken, broken, 'z'}));
  EXPECT_EQ(codePoints("\xC0\x80"), (Points{broken, broken}));  // longer than needed
  EXPECT_EQ(codePoints("\xE0\x80\x80"), (Points{broken, broken, broken}));
  EXPECT_EQ(codePoints("\xF0\x80\x80\x80"), (Points{broken, broken, broken, broken}));
  EXPECT_EQ(codePoints("\xED\xA0\x80"), (Points{broken, broken, broken}));  // half a surrogate pair
  EXPECT_EQ(codePoints("\xF4\x90\x80\x80"), (Points{broken, broken, broken, broken}));  // above U+10FFFF
}

TEST(Text, AnyBytesAreCutWithoutLosingOne) {
  std::mt19937 random(17);
  for (int round = 0; round < 500; ++round) {
    std::string bytes;
    for (auto left = random() % 24; left > 0; --left) bytes += static_cast<char>(random() % 256);
    const std::size_t points = length(bytes), cut = random() % (points + 1);
    ASSERT_EQ(std::string(slice(bytes, 0, cut)) + std::string(slice(bytes, cut)), bytes);
    ASSERT_EQ(length(slice(bytes, 0, cut)), cut);
    ASSERT_EQ(length(encoded(codePoints(bytes))), points);
  }
}

TEST(Names, CompareWithoutRegardToTheCaseOfLetters) {
  EXPECT_TRUE(sameName("Damping", "dAMPING"));
  EXPECT_TRUE(sameName("", ""));
  EXPECT_FALSE(sameName("Damping", "Damping2"));
  EXPECT_FALSE(sameName("@[`{", "`{@["));  // what lies around the letters has no case
  EXPECT_TRUE(sameName("D\u00c4MPFUNG", "d\u00e4mpfung"));
  EXPECT_TRUE(sameName("\u0394p \u042f", "\u03b4P \u044f"));
  EXPECT_FALSE(sameName("\u00c4", "\u00e5"));
  EXPECT_FALSE(sameName("\u00d7", "\u00f7"));  // times and by
  EXPECT_FALSE(sameName("\xc3", "\xe3"));      // no letters at all
}

TEST(Names, ThatAreTheSameHaveTheSameHash) {
  EXPECT_EQ(nameHash("Damping_7"), nameHash("DAMPING_7"));
  EXPECT_NE(nameHash("Damping_7"), nameHash("Damping_8"));
  EXPECT_NE(nameHash("@"), nameHash("`"));
  EXPECT_EQ(nameHash("D\u00c4MPFUNG \u0394p \u042f"), nameHash("d\u00e4mpfung \u03b4P \u044f"));
  EXPECT_NE(nameHash("\xc3"), nameHash("\xe3"));
}

TEST(Names, HaveTheSameHashForTheCaseOfNoOtherBytes) {
  for (std::size_t at = 0; at < 19; ++at) {
    for (int first = 0; first < 256; ++first) {
      std::string one(19, 'x'), other = one;
      one[at] = static_cast<char>(first);
      for (const int second : {first ^ 0x20, first ^ 0x80, first}) {
        other[at] = static_cast<char>(second);
        ASSERT_EQ(nameHash(one) == nameHash(other), sameName(one, other))
            << at << ": " << first << ", " << second;
      }
    }
  }
}

TEST(Text, HasHelpersForLettersBlanksAndParts) {
  EXPECT_EQ(lowered("ABC-xyz-\u00c4"), "abc-xyz-\u00c4");
  EXPECT_EQ(trimmed(" \t a b\r\n"), "a b");
  EXPECT_EQ(trimmed(" \t\r\n"), "");
  EXPECT_EQ(trimmed(""), "");
  EXPECT_EQ(replaced("a&&b&", "&", "+"), "a++b+");
  EXPECT_EQ(replaced("aaa", "aa", "b"), "ba");
  EXPECT_EQ(replaced("aa", "a", "aa"), "aaaa");
  EXPECT_EQ(replaced("abc", "", "x"), "abc");
  EXPECT_EQ(replaced("", "a", "b"), "");
}

}  // namespace
}  // namespace qrn::text
