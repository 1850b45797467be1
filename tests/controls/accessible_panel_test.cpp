#include <algorithm>

#include "accessible_fixture.h"

namespace qrn::test {
namespace {

using Names = std::vector<std::string>;

Names namesIn(const AccessibleNode& node) {
  Names names;
  for (std::int32_t i = 0; i < node.childCount(); ++i) names.push_back(node.child(i).facts().name);
  return names;
}

TEST_F(AccessibleTest, APanelIsNamedByItsTitle) {
  panel().SetTitle("Basic setup");
  EXPECT_EQ(panelNode().facts().role, AccessibleRole::Panel);
  EXPECT_EQ(panelNode().facts().name, "Basic setup");
  EXPECT_EQ(panelNode().parent(), AccessibleNode{});
}

TEST_F(AccessibleTest, APanelShowsTitleButtonsItemsAndFooterFromTopToBottom) {
  items().AddAction("selfTest", ddtypeMethod)->Control().SetCaption("Self test");
  panel().Buttons().AddButton("", "&OK");
  panel().LayoutControls(false);
  EXPECT_EQ(namesIn(panelNode()), (Names{"Maximize", "Close", "", "Self test", "OK"}));
  for (std::int32_t i = 0; i < panelNode().childCount(); ++i) {
    EXPECT_EQ(panelNode().indexOf(panelNode().child(i)), i);
    EXPECT_EQ(panelNode().child(i).parent(), panelNode());
  }
}

TEST_F(AccessibleTest, APanelShowsItsScrollBarWhenItHasOne) {
  for (int i = 0; i < 30; ++i) addParameter("");
  panel().LayoutControls(false);
  const AccessibleNode bar = panelNode().child(panelNode().childCount() - 1);
  EXPECT_EQ(bar.facts().role, AccessibleRole::ScrollBar);
  EXPECT_EQ(bar.facts().value, "0");
  EXPECT_TRUE(panelNode().child(panelNode().childCount() - 2).child(0).facts().states.offscreen);
}

TEST_F(AccessibleTest, WhatIsInsideARowIsNoChildOfThePanel) {
  EXPECT_EQ(panelNode().indexOf(editor()), -1);
  EXPECT_EQ(panelNode().indexOf({&pressure().lblLabel()}), -1);
  EXPECT_EQ(panelNode().indexOf({}), -1);
  EXPECT_FALSE(panelNode().child(-1));
  EXPECT_FALSE(panelNode().child(panelNode().childCount()));
}

TEST_F(AccessibleTest, AnItemThatIsRemovedIsGoneForTools) {
  const std::int32_t before = panelNode().childCount();
  items().Remove(Variant("pressure"));
  EXPECT_EQ(panelNode().childCount(), before - 1);
}

// ---- the buttons of the title bar ----

TEST_F(AccessibleTest, TheTitleButtonsAreNamedByWhatTheyDoOrTheirToolTips) {
  panel().SetMaximized(true);
  EXPECT_EQ(panelNode().child(0).facts().name, "Restore");
  panel().SetRstButtonToolTip("Small again");
  panel().SetCloseButtonToolTip("Leave");
  EXPECT_EQ(panelNode().child(0).facts().name, "Small again");
  EXPECT_EQ(panelNode().child(1).facts().name, "Leave");
  EXPECT_EQ(panelNode().child(1).facts().role, AccessibleRole::Button);
}

TEST_F(AccessibleTest, TheTitleButtonsArePressed) {
  EXPECT_TRUE(panelNode().child(0).act());
  EXPECT_TRUE(panelNode().child(1).act());
  EXPECT_EQ(events(), (Events{"DisplayMaximize", "DisplayClose"}));
  panel().SetEnabled(false);
  EXPECT_FALSE(panelNode().child(1).act());
}

TEST_F(AccessibleTest, HiddenTitleButtonsAreNoChildren) {
  panel().SetIconCloseHidden(true);
  EXPECT_EQ(panelNode().child(0).facts().name, "Maximize");
  panel().SetTitleStyle(qrnTitleNone);
  EXPECT_EQ(panelNode().childCount(), 1);
}

// ---- actions and the footer ----

TEST_F(AccessibleTest, AnActionIsAButtonThatIsPressed) {
  QRNMenuItem& action = items().AddAction("selfTest", ddtypeMethod)->Control();
  action.SetCaption("Self test");
  action.SetToolTipText("Takes a minute");
  panel().LayoutControls(false);
  startListening();
  const AccessibleNode button = panelNode().child(3);
  EXPECT_EQ(button.facts().role, AccessibleRole::Button);
  EXPECT_EQ(button.facts().name, "Self test");
  EXPECT_EQ(button.facts().description, "Takes a minute");
  EXPECT_TRUE(button.act());
  EXPECT_EQ(events(), (Events{"ItemGotFocus(2)", "ActionClick(2)"}));
  EXPECT_TRUE(button.facts().states.focused);
  action.SetEnabled(false);
  EXPECT_FALSE(button.act());
  EXPECT_TRUE(button.facts().states.unavailable);
}

TEST_F(AccessibleTest, AnActionThatTakesNoClicksIsOnlyRead) {
  QRNMenuItem& action = items().AddAction("selfTest", ddtypeMethod)->Control();
  action.SetButtonMode(qrnbuttonNone);
  EXPECT_EQ(AccessibleNode{&action}.facts().role, AccessibleRole::Label);
  EXPECT_FALSE(AccessibleNode{&action}.act());
}

TEST_F(AccessibleTest, AFooterButtonTellsItsLetterAndIsPressed) {
  panel().Buttons().AddButton("", "Read && &write");
  panel().LayoutControls(false);
  startListening();
  const AccessibleNode button = panelNode().child(3);
  EXPECT_EQ(button.facts().role, AccessibleRole::Button);
  EXPECT_EQ(button.facts().name, "Read & write");
  EXPECT_EQ(button.facts().shortcut, "Alt+W");
  EXPECT_TRUE(button.act());
  platform.processMessages();
  EXPECT_EQ(events(), Events{"ButtonClick(1)"});
}

// ---- icons ----

TEST_F(AccessibleTest, AnIconThatTakesClicksIsAButtonNamedByItsToolTip) {
  pressure().SetIcon2ToolTip("About the pressure");
  const AccessibleNode icon = rowNode().child(1);
  EXPECT_EQ(icon.facts().role, AccessibleRole::Button);
  EXPECT_EQ(icon.facts().name, "About the pressure");
  EXPECT_EQ(icon.facts().description, "Pressure (bar)");
  EXPECT_TRUE(icon.act());
  EXPECT_EQ(events(), Events{"ParameterIcon2Click(1)"});
}

TEST_F(AccessibleTest, AStatusIconWithoutAToolTipIsNamedByTheStatus) {
  EXPECT_EQ(rowNode().child(1).facts().name, "Information");
  item->SetParamState(qrnStateChanged);
  EXPECT_EQ(rowNode().child(1).facts().name, "Changed");
  item->SetParamState(qrnStateChanged | qrnStateRangeError);
  EXPECT_EQ(rowNode().child(1).facts().name, "Out of range");
}

TEST_F(AccessibleTest, AnIconThatTakesNoClicksIsAPictureIfItSaysAnything) {
  pressure().SetIcon2ButtonMode(qrnbuttonNone);
  EXPECT_EQ(rowNode().childCount(), 1);
  pressure().SetIcon2ToolTip("Information");
  EXPECT_EQ(rowNode().child(1).facts().role, AccessibleRole::Picture);
  EXPECT_FALSE(rowNode().child(1).act());
}

TEST_F(AccessibleTest, AHiddenIconIsNoPartOfItsRow) {
  pressure().SetIcon2Hidden(true);
  EXPECT_EQ(rowNode().childCount(), 1);
}

// ---- errors ----

TEST_F(AccessibleTest, AFreshRowIsNotHeldToBeWrong) {
  EXPECT_EQ(pressure().ValueError(), qrnErrorTypeMismatch);
  EXPECT_EQ(facts().error, "");
}

TEST_F(AccessibleTest, AWrongInputIsSaidInWordsBehindTheToolTip) {
  pressure().SetValueRule("0..10");
  pressure().SetValueToolTip("Of the tank");
  editor().enter("11");
  EXPECT_EQ(facts().error, "The value is out of range.");
  EXPECT_EQ(facts().wholeDescription(), "Of the tank\nThe value is out of range.");
  editor().enter("x");
  EXPECT_EQ(facts().error, "The value is of the wrong kind.");
  editor().enter("9");
  EXPECT_EQ(facts().error, "");
}

TEST_F(AccessibleTest, AnErrorThatTheHostSetsIsSaidTooUntilItTakesItBack) {
  item->SetParamState(qrnStateOtherError);
  EXPECT_EQ(facts().error, "The value is not valid.");
  item->SetParamState(qrnStateRangeError);
  EXPECT_EQ(facts().error, "The value is out of range.");
  item->SetParamState(qrnStateNormal);
  EXPECT_EQ(facts().error, "");
}

TEST_F(AccessibleTest, TheHostCanTakeBackTheErrorOfAnInput) {
  editor().enter("x");
  item->SetParamState(qrnStateNormal);
  EXPECT_EQ(facts().error, "");
}

TEST_F(RowTest, ARowThatStandsAloneTellsItsErrorItself) {
  useType(qrnTypeDouble);
  row().SetLabelText("Level");
  row().SetUnitVisible(false);
  const AccessibleNode level = AccessibleNode{&row()}.child(0);
  EXPECT_EQ(level.facts().name, "Level");
  EXPECT_EQ(level.facts().error, "");
  EXPECT_TRUE(level.enter("high"));
  EXPECT_EQ(level.facts().error, "The value is of the wrong kind.");
}

// ---- what the surface is told ----

TEST_F(AccessibleTest, TheSurfaceHearsOfNewValuesAndStatesOfPaintedEditors) {
  showOnScreen();
  pressure().CurrentEditor();
  auto& told = static_cast<headless::HeadlessPeer*>(panel().peer())->toldTools;
  const auto heard = [&told](host::Aspect aspect) {
    return std::count(told.begin(), told.end(), std::pair<std::string, host::Aspect>("txtValue", aspect));
  };
  told.clear();
  item->SetParamValue(1.5);
  EXPECT_EQ(heard(host::Aspect::Content), 1);
  static_cast<host::TextBox*>(pressure().CurrentEditor())->userTyped("2", 1);
  EXPECT_EQ(heard(host::Aspect::Content), 2);
  told.clear();
  item->SetParamState(qrnStateReadOnly);
  EXPECT_EQ(heard(host::Aspect::Enabled), 1);
}

}  // namespace
}  // namespace qrn::test
