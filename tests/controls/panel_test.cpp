#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "controls/raised.h"
#include "diag/QRNErrors.h"
#include "host/property_bag.h"
#include "support/panel_fixture.h"

namespace qrn::test {
namespace {

// The title bar of the fixture's panel is 22 high: a line of 13 and 9 around it.
class Panel : public PanelTest {
 protected:
  using Keys = std::vector<std::string>;
  Keys changedKeys() { return std::exchange(site.changedKeys, {}); }
  static std::vector<std::string> keysOf(const host::PropertyBag& bag) {
    std::vector<std::string> keys;
    for (const auto& item : bag.items()) keys.push_back(item.key);
    return keys;
  }
  headless::HeadlessPeer& peer() {
    panel().realise();
    return static_cast<headless::HeadlessPeer&>(*panel().peer());
  }
  // Whether the whole panel window has to be painted again after an action.
  template <class Action>
  bool repaints(Action&& action) {
    auto& watched = peer();
    watched.invalidated.clear();
    action();
    const auto& areas = watched.invalidated;
    return std::find(areas.begin(), areas.end(), Rect{0, 0, 400, 300}) != areas.end();
  }
};

// ---- properties ----

TEST_F(Panel, SavedWithAllDefaultsWritesNoKeys) {
  host::PropertyBag bag;
  panel().writeProperties(bag);
  EXPECT_EQ(keysOf(bag), Keys{});
}

TEST_F(Panel, RestoredFromAnEmptyBagHasTheDefaults) {
  const host::PropertyBag bag;
  const auto restored = host::create<QRNDisplay>(site, &bag);
  EXPECT_EQ(restored->Title(), "");
  EXPECT_EQ(restored->BackColor(), 0x8000000Fu);
  EXPECT_EQ(restored->ForeColor(), 0x80000012u);
  EXPECT_EQ(restored->Font(), platform.defaultFont());
  EXPECT_EQ(restored->BorderStyle(), qrnEdgeEngraved);
  EXPECT_EQ(restored->TitleStyle(), qrnTitleStandard);
  EXPECT_EQ(restored->ButtonsAlignment(), 1);
  EXPECT_TRUE(restored->Enabled());
  EXPECT_TRUE(restored->Active());
  EXPECT_FALSE(restored->Maximized());
  EXPECT_FALSE(restored->IconCloseHidden());
  EXPECT_FALSE(restored->IconMaxRstHidden());
  EXPECT_EQ(restored->MaxButtonToolTip() + restored->RstButtonToolTip() + restored->CloseButtonToolTip(), "");
  for (const std::int32_t margin :
       {restored->LeftMargin(), restored->TopMargin(), restored->RightMargin(), restored->BottomMargin()}) {
    EXPECT_EQ(margin, 5);
  }
  EXPECT_EQ(restored->VerticalSpacing(), -1);
  EXPECT_EQ(restored->HorizontalSpacing(), -1);
  EXPECT_EQ(restored->MenuItemHeight(), -1);
}

// Rows take the container's colours as they come; a panel has its own.
TEST_F(Panel, ANewOneHasItsDefaultColoursWhateverTheContainersAre) {
  site.ambientProperties.backColor = host::rgb(1, 2, 3);
  site.ambientProperties.foreColor = host::rgb(4, 5, 6);
  const auto fresh = host::create<QRNDisplay>(site);
  EXPECT_EQ(fresh->BackColor(), host::kButtonFace);
  EXPECT_EQ(fresh->ForeColor(), host::kButtonText);
}

TEST_F(Panel, ANewOneTakesTheContainersFont) {
  site.ambientProperties.font = std::make_shared<host::Font>("Serif", 11);
  const auto fresh = host::create<QRNDisplay>(site);
  EXPECT_EQ(fresh->Font(), site.ambientProperties.font);
  host::PropertyBag bag;
  fresh->writeProperties(bag);
  EXPECT_EQ(keysOf(bag), Keys{});
}

TEST_F(Panel, RowsTakeThePanelsLookWhenTheyAreMade) {
  panel().SetForeColor(host::rgb(1, 2, 3));
  panel().SetFont(std::make_shared<host::Font>("Serif", 11));
  const auto early = addParameter("early");
  const host::Color before = panel().BackColor();
  panel().SetForeColor(host::rgb(4, 5, 6));
  panel().SetBackColor(host::rgb(7, 8, 9));
  panel().SetFont(std::make_shared<host::Font>("Mono", 12));
  const auto late = addParameter("late");
  EXPECT_EQ(early->Control().ForeColor(), host::rgb(1, 2, 3));
  EXPECT_EQ(early->Control().BackColor(), before);
  EXPECT_EQ(early->Control().Font()->family, "Serif");
  EXPECT_EQ(late->Control().BackColor(), host::rgb(7, 8, 9));
  EXPECT_EQ(late->Control().Font()->family, "Mono");
  EXPECT_EQ(late->Control().ForeColor(), host::rgb(4, 5, 6));
}

TEST_F(Panel, ExtraDataIsTheCallersAndNobodyIsTold) {
  panel().SetExtraData(Variant("mine"));
  EXPECT_EQ(panel().ExtraData(), Variant("mine"));
  EXPECT_EQ(changedKeys(), Keys{});
}

TEST_F(Panel, TheTitleIsThatOfTheTitleLabel) {
  panel().SetTitle("Device");
  EXPECT_EQ(panel().lblTitle().Caption(), "Device");
  EXPECT_EQ(changedKeys(), (Keys{"Title"}));
  panel().SetTitle("Device");
  EXPECT_EQ(changedKeys(), Keys{});
}

TEST_F(Panel, ColoursBordersAndActivityRepaintTheWindowOnceTheyDiffer) {
  const std::vector<std::function<void()>> changes{
      [&] { panel().SetBackColor(host::rgb(1, 2, 3)); }, [&] { panel().SetForeColor(host::rgb(1, 2, 3)); },
      [&] { panel().SetBorderStyle(qrnEdgeSunken); }, [&] { panel().SetActive(false); },
      [&] { panel().SetMaximized(true); }};
  for (const auto& change : changes) {
    EXPECT_TRUE(repaints(change));
    EXPECT_FALSE(repaints(change));
  }
}

TEST_F(Panel, AnEqualWriteOfTheTitleBarsPropertiesDoesNothing) {
  auto& watched = peer();
  watched.invalidated.clear();
  panel().SetMaximized(false);
  panel().SetIconCloseHidden(false);
  panel().SetIconMaxRstHidden(false);
  panel().SetMaxButtonToolTip("");
  panel().SetRstButtonToolTip("");
  panel().SetCloseButtonToolTip("");
  panel().SetActive(true);
  panel().SetTitleStyle(qrnTitleStandard);
  EXPECT_EQ(changedKeys(), Keys{});
  EXPECT_TRUE(watched.invalidated.empty());
}

TEST_F(Panel, AFontOfTheSameLookIsAnEqualWrite) {
  panel().SetFont(std::make_shared<host::Font>(*panel().Font()));
  EXPECT_EQ(changedKeys(), Keys{});
  panel().SetFont(std::make_shared<host::Font>("Serif", 11));
  EXPECT_EQ(changedKeys(), (Keys{"Font"}));
}

TEST_F(Panel, EnablingRepaintsTheWindowOfADialogTitle) {
  EXPECT_FALSE(repaints([&] { panel().SetEnabled(false); }));
  panel().SetTitleStyle(qrnTitleDialog);
  EXPECT_TRUE(repaints([&] { panel().SetEnabled(true); }));
}

TEST_F(Panel, EnablingLeavesTheScrollBarOfFittingContentDisabled) {
  addParameter("A");
  panel().LayoutControls(false);
  panel().SetEnabled(false);
  panel().SetEnabled(true);
  EXPECT_FALSE(panel().sbrVertical().Enabled());
}

TEST_F(Panel, TheButtonOfTheTitleBarShowsTheToolTipOfWhatItWouldDo) {
  panel().SetMaxButtonToolTip("Maximise");
  panel().SetRstButtonToolTip("Restore");
  panel().SetCloseButtonToolTip("Close");
  EXPECT_EQ(panel().imgMaxRst().ToolTipText(), "Maximise");
  EXPECT_EQ(panel().imgClose().ToolTipText(), "Close");
  panel().SetMaximized(true);
  EXPECT_EQ(panel().imgMaxRst().ToolTipText(), "Restore");
}

TEST_F(Panel, TheTitlesPartsAreShownAsTheStyleAndTheHideFlagsSay) {
  panel().SetIconCloseHidden(true);
  EXPECT_FALSE(panel().imgClose().Visible());
  EXPECT_TRUE(panel().imgMaxRst().Visible());
  panel().SetTitleStyle(qrnTitleNone);
  EXPECT_FALSE(panel().imgMaxRst().Visible());
  EXPECT_FALSE(panel().lblTitle().Visible());
  panel().SetTitleStyle(qrnTitleDialog);
  EXPECT_FALSE(panel().imgClose().Visible());
  EXPECT_TRUE(panel().imgMaxRst().Visible());
}

TEST_F(Panel, RestoringArrangesAsTheStoredMarginsSay) {
  panel().SetLeftMargin(20);
  panel().SetTitle("Device");
  panel().SetTitleStyle(qrnTitleNone);
  host::PropertyBag bag;
  panel().writeProperties(bag);
  EXPECT_EQ(keysOf(bag), (Keys{"Title", "TitleStyle", "LeftMargin"}));

  const auto restored = host::create<QRNDisplay>(site, &bag);
  EXPECT_EQ(restored->Title(), "Device");
  EXPECT_EQ(restored->ControlsContainer().Left(), 20);
  EXPECT_EQ(restored->ControlsContainer().Top(), 5);
}

// ---- redraw ----

TEST_F(Panel, RedrawIsFalseUntilThePanelIsShown) {
  host::Owned<QRNDisplay> hidden(new QRNDisplay);
  hidden->SetVisible(false);
  host::LifeCycle::start(*hidden, site, nullptr);
  EXPECT_FALSE(hidden->Redraw());
  hidden->SetVisible(true);
  EXPECT_TRUE(hidden->Redraw());
}

TEST_F(Panel, NothingIsArrangedWhileRedrawIsOff) {
  panel().SetRedraw(false);
  panel().SetLeftMargin(50);
  EXPECT_EQ(panel().ControlsContainer().Left(), 5);
  panel().SetRedraw(true);
  EXPECT_EQ(panel().ControlsContainer().Left(), 50);
}

TEST_F(Panel, RedrawIsForRunTimeOnly) {
  site.ambientProperties.userMode = false;
  const Raised read = raisedBy([&] { panel().Redraw(); });
  EXPECT_EQ(read.number, 394);
  EXPECT_EQ(read.source, "QRNDisplay");
  EXPECT_EQ(read.description, "Get not supported at design time.");
  const Raised written = raisedBy([&] { panel().SetRedraw(false); });
  EXPECT_EQ(written.number, 383);
  EXPECT_EQ(written.description, "Let/Set not supported at design time.");
  site.ambientProperties.userMode = true;
  EXPECT_TRUE(panel().Redraw());
}

// ---- parts ----

TEST_F(Panel, ItsPartsBearTheirNames) {
  EXPECT_EQ(panel().lblTitle().Name(), "lblTitle");
  EXPECT_EQ(panel().imgMaxRst().Name(), "imgMaxRst");
  EXPECT_EQ(panel().imgClose().Name(), "imgClose");
  EXPECT_EQ(panel().ControlsContainer().Name(), "pbxContainer");
  EXPECT_EQ(panel().sbrVertical().Name(), "sbrVertical");
}

TEST_F(Panel, HasAWindowHandle) {
  EXPECT_NE(panel().hwnd(), 0);
  EXPECT_EQ(panel().hwnd(), panel().hwnd());
}

TEST_F(Panel, MakesItsOwnImageListOnceWhenNoneIsSet) {
  EXPECT_EQ(panel().ControlsCollection().find("imlImages"), nullptr);
  QRNImageList& list = panel().ImageList();
  EXPECT_EQ(&panel().ImageList(), &list);
  EXPECT_EQ(panel().ControlsCollection().find("imlImages"), &list);
}

TEST_F(Panel, UsesTheCallersImageListAndComesBackToItsOwn) {
  QRNImageList& own = panel().ImageList();
  {
    const auto list = host::create<QRNImageList>(site);
    panel().SetImageList(list.get());
    EXPECT_EQ(&panel().ImageList(), list.get());
    EXPECT_EQ(panel().ControlsCollection().find("imlImages"), &own);
    panel().SetImageList(nullptr);
    EXPECT_EQ(&panel().ImageList(), &own);
    panel().SetImageList(list.get());
  }
  EXPECT_EQ(&panel().ImageList(), &own);  // the caller's has gone
}

TEST_F(Panel, RemovingTheControlsEmptiesThePanelAndPutsTheScrollBarAway) {
  for (int i = 0; i < 30; ++i) addParameter("");
  panel().LayoutControls(false);
  ASSERT_TRUE(panel().sbrVertical().Visible());
  panel().RemoveControls();
  EXPECT_EQ(items().Count(), 0);
  EXPECT_EQ(panel().sbrVertical().Max(), 0);
  EXPECT_FALSE(panel().sbrVertical().Visible());
  EXPECT_FALSE(panel().sbrVertical().Enabled());
}

// ---- sizes that follow from the font ----

TEST_F(Panel, AutomaticSizesFollowFromTheFont) {
  EXPECT_EQ(panel().GetHorizontalSpacing(), 6);
  EXPECT_EQ(panel().GetVerticalSpacing(), 5);  // 13 / 3, rounded up
  EXPECT_EQ(panel().GetMenuItemHeight(), 26);
  platform.setTextSize(6, 195);
  EXPECT_EQ(panel().GetVerticalSpacing(), 65);
  EXPECT_EQ(panel().GetMenuItemHeight(), 390);
}

TEST_F(Panel, TheAutomaticHorizontalSpacingIsRoundedToTheNearestUnit) {
  platform.setTextSize(6.4, 13);
  EXPECT_EQ(panel().GetHorizontalSpacing(), 6);
  platform.setTextSize(6.6, 13.1);
  EXPECT_EQ(panel().GetHorizontalSpacing(), 7);
  EXPECT_EQ(panel().GetVerticalSpacing(), 5);
  EXPECT_EQ(panel().GetMenuItemHeight(), 27);
}

TEST_F(Panel, SizesOfZeroOrMoreAreTakenAsGivenAndNegativeOnesAreAutomatic) {
  panel().SetVerticalSpacing(0);
  panel().SetHorizontalSpacing(0);
  panel().SetMenuItemHeight(0);
  EXPECT_EQ(panel().GetVerticalSpacing(), 0);
  EXPECT_EQ(panel().GetHorizontalSpacing(), 0);
  EXPECT_EQ(panel().GetMenuItemHeight(), 0);
  panel().SetVerticalSpacing(-7);
  EXPECT_EQ(panel().VerticalSpacing(), -7);
  EXPECT_EQ(panel().GetVerticalSpacing(), 5);
}

TEST_F(Panel, SpacingsMoveNothingBeforeTheNextLayout) {
  addParameter("A");
  addParameter("B");
  panel().LayoutControls(false);
  panel().SetVerticalSpacing(20);
  EXPECT_EQ(row(2).Top(), 26);
  panel().LayoutControls(false);
  EXPECT_EQ(row(2).Top(), 41);
}

// ---- arrangement ----

TEST_F(Panel, ArrangesTitleAndContainer) {
  EXPECT_EQ(panel().imgClose().bounds(), (Rect{379, 3.5, 16, 16}));
  EXPECT_EQ(panel().imgMaxRst().bounds(), (Rect{359, 3.5, 16, 16}));
  EXPECT_EQ(panel().lblTitle().bounds(), (Rect{9, 5, 349, 14}));
  EXPECT_EQ(panel().ControlsContainer().bounds(), (Rect{5, 27, 390, 268}));
}

TEST_F(Panel, TheTitleTakesTheRoomOfHiddenButtonsAtTheNextArrangement) {
  panel().SetIconCloseHidden(true);
  panel().Move(0, 0, 401, 300);
  EXPECT_EQ(panel().lblTitle().Width(), 370);
  EXPECT_EQ(panel().imgMaxRst().Left(), 360);  // as if the close button were there
  panel().SetIconMaxRstHidden(true);
  panel().Move(0, 0, 400, 300);
  EXPECT_EQ(panel().lblTitle().Width(), 389);
}

TEST_F(Panel, WithoutTitleTheContainerMovesUp) {
  panel().SetTitleStyle(qrnTitleNone);
  EXPECT_EQ(panel().ControlsContainer().bounds(), (Rect{5, 5, 390, 290}));
}

TEST_F(Panel, EachMarginRearrangesAtOnce) {
  panel().SetLeftMargin(1);
  EXPECT_EQ(panel().ControlsContainer().bounds(), (Rect{1, 27, 394, 268}));
  panel().SetTopMargin(2);
  EXPECT_EQ(panel().ControlsContainer().bounds(), (Rect{1, 24, 394, 271}));
  panel().SetRightMargin(3);
  EXPECT_EQ(panel().ControlsContainer().bounds(), (Rect{1, 24, 396, 271}));
  panel().SetBottomMargin(4);
  EXPECT_EQ(panel().ControlsContainer().bounds(), (Rect{1, 24, 396, 272}));
}

TEST_F(Panel, AFontRearrangesThePanel) {
  platform.setTextSize(8, 20);
  panel().SetFont(std::make_shared<host::Font>("Serif", 14));
  EXPECT_EQ(panel().ControlsContainer().Top(), 20 + 9 + 5);
  EXPECT_EQ(panel().lblTitle().bounds(), (Rect{12, 5, 346, 21}));
}

TEST_F(Panel, APanelTooSmallKeepsOnePixelOfEverything) {
  panel().Move(0, 0, 10, 10);
  EXPECT_EQ(panel().ControlsContainer().Width(), 1);
  EXPECT_EQ(panel().ControlsContainer().Height(), 1);
  EXPECT_EQ(panel().lblTitle().Width(), 1);
}

TEST_F(Panel, FractionsOfTheSizeAreRounded) {
  panel().Move(0, 0, 400.6, 300.4);
  EXPECT_EQ(panel().ControlsContainer().bounds(), (Rect{5, 27, 391, 268}));
}

TEST_F(Panel, AResizeOfTheContainerLaysTheItemsOut) {
  addParameter("A");
  panel().Move(0, 0, 300, 300);
  EXPECT_EQ(row(1).Width(), 300 - 10 - 16 - 12);
}

TEST_F(Panel, TheScrollBarStandsAtTheRightEdgeOfTheContainer) {
  EXPECT_EQ(panel().sbrVertical().bounds(), (Rect{379, 27, 16, 268}));
  EXPECT_FALSE(panel().sbrVertical().Visible());
}

}  // namespace
}  // namespace qrn::test
