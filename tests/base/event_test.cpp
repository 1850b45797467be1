#include "base/event.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

namespace qrn {
namespace {

static_assert(sizeof(Event<>) == sizeof(void*), "an event nobody listens to costs one pointer");
static_assert(sizeof(Event<std::string_view, int&>) == sizeof(void*));
static_assert(!std::is_copy_constructible_v<Connection> && !std::is_copy_assignable_v<Connection>);
static_assert(std::is_nothrow_move_constructible_v<Connection> &&
              std::is_nothrow_move_assignable_v<Connection>);
static_assert(!std::is_copy_constructible_v<Event<>>);

using Calls = std::vector<std::string>;

struct Events : testing::Test {
  /// Connects a listener that notes its name.
  Connection note(const std::string& name) {
    return event->connect([this, name] { calls.push_back(name); });
  }

  std::unique_ptr<Event<>> event = std::make_unique<Event<>>();
  Calls calls;
};

TEST_F(Events, CallTheirListenersInTheOrderInWhichTheyConnected) {
  const auto a = note("a"), b = note("b"), c = note("c"), d = note("d"), e = note("e"), f = note("f");
  event->raise();
  EXPECT_EQ(calls, (Calls{"a", "b", "c", "d", "e", "f"}));
}

TEST_F(Events, KeepTheOrderOfTheOthersWhenOneLeavesAndComesBack) {
  auto a = note("a");
  const auto b = note("b");
  a.disconnect();
  a = note("a");
  event->raise();
  EXPECT_EQ(calls, (Calls{"b", "a"}));
}

TEST_F(Events, CallNobodyWithoutListeners) {
  EXPECT_FALSE(event->hasListeners());
  event->raise();
  auto a = note("a");
  EXPECT_TRUE(event->hasListeners());
  a.disconnect();
  EXPECT_FALSE(event->hasListeners());
  event->raise();
  EXPECT_EQ(calls, Calls{});
}

TEST_F(Events, AListenerThatConnectsAnotherIsFollowedByItOnlyNextTime) {
  Connection added;
  const auto a = event->connect([&] {
    calls.push_back("a");
    if (!added.connected()) added = note("added");
  });
  event->raise();
  EXPECT_EQ(calls, (Calls{"a"}));
  event->raise();
  EXPECT_EQ(calls, (Calls{"a", "a", "added"}));
}

TEST_F(Events, AListenerThatDisconnectsItselfIsCalledOnceAndStaysAliveUntilItReturns) {
  Connection own;
  const auto kept = std::make_shared<std::string>("captured");
  std::weak_ptr<std::string> watch = kept;
  own = event->connect([this, &own, text = *kept, shared = kept] {
    own.disconnect();
    calls.push_back(text + *shared);
  });
  const auto b = note("b");
  event->raise();
  event->raise();
  EXPECT_EQ(calls, (Calls{"capturedcaptured", "b", "b"}));
  EXPECT_EQ(watch.use_count(), 1);
}

TEST_F(Events, TheirOnlyListenerMayDisconnectItselfAndDestroyThem) {
  Connection own;
  const auto kept = std::make_shared<std::string>("captured");
  own = event->connect([this, &own, shared = kept] {
    own.disconnect();
    event.reset();
    calls.push_back(*shared);
  });
  event->raise();
  EXPECT_EQ(calls, (Calls{"captured"}));
  EXPECT_EQ(kept.use_count(), 1);
}

TEST_F(Events, AListenerThatDisconnectsALaterOneSilencesItAtOnce) {
  Connection b;
  const auto a = event->connect([&] {
    calls.push_back("a");
    b.disconnect();
  });
  b = note("b");
  const auto c = note("c");
  event->raise();
  EXPECT_EQ(calls, (Calls{"a", "c"}));
}

TEST_F(Events, AListenerThatDisconnectsAnEarlierOneLeavesTheRestOfTheRaiseAlone) {
  auto a = note("a");
  const auto b = event->connect([&] {
    calls.push_back("b");
    a.disconnect();
  });
  const auto c = note("c");
  event->raise();
  event->raise();
  EXPECT_EQ(calls, (Calls{"a", "b", "c", "b", "c"}));
}

TEST_F(Events, AListenerThatRaisesAgainRunsAWholeRaiseInside) {
  int depth = 0;
  const auto a = event->connect([&] {
    calls.push_back("a" + std::to_string(depth));
    if (depth > 0) return;
    ++depth;
    event->raise();
    --depth;
  });
  const auto b = event->connect([&] { calls.push_back("b" + std::to_string(depth)); });
  event->raise();
  EXPECT_EQ(calls, (Calls{"a0", "a1", "b1", "b0"}));
}

TEST_F(Events, OneConnectedInsideIsCalledByARaiseInsideToo) {
  Connection added;
  const auto a = event->connect([&] {
    calls.push_back("a");
    if (added.connected()) return;
    added = note("added");
    event->raise();
  });
  event->raise();
  EXPECT_EQ(calls, (Calls{"a", "a", "added"}));
}

TEST_F(Events, DestroyedByAListenerTheyCallNobodyAfterIt) {
  Connection a = event->connect([&] {
    event.reset();
    calls.push_back("a");
  });
  Connection b = note("b");
  event->raise();
  EXPECT_EQ(calls, (Calls{"a"}));
  EXPECT_FALSE(a.connected());
  EXPECT_FALSE(b.connected());
  b.disconnect();
}

TEST_F(Events, DestroyedInsideARaiseInsideARaiseTheyEndBoth) {
  int depth = 0;
  const auto a = event->connect([&] {
    calls.push_back("a");
    if (++depth == 1)
      event->raise();
    else
      event.reset();
  });
  const auto b = note("b");
  event->raise();
  EXPECT_EQ(calls, (Calls{"a", "a"}));
}

TEST_F(Events, AnExceptionOfAListenerEndsTheRaiseAndReachesTheRaiser) {
  const auto a = event->connect([] { throw std::runtime_error("no"); });
  const auto b = note("b");
  EXPECT_THROW(event->raise(), std::runtime_error);
  EXPECT_EQ(calls, Calls{});
  EXPECT_TRUE(a.connected());
  EXPECT_THROW(event->raise(), std::runtime_error);
}

TEST_F(Events, HandOnReferencesSoThatALaterListenerSeesWhatAnEarlierOneWrote) {
  Event<int&, const std::string&> keyed;
  const auto a = keyed.connect([](int& key, const std::string&) { key *= 2; });
  const auto b =
      keyed.connect([](int& key, const std::string& text) { key += static_cast<int>(text.size()); });
  int key = 20;
  keyed.raise(key, "ab");
  EXPECT_EQ(key, 42);
}

TEST_F(Events, AListenerThatOwnsItsOwnConnectionGoesWithTheEvent) {
  const auto holder = std::make_shared<Connection>();
  std::weak_ptr<Connection> watch = holder;
  *holder = event->connect([holder, this] { calls.push_back("a"); });
  event->raise();
  EXPECT_EQ(calls, (Calls{"a"}));
  holder->disconnect();
  event->raise();
  EXPECT_EQ(calls, (Calls{"a"}));
  EXPECT_EQ(watch.use_count(), 1);
}

TEST_F(Events, AListenerWhoseEndDestroysTheEventIsSafe) {
  // The last thing a listener owned may be the event's owner itself.
  struct Owner {
    Event<> event;
  };
  auto owner = std::make_shared<Owner>();
  Event<>& inside = owner->event;
  std::weak_ptr<Owner> watch = owner;
  Connection connection = inside.connect([kept = std::move(owner)] { static_cast<void>(kept); });
  connection.disconnect();
  EXPECT_TRUE(watch.expired());
}

TEST_F(Events, ManyListenersComeAndGoInsideOneRaise) {
  std::vector<Connection> all;
  const auto first = event->connect([&] {
    for (std::size_t i = 0; i < 10; i += 2) all[i].disconnect();
  });
  for (int i = 0; i < 10; ++i) all.push_back(note(std::to_string(i)));
  event->raise();
  EXPECT_EQ(calls, (Calls{"1", "3", "5", "7", "9"}));
}

TEST_F(Events, TheSameFunctionConnectedTwiceIsCalledTwice) {
  int count = 0;
  const auto counted = [&] { ++count; };
  auto a = event->connect(counted);
  const auto b = event->connect(counted);
  event->raise();
  EXPECT_EQ(count, 2);
  a.disconnect();
  event->raise();
  EXPECT_EQ(count, 3);
}

struct Connections : Events {};

TEST_F(Connections, DisconnectWhenTheyDie) {
  {
    const auto a = note("a");
    event->raise();
  }
  event->raise();
  EXPECT_EQ(calls, (Calls{"a"}));
}

TEST_F(Connections, AreConnectedUntilDisconnectedOrTheEventGoes) {
  Connection empty;
  EXPECT_FALSE(empty.connected());
  empty.disconnect();
  auto a = note("a"), b = note("b");
  EXPECT_TRUE(a.connected());
  a.disconnect();
  EXPECT_FALSE(a.connected());
  a.disconnect();
  event.reset();
  EXPECT_FALSE(b.connected());
}

TEST_F(Connections, TakeTheListenerAlongWhenTheyMove) {
  auto a = note("a");
  Connection moved(std::move(a));
  EXPECT_TRUE(moved.connected());
  EXPECT_FALSE(a.connected());  // NOLINT(bugprone-use-after-move): that it is empty is the point
  a.disconnect();
  event->raise();
  EXPECT_EQ(calls, (Calls{"a"}));
}

TEST_F(Connections, DisconnectWhatTheyHeldWhenAnotherMovesIn) {
  auto a = note("a");
  a = note("b");
  event->raise();
  EXPECT_EQ(calls, (Calls{"b"}));
}

TEST_F(Connections, SurviveBeingMovedIntoThemselves) {
  auto a = note("a");
  Connection& same = a;
  a = std::move(same);
  event->raise();
  EXPECT_EQ(calls, (Calls{"a"}));
}

TEST_F(Connections, MayLiveInAVectorThatGrows) {
  std::vector<Connection> all;
  for (int i = 0; i < 50; ++i) all.push_back(note(std::to_string(i)));
  event->raise();
  EXPECT_EQ(calls.size(), 50u);
  EXPECT_EQ(calls.back(), "49");
}

TEST_F(Connections, MayMoveInsideTheRaise) {
  Connection b, taken;
  const auto a = event->connect([&] { taken = std::move(b); });
  b = note("b");
  event->raise();
  EXPECT_EQ(calls, (Calls{"b"}));
  EXPECT_TRUE(taken.connected());
}

}  // namespace
}  // namespace qrn
