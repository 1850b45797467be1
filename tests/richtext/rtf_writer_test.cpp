#include "richtext/rtf_writer.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "richtext/rtf_reader.h"
#include "runtime/random_input.h"

namespace qrn::richtext {
namespace {

const CharFormat kSans{.font = "Sans", .halfPoints = 18};

std::string bodyOf(const Document& document) {
  const std::string rtf = writeRtf(document);
  return rtf.substr(rtf.find('\n') + 1);
}

TEST(WritingRtf, StartsWithTheFontsAndEndsEachParagraph) {
  EXPECT_EQ(writeRtf(Document::plain("a\r\nb", kSans)),
            "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil Sans;}}\r\n\\fs18 a\\par\r\nb\\par\r\n}");
}

TEST(WritingRtf, SaysOnlyWhatChanges) {
  Document document = Document::plain("abcd", {});
  document.set({1, 2}, &CharFormat::bold, true);
  document.set({2, 1}, &CharFormat::color, std::optional<std::uint32_t>(0x0000FF));
  EXPECT_EQ(bodyOf(document), "a\\b b\\cf1 c\\cf0\\b0 d\\par\r\n}");
}

TEST(WritingRtf, EscapesWhatIsNotAsciiOrMeansSomething) {
  EXPECT_EQ(bodyOf(Document::plain("{\\}ä€\U0001F600\t\v1")),
            "\\{\\\\\\}\\u228?\\u8364?\\u-10179?\\u-8704?\\tab \\line 1\\par\r\n}");
}

TEST(WritingRtf, DescribesBulletsForOldAndNewReaders) {
  Document document = Document::plain("a\r\nb");
  document.set({0, 4}, &ParagraphFormat::bullet, true);
  EXPECT_EQ(bodyOf(document),
            "\\pard{\\*\\pn\\pnlvlblt\\pnindent0{\\pntxtb\\'b7}}{\\pntext\\'b7\\tab}a\\par\r\n"
            "{\\pntext\\'b7\\tab}b\\par\r\n}");
}

TEST(WritingRtf, ReadsBackAnyText) {
  for (const char* text :
       {"", "\r\n", "a\r\n\r\n", " a ", "\\par", "0 -1", "\t\v", "ä\r\n€", "?\U0001F600?", "{", ";"}) {
    const Document document = Document::plain(text, kSans);
    EXPECT_EQ(readRtf(writeRtf(document)), document) << text;
  }
}

TEST(WritingRtf, ReadsBackAnyFontName) {
  for (const char* font : {"", " ", "A;B", "{\\", "Ä", "1", "\U0001F600", "\\par"}) {
    const Document document = Document::plain("a", {.font = font});
    EXPECT_EQ(readRtf(writeRtf(document)), document) << font;
  }
}

/// Documents of any formats that RTF can say.
class RandomDocuments : public test::RandomInput {
 protected:
  CharFormat format() {
    constexpr const char* kFonts[] = {"Sans", "Times New Roman", "", "Grün; {1}"};
    CharFormat result;
    result.font = oneOf(kFonts);
    result.halfPoints = toss() ? 24 : static_cast<std::int32_t>(1 + below(kMostHalfPoints));
    if (toss()) result.offset = length() / kTwipsPerHalfPoint * kTwipsPerHalfPoint;
    if (toss()) result.color = static_cast<std::uint32_t>(below(toss() ? 3 : 0x1000000));
    result.bold = toss();
    result.italic = toss();
    result.underline = toss();
    result.strikeThrough = toss();
    return result;
  }

  std::int32_t length() { return static_cast<std::int32_t>(below(2 * kMostTwips + 1)) - kMostTwips; }

  ParagraphFormat paragraphFormat() {
    ParagraphFormat result;
    if (toss()) return result;
    result.alignment = static_cast<Alignment>(below(3));
    result.bullet = toss();
    result.leftIndent = length();
    result.hangingIndent = length();
    result.rightIndent = length();
    for (std::size_t stops = below(kMostTabStops + 1); stops > 0; --stops)
      result.tabStops.push_back(static_cast<std::int32_t>(below(kMostTwips + 1)));
    std::sort(result.tabStops.begin(), result.tabStops.end());
    result.tabStops.erase(std::unique(result.tabStops.begin(), result.tabStops.end()), result.tabStops.end());
    return result;
  }

  std::string text() {
    constexpr std::string_view kParts[] = {"a",          "B ", "\\", "{", "}", "\t", "\v",   "ä",     "€",
                                           "\U0001F600", "'",  "-1", "0", "*", ";",  "\x7f", "\u00a0"};
    std::string result;
    for (std::size_t parts = below(8); parts > 0; --parts) result += oneOf(kParts);
    return result;
  }

  Document document() {
    std::vector<Paragraph> paragraphs(1 + below(6));
    for (Paragraph& paragraph : paragraphs) {
      paragraph.format = paragraphFormat();
      paragraph.end = format();
      for (std::size_t runs = below(5); runs > 0; --runs) paragraph.append(text(), format());
    }
    return Document(std::move(paragraphs));
  }
};

TEST_F(RandomDocuments, AreReadBackAsTheyWere) {
  for (int i = 0; i < 2000; ++i) {
    const Document written = document();
    const std::string rtf = writeRtf(written);
    ASSERT_EQ(readRtf(rtf), written) << rtf;
  }
}

TEST_F(RandomDocuments, ConsistOfTheirParts) {
  for (int i = 0; i < 2000; ++i) {
    const Document whole = document();
    const std::size_t middle = whole.settled(below(whole.length() + 1));
    Document joined = whole.part({0, middle});
    joined.replace({middle, 0}, whole.part({middle, whole.length()}));
    EXPECT_EQ(joined.text(), whole.text());
    EXPECT_EQ(joined.length(), whole.length());
  }
}

}  // namespace
}  // namespace qrn::richtext
