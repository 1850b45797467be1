#include "richtext/rtf_reader.h"

#include <gtest/gtest.h>

namespace qrn::richtext {
namespace {

Document read(std::string_view body) {
  return readRtf("{\\rtf1\\ansi" + std::string(body) + "}").value_or(Document::plain("no RTF"));
}

std::string textOf(std::string_view body) { return read(body).text(); }

CharFormat formatOf(std::string_view body) { return read(body).formatAt(0); }

ParagraphFormat paragraphOf(std::string_view body) { return read(body).paragraphFormatAt(0); }

TEST(ReadingRtf, IsRefusedForOtherText) {
  for (const char* text : {"", "abc", "{", "{\\rt", " {\\rtf1 a}", "\\rtf1", "{rtf1}"}) {
    EXPECT_FALSE(isRtf(text)) << text;
    EXPECT_FALSE(readRtf(text)) << text;
  }
  EXPECT_TRUE(readRtf("{\\rtf"));
}

TEST(ReadingRtf, GivesTheTextAndNothingOfTheHeader) {
  EXPECT_EQ(textOf(R"({\fonttbl{\f0\fswiss Arial;}}{\colortbl ;\red255\green0\blue0;}
{\stylesheet{\s0 Normal;}}{\info{\author Somebody}{\title {\b Bold}}}{\*\generator Riched20;}\f0 Help)"),
            "Help");
}

TEST(ReadingRtf, LeavesOutLineEndsBetweenWordsAndCharacters) {
  EXPECT_EQ(textOf(" He\r\nl\np"), "Help");
  EXPECT_EQ(textOf("\\b\r\nbold\\b0\n plain"), "bold plain");
}

TEST(ReadingRtf, TakesOneBlankBehindAWordAsItsEnd) { EXPECT_EQ(textOf("\\b a\\b0  b \\i c"), "a b c"); }

TEST(ReadingRtf, EndsEachParagraphTheLastOneToo) {
  EXPECT_EQ(textOf(" a\\par b\\par"), "a\r\nb");
  EXPECT_EQ(textOf(" a\\par b"), "a\r\nb");
  EXPECT_EQ(textOf(" a\\par\\par"), "a\r\n");
  EXPECT_EQ(textOf("\\par"), "");
  EXPECT_EQ(textOf(""), "");
  EXPECT_EQ(textOf(" a\\\nb\\\r\nc"), "a\r\nb\r\nc") << "a line end behind a backslash is one too";
}

TEST(ReadingRtf, KnowsBreaksTabsAndNamedCharacters) {
  EXPECT_EQ(textOf(" a\\line b\\tab c"), "a\vb\tc");
  EXPECT_EQ(textOf("\\emdash\\endash\\lquote\\rquote\\ldblquote\\rdblquote\\bullet"), "—–‘’“”•");
  EXPECT_EQ(textOf("\\{\\}\\\\a\\~b\\_c\\-d"), "{}\\a\u00a0b\u2011cd");
}

TEST(ReadingRtf, TurnsAPageOrColumnBreakIntoALineBreak) {
  EXPECT_EQ(textOf(" a\\page b\\column c"), "a\vb\vc");
}

TEST(ReadingRtf, TurnsATableIntoLinesWithTabs) {
  EXPECT_EQ(textOf("\\trowd\\intbl a\\cell b\\cell\\row\\pard c"), "a\tb\t\r\nc");
}

TEST(ReadingRtf, ReadsCharactersOfTheDocumentsCodePage) {
  EXPECT_EQ(textOf("\\'e4\\'80"), "ä€");
  EXPECT_EQ(textOf("\\ansicpg1251\\'e4"), "д");
  EXPECT_EQ(textOf("\\pca\\'84"), "ä");
  EXPECT_EQ(textOf("\\ansicpg932\\'e4A"), "\uFFFDA");
  EXPECT_EQ(textOf("\\ansicpg0\\'e4"), "ä") << "none in particular";
}

TEST(ReadingRtf, ReadsCharactersOfTheFontsCodePage) {
  constexpr const char* kFonts = R"({\fonttbl{\f0 A;}{\f1\fcharset204 B;}{\f2\fcharset0\cpg1253 C;}})";
  EXPECT_EQ(textOf(std::string(kFonts) + "\\f0\\'e4\\f1\\'e4\\f2\\'e4"), "äдδ");
  EXPECT_EQ(textOf("\\deff1" + std::string(kFonts) + "\\'e4"), "д");
}

TEST(ReadingRtf, ReadsTextInUtf8AndBrokenBytesByTheCodePage) { EXPECT_EQ(textOf(" Öl \xe4"), "Öl ä"); }

TEST(ReadingRtf, ReadsUnicodeNumbersAndSkipsWhatStandsForThem) {
  EXPECT_EQ(textOf("\\u8364?x"), "€x");
  EXPECT_EQ(textOf("\\u-10179?\\u-8704?"), "\U0001F600");
  EXPECT_EQ(textOf("\\u128512?"), "\U0001F600") << "in one number";
  EXPECT_EQ(textOf("\\uc0\\u8364 x"), "€x");
  EXPECT_EQ(textOf("\\uc2\\u8364\\'80\\'80x"), "€x");
  EXPECT_EQ(textOf("\\uc3\\u8364 a\\b bc"), "€c") << "a word counts as one";
  EXPECT_EQ(textOf("{\\uc0\\u8364 a}\\u8364 ab"), "€a€b") << "a group gives the number back";
  EXPECT_EQ(textOf("\\uc5\\u8364 a{b}c"), "€bc") << "not over the edge of a group";
  EXPECT_EQ(textOf("\\u-8704?x"), "\uFFFDx") << "half a pair";
  EXPECT_EQ(textOf("\\u99999999?x"), "\uFFFDx");
}

TEST(ReadingRtf, ReadsAPairOfHalvesOnlyWhereOneFollowsTheOther) {
  EXPECT_EQ(textOf("\\u-10179?abc\\u-8704?"), "\uFFFDabc\uFFFD");
  EXPECT_EQ(textOf("\\u-10179?\\par\\u-8704?"), "\uFFFD\r\n\uFFFD");
  EXPECT_EQ(textOf("{\\u-10179?}\\u-8704?"), "\uFFFD\uFFFD");
  EXPECT_EQ(textOf("\\u-10179?{\\u-8704?}"), "\uFFFD\uFFFD");
  EXPECT_EQ(textOf("\\u-10179?{\\v a}\\u-8704?"), "\uFFFD\uFFFD");
  EXPECT_EQ(textOf("\\u-10179?\\v0\\u-8704?"), "\uFFFD\uFFFD");
  EXPECT_EQ(textOf("\\u-10179?\\u-10179?\\u-8704?"), "\uFFFD\U0001F600");
  EXPECT_EQ(textOf("\\u-10179?\\u65?"), "\uFFFDA");
  EXPECT_EQ(textOf("\\u-10179?"), "\uFFFD");
  EXPECT_EQ(textOf("{\\v\\u-10179?}a"), "a") << "hidden, as any other character";
  EXPECT_EQ(textOf("\\uc2\\u-10179\\'3f\\'3f\\u-8704 ??"), "\U0001F600");
}

TEST(ReadingRtf, KnowsTheFormatsOfCharacters) {
  const CharFormat all = formatOf(
      R"({\fonttbl{\f3 Times New Roman;}}{\colortbl ;\red1\green2\blue3;}\f3\fs17\b\i\ul\strike\up4\cf1 x)");
  EXPECT_EQ(all.font, "Times New Roman");
  EXPECT_EQ(all.halfPoints, 17);
  EXPECT_TRUE(all.bold && all.italic && all.underline && all.strikeThrough);
  EXPECT_EQ(all.offset, 40);
  EXPECT_EQ(all.color, 0x030201U);
}

TEST(ReadingRtf, SwitchesFormatsOffAgain) {
  EXPECT_EQ(formatOf("\\b\\i\\ul\\strike\\b0\\i0\\ulnone\\strike0 x"), CharFormat());
  EXPECT_EQ(formatOf("\\b\\fs40\\up5\\plain x"), CharFormat());
  EXPECT_TRUE(formatOf("\\b1 x").bold);
  EXPECT_FALSE(formatOf("\\uldb\\ul0 x").underline);
}

TEST(ReadingRtf, RaisesAndLowers) {
  EXPECT_EQ(formatOf("\\up x").offset, 60);
  EXPECT_EQ(formatOf("\\dn8 x").offset, -80);
  EXPECT_EQ(formatOf("\\up8\\up0 x").offset, 0);
  EXPECT_EQ(formatOf("\\super\\fs24 x").offset, 80) << "a third of the size";
  EXPECT_EQ(formatOf("\\fs24\\sub x").offset, -40);
  EXPECT_EQ(formatOf("\\fs24\\super x").halfPoints, 16) << "two thirds of it";
  EXPECT_EQ(formatOf("\\super\\nosupersub x"), CharFormat());
}

TEST(ReadingRtf, GivesFormatsBackAtTheEndOfAGroup) {
  const Document document = read(" a{\\b b{\\i c}d}e");
  ASSERT_EQ(document.paragraphs()[0].runs.size(), 5U);
  EXPECT_EQ(document.formatAt(2), (CharFormat{.bold = true}));
  EXPECT_EQ(document.formatAt(3), (CharFormat{.bold = true, .italic = true}));
  EXPECT_EQ(document.formatAt(4), (CharFormat{.bold = true}));
  EXPECT_EQ(document.formatAt(5), CharFormat());
}

TEST(ReadingRtf, TakesAColourWithoutPartsOrOutsideTheTableAsTheAutomaticOne) {
  constexpr const char* kColors = R"({\colortbl ;\red9;\red300\green-5;})";
  EXPECT_EQ(formatOf(std::string(kColors) + "\\cf0 x").color, std::nullopt);
  EXPECT_EQ(formatOf(std::string(kColors) + "\\cf1 x").color, 9U);
  EXPECT_EQ(formatOf(std::string(kColors) + "\\cf2 x").color, 255U);
  EXPECT_EQ(formatOf(std::string(kColors) + "\\cf3 x").color, std::nullopt);
  EXPECT_EQ(formatOf(std::string(kColors) + "\\cf-1 x").color, std::nullopt);
}

TEST(ReadingRtf, ReadsFontTablesWithAndWithoutGroups) {
  EXPECT_EQ(formatOf(R"({\fonttbl\f0\fnil A;\f1\fnil B C;}\f1 x)").font, "B C");
  EXPECT_EQ(formatOf(R"({\fonttbl{\f0\fnil{\*\panose 020b}A{\*\falt Other};}}x)").font, "A");
  EXPECT_EQ(formatOf(R"({\fonttbl{\f0\fcharset204 \'c0;}}x)").font, "А") << "in its own code page";
  EXPECT_EQ(formatOf(R"(\f7 x)").font, "") << "not in the table";
}

TEST(ReadingRtf, KeepsNoEndlessFontName) {
  EXPECT_EQ(formatOf("{\\fonttbl{\\f0 " + std::string(1000, 'a') + ";}}x").font,
            std::string(kLongestFontName, 'a'));
}

TEST(ReadingRtf, KnowsTheFormatsOfParagraphs) {
  EXPECT_EQ(paragraphOf("\\qr x").alignment, Alignment::Right);
  EXPECT_EQ(paragraphOf("\\qc x").alignment, Alignment::Centre);
  EXPECT_EQ(paragraphOf("\\qc\\qj x").alignment, Alignment::Left);
  EXPECT_EQ(paragraphOf("\\ri300 x").rightIndent, 300);
  EXPECT_EQ(paragraphOf("\\tx1440\\tx720\\tx720 x").tabStops, (std::vector<std::int32_t>{720, 1440}));
  EXPECT_EQ(paragraphOf("\\qc\\li5\\tx5\\pard x"), ParagraphFormat());
}

TEST(ReadingRtf, CountsTheFirstLinesIndentFromTheEdge) {
  const ParagraphFormat hanging = paragraphOf("\\li720\\fi-360 x");
  EXPECT_EQ(hanging.leftIndent, 360);
  EXPECT_EQ(hanging.hangingIndent, 360);
  const ParagraphFormat indented = paragraphOf("\\fi200 x");
  EXPECT_EQ(indented.leftIndent, 200);
  EXPECT_EQ(indented.hangingIndent, -200);
}

TEST(ReadingRtf, GivesAParagraphTheFormatAtItsEnd) {
  const Document document = read("\\qc a\\par\\pard b\\qr\\par c");
  EXPECT_EQ(document.paragraphs()[0].format.alignment, Alignment::Centre);
  EXPECT_EQ(document.paragraphs()[1].format.alignment, Alignment::Right);
  EXPECT_EQ(document.paragraphs()[2].format.alignment, Alignment::Right);
}

TEST(ReadingRtf, KnowsBulletsAndDoesNotShowTheirText) {
  const Document document =
      read(R"(\pard{\pntext\f1\'B7\tab}{\*\pn\pnlvlblt\pnf1\pnindent0{\pntxtb\'B7}}\fi-200\li200 a\par)"
           R"({\pntext\f1\'B7\tab}b\par \pard c)");
  EXPECT_EQ(document.text(), "a\r\nb\r\nc");
  EXPECT_TRUE(document.paragraphs()[0].format.bullet);
  EXPECT_TRUE(document.paragraphs()[1].format.bullet);
  EXPECT_FALSE(document.paragraphs()[2].format.bullet);
  EXPECT_FALSE(paragraphOf(R"({\*\pn\pnlvlbody\pndec{\pntxta .}}x)").bullet) << "a number is none";
}

TEST(ReadingRtf, SkipsWhatIsNoText) {
  for (const char* hidden :
       {"{\\*\\unknown no {\\b no} no}", "{\\pict\\wmetafile8 0102}",
        "{\\object{\\*\\objdata 00}{\\result no}}", "{\\header no}", "{\\footnote no}",
        "{\\field{\\*\\fldinst LINK no}}", "{\\v no}", "{\\*\\b no}", "{\\pict\\bin4 }}{{}", "{\\xe no}",
        "{\\stylesheet no{\\s1 no;}}", "{\\*\\bkmkstart no}"}) {
    EXPECT_EQ(textOf(" a" + std::string(hidden) + "b"), "ab") << hidden;
  }
}

TEST(ReadingRtf, SkipsNothingBehindAStarThatMarksNoWord) {
  EXPECT_EQ(textOf("\\* a\\b c"), " ac");
  EXPECT_EQ(textOf("\\*\\'e4\\b c"), "äc");
  EXPECT_EQ(textOf("\\*\\~\\b c"), "\u00a0c");
}

TEST(ReadingRtf, ShowsTheResultOfAField) {
  EXPECT_EQ(textOf(R"({\field{\*\fldinst HYPERLINK "x"}{\fldrslt{\ul link}}} b)"), "link b");
}

TEST(ReadingRtf, GoesOverBinaryBytes) {
  EXPECT_EQ(textOf(" a\\bin3 }}}b"), "ab");
  EXPECT_EQ(textOf(" a\\bin-3 b"), "ab");
  EXPECT_EQ(readRtf("{\\rtf1 a\\bin100000000 b}")->text(), "a");
}

TEST(ReadingRtf, EndsWithTheGroupOfTheDocument) { EXPECT_EQ(readRtf("{\\rtf1 a}b{\\rtf1 c}")->text(), "a"); }

}  // namespace
}  // namespace qrn::richtext
