#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

#include "controls/raised.h"
#include "diag/QRNErrors.h"
#include "support/panel_fixture.h"

namespace qrn::test {
namespace {

using namespace std::chrono_literals;
using Names = std::vector<std::string>;

/// A footer button of the fixture's panel is 23 high, a line of 13 and 10, and 72 wide: twelve characters.
class FooterTest : public PanelTest {
 protected:
  clsQRNButtons& buttons() { return panel().Buttons(); }
  clsQRNButton& button(std::int32_t position) { return *buttons().Item(Variant(position)); }
  host::CommandButton& control(std::int32_t position) { return button(position).Control(); }
  ButtonPtr add(const std::string& name, const std::string& caption = "Caption") {
    return buttons().AddButton(name, caption);
  }
  ButtonPtr addAt(const std::string& name, const Variant& position) {
    return buttons().AddButton(name, "Caption", position);
  }
  Names order() {
    Names names;
    for (const ButtonPtr& one : buttons()) names.push_back(one->Control().Name());
    return names;
  }
  host::Timer* timer() {
    return dynamic_cast<host::Timer*>(panel().ControlsCollection().find("tmrButtonFire"));
  }
  void pass(std::chrono::milliseconds time) { platform.clock().advance(time); }
  void deliver() { platform.processMessages(); }
};

class FooterButtons : public FooterTest {};

// ---- adding ----

TEST_F(FooterButtons, OfAPanelAreAlwaysTheSameCollection) {
  EXPECT_EQ(&panel().Buttons(), &panel().Buttons());
  EXPECT_EQ(buttons().Count(), 0);
}

TEST_F(FooterButtons, UnnamedOnesAreCountedThrough) {
  for (int i = 0; i < 3; ++i) add("");
  EXPECT_EQ(order(), (Names{"Button1", "Button2", "Button3"}));
}

TEST_F(FooterButtons, MadeNumbersStartAboveTheCountAndSkipKeysInUse) {
  add("OK");
  add("button2");
  add("");
  EXPECT_EQ(order(), (Names{"OK", "button2", "Button3"}));
  buttons().Remove(Variant("OK"));
  add("");  // Button3 is taken
  EXPECT_EQ(order(), (Names{"button2", "Button3", "Button4"}));
}

TEST_F(FooterButtons, MakeTheirControlInTheButtonsContainerUnderTheirKey) {
  const ButtonPtr ok = add("OK", "&OK");
  EXPECT_EQ(panel().ControlsCollection().find("ok"), &ok->Control());
  EXPECT_EQ(ok->Control().typeName(), "CommandButton");
  EXPECT_EQ(ok->Control().Container(), &panel().ButtonsContainer());
  EXPECT_EQ(ok->Control().Parent(), &panel());
  EXPECT_EQ(ok->Control().Caption(), "&OK");
}

TEST_F(FooterButtons, ANewOneIsOffAndItsTagIsFree) {
  const ButtonPtr ok = add("OK");
  EXPECT_EQ(ok->AutoFireDelay(), -1);
  EXPECT_TRUE(ok->Tag().isEmpty());
  ok->SetTag(Variant("mine"));
  EXPECT_EQ(ok->Tag(), Variant("mine"));
}

TEST_F(FooterButtons, GoInFrontOfTheSelectedOne) {
  add("A");
  const ButtonPtr b = add("B");
  addAt("ByPosition", Variant(1));
  addAt("ByKey", Variant("b"));
  addAt("ByObject", Variant(b));
  EXPECT_EQ(order(), (Names{"ByPosition", "A", "ByKey", "ByObject", "B"}));
}

TEST_F(FooterButtons, GoToTheEndWhenNothingIsSelected) {
  const ButtonPtr a = add("A");
  addAt("Zero", Variant(0));
  addAt("Beyond", Variant(3));
  addAt("Negative", Variant(-1));
  addAt("Unknown", Variant("unknown"));
  buttons().Remove(Variant(a));
  addAt("Gone", Variant(a));
  EXPECT_EQ(order(), (Names{"Zero", "Beyond", "Negative", "Unknown", "Gone"}));
}

TEST_F(FooterButtons, UnderANameInUseThereIsNone) {
  add("OK");
  addParameter("Damping");
  startListening();
  for (const char* name : {"ok", "Damping", "lblTitle", "tmrButtonFire"})
    EXPECT_EQ(add(name), nullptr) << name;
  EXPECT_EQ(order(), (Names{"OK"}));
  EXPECT_EQ(events(), Events{});
}

TEST_F(FooterButtons, AKeyInUseLeavesNoControlBehind) {
  add("OK");
  panel().ControlsCollection().remove("OK");  // the button stays behind
  EXPECT_EQ(add("OK"), nullptr);
  EXPECT_EQ(panel().ControlsCollection().find("OK"), nullptr);
  EXPECT_EQ(buttons().Count(), 1);
}

// ---- the default layout ----

TEST_F(FooterButtons, AreMeasuredWithoutTheSignOfTheirLetter) {
  const ButtonPtr apply = add("Apply", "&Apply");
  EXPECT_EQ(apply->MinWidth(), panel().TextWidth("Applya") + 10);
  EXPECT_EQ(apply->StdWidth(), 12 * panel().TextWidth("a"));
  EXPECT_EQ(apply->Control().Width(), 72);
  EXPECT_EQ(apply->Control().Height(), 23);
}

TEST_F(FooterButtons, AreAsWideAsALongCaptionNeeds) {
  const ButtonPtr wide = add("Wide", "A rather long caption");
  EXPECT_EQ(wide->MinWidth(), 22 * 6 + 10);
  EXPECT_EQ(wide->StdWidth(), 72);
  EXPECT_EQ(wide->Control().Width(), 142);
}

TEST_F(FooterButtons, FractionsOfAWidthAreRoundedToTheNearestNumber) {
  platform.setTextSize(6.125, 13);
  const ButtonPtr ok = add("OK", "OK");
  EXPECT_EQ(ok->StdWidth(), 74);  // 73.5, to the even neighbour
  EXPECT_EQ(ok->MinWidth(), 28);  // 28.375
}

TEST_F(FooterButtons, AskForTheirLayoutByPositionWhenTheyAreMade) {
  add("A");
  addAt("B", Variant(1));
  add("C");
  EXPECT_EQ(events(), (Events{"ButtonLayout(1)", "ButtonLayout(1)", "ButtonLayout(3)"}));
  button(2).SetDefaultLayout("New caption");
  EXPECT_EQ(events(), (Events{"ButtonLayout(2)"}));
  EXPECT_EQ(control(2).Caption(), "New caption");
}

TEST_F(FooterButtons, TheWidthsThatALayoutListenerSetsCountAtOnce) {
  const auto connection = panel().ButtonLayout.connect([&](std::int32_t& index) {
    button(index).SetMinWidth(100);
    button(index).SetStdWidth(120);
  });
  add("A");
  EXPECT_EQ(control(1).Width(), 120);
}

// ---- finding ----

TEST_F(FooterButtons, AreFoundByObjectKeyAndPosition) {
  const ButtonPtr a = add("A");
  const ButtonPtr b = add("B");
  for (const Variant& selector : {Variant(b), Variant("b"), Variant(2)}) {
    EXPECT_EQ(buttons().Item(selector), b);
    EXPECT_EQ(buttons().GetIndexOf(selector), 2);
  }
  EXPECT_EQ(buttons().GetIndexOf(Variant(a)), 1);
}

TEST_F(FooterButtons, AnUnknownOneHasNoIndex) {
  const ButtonPtr a = add("A");
  buttons().Remove(Variant(a));
  const auto foreign = host::create<QRNDisplay>(site);
  const ButtonPtr other = foreign->Buttons().AddButton("A", "A");
  add("B");
  for (const Variant& selector :
       {Variant(a), Variant(other), Variant("A"), Variant(0), Variant(2), Variant(ObjectPtr())}) {
    const Raised raised = raisedBy([&] { buttons().GetIndexOf(selector); });
    EXPECT_EQ(raised.number, kObjectNotInCollection);
    EXPECT_EQ(raised.source, "clsQRNButtons");
  }
}

TEST_F(FooterButtons, AnUnknownSelectorIsTheListsOwnError) {
  const ButtonPtr a = add("A");
  EXPECT_EQ(raisedBy([&] { buttons().Item(Variant("B")); }).number, kInvalidProcedureCall);
  EXPECT_EQ(raisedBy([&] { buttons().Item(Variant(2)); }).number, kSubscriptOutOfRange);
  EXPECT_EQ(raisedBy([&] { buttons().Item(Variant(0)); }).number, kSubscriptOutOfRange);
  EXPECT_EQ(raisedBy([&] { buttons().Remove(Variant("B")); }).number, kInvalidProcedureCall);
  EXPECT_EQ(raisedBy([&] { buttons().Remove(Variant(2)); }).number, kSubscriptOutOfRange);
  buttons().Remove(Variant(a));
  EXPECT_EQ(raisedBy([&] { buttons().Item(Variant(a)); }).number, kObjectNotInCollection);
}

// ---- removing ----

TEST_F(FooterButtons, AreRemovedWithTheirControl) {
  const ButtonPtr a = add("A"), b = add("B"), c = add("C");
  buttons().Remove(Variant("a"));
  buttons().Remove(Variant(2));
  EXPECT_EQ(order(), (Names{"B"}));
  EXPECT_EQ(panel().ControlsCollection().find("A"), nullptr);
  EXPECT_EQ(panel().ControlsCollection().find("C"), nullptr);
  buttons().Remove(Variant(b));
  EXPECT_EQ(buttons().Count(), 0);
  EXPECT_EQ(raisedBy([&] { b->Control(); }).number, kObjectNotInitialized);
}

TEST_F(FooterButtons, AnObjectThatIsNotHereIsLeftAlone) {
  const ButtonPtr a = add("A");
  add("B");
  buttons().Remove(Variant(a));
  buttons().Remove(Variant(a));
  EXPECT_EQ(order(), (Names{"B"}));
}

TEST_F(FooterButtons, OneWhoseControlHasGoneCanStillBeRemoved) {
  add("A");
  panel().ControlsCollection().remove("A");
  panel().LayoutButtons();
  buttons().Remove(Variant("A"));
  EXPECT_EQ(buttons().Count(), 0);
}

TEST_F(FooterButtons, RemoveAllLeavesNone) {
  for (int i = 0; i < 3; ++i) add("");
  buttons().RemoveAll();
  EXPECT_EQ(buttons().Count(), 0);
  EXPECT_TRUE(panel().ButtonsContainer().contained().empty());
}

TEST_F(FooterButtons, RemoveAllOfNoneDoesNothing) {
  buttons().RemoveAll();
  EXPECT_EQ(buttons().Count(), 0);
  EXPECT_EQ(events(), Events{});
}

// ---- the fire timer ----

TEST_F(FooterButtons, ComeWithATimerOfThePanelThatTicksTenTimesASecond) {
  EXPECT_EQ(timer(), nullptr);
  buttons();
  ASSERT_NE(timer(), nullptr);
  EXPECT_EQ(timer()->Interval(), 100);
  EXPECT_TRUE(timer()->Enabled());
  EXPECT_EQ(platform.clock().runningTimers(), 1);
}

TEST_F(FooterButtons, RemovingTheLastOneByKeyOrPositionTakesTheTimer) {
  for (const Variant& selector : {Variant("A"), Variant(1)}) {
    add("A");
    add("B");
    buttons().Remove(Variant("B"));
    EXPECT_NE(timer(), nullptr);
    buttons().Remove(selector);
    EXPECT_EQ(timer(), nullptr);
    EXPECT_EQ(platform.clock().runningTimers(), 0);
  }
}

TEST_F(FooterButtons, RemovingTheLastOneAsAnObjectLeavesTheTimer) {
  const ButtonPtr a = add("A");
  buttons().Remove(Variant(a));
  EXPECT_NE(timer(), nullptr);
  buttons().RemoveAll();
  EXPECT_NE(timer(), nullptr);
}

TEST_F(FooterButtons, RemoveAllTakesTheTimerAndTheNextOneMakesItAgain) {
  add("A");
  buttons().RemoveAll();
  EXPECT_EQ(timer(), nullptr);
  add("B")->SetAutoFireDelay(100);
  ASSERT_NE(timer(), nullptr);
  startListening();
  pass(100ms);
  deliver();
  EXPECT_EQ(events(), (Events{"ButtonClick(1)"}));
}

TEST_F(FooterButtons, LeaveNoTimerBehindWhenThePanelGoes) {
  add("A")->SetAutoFireDelay(1000);
  panel_.reset();
  EXPECT_EQ(platform.clock().runningTimers(), 0);
}

// ---- firing by themselves ----

class AutoFire : public FooterTest {
 protected:
  AutoFire() {
    ok = add("OK");
    cancel = add("Cancel");
    startListening();
  }
  // The delays after each of so many ticks.
  std::vector<std::int32_t> ticks(int count) {
    std::vector<std::int32_t> delays;
    for (int i = 0; i < count; ++i) {
      pass(100ms);
      delays.push_back(ok->AutoFireDelay());
    }
    return delays;
  }

