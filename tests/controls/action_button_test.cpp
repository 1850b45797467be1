#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "controls/raised.h"
#include "host/class_table.h"
#include "host/property_bag.h"
#include "images/built_in_pictures.h"
#include "support/panel_fixture.h"

namespace qrn::test {
namespace {

using namespace std::chrono_literals;

constexpr const char* kWhite = "#ffffff";   // of what lies towards the light
constexpr const char* kShadow = "#a0a0a0";  // and of what lies away from it

// A button of 90 by 30 in a panel, without icon; characters are 6 by 13.
class ActionButton : public PanelTest {
 protected:
  ActionButton() {
    item_ = items().AddAction("Button", ddtypeMenu);
    button().SetIcon(nullptr);
    button().Move(0, 0, 90, 30);
    events_ = button().ObjectEvent.connect([this](std::string_view name, host::EventArgs arguments) {
      std::string line(name);
      for (const auto& argument : arguments) line += " " + std::to_string(argument.asLong());
      heard.push_back(line);
    });
  }

  QRNMenuItem& button() { return item_->Control(); }
  Point place(Point inButton) { return button().onSurface().topLeft() + inButton; }
  headless::RecordingSurface painted() {
    const Size size = button().pixelSize();
    headless::RecordingSurface surface(platform, size);
    button().paint(surface, size);
    return surface;
  }
  // The colour of the left edge of the frame, or nothing.
  std::string frame() {
    const auto lines = painted().operations("line");
    if (lines.empty()) return "";
    EXPECT_EQ(lines.size(), 4u);
    return lines.front().substr(lines.front().rfind('#'));
  }
  Events texts() { return painted().operations("text"); }
  Events take() { return std::exchange(heard, {}); }
  int clicks() {
    const Events lines = take();
    return static_cast<int>(std::count(lines.begin(), lines.end(), "Click"));
  }

  std::vector<std::string> heard;

