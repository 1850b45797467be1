#include <gtest/gtest.h>

#include <limits>

#include "host/control_ref.h"
#include "panel_tool_tip_fixture.h"
#include "runtime/errors.h"
#include "support/error_of.h"

namespace qrn::test {
namespace {

using PanelToolTip = ToolTipOfPanel;

// ---- showing ----

TEST_F(PanelToolTip, IsShownInFrontWithTheFocus) {
  QRNToolTip& shown = showTip();
  EXPECT_EQ(tip(), &shown);
  EXPECT_EQ(shown.Container(), &panel());
  EXPECT_EQ(panel().contained().back(), &shown);
  EXPECT_TRUE(shown.Visible());
  EXPECT_TRUE(shown.RichTextControl().hasFocus());
  EXPECT_EQ(shown.RelatedControl(), Variant("A"));
  EXPECT_EQ(shown.Text(), "");
}

TEST_F(PanelToolTip, TakesThePlaceOfTheOneBefore) {
  showTip("A");
  QRNToolTip& second = showTip("B");
  EXPECT_EQ(tip(), &second);
  EXPECT_EQ(second.RelatedControl(), Variant("B"));
  EXPECT_EQ(events(), Events{});
}

TEST_F(PanelToolTip, CanNotBeShownWhereAnItemHasItsName) {
  items().AddParameter("ctlToolTip", qrnTypeString);
  EXPECT_EQ(panel().DisplayToolTip("A", 1), nullptr);
  panel().RemoveToolTip(true);
  EXPECT_NE(tip(), nullptr);
  EXPECT_EQ(items().Count(), 4);
}

TEST_F(PanelToolTip, MayBeRemovedBeforeItIsAnswered) {
  user->focuses(row(1));
  const auto lost = panel().ItemLostFocus.connect([&](std::int32_t&) { panel().RemoveToolTip(false); });
  EXPECT_EQ(panel().DisplayToolTip("A", 1), nullptr);
  EXPECT_EQ(tip(), nullptr);
}

TEST_F(PanelToolTip, IsPartOfWhatToolsSee) {
  EXPECT_EQ(panel().accessibleCount(), 5);
  QRNToolTip& shown = showTip();
  shown.SetText("Seconds until the value has settled.");
  ASSERT_EQ(panel().accessibleCount(), 6);
  const host::AccessibleNode help = panel().accessibleChild(5);
  EXPECT_EQ(help.control, &shown.RichTextControl());
  EXPECT_EQ(help.parent().control, &panel());
  EXPECT_EQ(panel().accessibleIndexOf(help), 5);
  EXPECT_EQ(help.facts().role, host::AccessibleRole::Label);
  EXPECT_EQ(help.facts().name, "Seconds until the value has settled.");
  EXPECT_TRUE(help.facts().states.focused);
}

// ---- its place ----

TEST_F(PanelToolTip, LiesBelowItsRowAsTallAsItsLines) {
  const Rect place = placeOf(showTip("B", 3));
  EXPECT_EQ(place.top, placeOf(row(2)).bottom());
  EXPECT_EQ(place.height, 3 * 13 + 8);
  EXPECT_LE(place.right(), placeOf(panel().sbrVertical()).left);
  EXPECT_EQ(place.intersected(inside()), place);
}

TEST_F(PanelToolTip, LiesAboveARowWithoutRoomBelow) {
  for (int i = 0; i < 7; ++i) addParameter("");
  panel().LayoutControls(false);
  const Rect place = placeOf(showTip(Variant(10), 4));
  EXPECT_EQ(place.bottom(), placeOf(row(10)).top);
}

TEST_F(PanelToolTip, HasOneLineAtLeast) {
  for (float lines : {0.0F, -5.0F, 0.5F, 1.0F, std::numeric_limits<float>::quiet_NaN()}) {
    EXPECT_EQ(placeOf(showTip("A", lines)).height, 13 + 8) << lines;
  }
}

TEST_F(PanelToolTip, StaysInsideHoweverManyLinesItHas) {
  for (float lines : {100.0F, 1e30F, std::numeric_limits<float>::infinity()}) {
    const Rect place = placeOf(showTip("A", lines));
    EXPECT_EQ(place.intersected(inside()), place);
    EXPECT_EQ(place.bottom(), inside().bottom());
  }
}

TEST_F(PanelToolTip, IsNoWiderThanCanBeRead) {
  panel().Move(0, 0, 3000, 300);
  EXPECT_EQ(placeOf(showTip()).width, 80 * 6 + 8);
}

TEST_F(PanelToolTip, FollowsItsRowWhenThePanelIsResized) {
  showTip("A", 100);
  panel().Move(0, 0, 200, 150);
  const Rect place = placeOf(*tip());
  EXPECT_EQ(place.intersected(inside()), place);
  panel().Move(0, 0, 1, 1);
  EXPECT_TRUE(tip()->Visible());
}

TEST_F(PanelToolTip, GrowsWithTheFontOfThePanelWhoseItemsStayWhereTheyAre) {
  panel().SetTitleStyle(qrnTitleNone);
  showTip("A", 3);
  const auto font = std::make_shared<host::Font>("Serif", 12);
  static_cast<headless::FixedMetrics&>(platform.metrics(*font)).textHeight = 20;
  panel().SetFont(font);
  EXPECT_EQ(placeOf(*tip()).height, 3 * 20 + 8);
}

TEST_F(PanelToolTip, StaysInsideAPanelWhoseContentCanNotBeScrolled) {
  panel().SetMenuItemHeight(30000);
  showTip("A", 2);
  const auto tall = [&] {
    for (int i = 0; i < 2; ++i) items().AddAction("", ddtypeMethod);
    panel().Move(0, 0, 200, 300);
  };
  EXPECT_EQ(errorOf(tall), kOverflow);
  EXPECT_EQ(placeOf(*tip()).intersected(inside()), placeOf(*tip()));
}

TEST_F(PanelToolTip, FollowsItsRowWhenTheItemsAreLaidOutOrScrolled) {
  showTip("A");
  for (int i = 0; i < 20; ++i) items().AddParameter("", qrnTypeString, Variant(1));
  panel().LayoutControls(false);
  EXPECT_EQ(placeOf(*tip()).bottom(), inside().bottom());
  user->turnsWheel({50, 100}, -100);
  EXPECT_EQ(placeOf(*tip()).top, placeOf(row(21)).bottom());
}

TEST_F(PanelToolTip, LiesAtTheTopWhenItsItemIsUnknown) {
  for (const Variant& related : {Variant("nobody"), Variant(9), Variant(), Variant(Null())}) {
    EXPECT_EQ(placeOf(showTip(related)).topLeft(), inside().topLeft());
  }
}

TEST_F(PanelToolTip, LiesBesideAControl) {
  const Rect place = placeOf(showTip(host::referenceTo(row(3).lblLabel())));
  EXPECT_EQ(place.top, placeOf(row(3).lblLabel()).bottom());
}

// ---- removing ----

TEST_F(PanelToolTip, GivesTheFocusBackWhenWished) {
  user->focuses(row(2));
  showTip("B");
  panel().RemoveToolTip(true);
  EXPECT_EQ(tip(), nullptr);
  EXPECT_TRUE(row(2).hasFocus());
}

TEST_F(PanelToolTip, GivesTheFocusToTheItemItIsAbout) {
  user->focuses(row(2));
  showTip(Variant(items().Item(Variant(3))));
  panel().RemoveToolTip(true);
  EXPECT_TRUE(row(3).hasFocus());
}

TEST_F(PanelToolTip, GivesTheFocusToTheControlItIsAbout) {
  showTip(host::referenceTo(row(3)));
  panel().RemoveToolTip(true);
  EXPECT_TRUE(row(3).hasFocus());
}

TEST_F(PanelToolTip, TakesTheFocusAlongOtherwise) {
  user->focuses(row(2));
  showTip("B");
  panel().RemoveToolTip(false);
  EXPECT_EQ(tip(), nullptr);
  EXPECT_EQ(panel().Control::input().focus(), nullptr);
}

TEST_F(PanelToolTip, MayBeRemovedWhenThereIsNone) {
  panel().RemoveToolTip(true);
  panel().RemoveToolTip(false);
  EXPECT_EQ(events(), Events{});
}

TEST_F(PanelToolTip, ClosesWithEscapeAndGivesTheFocusBack) {
  user->focuses(row(1));
  showTip("A");
  startListening();
  user->holds(host::key::Escape);
  EXPECT_EQ(tip(), nullptr);
  EXPECT_TRUE(row(1).hasFocus());
  EXPECT_EQ(events(), Events{"ItemGotFocus(1)"});
}

TEST_F(PanelToolTip, StaysWithAnotherEscape) {
  showTip();
  user->presses(host::key::Escape, host::shift::Shift);
  EXPECT_NE(tip(), nullptr);
  EXPECT_EQ(events(), Events{});
}

TEST_F(PanelToolTip, ClosesWithEscapeOnThePanelToo) {
  showTip("B");
  panel().SetItemFocus("nobody");
  user->holds(host::key::Escape, host::shift::Shift);
  EXPECT_NE(tip(), nullptr);
  EXPECT_EQ(events(), Events{"KeyDown(27, 1)"});
  user->holds(host::key::Escape);
  EXPECT_EQ(tip(), nullptr);
  EXPECT_TRUE(row(2).hasFocus());
  EXPECT_EQ(events(), Events{"ItemGotFocus(2)"});
}

TEST_F(PanelToolTip, SwallowsEscapeAsACharacterOnThePanel) {
  panel().SetIconCloseHidden(true);
  showTip();
  std::int16_t key = host::key::Escape;
  panel().keyPress(key);
  EXPECT_EQ(key, 0);
  EXPECT_EQ(events(), Events{});
  panel().RemoveToolTip(false);
  key = host::key::Escape;
  panel().keyPress(key);
  EXPECT_EQ(events(), Events{"KeyPress(27)"});
}

TEST_F(PanelToolTip, GoesBeforeAClickOnThePanelIsHeard) {
  const auto gone = [&] { EXPECT_EQ(tip(), nullptr); };
  const auto clicked = panel().Click.connect(gone);
  items().AddAction("Action", ddtypeMenu);
  panel().LayoutControls(false);
  auto& button = std::dynamic_pointer_cast<clsQRNAction>(items().Item("Action"))->Control();
  button.SetButtonMode(qrnbuttonNone);
  startListening();
  showTip("C");
  user->clicks(panel().lblTitle());
  showTip("C");
  user->clicks(row(1).lblLabel());
  showTip("C");
  user->clicksAt({2, 150});  // the left margin
  showTip("C");
  button.raiseByName("Click", host::EventArgs());
  EXPECT_EQ(events(), (Events{"Click", "Click", "Click", "Click"}));
  EXPECT_EQ(tip(), nullptr);
}

TEST_F(PanelToolTip, StaysWhenItIsClickedItself) {
  showTip();
  user->clicks(*tip());
  EXPECT_NE(tip(), nullptr);
  EXPECT_EQ(events(), Events{});
}

TEST_F(PanelToolTip, IsLeftByTabToTheNeighboursOfItsRow) {
  showTip("B");
  user->presses(host::key::Tab);
  EXPECT_TRUE(row(3).hasFocus());
  showTip("B");
  user->presses(host::key::Tab, host::shift::Shift);
  EXPECT_TRUE(row(1).hasFocus());
}

}  // namespace
}  // namespace qrn::test
