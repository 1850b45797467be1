#include "controls/raised.h"
#include "stack_fixture.h"

namespace qrn::test {
namespace {

using Stack = StackTest;

// ---- a page comes ----

TEST_F(Stack, GivesPagesWithoutANameTheNextFreeOne) {
  EXPECT_EQ(add()->Name(), "Page1");
  EXPECT_EQ(stack().AddPage("Page3", "", false)->Name(), "Page3");
  EXPECT_EQ(add()->Name(), "Page4");
}

TEST_F(Stack, AnswersTheSamePageByIndexAndName) {
  QRNDisplay* first = stack().AddPage("setup", "Basic setup", false);
  QRNDisplay* second = stack().AddPage("alarms", "", false);
  EXPECT_EQ(&page(1), first);
  EXPECT_EQ(&stack().Pages(Variant("ALARMS")), second);
  EXPECT_EQ(stack().Count(), 2);
  EXPECT_EQ(first->Title(), "Basic setup");
}

TEST_F(Stack, RefusesAPageThatItDoesNotHave) {
  addPages("..");
  EXPECT_EQ(raisedBy([&] { page(3); }).number, 9);
  EXPECT_EQ(raisedBy([&] { page(0); }).number, 9);
  EXPECT_EQ(raisedBy([&] { stack().Pages(Variant("none")); }).number, 5);
}

TEST_F(Stack, AnswersNothingForANameInUseAndStaysAsItWas) {
  stack().AddPage("setup", "", false);
  take();
  EXPECT_EQ(stack().AddPage("SETUP", "", true), nullptr);
  EXPECT_EQ(stack().Count(), 1);
  EXPECT_TRUE(page(1).Active());
  EXPECT_EQ(take(), Events{});
}

TEST_F(Stack, ShowsThePicturesOfItsOwnListOnEveryPage) {
  addPages("..");
  EXPECT_EQ(&page(1).ImageList(), &page(2).ImageList());
  EXPECT_EQ(page(1).ImageList().Parent(), &stack());
}

TEST_F(Stack, HasAFirstPageWithNothingToCloseOrEnlarge) {
  add();
  EXPECT_TRUE(page(1).IconCloseHidden());
  EXPECT_TRUE(page(1).IconMaxRstHidden());
  EXPECT_EQ(page(1).BorderStyle(), qrnEdgeEngraved);
  EXPECT_EQ(page(1).TitleStyle(), qrnTitleStandard);
}

TEST_F(Stack, LetsAModalFirstPageBeClosed) {
  add(true);
  EXPECT_FALSE(page(1).IconCloseHidden());
  EXPECT_TRUE(page(1).IconMaxRstHidden());
  EXPECT_EQ(page(1).BorderStyle(), qrnEdgeBorder);
  EXPECT_EQ(page(1).TitleStyle(), qrnTitleDialog);
}

TEST_F(Stack, LetsEveryFurtherPageBeClosedAndEnlarged) {
  addPages("..m");
  for (const std::int32_t index : {2, 3}) {
    EXPECT_FALSE(page(index).IconCloseHidden());
    EXPECT_FALSE(page(index).IconMaxRstHidden());
  }
}

TEST_F(Stack, TellsOfANewPageInAFixedOrder) {
  add();
  EXPECT_EQ(take(), (Events{"PageLayout(1)", "PageActivate(1)"}));
  add();
  EXPECT_EQ(take(), (Events{"PageLayout(2)", "PageDeactivate(1)", "PageActivate(2)"}));
}

TEST_F(Stack, LetsItsListenerFillAPageBeforeItIsSeen) {
  keep = stack().PageLayout.connect([&](std::int32_t index) {
    EXPECT_FALSE(page(index).Title().empty());
    addRow(page(index));
  });
  stack().AddPage("", "Basic setup", false);
  EXPECT_EQ(page(1).Items().Count(), 1);
  // What the listener sets off is written down before the event that called it.
  EXPECT_EQ(take(), (Events{"ParameterStatusChange(1, 1)", "ParameterLayout(1, 1)", "PageLayout(1)",
                            "PageActivate(1)"}));
}

TEST_F(Stack, HasOneActivePageTheTopOne) {
  addPages("...");
  EXPECT_EQ(activePages(stack()), "..A");
}

TEST_F(Stack, TellsOfACoveredPageWhenThatHasBecomeInactive) {
  addPages(".");
  keep = stack().PageDeactivate.connect([&](std::int32_t index) {
    EXPECT_FALSE(page(index).Active());
    EXPECT_FALSE(page(index).ControlsContainer().Visible());
    take();
  });
  add();
  EXPECT_EQ(take(), (Events{"PageDeactivate(1)", "PageActivate(2)"}));
}

TEST_F(Stack, HasItsTopPageInFrontOfWhatTheHostPutsThere) {
  keep = stack().PageLayout.connect([&](std::int32_t) {
    if (stack().Count() == 1) stack().controls().add("QRNV16Controls2.QRNMenuItem", "mine", stack());
  });
  add();
  EXPECT_EQ(stack().contained().back(), &page(1));
}

TEST_F(Stack, LetsCoveredPagesShowTheirFrameAndTitleOnly) {
  addPages("..");
  EXPECT_FALSE(page(1).ControlsContainer().Visible());
  EXPECT_TRUE(page(1).lblTitle().Visible());
  EXPECT_TRUE(page(2).ControlsContainer().Visible());
}

TEST_F(Stack, LetsCoveredPagesShowTheirItemsIfWished) {
  stack().SetHideDisabledControls(false);
  addPages("..");
  EXPECT_TRUE(page(1).ControlsContainer().Visible());
}

TEST_F(Stack, EndsAnEditOnThePageThatIsCovered) {
  for (const bool hides : {true, false}) {
    stack().SetHideDisabledControls(hides);
    QRNEdit& row = addRow(*add());
    user->focuses(row);
    take();
    add();
    const Events events = take();
    EXPECT_NE(std::find(events.begin(), events.end(), "ParameterEndEdit(1, 1, False)"), events.end());
    EXPECT_FALSE(row.hasFocus());
    stack().ActivatePage(0);
    take();
  }
}

// ---- where pages lie ----

TEST_F(Stack, IndentsEachPageFurtherThanTheOneBelow) {
  addPages("...");
  EXPECT_EQ(page(1).bounds(), (Rect{0, 0, 400, 300}));
  EXPECT_EQ(page(2).bounds(), (Rect{10, 20, 390, 280}));
  EXPECT_EQ(page(3).bounds(), (Rect{20, 40, 380, 260}));
}

TEST_F(Stack, IndentsAModalPageOnAllSides) {
  keep = stack().PageLayout.connect([&](std::int32_t index) { page(index).SetMenuItemHeight(20); });
  addPages("..m");
  EXPECT_EQ(page(3).bounds(), (Rect{20, 40, 360, 220}));
}

TEST_F(Stack, MakesANewPageAsLargeAsTheOneThatItCovers) {
  addPages("..");
  page(2).DisplayMaximize.raise();
  user->clicks(page(2).imgMaxRst());
  add();
  EXPECT_TRUE(page(3).Maximized());
  EXPECT_EQ(page(3).bounds(), (Rect{0, 0, 400, 300}));
}

TEST_F(Stack, MovesItsPagesWhenAnIndentChanges) {
  addPages("..");
  stack().SetLeftIndent(30);
  stack().SetTopIndent(5);
  EXPECT_EQ(page(2).bounds(), (Rect{30, 5, 370, 295}));
}

TEST_F(Stack, ResizesItsPagesWithItself) {
  addPages("..");
  stack().Move(0, 0, 500, 400);
  EXPECT_EQ(page(1).bounds(), (Rect{0, 0, 500, 400}));
  EXPECT_EQ(page(2).bounds(), (Rect{10, 20, 490, 380}));
}

TEST_F(Stack, EnlargesAPageAndThoseBelowButTheFirst) {
  addPages("...");
  user->clicks(page(3).imgMaxRst());
  EXPECT_FALSE(page(1).Maximized());
  for (const std::int32_t index : {2, 3}) {
    EXPECT_TRUE(page(index).Maximized());
    EXPECT_EQ(page(index).bounds(), (Rect{0, 0, 400, 300}));
  }
}

TEST_F(Stack, RestoresAPageAndThoseBelow) {
  addPages("...");
  user->clicks(page(3).imgMaxRst());
  user->clicks(page(3).imgMaxRst());
  for (const std::int32_t index : {2, 3}) EXPECT_FALSE(page(index).Maximized());
  EXPECT_EQ(page(2).bounds(), (Rect{10, 20, 390, 280}));
  EXPECT_EQ(page(3).bounds(), (Rect{20, 40, 380, 260}));
}

TEST_F(Stack, LeavesTheFirstPageAsItsHostHasMadeIt) {
  addPages("..");
  page(1).SetMaximized(true);
  user->clicks(page(2).imgMaxRst());
  user->clicks(page(2).imgMaxRst());
  EXPECT_FALSE(page(2).Maximized());
  EXPECT_TRUE(page(1).Maximized());
}

TEST_F(Stack, RestoresTheFirstPageWhenThatIsTheOne) {
  addPages(".");
  page(1).SetMaximized(true);
  page(1).SetIconMaxRstHidden(false);
  user->clicks(page(1).imgMaxRst());
  EXPECT_FALSE(page(1).Maximized());
  EXPECT_EQ(page(1).bounds(), (Rect{0, 0, 400, 300}));
}

TEST_F(Stack, KeepsEnlargedPagesEnlargedWhenItIsResized) {
  addPages("..");
  user->clicks(page(2).imgMaxRst());
  stack().Move(0, 0, 500, 400);
  EXPECT_EQ(page(2).bounds(), (Rect{0, 0, 500, 400}));
}

// ---- what all pages share ----

TEST_F(Stack, GivesItsFontToEveryPage) {
  addPages("..");
  const auto font = std::make_shared<host::Font>("Serif", 12);
  stack().SetFont(font);
  EXPECT_EQ(*page(1).Font(), *font);
  EXPECT_EQ(*page(2).Font(), *font);
  EXPECT_EQ(*add()->Font(), *font);
}

TEST_F(Stack, GivesItsBackColourToEveryPage) {
  addPages("..");
  stack().SetBackColor(host::rgb(1, 2, 3));
  EXPECT_EQ(stack().BackColor(), host::rgb(1, 2, 3));
  EXPECT_EQ(page(1).BackColor(), host::rgb(1, 2, 3));
  EXPECT_EQ(page(2).BackColor(), host::rgb(1, 2, 3));
  page(1).SetBackColor(host::rgb(9, 9, 9));
  stack().SetBackColor(host::rgb(1, 2, 3));
  EXPECT_EQ(page(1).BackColor(), host::rgb(9, 9, 9)) << "it is the stack's own already";
}

TEST_F(Stack, TellsItsSiteOfEachPropertyThatChanges) {
  site.changedKeys.clear();
  for (int i = 0; i < 2; ++i) {
    stack().SetLeftIndent(11);
    stack().SetTopIndent(21);
    stack().SetHideDisabledControls(false);
    stack().SetEnabled(false);
  }
  EXPECT_EQ(site.changedKeys,
            (std::vector<std::string>{"LeftIndent", "TopIndent", "HideDisabledControls", "Enabled"}));
}

TEST_F(Stack, KeepsWhatItsHostGivesIt) {
  stack().SetExtraData(Variant("mine"));
  EXPECT_EQ(CStr(stack().ExtraData()), "mine");
}

TEST_F(Stack, ShowsTwoPagesToADesigner) {
  site.ambientProperties.userMode = false;
  const auto designed = host::create<QRNDisplayStack>(site);
  EXPECT_EQ(designed->Count(), 2);
  EXPECT_EQ(designed->Pages(Variant(1)).Title(), "Page1");
  EXPECT_EQ(designed->Pages(Variant(2)).Title(), "Page2");
  EXPECT_EQ(designed->Pages(Variant(2)).TitleStyle(), qrnTitleStandard);
  designed->SetVisible(false);
  designed->SetVisible(true);
  EXPECT_EQ(designed->Count(), 2);
}

}  // namespace
}  // namespace qrn::test
