// RTF that is cut off, broken or made to do harm.
#include <gtest/gtest.h>

#include "base/text.h"
#include "richtext/rtf_reader.h"
#include "runtime/random_input.h"

namespace qrn::richtext {
namespace {

std::string repeated(std::string_view piece, std::size_t times) {
  std::string result;
  for (; times > 0; --times) result += piece;
  return result;
}

TEST(HostileRtf, MayNestTenThousandGroups) {
  const std::string deep = "{\\rtf1" + repeated("{\\b a", 10000) + repeated("}", 10000) + "b}";
  const Document document = *readRtf(deep);
  EXPECT_EQ(document.text(), std::string(10000, 'a') + "b");
  EXPECT_EQ(document.paragraphs()[0].runs.size(), 2U) << "the last letter is not bold";
}

TEST(HostileRtf, MayOpenMoreGroupsThanAreKept) {
  EXPECT_EQ(readRtf("{\\rtf1 a" + std::string(1000000, '{') + "b" + std::string(1000000, '}') + "c}")->text(),
            "abc");
  EXPECT_EQ(readRtf("{\\rtf1 a" + std::string(1000000, '{'))->text(), "a");
}

TEST(HostileRtf, GivesWhatStandsBeforeTheCut) {
  for (const char* cut :
       {"{", "}", "\\", "\\'", "\\'e", "\\bin9 x", "\\par", "{\\*", "{\\*\\x y", "{\\pict 01", "\\b",
        "{\\fonttbl{\\f0 Sa", "{\\colortbl;\\red", "{\\*\\pn\\pnlvlblt", "\\u-10179", "\\u", "{{{"}) {
    EXPECT_EQ(readRtf("{\\rtf1 a\\par b" + std::string(cut))->text(), "a\r\nb") << cut;
  }
}

TEST(HostileRtf, MayBeCutAnywhere) {
  const std::string whole =
      R"({\rtf1\ansi{\fonttbl{\f0\fcharset0 Sans;}}{\colortbl ;\red1;}\f0\b ab\par \u8364?\'e4{\*\x y}\bin2 zzc})";
  for (std::size_t length = whole.find("ab") + 2; length <= whole.size(); ++length)
    EXPECT_TRUE(readRtf(std::string_view(whole).substr(0, length))->text().starts_with("ab")) << length;
  EXPECT_EQ(readRtf(whole)->text(), "ab\r\n€äc");
}

TEST(HostileRtf, HasNoNumberThatIsTooLarge) {
  constexpr const char* kHuge = "99999999999999999999999999";
  for (const char* word :
       {"b", "f", "fs", "up", "dn", "cf", "li", "fi", "ri", "tx", "u", "uc", "deff", "ansicpg", "par"}) {
    for (const char* sign : {"", "-"}) {
      const std::string rtf = "{\\rtf1\\" + std::string(word) + sign + kHuge + " a}";
      const Document document = *readRtf(rtf);
      const CharFormat& format = document.formatAt(0);
      const ParagraphFormat& paragraph = document.paragraphFormatAt(0);
      EXPECT_LE(document.length(), 3U) << rtf;
      EXPECT_TRUE(format.halfPoints > 0 && format.halfPoints <= kMostHalfPoints) << rtf;
      EXPECT_LE(std::abs(format.offset), kMostTwips) << rtf;
      EXPECT_LE(std::abs(paragraph.leftIndent), kMostTwips) << rtf;
      EXPECT_LE(std::abs(paragraph.hangingIndent), kMostTwips) << rtf;
      EXPECT_LE(std::abs(paragraph.rightIndent), kMostTwips) << rtf;
    }
  }
}

TEST(HostileRtf, KeepsNoEndlessListOfTabStops) {
  std::string rtf = "{\\rtf1";
  for (int i = 0; i < 1000; ++i) rtf += "\\tx" + std::to_string(i);
  EXPECT_EQ(readRtf(rtf + " a}")->paragraphFormatAt(0).tabStops.size(), kMostTabStops);
}

class RandomRtf : public test::RandomInput {};

TEST_F(RandomRtf, OfBytesIsReadWithoutHarm) {
  for (int i = 0; i < 2000; ++i) {
    const Document document = *readRtf("{\\rtf1" + bytes(200));
    EXPECT_EQ(document.length(), text::length(document.text()));
  }
}

TEST_F(RandomRtf, OfPiecesIsReadWithoutHarm) {
  constexpr std::string_view kPieces[] = {
      "{",          "}",       "\\",    "\\*",    "\\par",   "\\b",     "\\b0",  "\\u",
      "\\u-10179",  "\\uc3",   "\\'",   "\\'e",   "\\'e4",   "\\bin5 ", "\\pn",  "\\fonttbl",
      "\\colortbl", "\\f1",    "\\cf1", "Arial;", "\\red9;", "\\tx",    "\\fi-", "\\li7",
      "\\up2",      "\\super", "text",  " ",      "\r\n",    "\xe4",    "ä",     "\\pnlvlblt"};
  for (int i = 0; i < 5000; ++i) {
    std::string rtf = "{\\rtf1";
    for (std::size_t pieces = below(40); pieces > 0; --pieces) rtf += oneOf(kPieces);
    const Document document = *readRtf(rtf);
    EXPECT_EQ(document.length(), text::length(document.text())) << rtf;
  }
}

}  // namespace
}  // namespace qrn::richtext
