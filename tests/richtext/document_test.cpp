#include "richtext/document.h"

#include <gtest/gtest.h>

#include "base/text.h"

namespace qrn::richtext {
namespace {

const CharFormat kPlain{.font = "Sans", .halfPoints = 18};
const CharFormat kBold{.font = "Sans", .halfPoints = 18, .bold = true};
const ParagraphFormat kCentred{.alignment = Alignment::Centre};

/// The runs of all paragraphs, bold ones in stars, with a bar at each paragraph end.
std::string shown(const Document& document) {
  std::string result;
  for (const Paragraph& paragraph : document.paragraphs()) {
    if (&paragraph != &document.paragraphs().front()) result += "|";
    for (const Run& run : paragraph.runs)
      result += run.format.bold ? "*" + run.text + "*" : "(" + run.text + ")";
  }
  return result;
}

TEST(Documents, StartWithOneEmptyParagraph) {
  EXPECT_EQ(Document().paragraphs().size(), 1U);
  EXPECT_EQ(Document().text(), "");
  EXPECT_EQ(Document().length(), 0U);
}

TEST(Documents, OfPlainTextHaveAParagraphForEachLine) {
  const Document document = Document::plain("a\r\nb\rc\nd\n\re", kPlain, kCentred);
  EXPECT_EQ(document.text(), "a\r\nb\r\nc\r\nd\r\n\r\ne");
  for (const Paragraph& paragraph : document.paragraphs()) {
    EXPECT_EQ(paragraph.format, kCentred);
    EXPECT_EQ(paragraph.end, kPlain);
  }
}

TEST(Documents, OfPlainTextKeepTabsAndLineBreaksButNoOtherControlCharacter) {
  EXPECT_EQ(Document::plain(std::string_view("a\tb\vc\x01\x00\x1b", 8)).text(), "a\tb\vc");
}

TEST(Documents, CountCodePointsAndTwoForAParagraphEnd) {
  const Document document = Document::plain("äö\r\n€");
  EXPECT_EQ(document.length(), 5U);
  EXPECT_EQ(document.length(), text::length(document.text()));
  EXPECT_EQ(document.part({0, 2}).text(), "äö");
  EXPECT_EQ(document.part({4, 1}).text(), "€");
  EXPECT_EQ(document.part({2, 2}).text(), "\r\n");
}

TEST(Documents, TakeAPositionInsideAParagraphEndAsTheOneBeforeIt) {
  const Document document = Document::plain("ab\r\nc");
  EXPECT_EQ(document.settled(2), 2U);
  EXPECT_EQ(document.settled(3), 2U);
  EXPECT_EQ(document.settled(4), 4U);
  EXPECT_EQ(document.part({0, 3}).text(), "ab");
  EXPECT_EQ(document.part({3, 2}).text(), "\r\nc");
}

TEST(Documents, TakeAPositionBehindTheEndAsTheEnd) {
  const Document document = Document::plain("ab");
  EXPECT_EQ(document.settled(10000000), 2U);
  EXPECT_EQ(document.part({1, static_cast<std::size_t>(-1)}).text(), "b");
}

TEST(Documents, SplitRunsWhereAFormatStartsAndEnds) {
  Document document = Document::plain("abcdef", kPlain);
  document.set({2, 2}, &CharFormat::bold, true);
  EXPECT_EQ(shown(document), "(ab)*cd*(ef)");
}

TEST(Documents, JoinRunsThatBecomeTheSame) {
  Document document = Document::plain("abcdef", kPlain);
  document.set({2, 2}, &CharFormat::bold, true);
  document.set({0, 2}, &CharFormat::bold, true);
  EXPECT_EQ(shown(document), "*abcd*(ef)");
  document.set({0, 6}, &CharFormat::bold, false);
  EXPECT_EQ(shown(document), "(abcdef)");
}

TEST(Documents, FormatOverParagraphEnds) {
  Document document = Document::plain("ab\r\ncd\r\nef", kPlain);
  document.set({1, 7}, &CharFormat::bold, true);
  EXPECT_EQ(shown(document), "(a)*b*|*cd*|(ef)");
  EXPECT_TRUE(document.paragraphs()[0].end.bold);
  EXPECT_TRUE(document.paragraphs()[1].end.bold);
  EXPECT_FALSE(document.paragraphs()[2].end.bold);
}

TEST(Documents, FormatTheLastParagraphEndWithTheLastCharacter) {
  Document document = Document::plain("ab", kPlain);
  document.set({0, 1}, &CharFormat::bold, true);
  EXPECT_FALSE(document.paragraphs()[0].end.bold);
  document.set({1, 1}, &CharFormat::bold, true);
  EXPECT_TRUE(document.paragraphs()[0].end.bold);
}

TEST(Documents, AreUnchangedByFormattingAnEmptyRange) {
  Document document = Document::plain("ab", kPlain);
  document.set({2, 0}, &CharFormat::bold, true);
  document.set({1, 0}, &CharFormat::bold, true);
  EXPECT_EQ(document, Document::plain("ab", kPlain));
}

TEST(Documents, KnowWhatTheCharactersOfARangeHaveInCommon) {
  Document document = Document::plain("abcdef", kPlain);
  document.set({2, 2}, &CharFormat::bold, true);
  EXPECT_EQ(document.uniform({0, 2}, &CharFormat::bold), false);
  EXPECT_EQ(document.uniform({2, 2}, &CharFormat::bold), true);
  EXPECT_EQ(document.uniform({1, 2}, &CharFormat::bold), std::nullopt);
  EXPECT_EQ(document.uniform({0, 6}, &CharFormat::font), "Sans");
}

TEST(Documents, CompareCharactersOnlyAndNotTheParagraphEnds) {
  Document document = Document::plain("ab\r\ncd", kPlain);
  document.set({0, 2}, &CharFormat::bold, true);
  document.set({4, 2}, &CharFormat::bold, true);
  EXPECT_EQ(document.uniform({0, 6}, &CharFormat::bold), true);
  EXPECT_EQ(document.uniform({2, 2}, &CharFormat::bold), true) << "as text inserted there would be";
}

TEST(Documents, TellTheColoursOfARangeFromTheAutomaticOne) {
  Document document = Document::plain("ab", kPlain);
  EXPECT_EQ(document.uniform({0, 2}, &CharFormat::color).value(), std::nullopt);
  document.set({0, 1}, &CharFormat::color, std::optional<std::uint32_t>(0xFF));
  EXPECT_FALSE(document.uniform({0, 2}, &CharFormat::color).has_value());
  EXPECT_EQ(document.uniform({0, 1}, &CharFormat::color), std::optional<std::uint32_t>(0xFF));
}

TEST(Documents, GiveInsertedTextTheFormatOfTheCharacterBefore) {
  Document document = Document::plain("ab\r\ncd\r\n", kPlain);
  document.set({0, 2}, &CharFormat::bold, true);
  EXPECT_TRUE(document.formatAt(0).bold) << "at the start the one behind counts";
  EXPECT_TRUE(document.formatAt(2).bold);
  EXPECT_FALSE(document.formatAt(4).bold);
  EXPECT_EQ(document.formatAt(8), kPlain) << "an empty paragraph's is that of its end";
}

TEST(Documents, FormatAllParagraphsThatARangeTouches) {
  Document document = Document::plain("ab\r\ncd\r\nef", kPlain);
  document.set({1, 4}, &ParagraphFormat::alignment, Alignment::Right);
  EXPECT_EQ(document.paragraphFormatAt(0).alignment, Alignment::Right);
  EXPECT_EQ(document.paragraphFormatAt(6).alignment, Alignment::Right);
  EXPECT_EQ(document.paragraphFormatAt(8).alignment, Alignment::Left);
  EXPECT_EQ(document.uniform({0, 6}, &ParagraphFormat::alignment), Alignment::Right);
  EXPECT_EQ(document.uniform({0, 10}, &ParagraphFormat::alignment), std::nullopt);
  document.set({8, 0}, &ParagraphFormat::bullet, true);
  EXPECT_EQ(document.uniform({8, 0}, &ParagraphFormat::bullet), true) << "an insertion point is in one";
}

TEST(Replacing, InsideAParagraphLeavesItsFormat) {
  Document document = Document::plain("abcd", kPlain, kCentred);
  document.replace({1, 2}, Document::plain("XYZ", kBold));
  EXPECT_EQ(shown(document), "(a)*XYZ*(d)");
  EXPECT_EQ(document.paragraphs()[0].format, kCentred);
  EXPECT_EQ(document.paragraphs()[0].end, kPlain);
}

TEST(Replacing, JoinsRunsAtBothEnds) {
  Document document = Document::plain("abcd", kPlain);
  document.replace({1, 2}, Document::plain("X", kPlain));
  EXPECT_EQ(shown(document), "(aXd)");
}

TEST(Replacing, AParagraphEndByNothingJoinsTheParagraphs) {
  Document document = Document::plain("ab\r\ncd", kPlain);
  document.set({0, 0}, &ParagraphFormat::alignment, Alignment::Centre);
  document.replace({2, 2}, Document());
  EXPECT_EQ(shown(document), "(abcd)");
  EXPECT_EQ(document.paragraphFormatAt(0).alignment, Alignment::Centre) << "the first one goes on";
}

TEST(Replacing, WholeParagraphsByNothingLeavesTheNextOneAsItIs) {
  Document document = Document::plain("ab\r\ncd", kPlain);
  document.set({4, 0}, &ParagraphFormat::alignment, Alignment::Centre);
  document.replace({0, 4}, Document());
  EXPECT_EQ(shown(document), "(cd)");
  EXPECT_EQ(document.paragraphFormatAt(0).alignment, Alignment::Centre);
}

TEST(Replacing, ByParagraphsSplitsTheOneAround) {
  Document document = Document::plain("abcd", kPlain, kCentred);
  document.replace({2, 0}, Document::plain("X\r\nY\r\nZ", kBold));
  EXPECT_EQ(shown(document), "(ab)*X*|*Y*|*Z*(cd)");
  EXPECT_EQ(document.paragraphs()[0].format, kCentred);
  EXPECT_EQ(document.paragraphs()[1].format, ParagraphFormat()) << "brings its own format";
  EXPECT_EQ(document.paragraphs()[2].format, kCentred);
}

TEST(Replacing, EverythingGivesTheOtherDocument) {
  Document other = Document::plain("X\r\nY", kBold, kCentred);
  for (const char* before : {"", "ab", "ab\r\ncd", "\r\n"}) {
    Document document = Document::plain(before, kPlain);
    document.replace({0, document.length()}, other);
    EXPECT_EQ(document, other) << before;
  }
}

TEST(Replacing, EverythingByNothingKeepsTheFormatOfWhatWasThere) {
  Document document = Document::plain("ab", kBold, kCentred);
  document.replace({0, 2}, Document());
  EXPECT_EQ(document, Document::plain("", kBold, kCentred));
}

TEST(Replacing, BehindTheEndAppends) {
  Document document = Document::plain("ab", kPlain);
  document.replace({10000000, 0}, Document::plain("cd", kPlain));
  EXPECT_EQ(document, Document::plain("abcd", kPlain));
}

TEST(Replacing, APartByItselfChangesNothing) {
  Document document = Document::plain("ab\r\ncd\r\n\r\nef", kPlain);
  document.set({1, 4}, &CharFormat::italic, true);
  document.set({4, 0}, &ParagraphFormat::bullet, true);
  const Document before = document;
  for (std::size_t start = 0; start <= before.length(); ++start) {
    for (std::size_t length = 0; start + length <= before.length(); ++length) {
      document.replace({start, length}, before.part({start, length}));
      EXPECT_EQ(document, before) << start << " and " << length;
    }
  }
}

}  // namespace
}  // namespace qrn::richtext
