#include "action_button_fixture.h"
#include "support/error_of.h"
#include "support/meddling_site.h"

namespace qrn::test {
namespace {

// ---- presses that bring the focus, quick ones, and two at once ----

TEST_F(ActionButton, KnowsAFocusThatAPressBroughtFromOneByKeyboard) {
  button().SetButtonMode(qrnButtonEmbossed);
  for (const auto press : {host::MouseButton::Left, host::MouseButton::Right}) {
    panel().ControlsContainer().SetFocus();
    user->clicks(button(), press);
    EXPECT_TRUE(button().hasFocus());
    EXPECT_EQ(painted().operations("focus"), Events{});
    take();
    user->presses(host::key::Enter);
    EXPECT_EQ(clicks(), 0);
  }
  panel().ControlsContainer().SetFocus();
  button().SetFocus();
  EXPECT_EQ(painted().operations("focus").size(), 1u);
}

TEST_F(ActionButton, IsNotTakenForReachedByKeyboardWhileThePressIsStillTold) {
  button().SetButtonMode(qrnButtonEmbossed);
  Events seen = {"nothing yet"};
  const auto listening =
      panel().ItemGotFocus.connect([&](std::int32_t&) { seen = painted().operations("focus"); });
  user->clicks(button());
  EXPECT_EQ(seen, Events{});
}

TEST_F(ActionButton, TakesBothPressesOfADoubleClick) {
  user->doubleClicks(button());
  EXPECT_EQ(clicks(), 2);
}

TEST_F(ActionButton, KeepsTheMouseUntilTheLastButtonComesUp) {
  user->pressesAt(place({5, 5}), host::MouseButton::Right);
  user->pressesAt(place({5, 5}));
  user->releasesAt(place({5, 5}));
  user->releasesAt({300, 290}, host::MouseButton::Right);
  panel().ControlsContainer().SetFocus();
  button().SetFocus();
  take();
  user->presses(host::key::Enter);
  EXPECT_EQ(clicks(), 1) << "no press is left over";
}

TEST_F(ActionButton, ComesUpWithItsOwnMouseButtonWhateverTheOtherOneDoes) {
  user->pressesAt(place({5, 5}));
  user->pressesAt(place({5, 5}), host::MouseButton::Right);
  user->releasesAt(place({5, 5}), host::MouseButton::Right);
  user->releasesAt({300, 290});
  user->movesTo(place({5, 5}));
  EXPECT_EQ(frame(), kWhite) << "not pressed any more";
  EXPECT_EQ(clicks(), 0);
}

TEST_F(ActionButton, IsNotClickedWhenItIsHiddenWhileItIsPressed) {
  user->pressesAt(place({5, 5}));
  button().SetVisible(false);
  user->releasesAt(place({5, 5}));
  button().SetVisible(true);
  EXPECT_EQ(clicks(), 0);
}

TEST_F(ActionButton, IsNotClickedWhenAllAroundItIsHiddenWhileItIsPressed) {
  user->pressesAt(place({5, 5}));
  panel().ControlsContainer().SetVisible(false);
  user->releasesAt(place({5, 5}));
  EXPECT_EQ(clicks(), 0);
}

TEST_F(ActionButton, IsNotClickedWhenThePanelIsDisabledWhileItIsPressed) {
  button().AddMenuItem("Trend");
  for (const auto press : {host::MouseButton::Left, host::MouseButton::Right}) {
    user->pressesAt(place({5, 5}), press);
    panel().SetEnabled(false);
    user->releasesAt(place({5, 5}), press);
    panel().SetEnabled(true);
    user->releasesAt(place({5, 5}), press);
  }
  EXPECT_EQ(clicks(), 0);
  EXPECT_TRUE(platform.shownMenus().empty());
  user->movesTo(place({5, 5}));
  EXPECT_EQ(frame(), kWhite) << "it is not down any more";
}

TEST_F(ActionButton, IsReachedByKeyboardWhileTheMouseHoldsAnother) {
  auto& other = items().AddAction("Other", ddtypeMenu)->Control();
  other.Move(0, 50, 90, 30);
  user->pressesAt(other.onSurface().topLeft() + Point{5, 5});
  button().SetFocus();
  take();
  user->presses(host::key::Enter);
  EXPECT_EQ(clicks(), 1);
}

class FailingClick : public ActionButton {
 protected:
  FailingClick() {
    failing_ = button().Click.connect([] { raiseRunTimeError(1000, "listener"); });
    take();
  }

