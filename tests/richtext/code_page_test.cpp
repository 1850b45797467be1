#include "richtext/code_page.h"

#include <gtest/gtest.h>

namespace qrn::richtext {
namespace {

TEST(CodePages, AreAsciiBelow128) {
  for (const int page : {1252, 1251, 932, 0, -5}) EXPECT_EQ(characterOf('A', page), U'A') << page;
}

TEST(CodePages, GiveTheSameByteDifferentCharacters) {
  EXPECT_EQ(characterOf(0xE4, 1252), U'ä');
  EXPECT_EQ(characterOf(0xE4, 1251), U'д');
  EXPECT_EQ(characterOf(0xE4, 1253), U'δ');
  EXPECT_EQ(characterOf(0xE8, 1250), U'č');
  EXPECT_EQ(characterOf(0xFD, 1254), U'ı');
  EXPECT_EQ(characterOf(0xE0, 1255), U'א');
  EXPECT_EQ(characterOf(0xC7, 1256), U'ا');
  EXPECT_EQ(characterOf(0xE0, 1257), U'ą');
  EXPECT_EQ(characterOf(0xFE, 1258), U'₫');
  EXPECT_EQ(characterOf(0xA1, 874), U'ก');
  EXPECT_EQ(characterOf(0x84, 437), U'ä');
  EXPECT_EQ(characterOf(0x9B, 850), U'ø');
  EXPECT_EQ(characterOf(0x8A, 10000), U'ä');
  EXPECT_EQ(characterOf(0x80, 1252), U'€');
}

TEST(CodePages, HaveNothingForUnusedBytesAndUnknownPages) {
  EXPECT_EQ(characterOf(0x81, 1252), 0xFFFDU);
  EXPECT_EQ(characterOf(0xE4, 932), 0xFFFDU);
  EXPECT_EQ(characterOf(0xE4, 99999), 0xFFFDU);
}

TEST(CodePages, FollowFromTheCharacterSetOfAFont) {
  EXPECT_EQ(pageOfCharset(204, 1252), 1251);
  EXPECT_EQ(pageOfCharset(238, 1252), 1250);
  EXPECT_EQ(pageOfCharset(0, 1252), 1252);
  EXPECT_EQ(pageOfCharset(2, 1252), 1252) << "symbols";
  EXPECT_EQ(pageOfCharset(-1, 1251), 1251);
}

}  // namespace
}  // namespace qrn::richtext
