#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "controls/raised.h"
#include "runtime/errors.h"
#include "support/panel_fixture.h"

namespace qrn::test {
namespace {

// The container is 390 by 268, of which 374 are left beside the scroll bar; the automatic spacings are 6 and
// 5, an action is 26 high, a row 21. A row needs 36 beside its columns: the status icon of 18 and a gap after
// each of its four parts, less one.
class PanelLayout : public PanelTest {
 protected:
  QRNMenuItem& button(std::int32_t position) {
    return std::dynamic_pointer_cast<clsQRNAction>(items().Item(Variant(position)))->Control();
  }
  void addRows(int count) {
    for (int i = 0; i < count; ++i) addParameter("");
  }
  void addAction() { items().AddAction("", ddtypeMenu); }
  static ColumnWidths widthsOf(const QRNEdit& row) {
    return {row.LabelWidth(), row.ValueWidth(), row.UnitWidth()};
  }
  // Whether a conditional layout places the items anew.
  bool refits() {
    row(1).SetTop(1000);
    panel().LayoutControls(true);
    return row(1).Top() == 0;
  }
};

// ---- columns ----

TEST_F(PanelLayout, WithoutColumnLayoutEveryColumnIsAsWideAsTheWidestRowNeeds) {
  addRows(3);
  row(1).SetLabelText("A long caption");
  row(2).SetValue(Variant("a value"));
  row(3).SetUnitText("m3/h");
  panel().LayoutControls(false);
  for (std::int32_t i = 1; i <= 3; ++i) {
    EXPECT_EQ(widthsOf(row(i)), (ColumnWidths{14 * 6, 7 * 6 + 13, 4 * 6}));
    EXPECT_EQ(row(i).bounds().size(), (Size{374 - 12, 21}));
    EXPECT_EQ(row(i).Left(), 6);
  }
}

TEST_F(PanelLayout, HiddenRowsAreMeasuredToo) {
  addRows(2);
  row(2).SetLabelText("A long caption");
  row(2).SetVisible(false);
  panel().LayoutControls(false);
  EXPECT_EQ(row(1).LabelWidth(), 84);
}

TEST_F(PanelLayout, EqualWeightsGiveEachColumnAThirdOfTheFreeWidthCutOff) {
  addRows(2);
  row(1).SetLabelText("A caption that would need much more room than a third of the panel is");
  panel().SetColumnLayout(1, 1, 1, 0);
  EXPECT_EQ(widthsOf(row(1)), (ColumnWidths{108, 108, 108}));  // of 362 - 36
  EXPECT_EQ(widthsOf(row(2)), (ColumnWidths{108, 108, 108}));
  EXPECT_FALSE(refits());
}

TEST_F(PanelLayout, WeightedColumnsShareWhatTheAutomaticOnesLeave) {
  addRows(1);
  panel().SetColumnLayout(0, 2, 1, 10.2f);
  // The label: 1.2 times 30, and 10; 280 remain.
  EXPECT_EQ(widthsOf(row(1)), (ColumnWidths{46, 186, 93}));
}

TEST_F(PanelLayout, ANegativeWeightIsAutomatic) {
  addRows(1);
  panel().SetColumnLayout(-5, 1, 0, 0);
  EXPECT_EQ(widthsOf(row(1)), (ColumnWidths{30, 362 - 36 - 30 - 24, 24}));
}

TEST_F(PanelLayout, ARowWithoutUnitGivesItsRoomToTheValue) {
  addRows(2);
  row(1).SetUnitVisible(false);
  panel().LayoutControls(false);
  EXPECT_EQ(widthsOf(row(1)), (ColumnWidths{30, 13 + 24, 24}));
  EXPECT_EQ(widthsOf(row(2)), (ColumnWidths{30, 13, 24}));
  panel().SetColumnLayout(1, 1, 1, 0);
  EXPECT_EQ(row(1).ValueWidth(), 2 * 110);  // without a unit 6 more are free
}

// ---- conditional layout ----

TEST_F(PanelLayout, AGrowthWithinTheSlackMovesNothing) {
  addRows(2);
  panel().SetColumnLayout(0, 1, 1, 10.2f);
  ASSERT_EQ(row(1).LabelWidth(), 46);
  row(2).SetLabelText("Seven c");  // 42
  EXPECT_FALSE(refits());
  EXPECT_EQ(row(1).LabelWidth(), 46);
}

TEST_F(PanelLayout, AGrowthBeyondThePresentWidthPlacesEverything) {
  addRows(2);
  panel().SetColumnLayout(0, 1, 1, 10.2f);
  row(2).SetLabelText("Eight ch");  // 48
  EXPECT_TRUE(refits());
  EXPECT_EQ(row(1).LabelWidth(), 68);  // 1.2 times 48, and 10
  EXPECT_EQ(row(2).LabelWidth(), 68);
}

TEST_F(PanelLayout, TooMuchRoomIsGivenUpOnlyWhenNoRowNeedsIt) {
  addRows(2);
  panel().SetColumnLayout(0, 1, 1, 10.2f);
  row(1).SetLabelText("ab");  // (46 - 10) * 0.8 / 1.2 - 10 is 14, and this needs 12
  EXPECT_FALSE(refits());
  row(2).SetLabelText("ab");
  EXPECT_TRUE(refits());
  EXPECT_EQ(row(1).LabelWidth(), 24);
}

TEST_F(PanelLayout, AConditionalLayoutOfAPanelWithoutRowsDoesNothing) {
  addAction();
  panel().LayoutControls(true);
  EXPECT_EQ(button(1).TabIndex(), 0);
}

TEST_F(PanelLayout, ChangedContentIsLaidOutWithoutToleranceAtOnce) {
  addRows(1);
  panel().LayoutControls(false);
  EXPECT_FALSE(refits());
  row(1).SetValue(Variant("longer"));
  EXPECT_TRUE(refits());
  EXPECT_EQ(row(1).ValueWidth(), 6 * 6 + 13);
}

// ---- placement ----

TEST_F(PanelLayout, ActionsTouchEachOtherAndRowsKeepTheirDistance) {
  addAction();
  addAction();
  addParameter("");
  addParameter("");
  addAction();
  panel().LayoutControls(false);
  EXPECT_EQ(button(1).bounds(), (Rect{0, 0, 368, 26}));
  EXPECT_EQ(button(2).Top(), 26);
  EXPECT_EQ(row(3).Top(), 52 + 5);
  EXPECT_EQ(row(4).Top(), 57 + 21 + 5);
  EXPECT_EQ(button(5).Top(), 83 + 21 + 5);
}

TEST_F(PanelLayout, WithoutVerticalSpacingEverythingTouches) {
  panel().SetVerticalSpacing(0);
  addParameter("");
  addParameter("");
  addAction();
  panel().LayoutControls(false);
  EXPECT_EQ(row(2).Top(), 21);
  EXPECT_EQ(button(3).Top(), 42);
}

TEST_F(PanelLayout, GivenSpacingsAndHeightsAreUsed) {
  panel().SetHorizontalSpacing(10);
  panel().SetVerticalSpacing(7);
  panel().SetMenuItemHeight(40);
  addAction();
  addParameter("");
  panel().LayoutControls(false);
  EXPECT_EQ(button(1).bounds(), (Rect{0, 0, 364, 40}));
  EXPECT_EQ(button(1).Margin(), 10);
  EXPECT_EQ(row(2).bounds(), (Rect{10, 47, 354, 21}));
  EXPECT_EQ(row(2).HorizontalSpacing(), 10);
}

TEST_F(PanelLayout, ANarrowContainerStillGivesEightyPixels) {
  addParameter("");
  addAction();
  panel().SetColumnLayout(0, 1, 1, 0);
  panel().Move(0, 0, 60, 300);
  EXPECT_EQ(row(1).Width(), 80);
  EXPECT_EQ(button(2).Width(), 80);
  EXPECT_EQ(widthsOf(row(1)), (ColumnWidths{30, 7, 7}));  // halves of 80 - 36 - 30
}

TEST_F(PanelLayout, TheFreeWidthNeverDropsBelowOne) {
  addParameter("");
  row(1).SetLabelText("much wider than eighty pixels");
  panel().SetColumnLayout(0, 0, 1, 0);
  panel().Move(0, 0, 60, 300);
  EXPECT_EQ(row(1).UnitWidth(), 1);
}

TEST_F(PanelLayout, HiddenItemsKeepPlaceAndTabOrderAndTakeNoRoom) {
  addRows(3);
  addAction();
  panel().LayoutControls(false);
  ASSERT_EQ(row(2).TabIndex(), 2);
  row(2).SetVisible(false);
  panel().LayoutControls(false);
  EXPECT_EQ(row(1).TabIndex(), 1);
  EXPECT_EQ(row(2).TabIndex(), 2);
  EXPECT_EQ(row(2).Top(), 26);
  EXPECT_EQ(row(3).TabIndex(), 2);
  EXPECT_EQ(row(3).Top(), 26);
  EXPECT_EQ(button(4).TabIndex(), 3);
}

TEST_F(PanelLayout, AllHiddenLeavesNothingToScroll) {
  addRows(30);
  panel().LayoutControls(false);
  for (std::int32_t i = 1; i <= 30; ++i) row(i).SetVisible(false);
  panel().LayoutControls(false);
  EXPECT_FALSE(panel().sbrVertical().Visible());
}

TEST_F(PanelLayout, DrawingOfEveryItemIsOnAgainAfterwards) {
  addParameter("");
  addAction();
  row(1).SetRedraw(false);
  panel().LayoutControls(false);
  EXPECT_TRUE(row(1).Redraw());
  EXPECT_TRUE(button(2).Redraw());
}

TEST_F(PanelLayout, WorksInADesignerToo) {
  site.ambientProperties.userMode = false;
  const auto designed = host::create<QRNDisplay>(site);
  const auto parameter = designed->Items().AddParameter("A", qrnTypeString);
  const auto action = designed->Items().AddAction("B", ddtypeMethod);
  designed->LayoutControls(false);
  designed->Move(0, 0, 300, 200);
  EXPECT_EQ(parameter->Control().TabIndex(), 1);
  EXPECT_EQ(action->Control().TabIndex(), 2);
  EXPECT_EQ(action->Control().Top(), parameter->Control().Height() + designed->GetVerticalSpacing());
}

TEST_F(PanelLayout, AToleranceBeyondAllWidthsIsRefusedAsAnOverflow) {
  addRows(1);
  EXPECT_EQ(raisedBy([&] { panel().SetColumnLayout(0, 0, 0, 3e9f); }).number, kOverflow);
  EXPECT_EQ(raisedBy([&] { panel().SetColumnLayout(1, 1, 1, 3e9f); }).number, 0);  // nothing needs it
}

// ---- the scroll bar ----

TEST_F(PanelLayout, ContentThatJustFitsNeedsNoScrollBar) {
  panel().SetMenuItemHeight(134);
  addAction();
  addAction();
  panel().LayoutControls(false);
  EXPECT_FALSE(panel().sbrVertical().Visible());
  EXPECT_FALSE(panel().sbrVertical().Enabled());
  EXPECT_EQ(panel().sbrVertical().Max(), 0);
}

TEST_F(PanelLayout, TallerContentCanBeScrolled) {
  addRows(20);
  panel().LayoutControls(false);
  EXPECT_TRUE(panel().sbrVertical().Visible());
  EXPECT_TRUE(panel().sbrVertical().Enabled());
  EXPECT_EQ(panel().sbrVertical().Max(), 20 * 21 + 19 * 5 - 268);
  EXPECT_EQ(panel().sbrVertical().LargeChange(), 268);
  EXPECT_EQ(panel().sbrVertical().SmallChange(), 26);
}

TEST_F(PanelLayout, TheScrollBarOfADisabledPanelIsDisabled) {
  addRows(20);
  panel().SetEnabled(false);
  panel().LayoutControls(false);
  EXPECT_TRUE(panel().sbrVertical().Visible());
  EXPECT_FALSE(panel().sbrVertical().Enabled());
  panel().SetEnabled(true);
  EXPECT_TRUE(panel().sbrVertical().Enabled());
}

TEST_F(PanelLayout, ScrollingMovesTheItemsByThatMuch) {
  addRows(20);
  panel().LayoutControls(false);
  const double before = row(3).onSurface().top;
  user->scrollsTo(panel().sbrVertical(), 50);
  EXPECT_EQ(row(3).onSurface().top, before - 50);
  EXPECT_EQ(row(3).Top(), 52);
}

TEST_F(PanelLayout, TheWheelScrollsByActionHeightsWithinTheRange) {
  addRows(20);
  panel().LayoutControls(false);
  user->turnsWheel({100, 100}, -2);
  EXPECT_EQ(panel().sbrVertical().Value(), 52);
  user->turnsWheel({100, 100}, 9);
  EXPECT_EQ(panel().sbrVertical().Value(), 0);
}

TEST_F(PanelLayout, TheWheelGoesToTheEndHoweverFarItIsTurned) {
  panel().SetMenuItemHeight(2000);
  addRows(20);
  panel().LayoutControls(false);
  user->turnsWheel({100, 100}, -40);
  EXPECT_EQ(panel().sbrVertical().Value(), panel().sbrVertical().Max());
  user->turnsWheel({100, 100}, 1e12);
  EXPECT_EQ(panel().sbrVertical().Value(), 0);
}

TEST_F(PanelLayout, TheWheelScrollsNoDisabledPanel) {
  addRows(20);
  panel().LayoutControls(false);
  panel().SetEnabled(false);
  user->turnsWheel({100, 100}, -2);
  EXPECT_EQ(panel().sbrVertical().Value(), 0);
}

TEST_F(PanelLayout, ActionsWithoutHeightStillLetTheScrollBarMove) {
  panel().SetMenuItemHeight(0);
  addRows(20);
  panel().LayoutControls(false);
  EXPECT_EQ(panel().sbrVertical().SmallChange(), 1);
}

TEST_F(PanelLayout, AnErrorOfTheItemsLeavesTheRestOfThePanelArranged) {
  panel().SetMenuItemHeight(20000);
  items().AddAction("A", ddtypeMethod);
  items().AddAction("B", ddtypeMethod);
  EXPECT_THROW(panel().LayoutControls(false), RunTimeError);
  EXPECT_THROW(panel().Move(0, 0, 500, 300), RunTimeError);
  EXPECT_EQ(panel().ControlsContainer().bounds().right(), 495);
  EXPECT_EQ(panel().sbrVertical().bounds().right(), 495);
}

TEST_F(PanelLayout, ContentThatShrinksScrollsBack) {
  addRows(20);
  panel().LayoutControls(false);
  user->scrollsTo(panel().sbrVertical(), 247);
  while (items().Count() > 2) items().Remove(Variant(items().Count()));
  panel().LayoutControls(false);
  EXPECT_EQ(row(1).onSurface().top, panel().ControlsContainer().Top());
}

TEST_F(PanelLayout, ContentBeyondTheScrollRangeRaisesAnOverflowAfterEverythingWasPlaced) {
  panel().SetMenuItemHeight(20000);
  addAction();
  addAction();
  EXPECT_EQ(raisedBy([&] { panel().LayoutControls(false); }).number, kOverflow);
  EXPECT_EQ(button(2).Top(), 20000);
  EXPECT_EQ(button(2).TabIndex(), 2);
}

TEST_F(PanelLayout, TheScrollRangeReachesToTheLastSixteenBitNumber) {
  for (int i = 0; i < 5; ++i) addAction();
  panel().SetMenuItemHeight(6607);
  EXPECT_EQ(raisedBy([&] { panel().LayoutControls(false); }).number, 0);
  EXPECT_EQ(panel().sbrVertical().Max(), 32767);
  addAction();
  panel().SetMenuItemHeight(5506);  // one more in all
  EXPECT_EQ(raisedBy([&] { panel().LayoutControls(false); }).number, kOverflow);
}

TEST_F(PanelLayout, AValueThatTakesTheUnitsWidthBeyondALongRaisesAnOverflow) {
  addParameter("P", qrnTypeLong);
  row(1).SetUnitVisible(false);
  EXPECT_EQ(raisedBy([&] { panel().SetColumnLayout(0, 0, 0, 1e9F); }).number, 0);
  EXPECT_GT(row(1).ValueWidth(), 2'000'000'000);
  EXPECT_EQ(raisedBy([&] { panel().SetColumnLayout(0, 0, 0, 2e9F); }).number, kOverflow);
}

TEST_F(PanelLayout, TallContentScrollsAsFarAsALongReaches) {
  panel().SetTallContent(true);
  panel().SetVerticalSpacing(std::numeric_limits<std::int32_t>::max());
  for (const char* name : {"A", "B", "C"}) addParameter(name, qrnTypeLong);
  panel().LayoutControls(false);
  EXPECT_EQ(panel().sbrVertical().Max(), std::numeric_limits<std::int32_t>::max());
}

TEST_F(PanelLayout, AHostThatWantsTallContentGetsIt) {
  panel().SetTallContent(true);
  panel().SetMenuItemHeight(50000);
  addAction();
  addAction();
  panel().LayoutControls(false);
  EXPECT_EQ(panel().sbrVertical().Max(), 100000 - 268);
}

}  // namespace
}  // namespace qrn::test