 private:
  std::shared_ptr<clsQRNAction> item_;
  Connection events_;
};

// ---- properties ----

TEST_F(ActionButton, ANewOneTakesItsColoursAndFontFromTheContainer) {
  site.ambientProperties.backColor = host::rgb(1, 2, 3);
  site.ambientProperties.foreColor = host::rgb(4, 5, 6);
  site.ambientProperties.font = std::make_shared<host::Font>("Serif", 11);
  const auto fresh = host::create<QRNMenuItem>(site);
  EXPECT_EQ(fresh->BackColor(), host::rgb(1, 2, 3));
  EXPECT_EQ(fresh->ForeColor(), host::rgb(4, 5, 6));
  EXPECT_EQ(fresh->Font(), site.ambientProperties.font);
  EXPECT_EQ(fresh->Caption(), "Menu");
  EXPECT_EQ(fresh->Margin(), 6);
  EXPECT_EQ(fresh->ButtonMode(), qrnButtonFlat);
  EXPECT_FALSE(fresh->ShowFocusRect());
  EXPECT_FALSE(fresh->AutoShadeIcon());
  ASSERT_NE(fresh->Icon(), nullptr);
  EXPECT_TRUE(fresh->Icon()->empty());
  EXPECT_EQ(fresh->IconDisabled(), nullptr);
}

TEST_F(ActionButton, TheButtonFaceIsAlwaysStoredAsBackground) {
  const auto control = host::create<QRNMenuItem>(site);
  host::PropertyBag bag;
  control->writeProperties(bag);
  EXPECT_EQ(bag.readProperty("BackColor"), host::toVariant(host::kButtonFace));
}

TEST_F(ActionButton, OneBackgroundIsNotStoredAndComesBackAsTheButtonFace) {
  const auto control = host::create<QRNMenuItem>(site);
  control->SetBackColor(0x000080FF);
  host::PropertyBag bag;
  control->writeProperties(bag);
  EXPECT_EQ(bag.find("BackColor"), nullptr);
  EXPECT_EQ(host::create<QRNMenuItem>(site, &bag)->BackColor(), host::kButtonFace);
}

TEST_F(ActionButton, EveryChangeRepaintsTheWholeWindowAndAnEqualWriteNothing) {
  const auto control = host::create<QRNMenuItem>(site);
  control->realise();
  auto& peer = static_cast<headless::HeadlessPeer&>(*control->peer());
  const Rect whole{0, 0, control->Width(), control->Height()};
  const std::vector<std::pair<std::string, std::function<void()>>> changes{
      {"Caption", [&] { control->SetCaption("Calibrate"); }},
      {"BackColor", [&] { control->SetBackColor(host::rgb(1, 2, 3)); }},
      {"ForeColor", [&] { control->SetForeColor(host::rgb(1, 2, 3)); }},
      {"Alignment", [&] { control->SetAlignment(2); }},
      {"ShowFocusRect", [&] { control->SetShowFocusRect(true); }},
      {"Margin", [&] { control->SetMargin(7); }},
      {"BorderStyle", [&] { control->SetBorderStyle(1); }},
      {"Enabled", [&] { control->SetEnabled(false); }},
      {"ButtonMode", [&] { control->SetButtonMode(qrnButtonEmbossed); }},
      {"IconAlignment", [&] { control->SetIconAlignment(1); }},
      {"AutoShadeIcon", [&] { control->SetAutoShadeIcon(true); }}};
  for (const auto& [key, change] : changes) {
    peer.invalidated.clear();
    site.changedKeys.clear();
    change();
    EXPECT_NE(std::find(peer.invalidated.begin(), peer.invalidated.end(), whole), peer.invalidated.end())
        << key;
    EXPECT_EQ(site.changedKeys, (Events{key}));
    peer.invalidated.clear();
    change();
    EXPECT_TRUE(peer.invalidated.empty()) << key;
    EXPECT_EQ(site.changedKeys, (Events{key}));
  }
}

TEST_F(ActionButton, FontAndPicturesAreTakenEvenWhenTheyAreTheSame) {
  const auto control = host::create<QRNMenuItem>(site);
  site.changedKeys.clear();
  control->SetFont(control->Font());
  control->SetIcon(control->Icon());
  control->SetIconDisabled(control->IconDisabled());
  EXPECT_EQ(site.changedKeys, (Events{"Font", "Icon", "IconDisabled"}));
}

TEST_F(ActionButton, RedrawIsForRunTimeOnly) {
  EXPECT_TRUE(button().Redraw());
  site.ambientProperties.userMode = false;
  EXPECT_EQ(raisedBy([&] { button().Redraw(); }).number, 394);
  const Raised raised = raisedBy([&] { button().SetRedraw(true); });
  EXPECT_EQ(raised.number, 383);
  EXPECT_EQ(raised.source, "QRNMenuItem");
}

TEST_F(ActionButton, SwitchingRedrawOnRepaintsAndNothingElseDoes) {
  const auto control = host::create<QRNMenuItem>(site);
  control->realise();
  auto& peer = static_cast<headless::HeadlessPeer&>(*control->peer());
  peer.invalidated.clear();
  control->SetRedraw(true);
  control->SetRedraw(false);
  EXPECT_TRUE(peer.invalidated.empty());
  control->SetRedraw(true);
  EXPECT_EQ(peer.invalidated.size(), 1u);
}

TEST_F(ActionButton, HasAWindowHandle) { EXPECT_NE(button().hwnd(), 0); }

// ---- mouse ----

TEST_F(ActionButton, IsClickedWhenTheLeftButtonComesUpInside) {
  user->pressesAt(place({5, 5}));
  EXPECT_EQ(clicks(), 0);
  user->releasesAt(place({80, 20}));
  EXPECT_EQ(clicks(), 1);
}

TEST_F(ActionButton, IsReleasedWithoutAClickWhenTheButtonComesUpOutside) {
  user->movesTo(place({5, 5}));
  user->pressesAt(place({5, 5}));
  EXPECT_EQ(frame(), kShadow);
  user->releasesAt(place({90, 5}));
  EXPECT_EQ(clicks(), 0);
  EXPECT_EQ(frame(), kWhite);  // the cursor has not been seen to leave yet
}

TEST_F(ActionButton, AReleaseWithoutAPressIsNoClick) {
  button().mouseUp(host::MouseButton::Left, 0, {5, 5});
  EXPECT_EQ(clicks(), 0);
}

TEST_F(ActionButton, ADisabledOneIsNotClicked) {
  button().SetEnabled(false);
  user->clicks(button());
  EXPECT_EQ(clicks(), 0);
}

TEST_F(ActionButton, AFlatOneIsFramedWhileTheMouseIsOverIt) {
  EXPECT_EQ(frame(), "");
  user->movesTo(place({5, 5}));
  EXPECT_EQ(frame(), kWhite);
  user->pressesAt(place({5, 5}));
  EXPECT_EQ(frame(), kShadow);
  user->movesTo(place({-1, 5}));  // dragged outside
  EXPECT_EQ(frame(), "");
  user->movesTo(place({5, 5}));
  EXPECT_EQ(frame(), kShadow);
}

TEST_F(ActionButton, AnEmbossedOneIsAlwaysFramed) {
  button().SetButtonMode(qrnButtonEmbossed);
  EXPECT_EQ(frame(), kWhite);
}

TEST_F(ActionButton, TheFrameLiesOnTheOutermostPixels) {
  button().SetButtonMode(qrnButtonEmbossed);
  EXPECT_EQ(painted().operations("line"), (Events{"line 0,29 0,0 #ffffff", "line 0,0 89,0 #ffffff",
                                                  "line 89,0 89,29 #a0a0a0", "line 0,29 89,29 #a0a0a0"}));
}

TEST_F(ActionButton, ATimerNoticesThatTheMouseHasLeft) {
  EXPECT_EQ(platform.clock().runningTimers(), 0);
  user->movesTo(place({5, 5}));
  EXPECT_EQ(platform.clock().runningTimers(), 1);
  EXPECT_NE(button().controls().find("tmrHit"), nullptr);
  platform.clock().advance(700ms);
  EXPECT_EQ(frame(), kWhite);
  platform.setCursor(place({5, 200}));
  platform.clock().advance(69ms);
  EXPECT_EQ(frame(), kWhite);
  platform.clock().advance(1ms);
  EXPECT_EQ(frame(), "");
  EXPECT_EQ(platform.clock().runningTimers(), 0);
  EXPECT_EQ(button().controls().find("tmrHit"), nullptr);
}

TEST_F(ActionButton, ACursorLeftOfAndAboveTheScreenIsNotOverIt) {
  user->movesTo(place({5, 5}));
  platform.setCursor({-3, -7});
  platform.clock().advance(70ms);
  EXPECT_EQ(frame(), "");
}

TEST_F(ActionButton, ADisabledOneLosesItsHoverAtTheNextTick) {
  user->movesTo(place({5, 5}));
  button().SetEnabled(false);
  platform.clock().advance(70ms);
  EXPECT_EQ(frame(), "");
  EXPECT_EQ(platform.clock().runningTimers(), 0);
}

TEST_F(ActionButton, RunsNoTimerAnyMoreOnceItHasGone) {
  user->movesTo(place({5, 5}));
  items().RemoveAll();
  EXPECT_EQ(platform.clock().runningTimers(), 0);
}

// ---- keyboard ----

TEST_F(ActionButton, SpaceClicksWhenItComesUp) {
  user->focuses(button());
  take();
  user->holds(host::key::Space);
  EXPECT_EQ(frame(), kShadow);
  EXPECT_EQ(take(), (Events{"KeyDown 32 0", "KeyPress 32"}));
  user->lets(host::key::Space);
  EXPECT_EQ(take(), (Events{"Click", "KeyUp 32 0"}));
  EXPECT_EQ(frame(), kWhite);
}

TEST_F(ActionButton, LosingTheFocusReleasesSpace) {
  addParameter("Other");
  panel().LayoutControls(false);
  user->focuses(button());
  user->holds(host::key::Space);
  user->focuses(row(2));
  user->lets(host::key::Space);
  EXPECT_EQ(clicks(), 0);
  EXPECT_EQ(frame(), "");
}

TEST_F(ActionButton, ASpaceThatComesUpWhileItGetsTheKeysClicksAllTheSame) {
  user->focuses(button());
  user->lets(host::key::Space);
  EXPECT_EQ(clicks(), 1);
}

TEST_F(ActionButton, EnterClicksOneThatWasReachedByKeyboard) {
  user->focuses(button());
  take();
  user->presses(host::key::Enter);
  EXPECT_EQ(take(), (Events{"KeyDown 13 0", "Click", "KeyPress 13", "KeyUp 13 0"}));
}

TEST_F(ActionButton, EnterDoesNotClickOneThatWasReachedByMouse) {
  user->clicks(button());
  take();
  user->presses(host::key::Enter);
  EXPECT_EQ(clicks(), 0);
}

TEST_F(ActionButton, ADisabledOneTakesNoClickFromTheKeyboard) {
  user->focuses(button());
  button().SetEnabled(false);
  user->presses(host::key::Space);
  user->presses(host::key::Enter);
  EXPECT_EQ(clicks(), 0);
}

TEST_F(ActionButton, OtherKeysAreForwarded) {
  user->focuses(button());
  take();
  user->presses(host::key::F1, host::shift::Control);
  EXPECT_EQ(take(), (Events{"KeyDown 112 2", "KeyUp 112 2"}));
}

TEST_F(ActionButton, KeyboardFocusFramesAFlatOneAndMouseFocusDoesNot) {
  user->focuses(button());
  EXPECT_EQ(frame(), kWhite);
  user->focuses(panel().ControlsContainer());
  EXPECT_EQ(frame(), "");
  user->clicks(button());
  EXPECT_EQ(frame(), "");  // the mouse was not moved over it
}

TEST_F(ActionButton, AnEmbossedOneShowsTheFocusWhenItCameByKeyboard) {
  button().SetButtonMode(qrnButtonEmbossed);
  user->focuses(button());
  EXPECT_EQ(painted().operations("focus"), (Events{"focus 4,4 81x21"}));
  user->clicks(button());
  EXPECT_EQ(painted().operations("focus"), Events{});
}

TEST_F(ActionButton, TheFocusRectangleCanBeWishedFor) {
  button().SetShowFocusRect(true);
  EXPECT_EQ(painted().operations("focus"), Events{});
  user->clicks(button());
  EXPECT_EQ(painted().operations("focus"), (Events{"focus 4,4 81x21"}));
}

TEST_F(ActionButton, HalfTheMarginCutOffAndOneInsetsTheFocusRectangle) {
  button().SetShowFocusRect(true);
  user->focuses(button());
  button().SetMargin(7);
  EXPECT_EQ(painted().operations("focus"), (Events{"focus 4,4 81x21"}));
  button().SetMargin(8);
  EXPECT_EQ(painted().operations("focus"), (Events{"focus 5,5 79x19"}));
}

// ---- without button behaviour ----

TEST_F(ActionButton, WithoutButtonModeNothingClicksFramesOrTracks) {
  button().SetButtonMode(qrnbuttonNone);
  button().SetShowFocusRect(true);
  user->movesTo(place({5, 5}));
  user->clicks(button());
  user->focuses(button());
  user->presses(host::key::Space);
  user->presses(host::key::Enter);
  EXPECT_EQ(clicks(), 0);
  EXPECT_EQ(frame(), "");
  EXPECT_EQ(painted().operations("focus"), Events{});
  EXPECT_EQ(platform.clock().runningTimers(), 0);
}

TEST_F(ActionButton, WithoutButtonModeTheKeysAreStillRaised) {
  button().SetButtonMode(qrnbuttonNone);
  user->focuses(button());
  take();
  user->presses(host::key::Space);
  EXPECT_EQ(take(), (Events{"KeyDown 32 0", "KeyPress 32", "KeyUp 32 0"}));
}

TEST_F(ActionButton, SwitchingTheModeOffForgetsHoverFocusAndPress) {
  user->movesTo(place({5, 5}));
  user->focuses(button());
  user->holds(host::key::Space);
  button().SetButtonMode(qrnbuttonNone);
  button().SetButtonMode(qrnButtonFlat);
  EXPECT_EQ(frame(), "");
  take();
  user->presses(host::key::Enter);
  EXPECT_EQ(clicks(), 0);
}

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
