#include "host/timer.h"

#include "test_control.h"

namespace qrn::test {
namespace {

using namespace std::chrono_literals;

class Timers : public SurfaceTest {
 protected:
  void noteTicks(std::function<void()> then = {}) {
    connection = timer->Tick.connect([this, then] {
      ++ticks;
      if (then) then();
    });
  }
  /// How often it ticks on the way.
  int advance(std::chrono::milliseconds by) {
    const int before = ticks;
    platform.clock().advance(by);
    return ticks - before;
  }

  host::Timer* timer = &surface().add<host::Timer>("tmr");
  Connection connection;
  int ticks = 0;
};

TEST_F(Timers, TickAgainAndAgainWhileEnabledAndTheirIntervalIsAboveZero) {
  noteTicks();
  EXPECT_EQ(advance(1000ms), 0);
  timer->SetInterval(70);
  EXPECT_EQ(advance(69ms), 0);
  EXPECT_EQ(advance(1ms), 1);
  EXPECT_EQ(advance(210ms), 3);
  timer->SetInterval(0);
  EXPECT_EQ(advance(1000ms), 0);
  timer->SetInterval(-5);
  EXPECT_EQ(advance(1000ms), 0);
  EXPECT_EQ(platform.clock().runningTimers(), 0);
}

TEST_F(Timers, StartOverWhenTheyAreSwitchedOnOrTheirIntervalChanges) {
  noteTicks();
  timer->SetInterval(100);
  advance(90ms);
  timer->SetEnabled(false);
  EXPECT_EQ(advance(500ms), 0);
  timer->SetEnabled(true);
  EXPECT_EQ(advance(99ms), 0);
  EXPECT_EQ(advance(1ms), 1);
  advance(90ms);
  timer->SetInterval(50);
  EXPECT_EQ(advance(49ms), 0);
  EXPECT_EQ(advance(1ms), 1);
  timer->SetInterval(50);
  EXPECT_EQ(advance(50ms), 1) << "the same interval changes nothing";
}

TEST_F(Timers, CanNotBeSeen) {
  EXPECT_FALSE(timer->Visible());
  EXPECT_EQ(input().hit({5, 5}), &surface());
}

TEST_F(Timers, RaiseTheirEventByNameAsWell) {
  Heard names;
  const auto named =
      timer->ObjectEvent.connect([&](std::string_view name, host::EventArgs) { names.emplace_back(name); });
  timer->SetInterval(10);
  advance(20ms);
  EXPECT_EQ(names, (Heard{"Timer", "Timer"}));
}

TEST_F(Timers, MayStopInsideTheirTick) {
  noteTicks([this] { timer->SetEnabled(false); });
  timer->SetInterval(10);
  EXPECT_EQ(advance(100ms), 1);
  EXPECT_EQ(platform.clock().runningTimers(), 0);
}

TEST_F(Timers, MayRestartInsideTheirTick) {
  noteTicks([this] {
    timer->SetEnabled(false);
    timer->SetInterval(30);
    timer->SetEnabled(true);
  });
  timer->SetInterval(10);
  EXPECT_EQ(advance(10ms), 1);
  EXPECT_EQ(advance(29ms), 0);
  EXPECT_EQ(advance(1ms), 1);
  EXPECT_EQ(platform.clock().runningTimers(), 1);
}

TEST_F(Timers, MayBeDestroyedInsideTheirTick) {
  noteTicks([this] { surface().controls().remove("tmr"); });
  timer->SetInterval(10);
  EXPECT_EQ(advance(100ms), 1);
  EXPECT_EQ(platform.clock().runningTimers(), 0);
}

TEST_F(Timers, MayBeDestroyedInTheTickOfAnotherThatIsDueAtTheSameMoment) {
  auto& other = surface().add<host::Timer>("other");
  timer->SetInterval(10);
  other.SetInterval(10);
  noteTicks([this] {
    if (surface().controls().find("other")) surface().controls().remove("other");
  });
  int otherTicks = 0;
  const auto noted = other.Tick.connect([&] { ++otherTicks; });
  EXPECT_EQ(advance(50ms), 5);
  EXPECT_EQ(otherTicks, 0);
}

TEST_F(Timers, StopWithTheirControl) {
  timer->SetInterval(10);
  EXPECT_EQ(platform.clock().runningTimers(), 1);
  owned.reset();
  EXPECT_EQ(platform.clock().runningTimers(), 0);
}

TEST_F(Timers, SetUpBeforeTheyArePlacedRunFromThenOn) {
  auto* early = new host::Timer;
  early->SetInterval(10);
  surface().controls().add(host::Owned<host::Control>(early), "early", surface());
  int count = 0;
  const auto noted = early->Tick.connect([&] { ++count; });
  advance(30ms);
  EXPECT_EQ(count, 3);
}

class ManualClocks : public testing::Test {
 protected:
  headless::ManualClock clock;
  Heard heard;
};

TEST_F(ManualClocks, TickInTheOrderOfTimeThenOfStarting) {
  clock.start(30ms, [&] { heard.push_back("slow"); });
  clock.start(10ms, [&] { heard.push_back("a"); });
  clock.start(10ms, [&] { heard.push_back("b"); });
  clock.advance(30ms);
  EXPECT_EQ(heard, (Heard{"a", "b", "a", "b", "slow", "a", "b"}));
}

TEST_F(ManualClocks, NeverGoBackWhenATickAdvancesThemToo) {
  bool nested = false;
  clock.start(10ms, [&] {
    heard.push_back("tick");
    if (!std::exchange(nested, true)) clock.advance(50ms);
  });
  clock.advance(20ms);  // the tick at 10 goes on to 60, and 20 is over by then
  EXPECT_EQ(heard.size(), 6u);
  heard.clear();
  clock.start(10ms, [&] { heard.push_back("new"); });
  clock.advance(10ms);
  EXPECT_EQ(heard, (Heard{"tick", "new"}));
}

TEST_F(ManualClocks, StopATimerThatIsNotRunningWithoutAComplaint) {
  const auto timer = clock.start(10ms, [] {});
  clock.stop(timer);
  clock.stop(timer);
  clock.stop(12345);
  EXPECT_EQ(clock.runningTimers(), 0);
}

}  // namespace
}  // namespace qrn::test
