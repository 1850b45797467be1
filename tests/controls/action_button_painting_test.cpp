#include "action_button_fixture.h"
#include "images/built_in_pictures.h"

namespace qrn::test {
namespace {

// ---- painting ----

TEST_F(ActionButton, DrawsItsCaptionInTheMiddleOfItsHeight) {
  button().SetCaption("Zero");
  EXPECT_EQ(texts(), (Events{"text 6,8.5 \"Zero\" #000000"}));
}

TEST_F(ActionButton, ADisabledOneDrawsItsCaptionGrey) {
  button().SetCaption("Zero");
  button().SetForeColor(host::rgb(255, 0, 0));
  EXPECT_EQ(texts(), (Events{"text 6,8.5 \"Zero\" #ff0000"}));
  button().SetEnabled(false);
  EXPECT_EQ(texts(), (Events{"text 6,8.5 \"Zero\" #6d6d6d"}));
  EXPECT_EQ(button().ForeColor(), host::rgb(255, 0, 0));
}

TEST_F(ActionButton, WithoutCaptionNoTextIsDrawn) {
  button().SetCaption("");
  EXPECT_EQ(texts(), Events{});
}

struct CaptionCase {
  std::int32_t alignment, iconAlignment;
  std::string x;
};

// The icon is 16 wide, the gap beside it 5: the line height and 2, a third of it. The caption is 24 wide.
TEST_F(ActionButton, CaptionAndIconShareTheWidthAsTheirAlignmentsSay) {
  button().SetCaption("Zero");
  button().SetIcon(builtInPicture(qrnImageFolder));
  for (const CaptionCase& one : std::vector<CaptionCase>{{0, 0, "27"},
                                                         {0, 1, "6"},
                                                         {0, 2, "6"},
                                                         {1, 0, "60"},
                                                         {1, 1, "39"},
                                                         {1, 2, "60"},
                                                         {2, 0, "44"},  // 34.5 and 21, even, less 12
                                                         {2, 1, "22"},  // 34.5, even, less 12
                                                         {2, 2, "33"}}) {
    button().SetAlignment(one.alignment);
    button().SetIconAlignment(one.iconAlignment);
    EXPECT_EQ(texts(), (Events{"text " + one.x + ",8.5 \"Zero\" #000000"}))
        << one.alignment << one.iconAlignment;
  }
}

TEST_F(ActionButton, TheIconLiesAsItsAlignmentSaysInTheMiddleOfTheHeight) {
  button().SetIcon(builtInPicture(qrnImageFolder));
  const auto iconAt = [&](std::int32_t alignment) {
    button().SetIconAlignment(alignment);
    return painted().operations("picture");
  };
  EXPECT_EQ(iconAt(0), (Events{"picture 6,7.5 16x15"}));
  EXPECT_EQ(iconAt(1), (Events{"picture 68,7.5 16x15"}));
  EXPECT_EQ(iconAt(2), (Events{"picture 37,7.5 16x15"}));
}

TEST_F(ActionButton, AnEmptyIconTakesNoRoom) {
  button().SetCaption("Zero");
  button().SetIcon(std::make_shared<host::Picture>(std::vector<host::Picture::Bitmap>()));
  EXPECT_EQ(texts(), (Events{"text 6,8.5 \"Zero\" #000000"}));
  EXPECT_EQ(painted().operations("picture"), Events{});
}

TEST_F(ActionButton, TheGapBesideAWideIconIsAQuarterOfIt) {
  button().SetCaption("Z");
  const host::Picture::Bitmap wide{40, 1, std::vector<std::uint32_t>(40)};
  button().SetIcon(std::make_shared<host::Picture>(std::vector{wide}));
  EXPECT_EQ(texts(), (Events{"text 56,8.5 \"Z\" #000000"}));  // 6, 40 and 10
}

TEST_F(ActionButton, ADisabledOneDrawsTheIconForItOrElseTheNormalOneUnchanged) {
  button().SetIcon(builtInPicture(qrnImageFolder));
  button().SetEnabled(false);
  const auto shadow = painted();
  EXPECT_EQ(shadow.operations("picture"), (Events{"picture 6,7.5 16x15"}));
  EXPECT_EQ(shadow.operations("merge"), Events{});
  const host::Picture::Bitmap small{8, 8, std::vector<std::uint32_t>(64)};
  button().SetIconDisabled(std::make_shared<host::Picture>(std::vector{small}));
  EXPECT_EQ(painted().operations("picture"), (Events{"picture 6,11 8x8"}));
  button().SetEnabled(true);
  EXPECT_EQ(painted().operations("picture"), (Events{"picture 6,7.5 16x15"}));
}

TEST_F(ActionButton, ShadingWashesTheDisabledIconOutWhicheverItIs) {
  button().SetIcon(builtInPicture(qrnImageFolder));
  button().SetAutoShadeIcon(true);
  EXPECT_EQ(painted().operations("merge"), Events{});
  button().SetEnabled(false);
  for (int i = 0; i < 2; ++i) {
    const auto surface = painted();
    EXPECT_EQ(surface.operations("merge"), (Events{"merge 6,7.5 16x15 #808080"}));
    EXPECT_EQ(surface.operations("mask"), (Events{"mask 6,7.5 16x15 #e0e0e0"}));
    button().SetIconDisabled(builtInPicture(qrnImageMethod));
  }
}

TEST_F(ActionButton, PaintsIconShadeCaptionFrameAndFocusInThisOrder) {
  button().SetIcon(builtInPicture(qrnImageFolder));
  button().SetCaption("Zero");
  button().SetAutoShadeIcon(true);
  button().SetButtonMode(qrnButtonEmbossed);
  user->focuses(button());
  button().SetEnabled(false);
  Events kinds;
  const auto surface = painted();
  for (const std::string& operation : surface.operations()) {
    const std::string kind = operation.substr(0, operation.find(' '));
    if (kinds.empty() || kinds.back() != kind) kinds.push_back(kind);
  }
  EXPECT_EQ(kinds, (Events{"fill", "picture", "merge", "mask", "text", "line", "focus"}));
}

TEST_F(ActionButton, LinesOfACaptionAreCentredAsABlock) {
  button().Move(0, 0, 18, 60);  // 6 are left between the margins
  button().SetCaption("A B C");
  EXPECT_EQ(texts(),
            (Events{"text 6,10.5 \"A\" #000000", "text 6,23.5 \"B\" #000000", "text 6,36.5 \"C\" #000000"}));
}

TEST_F(ActionButton, EachLineIsAlignedByItself) {
  button().SetCaption("Zero\r\nab");
  button().SetAlignment(1);
  EXPECT_EQ(texts(), (Events{"text 60,2 \"Zero\" #000000", "text 72,15 \"ab\" #000000"}));
}

TEST_F(ActionButton, TheLargestMarginIsNoHarm) {
  button().SetCaption("Zero");
  button().SetMargin(2'147'483'647);
  EXPECT_EQ(texts().size(), 1u);
}

// ---- breaking captions ----

TEST_F(ActionButton, BreaksBetweenWords) {
  EXPECT_EQ(button().WrapCaption("A B C", 6), "A\r\nB\r\nC");
  EXPECT_EQ(button().WrapCaption("AB CD EF", 24), "AB\r\nCD\r\nEF");
  EXPECT_EQ(button().WrapCaption("AB CD EF", 30), "AB CD\r\nEF");
}

TEST_F(ActionButton, ATextThatFitsStaysOneLine) {
  EXPECT_EQ(button().WrapCaption("AB CD", 30), "AB CD");
  EXPECT_EQ(button().WrapCaption("  AB CD ", 30), "AB CD");
}

TEST_F(ActionButton, AWordThatIsTooLongIsCut) {
  EXPECT_EQ(button().WrapCaption("ABCDEF", 15), "AB\r\nCD\r\nEF");
  EXPECT_EQ(button().WrapCaption("ABC", 1), "A\r\nB\r\nC");
}

TEST_F(ActionButton, CutsBetweenCharactersAndNotInsideOne) {
  EXPECT_EQ(button().WrapCaption("\u00C4\u00D6\u00DC", 12), "\u00C4\u00D6\r\n\u00DC");
}

TEST_F(ActionButton, GivenBreaksStayAndEmptyParagraphsGo) {
  EXPECT_EQ(button().WrapCaption("A\r\n\r\n  \r\nB\r\n", 100), "A\r\nB");
  EXPECT_EQ(button().WrapCaption("", 100), "");
  EXPECT_EQ(button().WrapCaption("\r\n", 100), "");
}

TEST_F(ActionButton, WithoutAnyWidthTheTextStaysAsItIs) {
  EXPECT_EQ(button().WrapCaption(" A\r\n\r\nB ", 0), " A\r\n\r\nB ");
  EXPECT_EQ(button().WrapCaption("A B", -5), "A B");
}

}  // namespace
}  // namespace qrn::test
