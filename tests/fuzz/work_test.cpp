// How much work hostile patterns and texts of 100,000 characters can make.
#include <gtest/gtest.h>

#include "host/rich_text_layout.h"
#include "platform/headless/headless_platform.h"
#include "richtext/rtf_reader.h"
#include "richtext/rtf_writer.h"
#include "runtime/conversions.h"
#include "runtime/errors.h"
#include "runtime/format.h"
#include "runtime/like.h"
#include "runtime/val.h"
#include "support/work.h"

namespace qrn::test {
namespace {

constexpr std::size_t kLength = 50000;  // and then twice as much

std::string repeated(std::string_view piece, std::size_t length) {
  std::string text;
  while (text.size() < length) text += piece;
  return text;
}

TEST(Work, IsCounted) {
  const LikePattern pattern("*b");
  const std::uint64_t steps = stepsOf([&] { pattern.matches(std::string(1000, 'a')); });
  EXPECT_GT(steps, 1000U);
  EXPECT_LT(steps, 100000U);
}

TEST(Work, ThatGrowsWithTheSquareIsNoticed) {
  const auto everyPrefix = [](std::string_view text) {
    for (std::size_t end = 0; end < text.size(); ++end) Val(text.substr(0, end));
  };
  EXPECT_NE(brokenGrowth("00", 200, everyPrefix), "");
  EXPECT_EQ(brokenGrowth("00", 200, [](std::string_view text) { Val(text); }), "");
}

TEST(Work, OfAFormatGrowsNoFasterThanItsPattern) {
  const Variant values[] = {Variant(-1234567.891), Variant(CDec("79228162514264337593543950335")),
                            Variant(Date{36526.7}), Variant("text")};
  for (const char* piece :
       {"0",       "#",      ",",     "0,",   "0,,.",   "%",     ".",      "0.",       ";",     "0;",
        "\"",      "\"a\"",  "\\",    "\\\"", "E",      "E+",    "E+0",    "e-#",      "0E+0",  "d",
        "dd",      "dddddd", "m",     "h",    "hm",     "h:m",   "y",      "yyyy",     "q",     "ww",
        "t",       "ttttt",  "tttt",  "c",    "A/P",    "AM/PM", "AM/",    "a",        "/",     ":",
        "@",       "&",      "!",     "<>",   "@;",     "@&!",   "\xff",   "\xc3\xa4", "0\xff", "[",
        "General", "x0#,%",  "#,##0", "()",   "d\"0\"", "s\\;",  "0\"\"#", "AMPMh"}) {
    for (const Variant& value : values) {
      const auto format = [&](std::string_view pattern) {
        ignoringErrors([&] { static_cast<void>(Format(value, pattern)); });
      };
      EXPECT_EQ(brokenGrowth(piece, kLength, format), "") << piece << " for " << typeName(value.type());
    }
  }
}

TEST(Work, OfAFormatGrowsNoFasterThanItsText) {
  for (const char* pattern :
       {"@", "!@@@", ">", "<&", "0.00", "#,##0;(0)", "yyyy-mm-dd", "Currency", "Yes/No"}) {
    const CompiledFormat format(pattern);
    for (const char* piece : {"a", "1", "1,", "-", "(", "1/", "\xff", "\xc3\x84", " ", "Jan ", "12:"}) {
      const auto apply = [&](std::string_view text) {
        ignoringErrors([&] { static_cast<void>(format.apply(Variant(text))); });
      };
      EXPECT_EQ(brokenGrowth(piece, kLength, apply), "") << pattern << " of " << piece;
    }
  }
}

TEST(Work, ToReadALikePatternGrowsNoFasterThanThePattern) {
  for (const char* piece :
       {"a",  "?",  "*",  "#",     "[", "]",    "[]",       "[a]",    "[!a]", "[a-z]", "[a-zA-Z0-9]",
        "[!", "[a", "*a", "[z-a]", "-", "\xff", "\xc3\xa4", "[\xff]", "[]]",  "[[]"}) {
    const auto read = [](std::string_view pattern) { ignoringErrors([&] { LikePattern{pattern}; }); };
    EXPECT_EQ(brokenGrowth(piece, kLength, read), "") << piece;
  }
  const auto readOneList = [](std::string_view list) { LikePattern("[" + std::string(list) + "]"); };
  for (const char* piece : {"a", "a-z", "-", "!", "[", "\xff"})
    EXPECT_EQ(brokenGrowth(piece, kLength, readOneList), "") << piece;
}

TEST(Work, OfLikeIsAtMostTextTimesPattern) {
  constexpr std::uint64_t kSteps = 100;  // for one character against another, checks of a sanitizer included
  const struct {
    std::string text, pattern;
  } hostile[] = {
      {repeated("a", 100), repeated("*a", 100000) + "b"},
      {repeated("a", 100), repeated("*", 100000) + "b"},
      {repeated("a", 100), repeated("?", 100000)},
      {repeated("a", 100000), "*a*a*a*a*a*a*a*a*b"},
      {repeated("a", 100000), "*?*?*?*?*?*?*?*b"},
      {repeated("ab", 100000), "*[!c]*[!d]*[!e]*abc"},
      {repeated("a", 100000), "*" + repeated("a", 50) + "b"},
      {repeated("a", 100000), "*" + repeated("a", 50) + "*b"},
      {repeated("a", 1000), repeated("*a", 1000) + "*b"},
      {repeated("a", 1000), "*[" + repeated("b", 1000) + "]"},
      {repeated("\xff", 100000), "*\xff\xff\xff*b"},
      {"", repeated("*", 100000)},
      {repeated("a", 100000), ""},
  };
  for (const auto& [text, pattern] : hostile) {
    const std::uint64_t steps = stepsOf([&, &t = text, &p = pattern] { Like(t, p); });
    const std::uint64_t most = kSteps * (text.size() + 1) * (pattern.size() + 1);
    EXPECT_LE(steps, most) << text.size() << " like " << pattern.substr(0, 40);
  }
}

TEST(Work, OfReadingNumbersAndDatesGrowsNoFasterThanTheText) {
  for (const char* piece :
       {"1",    "0",        "9",  ",",  "1,", ".",   "-",    "(",    ")",        "$",  "\u20ac", " ",
        "\t",   "\xc2\xa0", "e",  "1e", "&",  "&H",  "F",    "&O",   "&HF",      "1 ", "/",      "1/",
        "1/2/", ":",        "1:", "a",  "A ", "Jan", "Mon ", "\xff", "\xc3\xa4", "T",  "True",   "1.5e5"}) {
    for (const char* start : {"", "1", "0.", "&H", "1e", "1e-", "(", "$-", "Jan 5, 2000 "}) {
      const auto convert = [&](std::string_view end) {
        const std::string text = start + std::string(end);
        const Variant value(text);
        ignoringErrors([&] { CBool(value); });
        ignoringErrors([&] { CLng(value); });
        ignoringErrors([&] { CDbl(value); });
        ignoringErrors([&] { CCur(value); });
        ignoringErrors([&] { CDec(value); });
        ignoringErrors([&] { CDate(value); });
        ignoringErrors([&] { Val(text); });
      };
      EXPECT_EQ(brokenGrowth(piece, kLength, convert), "") << start << " and then " << piece;
    }
  }
}

TEST(Work, OfReadingRichTextGrowsNoFasterThanTheText) {
  for (const char* piece : {"{",
                            "}",
                            "{}",
                            "{\\b a}",
                            "\\",
                            "\\par",
                            "\\par ",
                            "\\b a\\b0 b",
                            "a",
                            "a b ",
                            "\xff",
                            "\xc3\xa4",
                            "\\'e4",
                            "\\'",
                            "\\u8364?",
                            "\\uc9\\u8364 ",
                            "\\*",
                            "{\\*\\x a",
                            "\\tx9",
                            "\\tx9\\par",
                            "\\f1 a",
                            "\\bin1 a",
                            "\\bin9",
                            "{\\pict",
                            "{\\fonttbl{\\f0 A;}}",
                            "{\\fonttbl",
                            "\\cf1a",
                            "{\\colortbl;}",
                            "\\b",
                            "letters",
                            "9",
                            "-",
                            "{\\*\\pn\\pnlvlblt}",
                            "\r\n"}) {
    for (const char* start :
         {"", "{\\fonttbl", "{\\fonttbl{\\f0 ", "{\\colortbl", "{\\*\\x", "\\uc100000", "\\b"}) {
      const auto read = [&](std::string_view end) {
        richtext::readRtf("{\\rtf1" + std::string(start) + std::string(end));
      };
      EXPECT_EQ(brokenGrowth(piece, kLength, read), "") << start << " and then " << piece;
    }
  }
}

TEST(Work, OfReadingAMegabyteOfRichTextIsBounded) {
  constexpr std::uint64_t kSteps = 2000;  // for one byte, checks of a sanitizer included
  for (const char* piece : {"{\\b a}", "\\par", "{", "\\f0a\\f1b", "a", "\\\n"}) {
    const std::string rtf = "{\\rtf1" + repeated(piece, 1000000);
    EXPECT_LE(stepsOf([&] { richtext::readRtf(rtf); }), kSteps * rtf.size()) << piece;
  }
}

TEST(Work, OfFillingLinesGrowsNoFasterThanTheText) {
  headless::FixedMetrics metrics;
  const auto fixed = [&](const richtext::CharFormat&) -> host::FontMetrics& { return metrics; };
  for (const char* piece :
       {"a", "a ", " ", "\\par ", "\\line ", "\\tab ", "a\\tab", "{\\b a}b", "{\\b a} ", "{\\up9 a}",
        "\\tx9\\tab ", "{\\*\\pn\\pnlvlblt}a\\par ", "\\'e4", "words of a text "}) {
    // A line may be as long as the text, hold a few words, or be too narrow for a character.
    for (const double width : {1e9, 200.0, 1.0, 0.0}) {
      const auto fill = [&](std::string_view end) {
        const richtext::Document document = *richtext::readRtf("{\\rtf1 " + std::string(end));
        const host::RichTextLayout layout(document, width, fixed);
        layout.linesBetween(layout.height() / 2, layout.height() / 2 + 100);
      };
      EXPECT_EQ(brokenGrowth(piece, kLength, fill), "") << piece << " in a width of " << width;
    }
  }
}

TEST(Work, OnADocumentGrowsNoFasterThanItsText) {
  using namespace richtext;
  for (const char* piece : {"a", "{\\b a}b", "a\\par ", "\\'e4", "\\par{\\i a}"}) {
    const auto change = [](std::string_view end) {
      Document document = *readRtf("{\\rtf1 " + std::string(end));
      const Range middle{document.length() / 3, document.length() / 3};
      document.set(middle, &CharFormat::underline, true);
      document.set(middle, &ParagraphFormat::bullet, true);
      document.uniform(middle, &CharFormat::halfPoints);
      document.formatAt(document.length());
      document.replace(middle, document.part(middle));
      writeRtf(document);
    };
    EXPECT_EQ(brokenGrowth(piece, kLength, change), "") << piece;
  }
}

}  // namespace
}  // namespace qrn::test