 private:
  Connection failing_;
};

TEST_F(FailingClick, OfTheSpaceBarLeavesTheButtonUp) {
  button().SetFocus();
  take();
  std::int16_t space = host::key::Space, shift = 0;
  button().keyDown(space, shift);
  EXPECT_EQ(frame(), kShadow);
  EXPECT_EQ(errorOf([&] { button().keyUp(space, shift); }), 1000);
  EXPECT_NE(frame(), kShadow);
  EXPECT_EQ(take(), (Events{"KeyDown 32 0", "KeyUp 32 0"}));
}

TEST_F(FailingClick, OfTheEnterKeyIsFollowedByTheKey) {
  button().SetFocus();
  take();
  std::int16_t enter = host::key::Enter;
  EXPECT_EQ(errorOf([&] { button().keyPress(enter); }), 1000);
  EXPECT_EQ(take(), (Events{"KeyPress 13"}));
}

TEST_F(FailingClick, OfTheMouseLeavesTheButtonUp) {
  panel().realise();
  user->pressesAt(place({5, 5}));
  auto& invalidated = static_cast<headless::HeadlessPeer&>(*panel().peer()).invalidated;
  invalidated.clear();
  EXPECT_EQ(errorOf([&] { user->releasesAt(place({5, 5})); }), 1000);
  EXPECT_FALSE(invalidated.empty());
}

TEST_F(ActionButton, TakesNoKeysInADisabledPanel) {
  button().SetFocus();
  panel().SetEnabled(false);
  take();
  user->presses(host::key::Space);
  EXPECT_EQ(take(), Events{});
}

TEST_F(ActionButton, StopsWatchingTheMouseWhenItsModeIsSwitchedOff) {
  user->movesTo(place({5, 5}));
  EXPECT_EQ(platform.clock().runningTimers(), 1);
  button().SetButtonMode(qrnbuttonNone);
  EXPECT_EQ(platform.clock().runningTimers(), 0);
}

TEST_F(ActionButton, AsksItsWindowWhetherTheCursorIsOverIt) {
  const auto away = [](host::WindowHandle, std::uint32_t, std::intptr_t, std::intptr_t) -> std::intptr_t {
    return 0;
  };
  user->movesTo(place({5, 5}));
  EXPECT_NE(frame(), "");
  platform.windows().setLong(button().window(), host::kGwlWndProc, reinterpret_cast<std::intptr_t>(+away));
  platform.clock().advance(std::chrono::milliseconds(70));
  EXPECT_EQ(frame(), "");
}

// ---- border ----

TEST_F(ActionButton, ABorderLiesAroundEverythingElse) {
  button().SetCaption("Zero");
  button().SetButtonMode(qrnButtonEmbossed);
  button().SetBorderStyle(1);
  const Events lines = painted().operations("line");
  ASSERT_EQ(lines.size(), 8u);
  EXPECT_EQ(lines[0].rfind("line 0,29 0,0", 0), 0u) << lines[0];
  EXPECT_EQ(lines[4].rfind("line 1,28 1,1", 0), 0u) << lines[4];
  EXPECT_EQ(texts().front().rfind("text 7,8.5", 0), 0u) << texts().front();
}

// ---- whoever hears of a change may close the form ----

TEST(ANotificationOfAButton, MayBeTheEndOfIt) {
  registerControls();
  headless::HeadlessPlatform platform;
  MeddlingSite site(platform);
  const std::pair<const char*, std::function<void(QRNMenuItem&)>> changes[] = {
      {"Caption", [](QRNMenuItem& one) { one.SetCaption("x"); }},
      {"BackColor", [](QRNMenuItem& one) { one.SetBackColor(host::rgb(1, 2, 3)); }},
      {"ForeColor", [](QRNMenuItem& one) { one.SetForeColor(host::rgb(1, 2, 3)); }},
      {"Font", [](QRNMenuItem& one) { one.SetFont(nullptr); }},
      {"ButtonMode", [](QRNMenuItem& one) { one.SetButtonMode(qrnbuttonNone); }},
      {"Enabled", [](QRNMenuItem& one) { one.SetEnabled(false); }},
      {"Icon", [](QRNMenuItem& one) { one.SetIcon(nullptr); }},
      {"IconDisabled", [](QRNMenuItem& one) { one.SetIconDisabled(nullptr); }},
  };
  for (const auto& [key, change] : changes) {
    auto button = host::create<QRNMenuItem>(site);
    button->realise();
    site.on(key, [&](host::UserControl&) { button.reset(); });
    change(*button);
    EXPECT_EQ(button, nullptr) << key;
  }
}

}  // namespace
}  // namespace qrn::test
