#include "host/rich_text_box.h"

#include "platform/headless/recording_surface.h"
#include "test_control.h"

namespace qrn::test {
namespace {

class RichTextBoxes : public SurfaceTest {
 protected:
  host::RichTextBox& box = surface().add<host::RichTextBox>("rtf", {10, 10, 108, 60});

  void select(std::int32_t start, std::int32_t length = 0) {
    box.SetSelStart(start);
    box.SetSelLength(length);
  }
  Heard painted() {
    headless::RecordingSurface target(platform, {200, 150});
    surface().paintTree(target);
    return target.operations();
  }
  Heard paintedText() {
    headless::RecordingSurface target(platform, {200, 150});
    surface().paintTree(target);
    return target.operations("text");
  }
};

TEST_F(RichTextBoxes, AreMadeByTheirProgId) {
  host::Control& made = surface().controls().add("RICHTEXT.RichtextCtrl", "rtfInfo", surface());
  EXPECT_EQ(made.typeName(), "RichTextBox");
}

TEST_F(RichTextBoxes, StartEmptyInTheFontOfTheirHolder) {
  EXPECT_EQ(box.Text(), "");
  EXPECT_EQ(box.SelFontName(), Variant("Sans"));
  EXPECT_EQ(box.SelFontSize(), Variant(9.0F));
  EXPECT_EQ(box.SelBold(), Variant(false));
}

TEST_F(RichTextBoxes, TakeOnAnotherFontWhileTheyAreEmpty) {
  surface().setFont(std::make_shared<host::Font>("Serif", 12));
  EXPECT_EQ(box.SelFontName(), Variant("Serif"));
  box.SetText("abc");
  surface().setFont(std::make_shared<host::Font>("Mono", 8));
  EXPECT_EQ(box.SelFontName(), Variant("Serif"));
}

TEST_F(RichTextBoxes, ReportNothingThatTheProgramSets) {
  box.SetText("abc");
  box.SetTextRTF("{\\rtf1 x}");
  box.SetSelText("y");
  box.SetSelBold(true);
  EXPECT_EQ(heard(), Heard{});
}

TEST_F(RichTextBoxes, ShowTheTextOfRtf) {
  box.SetTextRTF("{\\rtf1{\\fonttbl{\\f0 Serif;}}\\f0\\fs20 a\\b b\\par c}");
  EXPECT_EQ(box.Text(), "ab\r\nc");
  EXPECT_EQ(box.SelFontName(), Variant("Serif"));
  EXPECT_EQ(box.SelFontSize(), Variant(10.0F));
}

TEST_F(RichTextBoxes, TakeWhatIsNoRtfAsPlainText) {
  box.SetTextRTF("a {b}\\par");
  EXPECT_EQ(box.Text(), "a {b}\\par");
  select(0);
  box.SetSelRTF("x");
  EXPECT_EQ(box.Text(), "xa {b}\\par");
}

TEST_F(RichTextBoxes, GiveTheirRtfToOthers) {
  box.SetText("abc");
  select(1, 1);
  box.SetSelBold(true);
  box.SetSelColor(0x0000FF);
  auto& other = surface().add<host::RichTextBox>("other");
  other.SetTextRTF(box.TextRTF());
  EXPECT_EQ(other.TextRTF(), box.TextRTF());
  other.SetSelStart(1);
  other.SetSelLength(1);
  EXPECT_EQ(other.SelBold(), Variant(true));
  EXPECT_EQ(other.SelColor(), Variant(0x0000FF));
}

TEST_F(RichTextBoxes, SelectNothingAtTheStartOnceTheyHaveOtherText) {
  box.SetText("abc");
  select(1, 2);
  box.SetText("def");
  EXPECT_EQ(box.SelStart(), 0);
  EXPECT_EQ(box.SelLength(), 0);
}

TEST_F(RichTextBoxes, KeepTheSelectionInsideTheText) {
  box.SetText("äb\r\nc");
  select(10000000, 5);
  EXPECT_EQ(box.SelStart(), 5);
  EXPECT_EQ(box.SelLength(), 0);
  select(1, 10000000);
  EXPECT_EQ(box.SelLength(), 4);
  EXPECT_EQ(box.SelText(), "b\r\nc");
  EXPECT_EQ(errorOf([&] { box.SetSelStart(-1); }), kInvalidPropertyValue);
  EXPECT_EQ(errorOf([&] { box.SetSelLength(-1); }), kInvalidPropertyValue);
}

TEST_F(RichTextBoxes, SelectAParagraphEndWholeOrNotAtAll) {
  box.SetText("a\r\nb");
  select(2);
  EXPECT_EQ(box.SelStart(), 1);
  select(0, 2);
  EXPECT_EQ(box.SelLength(), 1);
  select(0, 3);
  EXPECT_EQ(box.SelText(), "a\r\n");
}

TEST_F(RichTextBoxes, SelectNothingWhereTheInsertionPointIsSet) {
  box.SetText("abc");
  select(0, 2);
  box.SetSelStart(1);
  EXPECT_EQ(box.SelLength(), 0);
}

TEST_F(RichTextBoxes, ReplaceTheSelectionAndGoBehindIt) {
  box.SetText("abcd");
  select(1, 2);
  box.SetSelText("X\nY");
  EXPECT_EQ(box.Text(), "aX\r\nYd");
  EXPECT_EQ(box.SelStart(), 5);
  EXPECT_EQ(box.SelLength(), 0);
}

TEST_F(RichTextBoxes, InsertBehindTheEndOfTheText) {
  box.SetSelStart(10000000);
  box.SetSelText("ab");
  box.SetSelStart(10000000);
  box.SetSelText("cd");
  EXPECT_EQ(box.Text(), "abcd");
}

TEST_F(RichTextBoxes, InsertRtfWithItsFormats) {
  box.SetText("ad");
  select(1);
  box.SetSelRTF("{\\rtf1\\b b\\i c}");
  EXPECT_EQ(box.Text(), "abcd");
  select(1, 2);
  EXPECT_EQ(box.SelBold(), Variant(true));
  EXPECT_EQ(box.SelItalic(), Variant(Null()));
  auto& other = surface().add<host::RichTextBox>("other");
  other.SetTextRTF(box.SelRTF());
  EXPECT_EQ(other.Text(), "bc");
}

TEST_F(RichTextBoxes, AnswerNullForAFormatThatDiffersInTheSelection) {
  box.SetText("ab\r\ncd");
  select(0, 1);
  box.SetSelFontName("Serif");
  box.SetSelFontSize(20);
  box.SetSelBold(true);
  box.SetSelItalic(true);
  box.SetSelUnderline(true);
  box.SetSelStrikeThru(true);
  box.SetSelCharOffset(4);
  box.SetSelColor(255);
  box.SetSelAlignment(host::kAlignCentre);
  box.SetSelIndent(10);
  box.SetSelHangingIndent(20);
  box.SetSelRightIndent(30);
  box.SetSelBullet(true);
  select(0, 6);
  for (const Variant& mixed :
       {box.SelFontName(), box.SelFontSize(), box.SelBold(), box.SelItalic(), box.SelUnderline(),
        box.SelStrikeThru(), box.SelCharOffset(), box.SelColor(), box.SelAlignment(), box.SelIndent(),
        box.SelHangingIndent(), box.SelRightIndent(), box.SelBullet()}) {
    EXPECT_TRUE(mixed.isNull());
  }
  select(0, 1);
  EXPECT_EQ(box.SelFontName(), Variant("Serif"));
  EXPECT_EQ(box.SelFontSize(), Variant(20.0F));
  EXPECT_EQ(box.SelStrikeThru(), Variant(true));
  EXPECT_EQ(box.SelCharOffset(), Variant(4.0));
  EXPECT_EQ(box.SelColor(), Variant(255));
  EXPECT_EQ(box.SelAlignment(), Variant(2));
  EXPECT_EQ(box.SelIndent(), Variant(10.0));
  EXPECT_EQ(box.SelHangingIndent(), Variant(20.0));
  EXPECT_EQ(box.SelRightIndent(), Variant(30.0));
  EXPECT_EQ(box.SelBullet(), Variant(true));
}

TEST_F(RichTextBoxes, GiveTextToBeInsertedTheFormatChosenForIt) {
  box.SetText("ab");
  select(1);
  box.SetSelBold(true);
  EXPECT_EQ(box.SelBold(), Variant(true));
  box.SetSelText("X");
  select(1, 1);
  EXPECT_EQ(box.SelBold(), Variant(true));
  select(0, 1);
  EXPECT_EQ(box.SelBold(), Variant(false));
}

TEST_F(RichTextBoxes, ForgetTheChosenFormatWhenTheInsertionPointMoves) {
  box.SetText("ab");
  select(1);
  box.SetSelBold(true);
  select(1);
  EXPECT_EQ(box.SelBold(), Variant(false));
}

TEST_F(RichTextBoxes, GiveWhatReplacesASelectionTheFormatOfItsFirstCharacter) {
  box.SetText("abc");
  select(1, 1);
  box.SetSelBold(true);
  box.SetSelText("X");
  select(1, 1);
  EXPECT_EQ(box.SelBold(), Variant(true));
}

TEST_F(RichTextBoxes, ConvertWhatTheyAreGiven) {
  box.SetText("a");
  select(0, 1);
  box.SetSelBold(Variant("True"));
  box.SetSelFontSize(Variant("10.3"));
  box.SetSelAlignment(Variant("1"));
  box.SetSelFontName(Variant(5));
  EXPECT_EQ(box.SelBold(), Variant(true));
  EXPECT_EQ(box.SelFontSize(), Variant(10.5F)) << "in half points";
  EXPECT_EQ(box.SelAlignment(), Variant(1));
  EXPECT_EQ(box.SelFontName(), Variant("5"));
}

TEST_F(RichTextBoxes, RefuseWhatMakesNoSenseAndStayAsTheyAre) {
  box.SetTextRTF("{\\rtf1\\b a}");
  select(0, 1);
  const std::string before = box.TextRTF();
  const Variant text("blue"), huge(1e300), negative(-1);
  EXPECT_EQ(errorOf([&] { box.SetSelBold(text); }), kTypeMismatch);
  EXPECT_EQ(errorOf([&] { box.SetSelColor(text); }), kTypeMismatch);
  EXPECT_EQ(errorOf([&] { box.SetSelIndent(text); }), kTypeMismatch);
  EXPECT_EQ(errorOf([&] { box.SetSelBold(Null()); }), kInvalidUseOfNull);
  for (const Variant& wrong : {huge, negative, Variant(0), Variant(0.1)})
    EXPECT_EQ(errorOf([&] { box.SetSelFontSize(wrong); }), kInvalidPropertyValue);
  for (const Variant& wrong : {Variant(3), negative})
    EXPECT_EQ(errorOf([&] { box.SetSelAlignment(wrong); }), kInvalidPropertyValue);
  for (const Variant& wrong : {Variant(0x1000000), negative})
    EXPECT_EQ(errorOf([&] { box.SetSelColor(wrong); }), kInvalidPropertyValue);
  for (const Variant& wrong : {huge, negative, Variant(1e6)}) {
    EXPECT_EQ(errorOf([&] { box.SetSelIndent(wrong); }), kInvalidPropertyValue);
    EXPECT_EQ(errorOf([&] { box.SetSelRightIndent(wrong); }), kInvalidPropertyValue);
  }
  EXPECT_EQ(errorOf([&] { box.SetSelHangingIndent(huge); }), kInvalidPropertyValue);
  EXPECT_EQ(errorOf([&] { box.SetSelCharOffset(huge); }), kInvalidPropertyValue);
  EXPECT_EQ(errorOf([&] { box.SetSelFontName(std::string(1000, 'a')); }), kInvalidPropertyValue);
  EXPECT_EQ(box.TextRTF(), before);
}

TEST_F(RichTextBoxes, MeasureInTheScaleOfTheirHolder) {
  box.SetText("a");
  box.SetSelIndent(10);
  surface().setScaleMode(1);
  EXPECT_EQ(box.SelIndent(), Variant(150.0)) << "twips";
  select(0, 1);
  box.SetSelCharOffset(60);
  EXPECT_NE(box.TextRTF().find("\\up6"), std::string::npos) << "in half points";
  surface().setScaleMode(3);
  EXPECT_EQ(box.SelCharOffset(), Variant(4.0));
}

TEST_F(RichTextBoxes, TakeTheSystemsTextColourForNoneOfTheirOwn) {
  box.SetText("a");
  select(0, 1);
  const Variant automatic = box.SelColor();
  EXPECT_EQ(automatic, Variant(static_cast<std::int32_t>(host::kWindowText)));
  box.SetSelColor(255);
  box.SetSelColor(automatic);
  EXPECT_EQ(box.SelColor(), automatic);
  box.SetSelColor(static_cast<std::int32_t>(host::systemColor(host::SystemColor::Highlight)));
  EXPECT_EQ(box.SelColor(), Variant(static_cast<std::int32_t>(host::rgb(0, 120, 215))));
}

TEST_F(RichTextBoxes, PaintTheirLinesOnTheirBackground) {
  box.SetBackColor(host::rgb(255, 255, 200));
  box.SetText("one two three four");
  EXPECT_EQ(painted(), (Heard{"fill 0,0 200x150 #f0f0f0", "fill 10,10 108x60 #ffffc8",
                              "text 14,14 \"one two three \" #000000", "text 14,27 \"four\" #000000"}));
}

TEST_F(RichTextBoxes, PaintEachFormatInItsPlace) {
  box.SetTextRTF("{\\rtf1{\\colortbl ;\\red255;}\\qr a{\\cf1 b}\\par\\pard{\\*\\pn\\pnlvlblt}\\li300 c}");
  EXPECT_EQ(paintedText(), (Heard{"text 102,14 \"a\" #000000", "text 108,14 \"b\" #ff0000",
                                  "text 34,27 \"•\" #000000", "text 46,27 \"c\" #000000"}));
}

TEST_F(RichTextBoxes, MakeAColourReadableThatVanishesOnTheBackground) {
  box.SetTextRTF("{\\rtf1{\\colortbl ;\\red0;}\\cf1 own\\cf0 automatic}");
  box.SetBackColor(0);
  ASSERT_EQ(paintedText().size(), 2U);
  for (const std::string& text : paintedText()) EXPECT_EQ(text.find("#000000"), std::string::npos) << text;
}

TEST_F(RichTextBoxes, PaintAllTextGreyWhenDisabled) {
  box.SetTextRTF("{\\rtf1{\\colortbl ;\\red255;}a\\cf1 b}");
  box.SetEnabled(false);
  EXPECT_EQ(paintedText(), (Heard{"text 14,14 \"a\" #6d6d6d", "text 20,14 \"b\" #6d6d6d"}));
}

TEST_F(RichTextBoxes, BreakLinesAnewWhenTheirSizeOrFontChanges) {
  box.SetText("one two");
  EXPECT_EQ(paintedText().size(), 1U);
  box.SetWidth(30);
  EXPECT_EQ(paintedText().size(), 2U);
  platform.setTextSize(2, 13);
  box.fontChanged();
  EXPECT_EQ(paintedText().size(), 1U);
}

TEST_F(RichTextBoxes, MeasureTheirTextOnce) {
  box.SetText("one two three four five six seven");
  painted();
  const int measured = platform.measuredTexts();
  box.scrollTo(10);
  painted();
  EXPECT_EQ(platform.measuredTexts(), measured);
}

TEST_F(RichTextBoxes, NeedNoNativeWidget) {
  surface().realise();
  const int peers = platform.peers();
  box.SetFocus();
  EXPECT_TRUE(box.hasFocus());
  EXPECT_EQ(platform.peers(), peers);
}

/// Ten lines of 13 pixels, of which 52 pixels can be seen.
class ScrolledTexts : public RichTextBoxes {
 protected:
  ScrolledTexts() { box.SetText("0\r\n1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n8\r\n9"); }
};

TEST_F(ScrolledTexts, AreAtTheirTopFirstAndShowWhatHasRoomEvenInPart) {
  EXPECT_EQ(box.scrolledBy(), 0);
  EXPECT_EQ(paintedText().size(), 5U);
}

TEST_F(ScrolledTexts, ScrollByTheWheelAsFarAsThereIsText) {
  user.turnsWheel({20, 20}, -1);
  EXPECT_EQ(box.scrolledBy(), 39);
  EXPECT_EQ(paintedText().front(), "text 14,1 \"2\" #000000") << "in the margin";
  user.turnsWheel({20, 20}, -10);
  EXPECT_EQ(box.scrolledBy(), 78);
  user.turnsWheel({20, 20}, 10);
  EXPECT_EQ(box.scrolledBy(), 0);
}

TEST_F(ScrolledTexts, KeepTheWheelFromWhatLiesBehindThem) {
  surface().notesMouse = true;
  box.scrollTo(1000);
  EXPECT_TRUE(input().wheel({20, 20}, -1));
  EXPECT_EQ(heard(), Heard{});
  box.SetText("short");
  input().wheel({20, 20}, -1);
  EXPECT_EQ(heard(), (Heard{"surface Wheel -1"}));
}

TEST_F(ScrolledTexts, ScrollByTheKeysOfTheFocusedBox) {
  box.SetFocus();
  const auto after = [&](std::int16_t key) {
    user.presses(key);
    return box.scrolledBy();
  };
  EXPECT_EQ(after(host::key::Down), 13);
  EXPECT_EQ(after(host::key::PageDown), 52);
  EXPECT_EQ(after(host::key::Up), 39);
  EXPECT_EQ(after(host::key::PageUp), 0);
  EXPECT_EQ(after(host::key::End), 78);
  EXPECT_EQ(after(host::key::Home), 0);
}

TEST_F(ScrolledTexts, LeaveKeysToTheirHolderFirst) {
  box.SetFocus();
  surface().swallowedKey = host::key::Down;
  user.presses(host::key::Down);
  EXPECT_EQ(box.scrolledBy(), 0);
}

TEST_F(ScrolledTexts, ShowWhereTheyAre) {
  const auto thumb = [&] { return painted().back(); };
  EXPECT_EQ(thumb(), "fill 115,10 3x26.087 #999999");
  box.scrollTo(78);
  EXPECT_EQ(thumb(), "fill 115,43.913 3x26.087 #999999");
  box.SetText("short");
  EXPECT_EQ(thumb(), "text 14,14 \"short\" #000000");
}

TEST_F(ScrolledTexts, GoBackToTheTopWithOtherText) {
  box.scrollTo(78);
  box.SetTextRTF("{\\rtf1 a}");
  EXPECT_EQ(box.scrolledBy(), 0);
}

TEST_F(ScrolledTexts, StayWithinTextThatHasBecomeShorter) {
  box.scrollTo(78);
  select(9, 1000);
  box.SetSelText("");
  EXPECT_EQ(box.scrolledBy(), 0);
}

}  // namespace
}  // namespace qrn::test
