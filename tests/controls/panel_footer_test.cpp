#include <gtest/gtest.h>

#include <string>

#include "host/class_table.h"
#include "support/panel_fixture.h"

namespace qrn::test {
namespace {

// The fixture's panel is 400 by 300, its title bar 22 high, a footer button 23 high and 72 wide. Half of a
// button is 11, more than the margins of 5.
class PanelFooter : public PanelTest {
 protected:
  clsQRNButtons& buttons() { return panel().Buttons(); }
  host::CommandButton& add(const std::string& name) { return buttons().AddButton(name, name)->Control(); }
  Rect footer() { return panel().ButtonsContainer().bounds(); }
  Rect itemContainer() { return panel().ControlsContainer().bounds(); }
};

TEST_F(PanelFooter, IsHiddenAndTakesNoRoomWithoutButtons) {
  EXPECT_FALSE(panel().ButtonsContainer().Visible());
  EXPECT_EQ(itemContainer(), (Rect{5, 27, 390, 268}));
  buttons();
  EXPECT_FALSE(panel().ButtonsContainer().Visible());
  EXPECT_EQ(itemContainer(), (Rect{5, 27, 390, 268}));
}

TEST_F(PanelFooter, AskingForItMakesNoButtonCollection) {
  panel().LayoutButtons();
  panel().SetButtonsAlignment(0);
  panel().SetTopMargin(6);
  panel().nextTabStop(nullptr, true);
  EXPECT_EQ(platform.clock().runningTimers(), 0);
}

TEST_F(PanelFooter, OfAShownPanelAppearsWithTheFirstButton) {
  add("OK");
  EXPECT_TRUE(panel().ButtonsContainer().Visible());
  // The side margins and the bottom one widen to half a button; above the row another half stays free.
  EXPECT_EQ(footer(), (Rect{11, 300 - 11 - 23, 400 - 2 * 11, 23}));
  // The items keep the plain margins at the sides and at the top.
  EXPECT_EQ(itemContainer(), (Rect{5, 27, 390, 300 - 22 - 5 - (11 + 23 + 11)}));
}

TEST_F(PanelFooter, WideMarginsStay) {
  panel().SetLeftMargin(20);
  panel().SetRightMargin(30);
  panel().SetBottomMargin(40);
  add("OK");
  EXPECT_EQ(footer(), (Rect{20, 300 - 40 - 23, 350, 23}));
  EXPECT_EQ(itemContainer(), (Rect{20, 27, 350, 300 - 22 - 5 - (40 + 23 + 11)}));
}

TEST_F(PanelFooter, GoesAgainWithTheLastButton) {
  add("OK");
  buttons().Remove(Variant("OK"));
  EXPECT_FALSE(panel().ButtonsContainer().Visible());
  EXPECT_EQ(itemContainer(), (Rect{5, 27, 390, 268}));
}

TEST_F(PanelFooter, IsAtLeastOneWideAndLeavesTheItemsAtLeastOne) {
  add("OK");
  panel().Move(0, 0, 10, 20);
  EXPECT_EQ(panel().ButtonsContainer().Width(), 1);
  EXPECT_EQ(panel().ControlsContainer().Width(), 1);
  EXPECT_EQ(panel().ControlsContainer().Height(), 1);
}

TEST_F(PanelFooter, TheFirstButtonsHeightIsThatOfTheRow) {
  add("OK");
  add("Cancel").SetHeight(40);
  panel().SetTopMargin(6);
  EXPECT_EQ(footer().height, 23);
  buttons().Item(Variant(1))->Control().SetHeight(31);
  panel().SetTopMargin(5);
  EXPECT_EQ(footer(), (Rect{15, 300 - 15 - 31, 370, 31}));
}

TEST_F(PanelFooter, OfAPanelThatIsNotShownYetIsPlacedWhenItIs) {
  host::Owned<QRNDisplay> hidden(new QRNDisplay);
  hidden->SetVisible(false);
  host::LifeCycle::start(*hidden, site, nullptr);
  hidden->Move(0, 0, 400, 300);
  host::CommandButton& ok = hidden->Buttons().AddButton("OK", "OK")->Control();
  EXPECT_FALSE(hidden->ButtonsContainer().Visible());
  hidden->SetVisible(true);
  EXPECT_TRUE(hidden->ButtonsContainer().Visible());
  EXPECT_EQ(ok.Left(), 378 - 72);
}

TEST_F(PanelFooter, WaitsWithEverythingElseWhileRedrawIsOff) {
  panel().SetRedraw(false);
  add("OK");
  EXPECT_FALSE(panel().ButtonsContainer().Visible());
  panel().SetRedraw(true);
  EXPECT_TRUE(panel().ButtonsContainer().Visible());
  EXPECT_EQ(buttons().Item(Variant(1))->Control().Left(), 378 - 72);
}

TEST_F(PanelFooter, AButtonAddedWhileRedrawIsOffHasItsPlaceAfterwards) {
  add("OK");
  panel().SetRedraw(false);
  host::CommandButton& cancel = add("Cancel");
  panel().SetRedraw(true);
  EXPECT_EQ(cancel.Left(), 378 - 72);
}

TEST_F(PanelFooter, AButtonTakenAwayLeavesNoHole) {
  add("OK");
  host::CommandButton& cancel = add("Cancel");
  panel().SetButtonsAlignment(0);
  buttons().Remove(Variant("OK"));
  EXPECT_EQ(cancel.Left(), 0);
  EXPECT_EQ(cancel.TabIndex(), 1);
}

// ---- the row ----

TEST_F(PanelFooter, ButtonsStandAtTheRightUnlessToldOtherwise) {
  host::CommandButton &ok = add("OK"), &cancel = add("Cancel");
  EXPECT_EQ(cancel.bounds(), (Rect{378 - 72, 0, 72, 23}));
  EXPECT_EQ(ok.bounds(), (Rect{378 - 72 - 11 - 72, 0, 72, 23}));
  panel().SetButtonsAlignment(0);
  EXPECT_EQ(ok.Left(), 0);
  EXPECT_EQ(cancel.Left(), 72 + 11);
  panel().SetButtonsAlignment(2);
  EXPECT_EQ(ok.Left(), (378 - 155) / 2 + 1);  // 111.5, to the even neighbour
}

TEST_F(PanelFooter, AResizeLaysTheButtonsOut) {
  host::CommandButton& ok = add("OK");
  panel().Move(0, 0, 500, 300);
  EXPECT_EQ(ok.Left(), 478 - 72);
}

TEST_F(PanelFooter, InAShortRowTheFirstButtonsShrinkFirst) {
  for (const char* name : {"A", "B", "C"}) {
    const ButtonPtr button = buttons().AddButton(name, name);
    button->SetMinWidth(60);
    button->SetStdWidth(100);
    button->Control().SetHeight(30);
  }
  panel().Move(0, 0, 280 + 2 * 15, 300);
  ASSERT_EQ(footer().width, 280);
  EXPECT_EQ(buttons().Item(Variant(1))->Control().bounds(), (Rect{0, 0, 60, 30}));
  EXPECT_EQ(buttons().Item(Variant(2))->Control().bounds(), (Rect{75, 0, 90, 30}));
  EXPECT_EQ(buttons().Item(Variant(3))->Control().bounds(), (Rect{180, 0, 100, 30}));
}

TEST_F(PanelFooter, LayoutButtonsKeepsEachButtonsHeight) {
  add("OK");
  host::CommandButton& tall = add("Cancel");
  tall.SetHeight(40);
  panel().LayoutButtons();
  EXPECT_EQ(tall.Height(), 40);
}

TEST_F(PanelFooter, TabIndicesGoOnBehindTheItems) {
  addParameter("A");
  addParameter("B");
  host::CommandButton &ok = add("OK"), &cancel = add("Cancel");
  panel().LayoutButtons();
  EXPECT_EQ(ok.TabIndex(), 3);
  EXPECT_EQ(cancel.TabIndex(), 4);
}

TEST_F(PanelFooter, FollowsThePanelsFontWhenAButtonIsLaidOutAnew) {
  host::CommandButton& ok = add("OK");
  platform.setTextSize(8, 20);
  buttons().Item(Variant(1))->SetDefaultLayout("OK");
  panel().SetTopMargin(6);
  EXPECT_EQ(ok.Width(), 96);
  EXPECT_EQ(footer().height, 30);
}

// ---- the keyboard ----

class PanelFooterKeys : public PanelFooter {
 protected:
  PanelFooterKeys() {
    ok = &add("OK");
    cancel = &add("Cancel");
    for (const char* name : {"A", "B"}) addParameter(name);
    panel().LayoutControls(false);
    panel().LayoutButtons();
  }
  std::string focused() {
    for (const host::Control* control :
         {static_cast<host::Control*>(ok), static_cast<host::Control*>(cancel),
          static_cast<host::Control*>(&row(1)), static_cast<host::Control*>(&row(2))})
      if (control->hasFocus()) return control->Name();
    return {};
  }

