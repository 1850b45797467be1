#include "host/rich_text_layout.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace qrn::test {
namespace {

using richtext::CharFormat;
using richtext::Document;
using richtext::ParagraphFormat;

/// As many pixels wide as half points, a character, and as high.
class SquareMetrics final : public host::FontMetrics {
 public:
  explicit SquareMetrics(double size) : size_(size) {}
  double advance(std::string_view text) override {
    double count = 0;
    for (const char c : text) count += (c & 0xC0) != 0x80;
    return count * size_;
  }
  double height() const override { return size_; }
  double ascent() const override { return size_ - 2; }

 private:
  double size_;
};

class Layouts : public testing::Test {
 protected:
  SquareMetrics ten{10};
  SquareMetrics twenty{20};
  Document document;

  void text(std::string_view plain) { document = Document::plain(plain, {.halfPoints = 10}); }

  template <class T, class V>
  void format(std::size_t start, std::size_t length, T V::*field, const std::type_identity_t<T>& value) {
    document.set({start, length}, field, value);
  }

  host::RichTextLayout layout(double width) {
    return {document, width, [this](const CharFormat& format) -> host::FontMetrics& {
              return format.halfPoints == 20 ? twenty : ten;
            }};
  }

  /// Each line with its height and what is where in it.
  std::vector<std::string> lines(double width) {
    std::vector<std::string> result;
    const auto number = [](double value) { return std::to_string(static_cast<int>(value)); };
    const host::RichTextLayout laidOut = layout(width);
    for (const auto& line : laidOut.lines()) {
      std::string shown = number(line.top) + "+" + number(line.height) + ":";
      for (const auto& piece : line.pieces)
        shown += " " + number(piece.left) + "," + number(piece.top) + " '" + std::string(piece.text) + "'";
      result.push_back(shown);
    }
    return result;
  }
};

using Lines = std::vector<std::string>;

TEST_F(Layouts, OfAnEmptyDocumentAreOneEmptyLine) {
  text("");
  EXPECT_EQ(lines(100), (Lines{"0+10:"}));
}

TEST_F(Layouts, PutEachParagraphOnALineOfItsOwn) {
  text("ab\r\n\r\nc");
  EXPECT_EQ(lines(100), (Lines{"0+10: 0,0 'ab'", "10+10:", "20+10: 0,20 'c'"}));
}

TEST_F(Layouts, BreakLinesBetweenWords) {
  text("ab cd ef");
  EXPECT_EQ(lines(50), (Lines{"0+10: 0,0 'ab cd '", "10+10: 0,10 'ef'"}));
  EXPECT_EQ(lines(49), (Lines{"0+10: 0,0 'ab '", "10+10: 0,10 'cd '", "20+10: 0,20 'ef'"}));
}

TEST_F(Layouts, LetBlanksHangOverTheEndOfALine) {
  text("ab     cd");
  EXPECT_EQ(lines(30), (Lines{"0+10: 0,0 'ab     '", "10+10: 0,10 'cd'"}));
}

TEST_F(Layouts, BreakWordsThatAreWiderThanALine) {
  text("a bcdefg h");
  EXPECT_EQ(lines(30),
            (Lines{"0+10: 0,0 'a '", "10+10: 0,10 'bcd'", "20+10: 0,20 'efg '", "30+10: 0,30 'h'"}));
}

TEST_F(Layouts, PutOneCharacterOnALineThatHasNoRoomForAny) {
  text("äb");
  for (const double width : {9.0, 0.0, -5.0})
    EXPECT_EQ(lines(width), (Lines{"0+10: 0,0 'ä'", "10+10: 0,10 'b'"})) << width;
}

TEST_F(Layouts, KeepAWordOfSeveralFormatsTogether) {
  text("ab cdef");
  format(5, 2, &CharFormat::bold, true);
  EXPECT_EQ(lines(60), (Lines{"0+10: 0,0 'ab '", "10+10: 0,10 'cd' 20,10 'ef'"}));
}

TEST_F(Layouts, EndALineAtALineBreak) {
  text("ab\vcd");
  format(0, 0, &ParagraphFormat::leftIndent, 150);
  format(0, 0, &ParagraphFormat::hangingIndent, 300);
  EXPECT_EQ(lines(100), (Lines{"0+10: 10,0 'ab'", "10+10: 30,10 'cd'"})) << "what follows hangs";
}

TEST_F(Layouts, AlignTextOnOneBaseline) {
  text("abc");
  format(1, 1, &CharFormat::halfPoints, 20);
  EXPECT_EQ(lines(100), (Lines{"0+20: 0,10 'a' 10,0 'b' 30,10 'c'"}));
}

TEST_F(Layouts, MakeRoomForRaisedAndLoweredText) {
  text("abc");
  format(1, 1, &CharFormat::offset, 60);
  format(2, 1, &CharFormat::offset, -30);
  EXPECT_EQ(lines(100), (Lines{"0+16: 0,4 'a' 10,0 'b' 20,6 'c'"}));
}

TEST_F(Layouts, IndentTheFirstLineTheOthersAndTheRightEdge) {
  text("ab cd ef");
  format(0, 0, &ParagraphFormat::leftIndent, 300);
  format(0, 0, &ParagraphFormat::hangingIndent, -150);
  format(0, 0, &ParagraphFormat::rightIndent, 450);
  EXPECT_EQ(lines(90), (Lines{"0+10: 20,0 'ab '", "10+10: 10,10 'cd ef'"}));
}

TEST_F(Layouts, AlignEachLineWithoutTheBlanksAtItsEnd) {
  text("ab cde");
  format(0, 0, &ParagraphFormat::alignment, richtext::Alignment::Right);
  EXPECT_EQ(lines(40), (Lines{"0+10: 20,0 'ab '", "10+10: 10,10 'cde'"}));
  format(0, 0, &ParagraphFormat::alignment, richtext::Alignment::Centre);
  EXPECT_EQ(lines(40), (Lines{"0+10: 10,0 'ab '", "10+10: 5,10 'cde'"}));
}

TEST_F(Layouts, PutABulletBeforeAParagraphAndIndentItsLines) {
  text("ab cd");
  format(0, 0, &ParagraphFormat::bullet, true);
  EXPECT_EQ(lines(50), (Lines{"0+10: 0,0 '•' 20,0 'ab '", "10+10: 20,10 'cd'"}));
  format(0, 0, &ParagraphFormat::leftIndent, 150);
  format(0, 0, &ParagraphFormat::hangingIndent, 450);
  EXPECT_EQ(lines(60), (Lines{"0+10: 10,0 '•' 40,0 'ab '", "10+10: 40,10 'cd'"}));
}

TEST_F(Layouts, MoveTheBulletAlongWithItsLine) {
  text("ab");
  format(0, 0, &ParagraphFormat::bullet, true);
  format(0, 0, &ParagraphFormat::alignment, richtext::Alignment::Right);
  EXPECT_EQ(lines(100), (Lines{"0+10: 60,0 '•' 80,0 'ab'"}));
}

TEST_F(Layouts, GoToTheNextTabStop) {
  text("a\tb\tc\td");
  EXPECT_EQ(lines(200), (Lines{"0+10: 0,0 'a' 48,0 'b' 96,0 'c' 144,0 'd'"})) << "half an inch apart";
  format(0, 0, &ParagraphFormat::tabStops, {300, 900});
  EXPECT_EQ(lines(200), (Lines{"0+10: 0,0 'a' 20,0 'b' 60,0 'c' 96,0 'd'"}));
}

TEST_F(Layouts, TakeTheIndentOfTheOtherLinesForATabStop) {
  text("a\tb");
  format(0, 0, &ParagraphFormat::hangingIndent, 450);
  EXPECT_EQ(lines(200), (Lines{"0+10: 0,0 'a' 30,0 'b'"}));
}

TEST_F(Layouts, GoOnTheNextLineFromATabBeyondTheEnd) {
  text("abc\td");
  EXPECT_EQ(lines(45), (Lines{"0+10: 0,0 'abc'", "10+10:", "20+10: 0,20 'd'"}))
      << "which has no room for one either";
  EXPECT_EQ(lines(60), (Lines{"0+10: 0,0 'abc' 48,0 'd'"}));
}

TEST_F(Layouts, FindTheLinesBetweenTwoHeights) {
  text("a\r\nb\r\nc\r\nd");
  const host::RichTextLayout laidOut = layout(100);
  EXPECT_EQ(laidOut.height(), 40);
  const auto textOf = [&](double top, double bottom) {
    std::string result;
    for (const auto& line : laidOut.linesBetween(top, bottom)) result += line.pieces[0].text;
    return result;
  };
  EXPECT_EQ(textOf(10, 30), "bc");
  EXPECT_EQ(textOf(9, 31), "abcd");
  EXPECT_EQ(textOf(-50, 500), "abcd");
  EXPECT_EQ(textOf(40, 50), "");
}

}  // namespace
}  // namespace qrn::test
