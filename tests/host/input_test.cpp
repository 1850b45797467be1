#include "host/check_box.h"
#include "host/label.h"
#include "host/picture_box.h"
#include "host/text_box.h"
#include "test_control.h"

namespace qrn::test {
namespace {

class Mouse : public SurfaceTest {
 protected:
  Mouse() { surface().notesMouse = row.notesMouse = true; }

  TestControl& row = surface().addControl("row", {10, 20, 150, 20});
  host::Label& label = row.add<host::Label>("label", {5, 3, 50, 13});
  host::TextBox& box = row.add<host::TextBox>("box", {60, 0, 80, 20});
};

TEST_F(Mouse, HitsTheDeepestControlAtAPoint) {
  EXPECT_EQ(input().hit({16, 24}), &label);
  EXPECT_EQ(input().hit({80, 25}), &box);
  EXPECT_EQ(input().hit({11, 21}), &row);
  EXPECT_EQ(input().hit({5, 5}), &surface());
  EXPECT_EQ(input().hit({159.5, 39.5}), &row);
  EXPECT_EQ(input().hit({160, 40}), &surface());
}

TEST_F(Mouse, HitsWhatLiesOnTop) {
  auto& over = row.add<host::Label>("over", {60, 0, 40, 20});
  EXPECT_EQ(input().hit({80, 25}), &over);
  row.bringToFront(box);
  EXPECT_EQ(input().hit({80, 25}), &box);
}

TEST_F(Mouse, HitsThroughAScrolledContainerOnlyWhatCanBeSeen) {
  auto& area = surface().add<host::PictureBox>("area", {0, 50, 100, 60});
  auto& far = surface().add<host::Label>("far", {0, 200, 50, 13}, area);
  EXPECT_EQ(input().hit({5, 60}), &area);
  area.scrollTo(190);
  EXPECT_EQ(input().hit({5, 65}), &far);
  EXPECT_EQ(far.fromSurface({5, 65}), (Point{5, 5}));
  area.scrollTo(250);
  EXPECT_EQ(input().hit({5, 0}), &surface()) << "scrolled out at the top it would lie there";
}

TEST_F(Mouse, HitsInAnyScaleMode) {
  row.setScaleMode(1);
  auto& twips = row.add<host::Label>("twips", {1500, 0, 150, 300});
  EXPECT_EQ(twips.onSurface(), (Rect{110, 20, 10, 20}));
  row.bringToFront(twips);
  EXPECT_EQ(input().hit({115, 25}), &twips);
}

TEST_F(Mouse, GoesThroughWhatIsHiddenOrDisabledToWhatLiesBehindIt) {
  label.SetVisible(false);
  EXPECT_EQ(input().hit({16, 24}), &row);
  label.SetVisible(true);
  label.SetEnabled(false);
  EXPECT_EQ(input().hit({16, 24}), &row);
  auto& behind = row.add<host::Label>("behind", {0, 0, 55, 20});
  row.bringToFront(label);
  EXPECT_EQ(input().hit({16, 24}), &behind);
  row.SetEnabled(false);
  EXPECT_EQ(input().hit({16, 24}), &surface());
  row.SetEnabled(true);
  row.SetVisible(false);
  EXPECT_EQ(input().hit({16, 24}), &surface());
}

TEST_F(Mouse, ReportsAClickToWhatHoldsTheControlInPixelsOfTheControl) {
  user.clicksAt({17, 25});
  EXPECT_EQ(heard(), (Heard{"label MouseDown 1 2,2", "label MouseUp 1 2,2"}));
  user.clicksAt({12, 21}, host::MouseButton::Right);
  EXPECT_EQ(heard(), (Heard{"row MouseDown 2 2,1", "row MouseUp 2 2,1"}));
  user.clicksAt({1, 2});
  EXPECT_EQ(heard(), (Heard{"surface MouseDown 1 1,2", "surface MouseUp 1 1,2"}));
}

TEST_F(Mouse, ReportsADoubleClickAndAMove) {
  user.doubleClicks(label);
  EXPECT_EQ(heard(), (Heard{"label MouseDown 1 25,6", "label MouseUp 1 25,6", "label DblClick 25,6",
                            "label MouseUp 1 25,6"}));
  user.movesTo({16, 24});
  user.movesTo({1, 1});
  EXPECT_EQ(heard(), (Heard{"label MouseMove 1,1", "surface MouseMove 1,1"}));
}

TEST_F(Mouse, StaysWithTheControlThatItWasPressedOnUntilItIsReleased) {
  user.pressesAt({17, 25});
  user.movesTo({0, 0});
  user.releasesAt({190, 140});
  EXPECT_EQ(heard(), (Heard{"label MouseDown 1 2,2", "label MouseMove -15,-23", "label MouseUp 1 175,117"}));
  user.movesTo({0, 0});
  EXPECT_EQ(heard(), (Heard{"surface MouseMove 0,0"}));
}

TEST_F(Mouse, IsFreeAgainWhenTheControlThatItWasPressedOnIsHiddenOrDisabled) {
  user.pressesAt({17, 25}, host::MouseButton::Right);
  label.SetVisible(false);
  user.pressesAt({190, 140});
  EXPECT_EQ(heard().back(), "surface MouseDown 1 190,140");
  label.SetVisible(true);
  user.releasesAt({190, 140});
  user.pressesAt({17, 25}, host::MouseButton::Right);
  label.SetEnabled(false);
  user.pressesAt({190, 140});
  EXPECT_EQ(heard().back(), "surface MouseDown 1 190,140");
}

TEST_F(Mouse, IsFreeAgainWhenTheControlThatItWasPressedOnGoes) {
  user.pressesAt({17, 25});
  row.controls().remove("label");
  user.releasesAt({17, 25});
  EXPECT_EQ(heard(), (Heard{"label MouseDown 1 2,2", "row MouseUp 1 7,5"}));
}

TEST_F(Mouse, MayRemoveTheControlItPresses) {
  diary.listener = [&](const std::string& what) {
    if (what.starts_with("label MouseDown")) surface().controls().remove("row");
  };
  user.clicks(label);
  EXPECT_EQ(heard(), (Heard{"label MouseDown 1 25,6", "surface MouseUp 1 40,29"}));
}

TEST_F(Mouse, MayDestroyTheSurface) {
  for (const char* moment : {"box GotFocus", "label MouseDown 1 25,6"}) {
    Diary log;
    auto doomed = made<TestControl>(site, log, "surface");
    doomed->Move(0, 0, 200, 100);
    auto& inner = doomed->addControl("row", {0, 0, 200, 20});
    inner.notesMouse = true;
    auto& target = inner.add<host::Label>("label", {0, 0, 50, 13});
    auto& editor = inner.add<host::TextBox>("box", {60, 0, 50, 13});
    log.listener = [&](const std::string& what) {
      if (what == moment) doomed.reset();
    };
    host::Control& pressed =
        std::string_view(moment).starts_with("box") ? static_cast<host::Control&>(editor) : target;
    doomed->input().mouseDown(host::MouseButton::Left, host::shift::None, headless::User::middleOf(pressed));
    EXPECT_FALSE(doomed) << moment;
  }
}

TEST_F(Mouse, GivesTheFocusToAnEditorBeforeItReportsThePress) {
  user.clicks(box);
  EXPECT_EQ(heard(), (Heard{"row GotFocus", "box GotFocus", "box MouseDown 1 40,10", "box MouseUp 1 40,10"}));
}

TEST_F(Mouse, HandsThePressOnToANativeWidgetWhereTheEditorHasOne) {
  surface().realise();
  const Point at = headless::User::middleOf(box);
  EXPECT_EQ(input().mouseDown(host::MouseButton::Left, host::shift::None, at), &box);
  EXPECT_EQ(heard(), (Heard{"row GotFocus", "box GotFocus"}));
  EXPECT_EQ(input().mouseDown(host::MouseButton::Left, host::shift::None, {17, 25}), nullptr);
  heard();
  input().mouseUp(host::MouseButton::Left, host::shift::None, {17, 25});
  // The widget takes the release of its own presses, so the surface must not wait for it.
  input().mouseDown(host::MouseButton::Left, host::shift::None, at);
  heard();
  input().mouseMove(0, host::shift::None, {1, 1});
  EXPECT_EQ(heard(), (Heard{"surface MouseMove 1,1"}));
}

TEST_F(Mouse, GivesNoFocusToADisabledEditor) {
  box.SetEnabled(false);
  user.clicks(box);
  EXPECT_EQ(input().focus(), nullptr);
  EXPECT_EQ(heard(), (Heard{"row MouseDown 1 100,10", "row MouseUp 1 100,10"}));
}

TEST_F(Mouse, GivesADisabledSurfaceNothing) {
  surface().SetEnabled(false);
  user.clicksAt({1, 1});
  user.clicks(box);
  user.doubleClicks(label);
  EXPECT_EQ(heard(), Heard{});
  EXPECT_EQ(input().focus(), nullptr);
}

TEST_F(Mouse, CanNotReachWhatIsHiddenOrScrolledAway) {
  row.SetVisible(false);
  user.clicks(label);
  user.clicks(box);
  EXPECT_EQ(heard(), Heard{});
  row.SetVisible(true);
  row.SetTop(1000);
  user.clicks(box);
  EXPECT_EQ(heard(), Heard{});
}

TEST_F(Mouse, MayPressACheckBoxAwayBeforeItIsToggled) {
  auto& check = row.add<host::CheckBox>("check", {0, 0, 10, 10});
  diary.listener = [&](const std::string& what) {
    if (what == "check GotFocus") row.controls().remove("check");
  };
  user.clicks(check);
  EXPECT_EQ(row.controls().find("check"), nullptr);
}

TEST_F(Mouse, WheelsFromTheInsideOutUntilSomebodyScrolls) {
  user.turnsWheel({17, 25}, 1);
  EXPECT_EQ(heard(), (Heard{"row Wheel 1", "surface Wheel 1"}));
  row.usesWheel = true;
  user.turnsWheel({80, 25}, -2);
  EXPECT_EQ(heard(), (Heard{"row Wheel -2"}));
  EXPECT_TRUE(input().wheel({80, 25}, 1));
  EXPECT_FALSE(input().wheel({1, 1}, 1));
}

TEST_F(Mouse, MayWheelTheControlAway) {
  diary.listener = [&](const std::string& what) {
    if (what.starts_with("row Wheel")) surface().controls().remove("row");
  };
  user.turnsWheel({17, 25}, 1);
  EXPECT_EQ(heard(), (Heard{"row Wheel 1"}));
}

class Keys : public SurfaceTest {
 protected:
  Keys() {
    surface().notesKeys = row.notesKeys = true;
    surface().tabStops = {&first, &second, &outside};
  }

