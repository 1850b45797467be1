// What a tool tip of a panel does to edits and to those who hear of it, and what ends it.
#include <gtest/gtest.h>

#include <stdexcept>

#include "hooks/window_registry.h"
#include "host/control_ref.h"
#include "panel_tool_tip_fixture.h"

namespace qrn::test {
namespace {

using PanelToolTipLife = ToolTipOfPanel;

// ---- edits are held back ----

TEST_F(PanelToolTipLife, DoesNotEndTheEditOfTheRowThatItTakesTheFocusFrom) {
  user->focuses(row(1));
  startListening();
  showTip("A");
  EXPECT_EQ(events(), Events{"ItemLostFocus(1)"});
  panel().RemoveToolTip(true);
  EXPECT_EQ(events(), Events{"ItemGotFocus(1)"});
  user->focuses(row(2));
  EXPECT_EQ(events(), (Events{"ParameterEndEdit(1, False)", "ItemLostFocus(1)", "ParameterStartEdit(2)",
                              "ItemGotFocus(2)"}));
}

TEST_F(PanelToolTipLife, HoldsEveryStartAndEndBackUntilTheApplicationIsLeft) {
  showTipOverAnEditOf(1);
  bool changed = true;
  const host::EventArg arguments[] = {host::EventArg(changed)};
  row(2).raiseByName("StartEdit", {});
  row(1).raiseByName("StartEdit", {});
  row(2).raiseByName("EndEdit", arguments);
  EXPECT_EQ(events(), Events{});
  user->switchesAway();
  EXPECT_EQ(events(), Events{"ParameterEndEdit(1, True)"});
  EXPECT_EQ(tip(), nullptr);
}

TEST_F(PanelToolTipLife, StaysWhenARowHearsThatTheApplicationIsLeft) {
  showTipOverAnEditOf(1);
  row(2).raiseByName("AppLostFocus", {});
  EXPECT_EQ(events(), Events{"ParameterEndEdit(1, True)"});
  EXPECT_NE(tip(), nullptr);
  row(2).raiseByName("StartEdit", {});
  EXPECT_EQ(events(), Events{"ParameterStartEdit(2)"});
}

TEST_F(PanelToolTipLife, DeliversTheLastEndOnly) {
  showTipOverAnEditOf(1);
  bool changed = false;
  const host::EventArg arguments[] = {host::EventArg(changed)};
  row(1).raiseByName("EndEdit", arguments);
  user->switchesAway();
  EXPECT_EQ(events(), Events{"ParameterEndEdit(1, False)"});
}

TEST_F(PanelToolTipLife, LeavesTheEndToTheNextStartWhenItIsRemoved) {
  showTipOverAnEditOf(1);
  panel().RemoveToolTip(false);
  EXPECT_EQ(events(), Events{});
  user->focuses(row(2));
  EXPECT_EQ(events(), (Events{"ParameterEndEdit(1, True)", "ParameterStartEdit(2)", "ItemGotFocus(2)"}));
}

TEST_F(PanelToolTipLife, HeldBackEditGoesOnInItsRow) {
  showTipOverAnEditOf(1);
  user->holds(host::key::Escape);
  user->types("y");
  startListening();
  user->focuses(row(2));
  EXPECT_EQ(events().front(), "ParameterEndEdit(1, True)");
}

TEST_F(PanelToolTipLife, WithoutAnEditEndsNone) {
  showTip();
  user->switchesAway();
  EXPECT_EQ(tip(), nullptr);
  EXPECT_EQ(events(), Events{});
}

TEST_F(PanelToolTipLife, ShownWhenAnEditEndsKeepsTheNextOneFromStarting) {
  user->focuses(row(1));
  startListening();
  const auto shows = panel().ParameterEndEdit.connect([&](std::int32_t&, bool&) { showTip("A"); });
  row(2).raiseByName("StartEdit", {});
  EXPECT_EQ(events(), (Events{"ItemLostFocus(1)", "ParameterEndEdit(1, False)"}));  // the inner one first
}

// ---- lifetime ----

TEST_F(PanelToolTipLife, GoesWithItsPanel) {
  showTipOverAnEditOf(1);
  panel_.reset();
  EXPECT_EQ(watchedWindows(), 0);
  user->switchesAway();
}

TEST_F(PanelToolTipLife, OutlivesItsItem) {
  showTipOverAnEditOf(2);
  items().Remove("B");
  EXPECT_EQ(events(), Events{});
  EXPECT_NE(tip(), nullptr);
  user->switchesAway();
  EXPECT_EQ(events(), Events{"ParameterEndEdit(2, True)"});
  EXPECT_EQ(tip(), nullptr);
}

TEST_F(PanelToolTipLife, OfAnItemThatHasGoneClosesWithEscape) {
  user->focuses(row(2));
  showTip("B");
  items().Remove("B");
  user->holds(host::key::Escape);
  EXPECT_EQ(tip(), nullptr);
  EXPECT_EQ(panel().GetActiveItem(false), 0);
}

TEST_F(PanelToolTipLife, OfAControlThatHasGoneClosesWithEscape) {
  showTip(host::referenceTo(row(2)));
  items().Remove("B");
  panel().Move(0, 0, 300, 200);
  user->holds(host::key::Escape);
  EXPECT_EQ(tip(), nullptr);
}

// ---- those who hear of it ----

TEST_F(PanelToolTipLife, TellsItsOwnListenersBeforeItGoes) {
  Events heard;
  QRNToolTip* shown = &showTip();
  const auto hears = [&](const char* what) {
    heard.push_back(std::string(what) + (tip() == shown ? " while it is there" : " too late"));
  };
  const auto closed = shown->TTClose.connect([&] { hears("closed"); });
  const auto named = shown->ObjectEvent.connect([&](std::string_view name, host::EventArgs) {
    if (!isFocusEvent(name)) hears("by name");
  });
  user->holds(host::key::Escape);
  EXPECT_EQ(heard, (Events{"closed while it is there", "by name while it is there"}));
  EXPECT_EQ(tip(), nullptr);
  shown = &showTip();
  const auto left = shown->AppLostFocus.connect([&] { hears("left"); });
  heard.clear();
  user->switchesAway();
  EXPECT_EQ(heard, Events{"left while it is there"});
  EXPECT_EQ(tip(), nullptr);
}

TEST_F(PanelToolTipLife, MayBeRemovedByAListenerOfItsOwnEvents) {
  int heard = 0;
  const auto removes = [&] {
    ++heard;
    panel().RemoveToolTip(false);
    EXPECT_EQ(tip(), nullptr);
  };
  const auto close = showTip().TTClose.connect(removes);
  user->holds(host::key::Escape);
  const auto left = showTip().AppLostFocus.connect(removes);
  user->switchesAway();
  EXPECT_EQ(heard, 2);
}

TEST_F(PanelToolTipLife, MayBeReplacedByAListenerOfItsOwnEvents) {
  QRNToolTip* next = nullptr;
  const auto close = showTip("A").TTClose.connect([&] { next = &showTip("B"); });
  user->holds(host::key::Escape);
  ASSERT_NE(next, nullptr);
  EXPECT_EQ(tip(), next);
}

TEST_F(PanelToolTipLife, GoesThoughAListenerOfItsCloseFails) {
  const auto closed = showTip().TTClose.connect([] { throw std::runtime_error("no"); });
  EXPECT_THROW(user->holds(host::key::Escape), std::runtime_error);
  EXPECT_EQ(tip(), nullptr);
}

TEST_F(PanelToolTipLife, EndsTheEditThoughAListenerOfItsOwnFails) {
  showTipOverAnEditOf(1);
  const auto left =
      static_cast<QRNToolTip&>(*tip()).AppLostFocus.connect([] { throw std::runtime_error("no"); });
  user->switchesAway();
  EXPECT_EQ(tip(), nullptr);
  EXPECT_EQ(events(), Events{"ParameterEndEdit(1, True)"});
}

TEST_F(PanelToolTipLife, GoesThoughTheFocusCanNotBeGivenBackWithoutAnError) {
  user->focuses(row(1));
  showTip("A");
  const auto got = panel().ItemGotFocus.connect([](std::int32_t&) { throw std::runtime_error("no"); });
  EXPECT_NO_THROW(panel().RemoveToolTip(true));
  EXPECT_EQ(tip(), nullptr);
  EXPECT_TRUE(row(1).hasFocus());
}

TEST_F(PanelToolTipLife, HasGoneWhenTheEditEndsThatItHasHeld) {
  showTipOverAnEditOf(1);
  int ends = 0;
  const auto ended = panel().ParameterEndEdit.connect([&](std::int32_t&, bool&) {
    ++ends;
    EXPECT_EQ(tip(), nullptr);
  });
  user->switchesAway();
  EXPECT_EQ(ends, 1);
}

TEST_F(PanelToolTipLife, HoldsNoEditsBackOnceTheHostHasRemovedItByName) {
  user->focuses(row(1));
  showTip("A");
  panel().ControlsCollection().remove("ctlToolTip");
  startListening();
  user->focuses(row(2));
  EXPECT_EQ(events(), (Events{"ParameterEndEdit(1, False)", "ParameterStartEdit(2)", "ItemGotFocus(2)"}));
  user->focuses(row(3));
  EXPECT_EQ(events().front(), "ParameterEndEdit(2, False)");
}

TEST_F(PanelToolTipLife, MayBeFollowedByAnotherOneThatAListenerShows) {
  user->focuses(row(1));
  showTip("A");
  QRNToolTip* next = nullptr;
  auto shows = panel().ItemGotFocus.connect([&](std::int32_t&) { next = &showTip("C"); });
  user->holds(host::key::Escape);
  shows.disconnect();
  ASSERT_NE(next, nullptr);
  EXPECT_EQ(tip(), next);
  EXPECT_EQ(next->RelatedControl(), Variant("C"));
  EXPECT_TRUE(next->hasFocus());
  startListening();
  row(2).raiseByName("StartEdit", {});
  EXPECT_EQ(events(), Events{}) << "it holds edits back as any other";
  user->holds(host::key::Escape);
  EXPECT_EQ(tip(), nullptr);
  EXPECT_TRUE(row(3).hasFocus());
}

TEST_F(PanelToolTipLife, MayCostThePanelItsLife) {
  user->focuses(row(1));
  const auto lost = panel().ItemLostFocus.connect([&](std::int32_t&) { panel_.reset(); });
  EXPECT_EQ(panel().DisplayToolTip("A", 1), nullptr);
  EXPECT_EQ(panel_, nullptr);
}

TEST_F(PanelToolTipLife, MayCostThePanelItsLifeWhenItGivesTheFocusBack) {
  user->focuses(row(1));
  showTip("A");
  const auto got = panel().ItemGotFocus.connect([&](std::int32_t&) { panel_.reset(); });
  panel().RemoveToolTip(true);
  EXPECT_EQ(panel_, nullptr);
}

}  // namespace
}  // namespace qrn::test