  ButtonPtr ok;
  ButtonPtr cancel;
};

TEST_F(AutoFire, ADelayOf250FiresOnTheThirdTick) {
  ok->SetAutoFireDelay(250);
  EXPECT_EQ(ticks(2), (std::vector<std::int32_t>{150, 50}));
  deliver();
  EXPECT_EQ(events(), Events{});
  EXPECT_EQ(ticks(1), (std::vector<std::int32_t>{-1}));
  deliver();
  EXPECT_EQ(events(), (Events{"ButtonClick(1)"}));
}

TEST_F(AutoFire, AMultipleOfTheIntervalFiresOnTheTickThatReachesNothing) {
  ok->SetAutoFireDelay(200);
  EXPECT_EQ(ticks(2), (std::vector<std::int32_t>{100, -1}));
}

TEST_F(AutoFire, ADelayOf0FiresAtOnceWithoutATick) {
  ok->SetAutoFireDelay(0);
  EXPECT_EQ(ok->AutoFireDelay(), -1);
  EXPECT_EQ(events(), Events{}) << "not before the code that is running has returned";
  deliver();
  EXPECT_EQ(events(), (Events{"ButtonClick(1)"}));
}

TEST_F(AutoFire, AButtonFiresOncePerArming) {
  ok->SetAutoFireDelay(100);
  for (int i = 0; i < 5; ++i) pass(100ms), deliver();
  EXPECT_EQ(events(), (Events{"ButtonClick(1)"}));
  ok->SetAutoFireDelay(100);
  for (int i = 0; i < 5; ++i) pass(100ms), deliver();
  EXPECT_EQ(events(), (Events{"ButtonClick(1)"}));
}

TEST_F(AutoFire, AnyNegativeDelayIsOff) {
  ok->SetAutoFireDelay(100);
  ok->SetAutoFireDelay(-5);
  EXPECT_EQ(ticks(3), (std::vector<std::int32_t>{-5, -5, -5}));
  deliver();
  EXPECT_EQ(events(), Events{});
}

TEST_F(AutoFire, AClickOfTheUserDisarms) {
  ok->SetAutoFireDelay(200);
  user->clicks(ok->Control());
  EXPECT_EQ(ok->AutoFireDelay(), -1);
  pass(500ms);
  deliver();
  EXPECT_EQ(events(), (Events{"ButtonClick(1)"}));
}

TEST_F(AutoFire, OneTimerServesAllInTheirOrder) {
  cancel->SetAutoFireDelay(100);
  ok->SetAutoFireDelay(100);
  EXPECT_EQ(platform.clock().runningTimers(), 1);
  pass(100ms);
  deliver();
  EXPECT_EQ(events(), (Events{"ButtonClick(1)", "ButtonClick(2)"}));
}

TEST_F(AutoFire, CountsInTheIntervalThatTheTimerHas) {
  timer()->SetInterval(50);
  ok->SetAutoFireDelay(120);
  pass(100ms);
  EXPECT_EQ(ok->AutoFireDelay(), 20);
}

TEST_F(AutoFire, ARemovedButtonFiresNoMore) {
  ok->SetAutoFireDelay(100);
  buttons().Remove(Variant(ok));
  pass(200ms);
  ok->SetAutoFireDelay(0);
  deliver();
  EXPECT_EQ(events(), Events{});
}

// ---- clicks ----

class FooterClicks : public FooterTest {
 protected:
  FooterClicks() {
    for (const char* name : {"OK", "Apply", "Cancel"}) add(name, std::string("&") + name);
    panel().LayoutControls(false);
    startListening();
  }
};

TEST_F(FooterClicks, ReachThePanelAfterTheHandlerHasReturned) {
  bool returned = false;
  const auto during = control(2).Click.connect([&] { EXPECT_EQ(events(), Events{}); });
  const auto connection = panel().ButtonClick.connect([&](std::int32_t&) { EXPECT_TRUE(returned); });
  user->clicks(control(2));
  EXPECT_EQ(events(), Events{});
  returned = true;
  deliver();
  EXPECT_EQ(events(), (Events{"ButtonClick(2)"}));
}

TEST_F(FooterClicks, ComeFromTheKeyboardToo) {
  user->focuses(control(1));
  startListening();
  user->holds(host::key::Space);
  deliver();
  EXPECT_EQ(events(), (Events{"KeyDown(32, 0)", "KeyPress(32)"})) << "the space bar clicks when it is let go";
  user->lets(host::key::Space);
  deliver();
  EXPECT_EQ(events(), (Events{"KeyUp(32, 0)", "ButtonClick(1)"}));
  user->presses(host::key::Enter);
  deliver();
  EXPECT_EQ(events(), (Events{"KeyDown(13, 0)", "KeyPress(13)", "KeyUp(13, 0)", "ButtonClick(1)"}));
}

TEST_F(FooterClicks, ComeFromTheLetterOfTheCaptionWhereverTheFocusIs) {
  addParameter("Damping");
  panel().LayoutControls(false);
  user->focuses(row(1));
  startListening();
  user->presses('A', host::shift::Alt);
  deliver();
  EXPECT_EQ(events(), (Events{"ItemKeyDown(1, 65, 4)", "ParameterEndEdit(1, False)", "ItemLostFocus(1)",
                              "KeyUp(65, 4)", "ButtonClick(2)"}));
  EXPECT_TRUE(control(2).hasFocus());
}

TEST_F(FooterClicks, ARowThatIsBeingEditedEndsItsEditingFirst) {
  addParameter("Damping");
  panel().LayoutControls(false);
  user->focuses(row(1));
  user->types("x");
  startListening();
  user->clicks(control(1));
  EXPECT_EQ(events(), (Events{"ParameterEndEdit(1, True)", "ItemLostFocus(1)"}));
  deliver();
  EXPECT_EQ(events(), (Events{"ButtonClick(1)"}));
}

TEST_F(FooterClicks, OfADisabledButtonAreClicksOnThePanel) {
  control(1).SetEnabled(false);
  user->clicks(control(1));
  deliver();
  EXPECT_EQ(events(), (Events{"Click"}));
}

TEST_F(FooterClicks, OnTheFooterBesideTheButtonsAreClicksOnThePanel) {
  panel().SetButtonsAlignment(0);
  const Rect footer = panel().ButtonsContainer().visibleOnSurface();
  user->clicksAt({footer.right() - 5, footer.top + 5});
  EXPECT_EQ(events(), (Events{"Click"}));
}

TEST_F(FooterClicks, TwoBeforeTheMessageLoopComesAreOne) {
  user->clicks(control(1));
  user->clicks(control(1));
  deliver();
  EXPECT_EQ(events(), (Events{"ButtonClick(1)"}));
}

TEST_F(FooterClicks, OfSeveralButtonsArriveInTheirOrder) {
  user->clicks(control(3));
  user->clicks(control(1));
  deliver();
  EXPECT_EQ(events(), (Events{"ButtonClick(3)", "ButtonClick(1)"}));
}

TEST_F(FooterClicks, CarryThePositionAtTheTimeOfTheClick) {
  user->clicks(control(2));
  buttons().Remove(Variant(1));
  deliver();
  EXPECT_EQ(events(), (Events{"ButtonClick(2)"}));
}

TEST_F(FooterClicks, ACallByHandTakesWhatAnswersToANumber) {
  Variant two("2");
  button(1).Callback(two);
  EXPECT_EQ(events(), (Events{"ButtonClick(2)"}));
  Variant nonsense("two");
  button(1).Callback(nonsense);
  EXPECT_EQ(events(), Events{});
}

// ---- what listeners do to it ----

TEST_F(FooterClicks, OfAButtonRemovedMeanwhileAreForgotten) {
  const ButtonPtr kept = buttons().Item(Variant(2));
  user->clicks(control(2));
  buttons().Remove(Variant(2));
  deliver();
  EXPECT_EQ(events(), Events{});
}

TEST_F(FooterClicks, TheirButtonMayGoInsideThem) {
  const auto connection =
      panel().ButtonClick.connect([&](std::int32_t& index) { buttons().Remove(Variant(index)); });
  user->clicks(control(2));
  deliver();
  EXPECT_EQ(order(), (Names{"OK", "Cancel"}));
  EXPECT_EQ(events(), (Events{"ButtonClick(2)"}));
}

TEST_F(FooterClicks, AllButtonsMayGoInsideOneAndOthersCome) {
  const auto connection = panel().ButtonClick.connect([&](std::int32_t&) {
    buttons().RemoveAll();
    add("New");
  });
  user->clicks(control(2));
  user->clicks(control(3));
  deliver();
  EXPECT_EQ(order(), (Names{"New"}));
  EXPECT_EQ(events(), (Events{"ButtonLayout(1)", "ButtonClick(2)"}));  // the log listens last
}

TEST_F(FooterClicks, ThePanelMayGoInsideOne) {
  int heard = 0;
  const auto connection = panel().ButtonClick.connect([&](std::int32_t&) {
    ++heard;
    panel_.reset();
  });
  user->clicks(control(1));
  deliver();
  EXPECT_EQ(heard, 1);
  EXPECT_EQ(panel_, nullptr);
  EXPECT_EQ(platform.windows().windowCount(), 0);
}

TEST_F(FooterClicks, ThePanelMayGoBeforeOneArrives) {
  const ButtonPtr kept = buttons().Item(Variant(1));
  user->clicks(control(1));
  panel_.reset();
  deliver();
  kept->SetAutoFireDelay(0);
  deliver();
  EXPECT_EQ(raisedBy([&] { kept->Control(); }).number, kObjectNotInitialized);
  EXPECT_EQ(platform.windows().windowCount(), 0);
}

TEST_F(FooterClicks, TheControlMayGoInsideItsOwnClick) {
  const auto connection = control(1).Click.connect([&] { buttons().Remove(Variant(1)); });
  user->clicks(control(1));
  deliver();
  EXPECT_EQ(events(), Events{});
  EXPECT_EQ(order(), (Names{"Apply", "Cancel"}));
}

TEST_F(FooterClicks, AnErrorOfAListenerIsNoneOfTheMessageLoops) {
  int heard = 0;
  const auto connection = panel().ButtonClick.connect([&](std::int32_t&) {
    if (++heard == 1) RaiseError(1000, "listener", "on purpose");
  });
  user->clicks(control(1));
  EXPECT_EQ(raisedBy([&] { deliver(); }).number, 0);
  user->clicks(control(1));
  deliver();
  EXPECT_EQ(heard, 2);
}

TEST_F(FooterClicks, ABrokenListenerDoesNotHoldUpTheNextClick) {
  int heard = 0;
  const auto connection = panel().ButtonClick.connect([&](std::int32_t&) {
    if (++heard == 1) throw std::logic_error("on purpose");
  });
  user->clicks(control(1));
  user->clicks(control(2));
  EXPECT_THROW(deliver(), std::logic_error);
  deliver();
  EXPECT_EQ(heard, 2);
}

TEST_F(FooterClicks, AButtonMayFireAgainInsideItsOwnClick) {
  int left = 3;
  const auto connection = panel().ButtonClick.connect([&](std::int32_t& index) {
    if (--left > 0) button(index).SetAutoFireDelay(0);
  });
  user->clicks(control(1));
  deliver();
  EXPECT_EQ(events(), (Events{"ButtonClick(1)", "ButtonClick(1)", "ButtonClick(1)"}));
}

// A dialog box that a click opens runs the message loop on.
TEST_F(FooterClicks, ALoopInsideOneDeliversTheOthersAndItselfOnlyOnce) {
  std::vector<std::int32_t> order;
  const auto connection = panel().ButtonClick.connect([&](std::int32_t& index) {
    order.push_back(index);
    deliver();
  });
  user->clicks(control(1));
  user->clicks(control(1));
  user->clicks(control(2));
  deliver();
  EXPECT_EQ(order, (std::vector<std::int32_t>{1, 2}));
}

class FooterFaults : public FooterTest {};

TEST_F(FooterFaults, ThePanelMayGoInsideTheLayoutOfANewButton) {
  const auto connection = panel().ButtonLayout.connect([&](std::int32_t&) { panel_.reset(); });
  const ButtonPtr button = add("OK");
  ASSERT_NE(button, nullptr);
  EXPECT_EQ(panel_, nullptr);
  EXPECT_EQ(raisedBy([&] { button->Control(); }).number, kObjectNotInitialized);
}

TEST_F(FooterFaults, ANewButtonMayBeRemovedInsideItsLayout) {
  const auto connection =
      panel().ButtonLayout.connect([&](std::int32_t& index) { buttons().Remove(Variant(index)); });
  const ButtonPtr button = add("OK");
  EXPECT_EQ(buttons().Count(), 0);
  EXPECT_FALSE(panel().ButtonsContainer().Visible());
  EXPECT_EQ(raisedBy([&] { button->Control(); }).number, kObjectNotInitialized);
}

TEST_F(FooterFaults, AnErrorOfALayoutListenerReachesTheCallerAndLeavesTheButton) {
  {
    const auto connection = panel().ButtonLayout.connect([](std::int32_t&) { RaiseError(1000, "listener"); });
    EXPECT_EQ(raisedBy([&] { add("OK"); }).number, 1000);
  }
  EXPECT_EQ(order(), (Names{"OK"}));
  add("Cancel");
  user->clicks(control(2));
  startListening();
  deliver();
  EXPECT_EQ(events(), (Events{"ButtonClick(2)"}));
}

}  // namespace
}  // namespace qrn::test
