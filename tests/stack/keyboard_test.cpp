#include "stack/stack_fixture.h"

namespace qrn::test {
namespace {

class StackKeyboard : public StackTest {
 protected:
  StackKeyboard() {
    keep = stack().ButtonClick.connect(
        [this](std::int32_t& page, std::int32_t&) { clickedOn += std::to_string(page); });
  }

  /// Pages with a button "Apply" each.
  void addPagesWithButtons(std::string_view kinds) {
    addPages(kinds);
    for (std::int32_t i = 1; i <= stack().Count(); ++i) page(i).Buttons().AddButton("", "&Apply");
  }
  std::string pressesLetter() {
    clickedOn.clear();
    user->presses('A', host::shift::Alt);
    platform.processMessages();
    return clickedOn;
  }

  std::string clickedOn;
};

TEST_F(StackKeyboard, TheLetterOfAButtonPressesTheOneOfThePageOnTop) {
  addPagesWithButtons("..");
  EXPECT_EQ(pressesLetter(), "2");
  stack().ActivatePage(1);
  EXPECT_EQ(pressesLetter(), "1");
}

TEST_F(StackKeyboard, TheLetterOfAButtonIsADialogsOwn) {
  addPagesWithButtons(".m");
  EXPECT_EQ(pressesLetter(), "2");
  page(2).Buttons().RemoveAll();
  EXPECT_EQ(pressesLetter(), "");
}

TEST_F(StackKeyboard, TheLetterOfAButtonThatIsCoveredIsLeftToOthers) {
  addPagesWithButtons("..");
  page(2).Buttons().RemoveAll();
  EXPECT_EQ(pressesLetter(), "");
  EXPECT_FALSE(page(1).hasFocus());
  EXPECT_FALSE(stack().input().keyDown('A', host::shift::Alt));
}

TEST_F(StackKeyboard, TheLetterOfAButtonPressesNoneWhileTheStackIsDisabled) {
  addPagesWithButtons(".");
  stack().SetEnabled(false);
  EXPECT_EQ(pressesLetter(), "");
}

TEST_F(StackKeyboard, StaysOnTheTopPage) {
  stack().SetHideDisabledControls(false);
  QRNEdit& below = addRow(*add());
  QRNEdit& first = addRow(*add());
  QRNEdit& second = addRow(page(2));
  user->presses(host::key::Tab);
  EXPECT_TRUE(first.hasFocus());
  user->presses(host::key::Tab);
  EXPECT_TRUE(second.hasFocus());
  user->presses(host::key::Tab);
  EXPECT_FALSE(below.hasFocus());
  stack().ActivatePage(1);
  user->presses(host::key::Tab);
  EXPECT_TRUE(below.hasFocus());
}

TEST_F(StackKeyboard, ComesToTheTopPageFromARowBelow) {
  stack().SetHideDisabledControls(false);
  QRNEdit& below = addRow(*add());
  addRow(page(1));
  QRNEdit& above = addRow(*add());
  user->focuses(below);
  user->presses(host::key::Tab);
  EXPECT_TRUE(above.hasFocus());
}

TEST_F(StackKeyboard, GoesPastATopPageThatTheHostHasDisabled) {
  addRow(*add());
  EXPECT_TRUE(stack().input().moveFocus(true));
  page(1).SetEnabled(false);
  EXPECT_FALSE(stack().input().moveFocus(true));
}

TEST_F(StackKeyboard, DoesNotComeBackToARowThatHasBeenCovered) {
  stack().SetHideDisabledControls(false);
  QRNEdit& below = addRow(*add());
  user->focuses(below);
  add();
  take();
  stack().input().surfaceGotFocus();
  EXPECT_FALSE(below.hasFocus());
  EXPECT_EQ(take(), Events{});
}

TEST_F(StackKeyboard, LeavesEveryPageThatIsCovered) {
  stack().SetHideDisabledControls(false);
  QRNEdit& below = addRow(*add());
  add();
  user->focuses(below);
  take();
  add(true);
  EXPECT_FALSE(below.hasFocus());
  EXPECT_EQ(take(), (Events{"PageLayout(3)", "ParameterEndEdit(1, 1, False)", "ItemLostFocus(1, 1)",
                            "PageDeactivate(2)", "PageActivate(3)"}));
}

}  // namespace
}  // namespace qrn::test
