#include "host/popup_menu.h"

#include "test_control.h"

namespace qrn::test {
namespace {

class PopupMenus : public testing::Test {
 protected:
  PopupMenus() {
    menu.load(0, "Read");
    menu.load(1, "Write");
    menu.load(2, "Compare");
  }
  headless::HeadlessPlatform platform;
  host::PopupMenu menu;
};

TEST_F(PopupMenus, HoldTheirEntriesByIndexWithGaps) {
  EXPECT_TRUE(menu.load(5, "Last"));
  EXPECT_EQ(menu.count(), 4);
  EXPECT_EQ(menu.size(), 6);
  EXPECT_EQ(menu.entry(5)->Caption(), "Last");
  EXPECT_EQ(menu.entry(4), nullptr);
  EXPECT_EQ(menu.entry(-1), nullptr);
  EXPECT_EQ(menu.entry(6), nullptr);
}

TEST_F(PopupMenus, LoadAnIndexOnce) {
  EXPECT_FALSE(menu.load(1, "again"));
  EXPECT_FALSE(menu.load(-1, "below"));
  EXPECT_EQ(menu.entry(1)->Caption(), "Write");
  EXPECT_EQ(menu.count(), 3);
}

TEST_F(PopupMenus, UnloadAnEntryAndLoadItAnew) {
  menu.unload(1);
  EXPECT_EQ(menu.count(), 2);
  EXPECT_EQ(menu.size(), 3);
  menu.unload(2);
  EXPECT_EQ(menu.size(), 1) << "what is empty at the end goes along";
  menu.unload(7);
  menu.unload(-1);
  EXPECT_TRUE(menu.load(1, "new"));
  EXPECT_EQ(menu.entry(1)->Caption(), "new");
}

TEST_F(PopupMenus, ShareTheirEntriesWithWhoeverKeepsThem) {
  const auto kept = menu.entry(0);
  menu.unload(0);
  EXPECT_EQ(kept->Caption(), "Read");
}

TEST_F(PopupMenus, ShowWhatIsVisibleAndAnswerWhatIsChosen) {
  menu.entry(1)->SetVisible(false);
  platform.willChoose(2);
  EXPECT_EQ(menu.popUp(platform, {3, 4}), 2);
  ASSERT_EQ(platform.shownMenus().size(), 1u);
  EXPECT_EQ(platform.shownMenus()[0].at, (Point{3, 4}));
  EXPECT_EQ(platform.shownMenus()[0].captions, (Heard{"Read", "Compare"}));
}

TEST_F(PopupMenus, AnswerNothingWhenTheyAreClosed) {
  EXPECT_EQ(menu.popUp(platform, {}), std::nullopt);
  platform.willChoose(std::nullopt);
  platform.willChoose(0);
  EXPECT_EQ(menu.popUp(platform, {}), std::nullopt);
  EXPECT_EQ(menu.popUp(platform, {}), 0);
}

TEST_F(PopupMenus, LetNobodyChooseWhatIsHiddenDisabledOrNotThere) {
  menu.entry(0)->SetEnabled(false);
  menu.entry(1)->SetVisible(false);
  for (const int entry : {0, 1, 3, -1}) {
    platform.willChoose(entry);
    EXPECT_EQ(menu.popUp(platform, {}), std::nullopt) << entry;
  }
}

}  // namespace
}  // namespace qrn::test
