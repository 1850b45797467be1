#include "action_button_fixture.h"
#include "controls/raised.h"
#include "host/class_table.h"
#include "host/property_bag.h"
#include "images/built_in_pictures.h"

namespace qrn::test {
namespace {

using namespace std::chrono_literals;

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

TEST_F(ActionButton, AHostMayRemoveTheTimer) {
  user->movesTo(place({5, 5}));
  button().controls().remove("tmrHit");
  user->movesTo(place({6, 6}));
  EXPECT_NE(button().controls().find("tmrHit"), nullptr);
  button().controls().remove("tmrHit");
  button().SetButtonMode(qrnbuttonNone);
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

}  // namespace
}  // namespace qrn::test