  host::CommandButton* ok = nullptr;
  host::CommandButton* cancel = nullptr;
};

TEST_F(PanelFooterKeys, TabGoesThroughTheItemsAndThenTheButtons) {
  user->focuses(row(1));
  std::string way;
  for (int i = 0; i < 3; ++i) user->presses(host::key::Tab), way += focused() + " ";
  EXPECT_EQ(way, "B OK Cancel ");
  EXPECT_EQ(panel().nextTabStop(cancel, true), nullptr);
  for (int i = 0; i < 3; ++i) user->presses(host::key::Tab, host::shift::Shift), way += focused() + " ";
  EXPECT_EQ(way, "B OK Cancel OK B A ");
}

TEST_F(PanelFooterKeys, ButtonsComeAfterTheItemsEvenBeforeTheyAreLaidOutAgain) {
  addParameter("C");
  addParameter("D");
  panel().LayoutControls(false);
  user->focuses(row(4));
  user->presses(host::key::Tab);
  EXPECT_EQ(focused(), "OK");
}

TEST_F(PanelFooterKeys, TabPassesOverAButtonThatCanNotBeUsed) {
  ok->SetEnabled(false);
  user->focuses(row(2));
  user->presses(host::key::Tab);
  EXPECT_EQ(focused(), "Cancel");
}

TEST_F(PanelFooterKeys, AKeyOnAButtonIsAKeyOnThePanel) {
  user->focuses(*ok);
  startListening();
  user->presses('X');
  user->presses(host::key::Escape);
  EXPECT_EQ(events(), (Events{"KeyDown(88, 0)", "KeyUp(88, 0)", "KeyDown(27, 0)", "KeyUp(27, 0)"}));
}

TEST_F(PanelFooterKeys, AListenerThatClearsAKeyKeepsItFromTheButton) {
  const auto down = panel().KeyDown.connect([](std::int16_t& keyCode, std::int16_t&) { keyCode = 0; });
  user->focuses(*ok);
  user->presses(host::key::Enter);
  user->presses(host::key::Space);
  startListening();
  platform.processMessages();
  EXPECT_EQ(events(), Events{});
}

TEST_F(PanelFooterKeys, TheFocusOnAButtonIsOnNoItem) {
  user->focuses(*ok);
  EXPECT_EQ(panel().GetActiveItem(false), 0);
}

// ---- properties and events ----

TEST_F(PanelFooter, EventsOfItStandBetweenThoseOfTheRowsAndThePanelsOwn) {
  const auto& all = panel().classTable().events;
  ASSERT_EQ(all.size(), 26u);
  EXPECT_EQ(Events(all.begin() + 16, all.begin() + 20),
            (Events{"ParameterStatusChange", "ButtonLayout", "ButtonClick", "KeyDown"}));
}

TEST_F(PanelFooter, AChangedAlignmentIsToldAndAnEqualOneDoesNothing) {
  host::CommandButton& ok = add("OK");
  ok.SetLeft(7);
  site.changedKeys.clear();
  panel().SetButtonsAlignment(1);
  EXPECT_EQ(ok.Left(), 7);
  EXPECT_TRUE(site.changedKeys.empty());
  panel().SetButtonsAlignment(0);
  EXPECT_EQ(ok.Left(), 0);
  EXPECT_EQ(site.changedKeys, (std::vector<std::string>{"ButtonsAlignment"}));
}

TEST_F(PanelFooter, PaintsItsButtonsInThePlatformsLook) {
  add("OK");
  headless::RecordingSurface surface(platform, {400, 300});
  panel().paintTree(surface);
  EXPECT_EQ(surface.operations("CommandButton"),
            (std::vector<std::string>{"CommandButton 317,266 72x23 \"OK\""}));
}

}  // namespace
}  // namespace qrn::test
