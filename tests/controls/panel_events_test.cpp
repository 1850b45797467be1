#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/panel_fixture.h"

namespace qrn::test {
namespace {

class PanelEvents : public PanelTest {
 protected:
  QRNMenuItem& button(std::int32_t position) {
    return std::dynamic_pointer_cast<clsQRNAction>(items().Item(Variant(position)))->Control();
  }
  // Some rows, then an action, laid out, and nothing raised so far.
  void fill(int rows, qrnValueType type = qrnTypeString) {
    for (int i = 0; i < rows; ++i) addParameter("", type);
    items().AddAction("Action", ddtypeMenu);
    panel().LayoutControls(false);
    startListening();
  }
  host::TextBox& editor(std::int32_t position) {
    return dynamic_cast<host::TextBox&>(*row(position).CurrentEditor());
  }
};

// ---- rows ----

TEST_F(PanelEvents, AnEditOfARowRaisesStatusAndChangeWithItsIndex) {
  fill(2);
  row(2).SetValue(Variant("a"));
  editor(2).userTyped("b", 1);
  editor(2).userTyped("bc", 2);
  EXPECT_EQ(events(), (Events{"ParameterStatusChange(2)", "ParameterChange(2)", "ParameterChange(2)"}));
}

TEST_F(PanelEvents, ARangeErrorRaisesTheStatusBeforeTheChange) {
  fill(2, qrnTypeLong);
  row(2).SetValueRule("0..10");
  editor(2).userTyped("99", 2);
  EXPECT_EQ(events(), (Events{"ParameterStatusChange(2)", "ParameterChange(2)"}));
}

TEST_F(PanelEvents, CarryThePositionThatTheItemHasAtThatMoment) {
  fill(2);
  items().AddParameter("X", qrnTypeString, Variant(1));
  startListening();
  editor(3).userTyped("b", 1);
  EXPECT_EQ(events(), (Events{"ParameterStatusChange(3)", "ParameterChange(3)"}));
  items().Remove(Variant("X"));
  editor(2).userTyped("bc", 2);
  EXPECT_EQ(events(), (Events{"ParameterChange(2)"}));
}

TEST_F(PanelEvents, ACheckBoxIsClicked) {
  fill(1, qrnTypeBoolean);
  row(1).SetValue(Variant(false));
  user->focuses(row(1));
  startListening();
  user->presses(host::key::Space);
  EXPECT_EQ(events(), (Events{"ItemKeyDown(1, 32, 0)", "ItemKeyPress(1, 32)", "ParameterStatusChange(1)",
                              "ParameterClick(1)", "ItemKeyUp(1, 32, 0)"}));
}

TEST_F(PanelEvents, AListRaisesChangeAndThenClick) {
  fill(1, qrnTypeList);
  row(1).SetValueNames(0, "off");
  row(1).SetValueNames(1, "on");
  row(1).SetValue(Variant(0));
  user->focuses(row(1));
  startListening();
  user->presses(host::key::Down);
  EXPECT_EQ(events(), (Events{"ItemKeyDown(1, 40, 0)", "ParameterStatusChange(1)", "ParameterChange(1)",
                              "ParameterClick(1)", "ItemKeyUp(1, 40, 0)"}));
}

TEST_F(PanelEvents, ABitThatIsSwitchedCarriesItsNumber) {
  fill(1, qrnTypeBitfield);
  for (int i = 0; i < 3; ++i) row(1).SetValueNames(i, "bit");
  row(1).SetValue(Variant("000"));
  panel().LayoutControls(false);
  dynamic_cast<host::ListBox&>(*row(1).CurrentEditor()).userChecked(2);
  EXPECT_EQ(events(), (Events{"ParameterStatusChange(1)", "ParameterItemCheck(1, 2)"}));
}

TEST_F(PanelEvents, IconsOfARowAreClicked) {
  fill(2);
  row(2).SetIcon1Column(1);
  row(2).SetIcon1ButtonMode(qrnButtonFlat);
  row(2).SetIcon1Picture(row(2).Icon2Picture());
  user->clicks(row(2).imgIcon1());
  user->clicks(row(2).imgIcon2());
  EXPECT_EQ(events(), (Events{"ParameterIcon1Click(2)", "ParameterIcon2Click(2)"}));
}

TEST_F(PanelEvents, APassivePartOfARowIsPartOfThePanel) {
  fill(1);
  user->clicks(row(1).lblLabel());
  user->clicks(row(1).lblUnit());
  const Rect place = row(1).onSurface();
  user->clicksAt({place.right() - 2, place.top + 2});  // behind the last part
  EXPECT_EQ(events(), (Events{"Click", "Click", "Click"}));
}

TEST_F(PanelEvents, MenuEntriesOfRowsAndButtonsCarryTheirIndex) {
  fill(1);
  row(1).AddMenuItem("Trend");
  row(1).AddMenuItem("Help");
  button(2).AddMenuItem("Open");
  platform.willChoose(2);
  user->clicks(row(1).lblLabel(), host::MouseButton::Right);
  platform.willChoose(1);
  user->clicks(button(2), host::MouseButton::Right);
  const Events raised = events();
  EXPECT_EQ(std::count(raised.begin(), raised.end(), "ItemMenuClick(1, 2)"), 1);
  EXPECT_EQ(raised.back(), "ItemMenuClick(2, 1)");
}

TEST_F(PanelEvents, KeysOfARowReachTheItemEventsOnly) {
  fill(1);
  row(1).SetValue(Variant("x"));
  user->focuses(row(1));
  startListening();
  user->types("a");
  EXPECT_EQ(events(), (Events{"ItemKeyDown(1, 65, 0)", "ItemKeyPress(1, 97)", "ParameterStatusChange(1)",
                              "ParameterChange(1)", "ItemKeyUp(1, 65, 0)"}));
}

TEST_F(PanelEvents, AListenerCanTakeAKeyAway) {
  fill(1);
  user->focuses(row(1));
  const auto down = panel().ItemKeyDown.connect([](std::int32_t&, std::int16_t& keyCode, std::int16_t&) {
    if (keyCode == host::key::Back) keyCode = 0;
  });
  const auto press = panel().ItemKeyPress.connect(
      [](std::int32_t&, std::int16_t& keyAscii) { keyAscii = keyAscii == 'a' ? 'b' : std::int16_t{0}; });
  user->types("ax");
  EXPECT_EQ(row(1).ValueText(), "b");
  user->presses(host::key::Back);
  EXPECT_EQ(row(1).ValueText(), "b");
}

TEST_F(PanelEvents, AnUnknownEventOfAControlIsIgnored) {
  fill(1);
  row(1).raiseByName("SomethingElse", host::EventArgs());
  button(2).raiseByName("SomethingElse", host::EventArgs());
  EXPECT_EQ(events(), Events{});
}

// ---- buttons ----

TEST_F(PanelEvents, AnActionIsClicked) {
  fill(1);
  user->clicks(button(2));
  EXPECT_EQ(events(), (Events{"ItemGotFocus(2)", "ActionClick(2)"}));
}

TEST_F(PanelEvents, AClickReportedByAnActionWithoutButtonModeIsOneOnThePanel) {
  fill(1);
  button(2).SetButtonMode(qrnbuttonNone);
  button(2).raiseByName("Click", host::EventArgs());
  EXPECT_EQ(events(), (Events{"Click"}));
}

TEST_F(PanelEvents, KeysOfAButtonCarryItsIndex) {
  fill(1);
  user->focuses(button(2));
  startListening();
  user->presses(host::key::Space);
  EXPECT_EQ(events(), (Events{"ItemKeyDown(2, 32, 0)", "ItemKeyPress(2, 32)", "ActionClick(2)",
                              "ItemKeyUp(2, 32, 0)"}));
}

// ---- focus ----

TEST_F(PanelEvents, TheFocusStartsTheEditBeforeItIsReported) {
  fill(2);
  user->focuses(row(1));
  user->focuses(button(3));
  EXPECT_EQ(events(), (Events{"ParameterStartEdit(1)", "ItemGotFocus(1)", "ParameterEndEdit(1, False)",
                              "ItemLostFocus(1)", "ItemGotFocus(3)"}));
}

TEST_F(PanelEvents, TheFocusScrollsAnItemIntoView) {
  fill(20);
  user->focuses(row(20));
  EXPECT_EQ(panel().sbrVertical().Value(), 20 * 26 - 5 - 268);
  user->focuses(row(1));
  EXPECT_EQ(panel().sbrVertical().Value(), 0);
  user->focuses(row(5));  // in view already
  EXPECT_EQ(panel().sbrVertical().Value(), 0);
}

TEST_F(PanelEvents, TheItemIsInViewWhenItsFocusIsReported) {
  fill(20);
  double top = 0;
  const auto connection =
      panel().ItemGotFocus.connect([&](std::int32_t& index) { top = row(index).visibleOnSurface().height; });
  user->focuses(row(20));
  EXPECT_EQ(top, 21);
}

TEST_F(PanelEvents, OfAnItemTallerThanTheViewTheTopIsSeen) {
  addParameter("");
  addParameter("", qrnTypeBitfield);
  for (int i = 0; i < 30; ++i) row(2).SetValueNames(i, "bit");
  panel().LayoutControls(false);
  ASSERT_GT(row(2).Height(), panel().ControlsContainer().Height());
  user->focuses(row(2));
  EXPECT_EQ(panel().sbrVertical().Value(), row(2).Top());
}

TEST_F(PanelEvents, TabWalksTheItemsByTheirTabOrder) {
  fill(2);
  user->focuses(row(1));
  startListening();
  user->presses(host::key::Tab);
  user->presses(host::key::Tab);
  user->presses(host::key::Tab, host::shift::Shift);
  const Events raised = events();
  Events focused;
  for (const std::string& one : raised)
    if (one.starts_with("ItemGotFocus")) focused.push_back(one);
  EXPECT_EQ(focused, (Events{"ItemGotFocus(2)", "ItemGotFocus(3)", "ItemGotFocus(2)"}));
}

TEST_F(PanelEvents, TheFocusIsGivenToTheItemThatIsSelected) {
  fill(2);
  panel().SetItemFocus(Variant(2));
  EXPECT_TRUE(row(2).hasFocus());
  panel().SetItemFocus(Variant("action"));
  EXPECT_TRUE(button(3).hasFocus());
  panel().SetItemFocus(Variant(items().Item(Variant(1))));
  EXPECT_TRUE(row(1).hasFocus());
}

TEST_F(PanelEvents, WithoutASelectedItemTheContainerGetsTheFocus) {
  fill(1);
  for (const Variant& selector : {Variant("nobody"), Variant(7), Variant(), Variant(Null())}) {
    user->focuses(row(1));
    panel().SetItemFocus(selector);
    EXPECT_EQ(panel().Control::input().focus(), &panel().ControlsContainer());
  }
}

TEST_F(PanelEvents, TheActiveItemIsTheOneWithTheFocus) {
  fill(2);
  EXPECT_EQ(panel().GetActiveItem(false), 0);
  user->focuses(row(2));
  EXPECT_EQ(panel().GetActiveItem(false), 2);
  user->focuses(panel().ControlsContainer());
  EXPECT_EQ(panel().GetActiveItem(false), 0);
}

TEST_F(PanelEvents, TheItemUnderTheMouseCountsWhenItMay) {
  fill(2);
  user->hovers(row(2));
  EXPECT_EQ(panel().GetActiveItem(false), 0);
  EXPECT_EQ(panel().GetActiveItem(true), 2);
  user->focuses(row(1));
  EXPECT_EQ(panel().GetActiveItem(true), 1);
}

TEST_F(PanelEvents, OfSeveralItemsUnderTheMouseTheLastVisibleOneCounts) {
  fill(3);
  row(2).SetTop(row(1).Top());
  row(3).SetTop(row(1).Top());
  user->hovers(row(1));
  EXPECT_EQ(panel().GetActiveItem(true), 3);
  row(3).SetVisible(false);
  EXPECT_EQ(panel().GetActiveItem(true), 2);
}

TEST_F(PanelEvents, AnItemScrolledAwayIsNotUnderTheMouse) {
  fill(20);
  platform.setCursor({100, 27 + 268 + 3});  // below the container, where row 11 would go on
  EXPECT_EQ(panel().GetActiveItem(true), 0);
}

// ---- edit cycles ----

TEST_F(PanelEvents, StartingAnEditEndsTheOneInAnotherRowFirst) {
  fill(2);
  row(1).events().StartEdit.raise();  // only the row itself hears this one
  row(1).raiseByName("StartEdit", host::EventArgs());
  row(2).raiseByName("StartEdit", host::EventArgs());
  EXPECT_EQ(events(),
            (Events{"ParameterStartEdit(1)", "ParameterEndEdit(1, False)", "ParameterStartEdit(2)"}));
}

TEST_F(PanelEvents, AnEditEndsAtThePositionThatItsRowHasByThen) {
  fill(3);
  user->focuses(row(2));
  user->types("x");
  items().AddParameter("New", qrnTypeString, Variant(1));
  startListening();
  user->focuses(row(1));
  EXPECT_EQ(events(), (Events{"ParameterEndEdit(3, True)", "ItemLostFocus(3)", "ParameterStartEdit(1)",
                              "ItemGotFocus(1)"}));
  items().Remove(Variant(2));
  user->focuses(row(2));
  EXPECT_EQ(events(), (Events{"ParameterEndEdit(1, False)", "ItemLostFocus(1)", "ParameterStartEdit(2)",
                              "ItemGotFocus(2)"}));
  items().Remove(Variant(1));
  user->switchesAway();
  EXPECT_EQ(events(), Events{"ParameterEndEdit(1, True)"});
  user->comesBack();
  EXPECT_EQ(events(), Events{"ParameterStartEdit(1)"});
}

TEST_F(PanelEvents, TheEditOfARemovedRowEndsWithTheNextStartEvenAtItsPlace) {
  fill(3);
  user->focuses(row(2));
  items().AddParameter("New", qrnTypeString, Variant(1));
  items().Remove(Variant(3));
  startListening();
  user->focuses(row(3));
  EXPECT_EQ(events(), (Events{"ParameterEndEdit(3, False)", "ParameterStartEdit(3)", "ItemGotFocus(3)"}));
}

TEST_F(PanelEvents, AcceptingAValueWhileItsStateChangesIsToldOnce) {
  fill(1);
  const auto accepting =
      panel().ParameterStatusChange.connect([&](std::int32_t&) { row(1).SetValueChanged(false); });
  user->focuses(row(1));
  startListening();
  user->types("x");
  EXPECT_EQ(events(), (Events{"ItemKeyDown(1, 88, 0)", "ItemKeyPress(1, 120)", "ParameterStatusChange(1)",
                              "ParameterStatusChange(1)", "ParameterChange(1)", "ItemKeyUp(1, 88, 0)"}));
  EXPECT_FALSE(row(1).ValueChanged());
}

TEST_F(PanelEvents, ASecondStartOfTheSameRowRaisesNothing) {
  fill(1);
  row(1).raiseByName("StartEdit", host::EventArgs());
  row(1).raiseByName("StartEdit", host::EventArgs());
  EXPECT_EQ(events(), (Events{"ParameterStartEdit(1)"}));
}

TEST_F(PanelEvents, TheEndOfARowThatIsNotInEditingIsIgnored) {
  fill(2);
  bool changed = true;
  const host::EventArg arguments[] = {host::EventArg(changed)};
  row(1).raiseByName("EndEdit", arguments);
  row(1).raiseByName("StartEdit", host::EventArgs());
  row(2).raiseByName("EndEdit", arguments);
  row(1).raiseByName("EndEdit", arguments);
  row(1).raiseByName("EndEdit", arguments);
  EXPECT_EQ(events(), (Events{"ParameterStartEdit(1)", "ParameterEndEdit(1, True)"}));
}

TEST_F(PanelEvents, TheEndTellsWhetherTheValueWasChanged) {
  fill(2);
  row(1).SetValue(Variant("a"));
  user->focuses(row(1));
  user->types("b");
  startListening();
  user->focuses(row(2));
  EXPECT_EQ(events(), (Events{"ParameterEndEdit(1, True)", "ItemLostFocus(1)", "ParameterStartEdit(2)",
                              "ItemGotFocus(2)"}));
}

TEST_F(PanelEvents, RemovingTheEditedItemLeavesTheEndToTheNextStart) {
  fill(3);
  user->focuses(row(3));
  startListening();
  items().Remove(Variant(3));
  EXPECT_EQ(events(), Events{});
  user->focuses(row(1));
  EXPECT_EQ(events(), (Events{"ParameterEndEdit(3, False)", "ParameterStartEdit(1)", "ItemGotFocus(1)"}));
}

TEST_F(PanelEvents, AStartCarriesThePositionThatTheEndBeforeItLeft) {
  fill(3);
  user->focuses(row(1));
  items().Remove(Variant(1));  // nobody has ended that edit yet
  startListening();
  const auto connection = panel().ParameterEndEdit.connect(
      [&](std::int32_t&, bool&) { items().AddParameter("First", qrnTypeString, Variant(1)); });
  user->focuses(row(2));
  EXPECT_EQ(row(3).hasFocus(), true);
  const Events heard = events();
  EXPECT_EQ(heard.back(), "ItemGotFocus(3)");
  EXPECT_EQ(heard[heard.size() - 2], "ParameterStartEdit(3)");
}

TEST_F(PanelEvents, AnItemThatTheEndBeforeItRemovedStartsNoEdit) {
  fill(3);
  user->focuses(row(1));
  items().Remove(Variant(1));
  startListening();
  const auto connection =
      panel().ParameterEndEdit.connect([&](std::int32_t&, bool&) { items().RemoveAll(); });
  user->focuses(row(2));
  EXPECT_EQ(events(), (Events{"ParameterEndEdit(1, False)"}));
}

// ---- the panel's own ----

TEST_F(PanelEvents, TheBackgroundTheTitleAndTheContainerAreClicked) {
  fill(1);
  user->clicksAt({2, 150});  // the left margin
  user->clicks(panel().lblTitle());
  user->clicksAt({200, 250});  // the container below the items
  EXPECT_EQ(events(), (Events{"Click", "Click", "Click"}));
}

TEST_F(PanelEvents, APressThatIsReleasedElsewhereIsNoClick) {
  fill(1);
  user->pressesAt(user->middleOf(panel().lblTitle()));
  user->releasesAt({200, 250});
  user->pressesAt({2, 150});
  user->releasesAt({500, 150});
  EXPECT_EQ(events(), Events{});
}

TEST_F(PanelEvents, TheCloseButtonCloses) {
  user->clicks(panel().imgClose());
  EXPECT_EQ(events(), (Events{"DisplayClose"}));
}

TEST_F(PanelEvents, AHiddenCloseButtonDoesNotClose) {
  const Point place = user->middleOf(panel().imgClose());
  panel().SetIconCloseHidden(true);
  user->clicksAt(place);
  EXPECT_EQ(events(), (Events{"Click"}));  // it is background now
}

TEST_F(PanelEvents, TheOtherButtonMaximisesOrRestoresAndLeavesTheStateToTheCaller) {
  user->clicks(panel().imgMaxRst());
  EXPECT_EQ(events(), (Events{"DisplayMaximize"}));
  EXPECT_FALSE(panel().Maximized());
  panel().SetMaximized(true);
  user->clicks(panel().imgMaxRst());
  EXPECT_EQ(events(), (Events{"DisplayRestore"}));
  EXPECT_TRUE(panel().Maximized());
}

TEST_F(PanelEvents, ADoubleClickOnTheTitleDoesTheSameUnlessTheButtonIsHidden) {
  user->doubleClicks(panel().lblTitle());
  EXPECT_EQ(events(), (Events{"Click", "DisplayMaximize"}));
  panel().SetIconMaxRstHidden(true);
  user->doubleClicks(panel().lblTitle());
  EXPECT_EQ(events(), (Events{"Click"}));
}

TEST_F(PanelEvents, KeysOnThePanelItself) {
  fill(1);
  panel().SetItemFocus(Variant("nobody"));
  startListening();
  user->presses(host::key::Enter, host::shift::Shift);
  EXPECT_EQ(events(), (Events{"KeyDown(13, 1)", "KeyPress(13)", "KeyUp(13, 1)"}));
}

TEST_F(PanelEvents, EscapeIsSwallowedAsACharacterWhileTheCloseButtonIsShown) {
  user->presses(host::key::Escape);
  EXPECT_EQ(events(), (Events{"KeyDown(27, 0)", "KeyUp(27, 0)"}));
  panel().SetIconCloseHidden(true);
  user->presses(host::key::Escape);
  EXPECT_EQ(events(), (Events{"KeyDown(27, 0)", "KeyPress(27)", "KeyUp(27, 0)"}));
}

}  // namespace
}  // namespace qrn::test
