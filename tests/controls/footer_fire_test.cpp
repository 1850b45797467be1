#include "footer_fixture.h"

namespace qrn::test {
namespace {

using namespace std::chrono_literals;

class FireTimer : public FooterTest {};

// ---- the fire timer ----

TEST_F(FireTimer, ComeWithATimerOfThePanelThatTicksTenTimesASecond) {
  EXPECT_EQ(timer(), nullptr);
  buttons();
  ASSERT_NE(timer(), nullptr);
  EXPECT_EQ(timer()->Interval(), 100);
  EXPECT_TRUE(timer()->Enabled());
  EXPECT_EQ(platform.clock().runningTimers(), 1);
}

TEST_F(FireTimer, RemovingTheLastOneByKeyOrPositionTakesTheTimer) {
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

TEST_F(FireTimer, GoesWithTheLastOneEvenWhenThePanelCanNotBeArrangedThen) {
  for (const bool all : {false, true}) {
    add("A");
    if (all) add("B");
    panel().SetMenuItemHeight(30000);
    for (int i = 0; i < 2; ++i) items().AddAction("", ddtypeMethod);
    const auto removal = [&] { all ? buttons().RemoveAll() : buttons().Remove(Variant("A")); };
    EXPECT_EQ(raisedBy(removal).number, kOverflow);
    EXPECT_EQ(buttons().Count(), 0);
    EXPECT_EQ(timer(), nullptr);
    items().RemoveAll();
    panel().LayoutControls(false);
  }
}

TEST_F(FireTimer, LeavesAnItemOfItsNameAlone) {
  addParameter("tmrButtonFire");
  add("A")->SetAutoFireDelay(100);
  startListening();
  pass(100ms);
  deliver();
  EXPECT_EQ(events(), (Events{"ButtonClick(1)"}));
  buttons().Remove(Variant("A"));
  EXPECT_EQ(items().Count(), 1);
  EXPECT_EQ(row(1).Name(), "tmrButtonFire");
  EXPECT_EQ(platform.clock().runningTimers(), 0);
}

TEST_F(FireTimer, DoesNotStartForAButtonThatCouldNotBeMade) {
  add("A");
  buttons().Remove(Variant("A"));
  EXPECT_EQ(add("lblTitle"), nullptr);
  EXPECT_EQ(platform.clock().runningTimers(), 0);
}

TEST_F(FireTimer, RemovingTheLastOneAsAnObjectLeavesTheTimer) {
  const ButtonPtr a = add("A");
  buttons().Remove(Variant(a));
  EXPECT_NE(timer(), nullptr);
  buttons().RemoveAll();
  EXPECT_NE(timer(), nullptr);
}

TEST_F(FireTimer, RemoveAllTakesTheTimerAndTheNextOneMakesItAgain) {
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

TEST_F(FireTimer, LeaveNoTimerBehindWhenThePanelGoes) {
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

TEST_F(AutoFire, AButtonRemovedAfterItHasFiredIsForgotten) {
  ok->SetAutoFireDelay(100);
  pass(100ms);
  EXPECT_EQ(ok->AutoFireDelay(), -1);
  buttons().Remove(Variant(ok));
  deliver();
  EXPECT_EQ(events(), Events{});
}

TEST_F(AutoFire, ThePanelMayGoWhenAButtonFires) {
  const auto connection = panel().ButtonClick.connect([&](std::int32_t&) { panel_.reset(); });
  ok->SetAutoFireDelay(100);
  cancel->SetAutoFireDelay(100);
  pass(100ms);
  deliver();
  EXPECT_EQ(panel_, nullptr);
  EXPECT_EQ(platform.clock().runningTimers(), 0);
}

TEST_F(AutoFire, TheFooterMayBeBuiltAnewAndArmedAgainWhenAButtonFires) {
  int fired = 0;
  const auto connection = panel().ButtonClick.connect([&](std::int32_t&) {
    ++fired;
    buttons().RemoveAll();
    add("Refresh")->SetAutoFireDelay(100);
  });
  ok->SetAutoFireDelay(100);
  for (int i = 1; i <= 3; ++i) {
    pass(100ms);
    deliver();
    EXPECT_EQ(fired, i);
  }
  EXPECT_EQ(platform.clock().runningTimers(), 1);
}

TEST_F(AutoFire, ARemovedButtonFiresNoMore) {
  ok->SetAutoFireDelay(100);
  buttons().Remove(Variant(ok));
  pass(200ms);
  ok->SetAutoFireDelay(0);
  deliver();
  EXPECT_EQ(events(), Events{});
}

}  // namespace
}  // namespace qrn::test