  TestControl& row = surface().addControl("row", {0, 0, 200, 20});
  host::TextBox& first = row.add<host::TextBox>("first", {0, 0, 50, 20});
  host::TextBox& second = row.add<host::TextBox>("second", {60, 0, 50, 20});
  host::TextBox& outside = surface().add<host::TextBox>("outside", {0, 40, 50, 20});
};

TEST_F(Keys, GoToWhatHoldsTheEditorWithTheFocusOrToTheSurface) {
  user.presses(host::key::F4, host::shift::Control);
  EXPECT_EQ(heard(), (Heard{"surface KeyDown 115+2", "surface KeyUp 115+2"}));
  first.SetFocus();
  heard();
  user.types("a");
  EXPECT_EQ(heard(), (Heard{"first KeyDown 65", "first KeyPress 97", "first Change", "first KeyUp 65"}));
  user.types("A");
  EXPECT_EQ(heard(), (Heard{"first KeyDown 65+1", "first KeyPress 65", "first Change", "first KeyUp 65+1"}));
}

TEST_F(Keys, ClearedByAListenerDoNothing) {
  first.SetFocus();
  heard();
  row.swallowedKey = 'A';
  user.types("a");
  EXPECT_EQ(first.Text(), "");
  EXPECT_EQ(heard(), (Heard{"first KeyDown 65", "first KeyUp 65"}));
  row.swallowedKey = 'b';
  user.types("b");
  EXPECT_EQ(first.Text(), "");
  EXPECT_EQ(heard(), (Heard{"first KeyDown 66", "first KeyPress 98", "first KeyUp 66"}));
}

TEST_F(Keys, TabWalksTheTabStopsAndShiftTabWalksThemBack) {
  user.presses(host::key::Tab);
  EXPECT_EQ(input().focus(), &first);
  user.presses(host::key::Tab);
  user.presses(host::key::Tab);
  EXPECT_EQ(input().focus(), &outside);
  user.presses(host::key::Tab, host::shift::Shift);
  EXPECT_EQ(input().focus(), &second);
}

TEST_F(Keys, TabIsUsedUpUntilTheLastStopWhereItLeavesTheSurface) {
  first.SetFocus();
  EXPECT_TRUE(input().keyDown(host::key::Tab, host::shift::None));
  outside.SetFocus();
  EXPECT_FALSE(input().keyDown(host::key::Tab, host::shift::None));
  EXPECT_EQ(input().focus(), &outside);
}

TEST_F(Keys, TabClearedByAListenerStaysWhereItIs) {
  first.SetFocus();
  row.swallowedKey = host::key::Tab;
  EXPECT_TRUE(input().keyDown(host::key::Tab, host::shift::None));
  EXPECT_EQ(input().focus(), &first);
}

TEST_F(Keys, TabWithControlOrAltIsAnOrdinaryKey) {
  first.SetFocus();
  user.presses(host::key::Tab, host::shift::Control);
  user.presses(host::key::Tab, host::shift::Alt);
  EXPECT_EQ(input().focus(), &first);
}

TEST_F(Keys, TabReportsItsReleaseToWhereTheFocusWent) {
  first.SetFocus();
  heard();
  user.presses(host::key::Tab);
  EXPECT_EQ(heard(), (Heard{"first KeyDown 9", "first LostFocus", "second GotFocus", "second KeyUp 9"}));
}

TEST_F(Keys, AreAnsweredWhetherTheyAreUsedUp) {
  first.SetFocus();
  EXPECT_FALSE(input().keyDown('X', host::shift::None));
  EXPECT_EQ(input().keyPress('x'), 'x');
  EXPECT_FALSE(input().keyUp('X', host::shift::None));
  row.swallowedKey = 'X';
  EXPECT_TRUE(input().keyDown('X', host::shift::None));
  EXPECT_TRUE(input().keyUp('X', host::shift::None));
  row.swallowedKey = 'x';
  EXPECT_EQ(input().keyPress('x'), 0);
}

TEST_F(Keys, MayRemoveTheEditorThatTheyGoTo) {
  first.SetFocus();
  diary.listener = [&](const std::string& what) {
    if (what == "first KeyDown 65") surface().controls().remove("row");
  };
  user.types("ab");
  EXPECT_EQ(surface().controls().find("row"), nullptr);
}

TEST_F(Keys, MayDestroyTheSurface) {
  for (const char* moment : {"first KeyDown 65", "first KeyPress 97", "first KeyUp 65"}) {
    Diary log;
    auto doomed = made<TestControl>(site, log, "surface");
    auto& inner = doomed->addControl("row", {0, 0, 200, 20});
    inner.notesKeys = true;
    inner.add<host::TextBox>("first").SetFocus();
    headless::User typist(platform, *doomed);
    log.listener = [&](const std::string& what) {
      if (what == moment) doomed.reset();
    };
    typist.types("abc");
    EXPECT_FALSE(doomed) << moment;
    EXPECT_EQ(log.lines.back(), moment);
  }
}

}  // namespace
}  // namespace qrn::test
