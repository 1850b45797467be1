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

TEST_F(StackKeyboard, TheLetterOfAButtonPressesNoneWhileTheStackIsDisabled) {
  addPagesWithButtons(".");
  stack().SetEnabled(false);
  EXPECT_EQ(pressesLetter(), "");
}

}  // namespace
}  // namespace qrn::test
