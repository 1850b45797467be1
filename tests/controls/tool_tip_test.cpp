#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "controls/raised.h"
#include "diag/QRNErrors.h"
#include "hooks/window_registry.h"
#include "host/class_table.h"
#include "library/library.h"
#include "platform/headless/headless_platform.h"
#include "platform/headless/user.h"
#include "tooltip/QRNToolTip.h"

namespace qrn::test {
namespace {

class ToolTips : public ::testing::Test {
 protected:
  ToolTips() { tip().Move(0, 0, 200, 100); }

  QRNToolTip& tip() { return *tip_; }
  host::RichTextBox& box() { return tip().RichTextControl(); }

  headless::HeadlessPlatform platform;
  headless::HeadlessSite site{platform};
  host::Owned<QRNToolTip> tip_ = host::create<QRNToolTip>(site);
  headless::User user{platform, *tip_};
};

class HelpFile : public ToolTips {
 protected:
  ~HelpFile() override { std::filesystem::remove(path); }
  void write(std::string_view bytes) { std::ofstream(path, std::ios::binary) << bytes; }

  std::string path =
      ::testing::TempDir() + "tool_tip_" + ::testing::UnitTest::GetInstance()->current_test_info()->name();
};

// ---- the box ----

TEST_F(ToolTips, AreFilledByTheirBox) {
  EXPECT_EQ(box().bounds(), (Rect{0, 0, 200, 100}));
  tip().Move(10, 10, 50, 30);
  EXPECT_EQ(box().bounds(), (Rect{0, 0, 50, 30}));
  EXPECT_EQ(box().Name(), "rtfInfo");
  EXPECT_TRUE(box().bordered());
}

TEST_F(ToolTips, HaveTheTextOfTheBox) {
  tip().SetText("abc");
  EXPECT_EQ(box().Text(), "abc");
  box().SetTextRTF("{\\rtf1 d\\b e}");
  EXPECT_EQ(tip().Text(), "de");
  EXPECT_EQ(tip().TextRTF(), box().TextRTF());
  tip().SetTextRTF("{\\rtf1 f}");
  EXPECT_EQ(box().Text(), "f");
}

TEST_F(ToolTips, GiveTheSelectionOfTheBoxItsFormats) {
  tip().SetText("abcd");
  box().SetSelStart(0);
  box().SetSelLength(2);
  tip().SetFontName("Serif");
  tip().SetFontSize(14);
  tip().SetFontBold(true);
  tip().SetFontItalic(true);
  tip().SetFontUnderline(true);
  tip().SetFontStrikethru(true);
  tip().SetFontCharOffset(4);
  tip().SetFontColor(255);
  tip().SetParagraphAlignment(2);
  tip().SetParagraphIndent(10);
  tip().SetParagraphHangingIndent(20);
  tip().SetParagraphRightIndent(30);
  tip().SetParagraphBullet(true);
  EXPECT_EQ(box().SelFontName(), Variant("Serif"));
  EXPECT_EQ(box().SelFontSize(), Variant(14.0F));
  EXPECT_EQ(box().SelBold(), Variant(true));
  EXPECT_EQ(box().SelItalic(), Variant(true));
  EXPECT_EQ(box().SelUnderline(), Variant(true));
  EXPECT_EQ(box().SelStrikeThru(), Variant(true));
  EXPECT_EQ(tip().FontCharOffset(), box().SelCharOffset());
  EXPECT_EQ(host::doubleFrom(tip().FontCharOffset()), 4);
  EXPECT_EQ(host::longFrom(tip().FontColor()), 255);
  EXPECT_EQ(host::longFrom(tip().ParagraphAlignment()), 2);
  EXPECT_EQ(host::doubleFrom(tip().ParagraphIndent()), 10);
  EXPECT_EQ(host::doubleFrom(tip().ParagraphHangingIndent()), 20);
  EXPECT_EQ(host::doubleFrom(tip().ParagraphRightIndent()), 30);
  EXPECT_EQ(tip().ParagraphBullet(), box().SelBullet());
}

TEST_F(ToolTips, AnswerNullForAFormatThatDiffersInTheSelection) {
  tip().SetText("abcd");
  box().SetSelStart(0);
  box().SetSelLength(2);
  tip().SetFontBold(true);
  box().SetSelLength(4);
  EXPECT_EQ(tip().FontBold(), Variant(Null()));
  EXPECT_EQ(tip().FontItalic(), Variant(false));
}

TEST_F(ToolTips, KeepWhatTheHostRelatesThemTo) {
  EXPECT_TRUE(tip().RelatedControl().isEmpty());
  tip().SetRelatedControl("Damping");
  EXPECT_EQ(tip().RelatedControl(), Variant("Damping"));
}

TEST_F(ToolTips, HaveEveryMemberInTheirTable) {
  tip().SetText("abc");
  for (const host::Property& one : tip().classTable().properties) {
    EXPECT_TRUE(one.key.empty()) << one.name;
    const Variant value = one.read(tip());
    if (one.write) one.write(tip(), value);
    EXPECT_EQ(one.read(tip()), value) << one.name;
  }
  EXPECT_EQ(tip().classTable().properties.size(), 18U);
}

// ---- adding text ----

TEST_F(ToolTips, PutTextWithoutAPositionAtTheEnd) {
  tip().AddText("b");
  EXPECT_EQ(tip().Text(), "b");
  box().SetSelStart(0);
  tip().AddText("c");
  EXPECT_EQ(tip().Text(), "bc");
}

TEST_F(ToolTips, PutTextAtAPosition) {
  tip().SetText("ad");
  tip().AddText("bc", 1);
  EXPECT_EQ(tip().Text(), "abcd");
  EXPECT_EQ(box().SelStart(), 3);
  tip().AddText("e", 99);
  EXPECT_EQ(tip().Text(), "abcde");
  EXPECT_EQ(raisedBy([&] { tip().AddText("x", -1); }).number, kInvalidPropertyValue);
}

TEST_F(ToolTips, AddTextInsteadOfNothingAndAsItStands) {
  tip().SetText("abc");
  box().SetSelStart(0);
  box().SetSelLength(3);
  tip().AddText("{\\b d}");
  EXPECT_EQ(tip().Text(), "abc{\\b d}");
}

// ---- templates ----

TEST_F(ToolTips, PutAValueInThePlaceOfEveryVariable) {
  std::string rtf = "{\\rtf1 \\{name\\} and \\{name\\}, \\{Name\\}, {name}}";
  tip().RTFReplace(rtf, "{name}", "a\\b");
  EXPECT_EQ(rtf, "{\\rtf1 a\\\\b and a\\\\b, \\{Name\\}, {name}}");
  tip().SetTextRTF(rtf);
  EXPECT_EQ(tip().Text(), "a\\b and a\\b, {Name}, name");
}

TEST_F(ToolTips, DoNotReplaceInsideOfWhatTheyHavePutIn) {
  std::string rtf = "x";
  tip().RTFReplace(rtf, "x", "xx{}");
  EXPECT_EQ(rtf, "xx\\{\\}");
}

TEST_F(ToolTips, ReplaceNoVariableWithoutAName) {
  std::string rtf = "abc";
  tip().RTFReplace(rtf, "", "x");
  EXPECT_EQ(rtf, "abc");
  tip().RTFReplace(rtf, "b", "");
  EXPECT_EQ(rtf, "ac");
}

TEST_F(HelpFile, IsReadInTheWesternCodePage) {
  write(std::string("a\xFC\x80\r\n\0z", 7));
  EXPECT_EQ(tip().GetFileAsString(path), std::string("aü€\r\n\0z", 10));
}

TEST_F(HelpFile, HasNoCharacterForBytesThatTheCodePageDoesNotUse) {
  write("a\x81z");
  EXPECT_EQ(tip().GetFileAsString(path), "a\uFFFDz");
}

TEST_F(HelpFile, MayBeEmpty) {
  write("");
  EXPECT_EQ(tip().GetFileAsString(path), "");
}

TEST_F(HelpFile, ThatCanNotBeReadIsEmpty) {
  EXPECT_EQ(tip().GetFileAsString(path), "");
  EXPECT_FALSE(std::filesystem::exists(path));
  EXPECT_EQ(tip().GetFileAsString(::testing::TempDir()), "");
  EXPECT_EQ(tip().GetFileAsString("/dev/zero"), "");
  EXPECT_EQ(tip().GetFileAsString(""), "");
  EXPECT_EQ(tip().GetFileAsString(std::string(100000, 'a')), "");
}

// ---- Redraw ----

TEST_F(ToolTips, ShowTheirBoxWhenTheyAreShown) {
  EXPECT_TRUE(tip().Redraw());
  EXPECT_TRUE(box().Visible());
  tip().SetRedraw(false);
  EXPECT_FALSE(box().Visible());
  tip().SetVisible(false);
  EXPECT_FALSE(tip().Redraw());
  tip().SetVisible(true);
  EXPECT_TRUE(tip().Redraw());
  EXPECT_TRUE(box().Visible());
}

TEST_F(ToolTips, LeaveABoxThatTheHostHidesAsItIsWhenTheyAreShownAgain) {
  box().SetVisible(false);
  tip().SetVisible(false);
  tip().SetVisible(true);
  EXPECT_TRUE(tip().Redraw());
  EXPECT_FALSE(box().Visible());
}

TEST_F(ToolTips, HideTheirBoxWhileTheyAreFilled) {
  tip().SetRedraw(false);
  EXPECT_FALSE(tip().Redraw());
  tip().SetText("abc");
  tip().SetRedraw(true);
  EXPECT_TRUE(tip().Redraw());
  EXPECT_TRUE(box().Visible());
  EXPECT_EQ(tip().Text(), "abc");
  box().SetVisible(false);
  tip().SetRedraw(true);
  EXPECT_TRUE(box().Visible());
}

TEST_F(ToolTips, ShowTheirTextFromTheBeginningWhenTheyAreFilled) {
  tip().SetText("abc");
  box().SetSelStart(1);
  box().SetSelLength(2);
  tip().SetRedraw(false);
  tip().SetRedraw(true);
  EXPECT_EQ(box().SelStart(), 0);
  EXPECT_EQ(box().SelLength(), 0);
}

TEST_F(ToolTips, KeepTheFocusWhileTheBoxIsHidden) {
  int closes = 0;
  const auto closed = tip().TTClose.connect([&] { ++closes; });
  tip().SetFocus();
  EXPECT_TRUE(box().hasFocus());
  tip().SetRedraw(false);
  EXPECT_TRUE(tip().hasFocus());
  user.presses(host::key::Escape);
  EXPECT_EQ(closes, 1);
  tip().SetRedraw(true);
  EXPECT_TRUE(box().hasFocus());
}

TEST_F(ToolTips, RedrawAtRunTimeOnly) {
  site.ambientProperties.userMode = false;
  EXPECT_EQ(raisedBy([&] { static_cast<void>(tip().Redraw()); }).number, kGetNotAtDesignTime);
  EXPECT_EQ(raisedBy([&] { tip().SetRedraw(false); }).number, kSetNotAtDesignTime);
  EXPECT_TRUE(box().Visible());
}

// ---- events ----

TEST_F(ToolTips, CloseOnEscapeAndSwallowIt) {
  int closes = 0;
  const auto closed = tip().TTClose.connect([&] { ++closes; });
  std::int16_t key = host::key::Escape, shift = host::shift::None;
  tip().childKeyDown(box(), key, shift);
  EXPECT_EQ(key, 0);
  EXPECT_EQ(closes, 1);
}

TEST_F(ToolTips, LetEscapeWithAnotherKeyAndEveryOtherKeyPass) {
  int closes = 0;
  const auto closed = tip().TTClose.connect([&] { ++closes; });
  for (std::int16_t held : {host::shift::Shift, host::shift::Control, host::shift::Alt}) {
    std::int16_t key = host::key::Escape, shift = held;
    tip().childKeyDown(box(), key, shift);
    EXPECT_EQ(key, host::key::Escape);
    EXPECT_EQ(shift, held);
  }
  std::int16_t key = host::key::Enter, shift = host::shift::None;
  tip().childKeyDown(box(), key, shift);
  EXPECT_EQ(key, host::key::Enter);
  EXPECT_EQ(closes, 0);
}

TEST_F(ToolTips, HearThatTheUserLeavesTheApplicationWhileTheyAreShown) {
  int lost = 0;
  const auto left = tip().AppLostFocus.connect([&] { ++lost; });
  user.switchesAway();
  EXPECT_EQ(lost, 1);
  user.comesBack();
  EXPECT_EQ(lost, 1);
  user.closes();
  EXPECT_EQ(lost, 2);
  tip().SetVisible(false);
  user.switchesAway();
  EXPECT_EQ(lost, 2);
  tip().SetVisible(true);
  user.switchesAway();
  EXPECT_EQ(lost, 3);
}

TEST_F(ToolTips, WatchTheirWindowNoLongerThanTheyLive) {
  EXPECT_EQ(watchedWindows(), 1);
  tip_.reset();
  EXPECT_EQ(watchedWindows(), 0);
}

// ---- lifetime ----

TEST_F(ToolTips, MayGoInTheirOwnEvents) {
  const auto close = tip().TTClose.connect([&] { tip_.reset(); });
  std::int16_t key = host::key::Escape, shift = host::shift::None;
  tip().childKeyDown(box(), key, shift);
  EXPECT_EQ(key, 0);
  EXPECT_EQ(tip_, nullptr);
}

TEST_F(ToolTips, MayGoWhenTheUserLeavesTheApplication) {
  const auto left = tip().AppLostFocus.connect([&] { tip_.reset(); });
  user.switchesAway();
  EXPECT_EQ(tip_, nullptr);
  EXPECT_EQ(watchedWindows(), 0);
}

TEST_F(ToolTips, AreMadeByTheirProgIdAndHiddenInAContainer) {
  registerControls();
  host::Control& made = tip().controls().add("QRNV16Controls2.QRNToolTip", "inner", tip());
  EXPECT_EQ(made.typeName(), "QRNToolTip");
  EXPECT_FALSE(made.Visible());
  EXPECT_FALSE(static_cast<QRNToolTip&>(made).Redraw());
  made.SetVisible(true);
  EXPECT_TRUE(static_cast<QRNToolTip&>(made).Redraw());
}

}  // namespace
}  // namespace qrn::test
