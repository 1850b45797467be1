#include "row_events_fixture.h"

namespace qrn::test {
namespace {

using std::chrono::milliseconds;

// ---- icons under the mouse ----

TEST_F(RowEvents, WatchAnIconUnderTheMouseUntilItHasLeft) {
  row().SetIcon1ButtonMode(qrnButtonFlat);
  user->hovers(row().imgIcon1());
  ASSERT_NE(timer(), nullptr);
  EXPECT_EQ(timer()->Interval(), 70);
  EXPECT_TRUE(timer()->Enabled());
  platform.clock().advance(milliseconds(700));
  EXPECT_NE(timer(), nullptr);
  platform.setCursor({200, 10});
  platform.clock().advance(milliseconds(69));
  EXPECT_NE(timer(), nullptr);
  platform.clock().advance(milliseconds(1));
  EXPECT_EQ(timer(), nullptr);
  EXPECT_EQ(platform.clock().runningTimers(), 0);
}

TEST_F(RowEvents, WatchOneIconAtATime) {
  row().SetIcon1ButtonMode(qrnButtonFlat);
  row().SetIcon2ButtonMode(qrnButtonFlat);
  user->hovers(row().imgIcon1());
  user->hovers(row().imgIcon2());
  EXPECT_EQ(platform.clock().runningTimers(), 1);
  EXPECT_EQ(painted("line").size(), 4u);
}

TEST_F(RowEvents, WatchNoIconWithoutButtonMode) {
  user->hovers(row().imgIcon1());
  EXPECT_EQ(timer(), nullptr);
  row().SetIcon1ButtonMode(qrnButtonFlat);
  user->hovers(row().imgIcon1());
  row().SetIcon1ButtonMode(qrnbuttonNone);
  EXPECT_EQ(timer(), nullptr);
  EXPECT_EQ(painted("line"), Events{});
}

TEST_F(RowEvents, WatchNoIconThatThePressedMouseHasLeft) {
  row().SetIcon1ButtonMode(qrnButtonFlat);
  user->pressesAt(headless::User::middleOf(row().imgIcon1()));
  user->movesTo({200, 10});
  EXPECT_EQ(timer(), nullptr);
}

TEST_F(RowEvents, WatchAnIconAnewAfterTheHostHasRemovedTheTimer) {
  row().SetIcon1ButtonMode(qrnButtonFlat);
  user->hovers(row().imgIcon1());
  row().controls().remove("tmrHit");
  user->hovers(row().imgIcon1());
  EXPECT_NE(timer(), nullptr);
  row().controls().remove("tmrHit");
  EXPECT_EQ(painted("line"), Events{});
  row().SetIcon1ButtonMode(qrnbuttonNone);
  row().SetIcon1ButtonMode(qrnButtonFlat);
  user->hovers(row().imgIcon1());
  row().controls().remove("tmrHit");
  row_.reset();
}

TEST_F(RowEvents, StopWatchingAnIconThatIsHidden) {
  row().SetIcon1ButtonMode(qrnButtonFlat);
  user->hovers(row().imgIcon1());
  row().SetIcon1Hidden(true);
  platform.clock().advance(milliseconds(70));
  EXPECT_EQ(timer(), nullptr);
}

TEST_F(RowEvents, StopWatchingWithTheRow) {
  row().SetIcon1ButtonMode(qrnButtonFlat);
  user->hovers(row().imgIcon1());
  row_.reset();
  EXPECT_EQ(platform.clock().runningTimers(), 0);
}

TEST_F(RowEvents, FrameAFlatIconOnlyUnderTheMouse) {
  row().SetIcon1ButtonMode(qrnButtonFlat);
  EXPECT_EQ(painted("line"), Events{});
  user->hovers(row().imgIcon1());
  EXPECT_EQ(painted("line"), (Events{"line 0,18 0,1 #ffffff", "line 0,1 17,1 #ffffff",
                                     "line 17,1 17,18 #a0a0a0", "line 0,18 17,18 #a0a0a0"}));
  platform.setCursor({200, 10});
  platform.clock().advance(milliseconds(70));
  EXPECT_EQ(painted("line"), Events{});
}

TEST_F(RowEvents, FrameAnEmbossedIconAlways) {
  row().SetIcon1ButtonMode(qrnButtonEmbossed);
  EXPECT_EQ(painted("line").front(), "line 0,18 0,1 #ffffff");
  row().SetIcon1Visible(false);
  EXPECT_EQ(painted("line"), Events{});
  row().SetIcon1Visible(true);
  row().SetIcon1Column(0);
  EXPECT_EQ(painted("line"), Events{});
}

TEST_F(RowEvents, FrameAPressedIconTheOtherWayRound) {
  row().SetIcon1ButtonMode(qrnButtonEmbossed);
  user->hovers(row().imgIcon1());
  EXPECT_EQ(painted("line").front(), "line 0,18 0,1 #ffffff");
  user->pressesAt({8, 8});
  EXPECT_EQ(painted("line").front(), "line 0,18 0,1 #a0a0a0");
  user->releasesAt({8, 8});
  EXPECT_EQ(painted("line").front(), "line 0,18 0,1 #ffffff");
}

TEST_F(RowEvents, PaintThePressAndTheReleaseOfAnIcon) {
  row().SetIcon1ButtonMode(qrnButtonFlat);
  row().realise();
  auto& peer = static_cast<headless::HeadlessPeer&>(*row().peer());
  const auto repaints = [&] { return !std::exchange(peer.invalidated, {}).empty(); };
  repaints();
  user->pressesAt({8, 8});
  EXPECT_TRUE(repaints());
  user->releasesAt({8, 8});
  EXPECT_TRUE(repaints());
}

// ---- the menu ----

TEST_F(RowEvents, NameTheChosenEntryOfTheMenu) {
  EXPECT_EQ(row().AddMenuItem("Read")->Caption(), "Read");
  row().AddMenuItem("Write");
  platform.willChoose(2);
  user->clicks(row().lblLabel(), kRight);
  EXPECT_EQ(raised(), Events{"MenuClick(2)"});
  ASSERT_EQ(platform.shownMenus().size(), 1u);
  EXPECT_EQ(platform.shownMenus()[0].captions, (Events{"Read", "Write"}));
  EXPECT_EQ(platform.shownMenus()[0].at, headless::User::middleOf(row().lblLabel()));
}

TEST_F(RowEvents, NameNoEntryWhenTheMenuIsClosed) {
  row().AddMenuItem("Read");
  platform.willChoose(std::nullopt);
  user->clicksAt({399, 20}, kRight);
  EXPECT_EQ(platform.shownMenus().size(), 1u);
  EXPECT_EQ(raised(), Events{});
}

TEST_F(RowEvents, OfferNoMenuWithoutEntriesOfTheHost) {
  EXPECT_EQ(row().GetMenuItem(0)->Caption(), "&Help");
  EXPECT_EQ(row().GetMenuItem(1), nullptr);
  row().RemoveMenu();
  row().RemoveMenuItem(4);
  user->clicks(row().lblLabel(), kRight);
  row().AddMenuItem("Read");
  row().RemoveMenu();
  user->clicks(row().lblLabel(), kRight);
  EXPECT_TRUE(platform.shownMenus().empty());
  EXPECT_EQ(row().GetMenuItem(0)->Caption(), "&Help");
}

TEST_F(RowEvents, OfferTheMenuOnEveryPartOfTheRow) {
  row().AddMenuItem("Read");
  for (host::Control* part : std::initializer_list<host::Control*>{&row().lblLabel(), &row().lblUnit(),
                                                                   &row().imgIcon1(), &textBox()}) {
    user->clicks(*part, kRight);
  }
  EXPECT_EQ(platform.shownMenus().size(), 4u);
}

TEST_F(RowEvents, OfferTheMenuToTheKeyboardAThirdIntoTheRow) {
  row().AddMenuItem("Read");
  row().Move(0, 0, 90, 30);
  user->focuses(row());
  for (const std::int16_t scale : {3, 1}) {
    row().SetScaleMode(scale);
    user->presses(host::key::F10, host::shift::Shift);
    EXPECT_EQ(platform.shownMenus().back().at, (Point{30, 20})) << scale;
  }
  EXPECT_EQ(raised(), (Events{"StartEdit", "KeyUp(121, 1)", "KeyUp(121, 1)"}));
}

}  // namespace
}  // namespace qrn::test
