#include "host/check_box.h"
#include "host/label.h"
#include "host/list_box.h"
#include "host/picture_box.h"
#include "host/text_box.h"
#include "test_control.h"

namespace qrn::test {
namespace {

/// Two rows with an editor each, and an editor between them that lies on the surface itself.
class Focus : public SurfaceTest {
 protected:
  /// What happens the first time that something is heard.
  void when(const std::string& what, std::function<void()> then) {
    diary.listener = [this, what, then](const std::string& line) {
      if (line != what) return;
      const auto once = then;
      diary.listener = nullptr;
      once();
    };
  }
  headless::HeadlessPeer& peerOf(host::Control& control) {
    return static_cast<headless::HeadlessPeer&>(*control.peer());
  }

  TestControl& row1 = surface().addControl("row1", {0, 0, 200, 20});
  TestControl& row2 = surface().addControl("row2", {0, 20, 200, 20});
  host::TextBox& a = row1.add<host::TextBox>("a", {0, 0, 90, 20});
  host::TextBox& b = row1.add<host::TextBox>("b", {100, 0, 90, 20});
  host::TextBox& c = row2.add<host::TextBox>("c", {0, 0, 90, 20});
  host::TextBox& plain = surface().add<host::TextBox>("plain", {0, 40, 90, 20});
};

TEST_F(Focus, IsToldToTheSurfaceItselfToo) {
  surface().notesFocus = true;
  host::Control& editor = surface().controls().add("VB.TextBox", "txt", surface());
  editor.SetFocus();
  EXPECT_TRUE(surface().hasFocus());
  input().setFocus(nullptr);
  EXPECT_EQ(heard(), (Heard{"surface GotFocus", "txt GotFocus", "txt LostFocus", "surface LostFocus"}));
}

TEST_F(Focus, IsLostFromTheInsideOutAndGotFromTheOutsideIn) {
  a.SetFocus();
  EXPECT_EQ(heard(), (Heard{"row1 GotFocus", "a GotFocus"}));
  c.SetFocus();
  EXPECT_EQ(heard(), (Heard{"a LostFocus", "row1 LostFocus", "row2 GotFocus", "c GotFocus"}));
  plain.SetFocus();
  EXPECT_EQ(heard(), (Heard{"c LostFocus", "row2 LostFocus", "plain GotFocus"}));
  input().setFocus(nullptr);
  EXPECT_EQ(heard(), (Heard{"plain LostFocus"}));
}

TEST_F(Focus, StaysWithWhatHoldsBothWhenItMovesInside) {
  a.SetFocus();
  heard();
  b.SetFocus();
  EXPECT_EQ(heard(), (Heard{"a LostFocus", "b GotFocus"}));
  b.SetFocus();
  EXPECT_EQ(heard(), Heard{});
}

TEST_F(Focus, BelongsToAControlAndToEverythingAroundIt) {
  a.SetFocus();
  EXPECT_TRUE(a.hasFocus());
  EXPECT_TRUE(row1.hasFocus());
  EXPECT_TRUE(surface().hasFocus());
  EXPECT_FALSE(b.hasFocus());
  EXPECT_FALSE(row2.hasFocus());
}

TEST_F(Focus, IsRefusedByWhatCanNotTakeIt) {
  auto& label = surface().add<host::Label>("lbl");
  label.SetFocus();
  row1.SetFocus();
  a.SetEnabled(false);
  a.SetFocus();
  b.SetVisible(false);
  b.SetFocus();
  row2.SetVisible(false);
  c.SetFocus();
  EXPECT_EQ(input().focus(), nullptr);
  row2.SetVisible(true);
  row2.SetEnabled(false);
  c.SetFocus();
  EXPECT_EQ(input().focus(), nullptr);
  row2.SetEnabled(true);
  c.SetFocus();
  EXPECT_EQ(input().focus(), &c);
}

TEST_F(Focus, LeavesAControlThatIsHiddenOrWhoseContainerIs) {
  a.SetFocus();
  heard();
  a.SetVisible(false);
  EXPECT_EQ(input().focus(), nullptr);
  EXPECT_EQ(heard(), (Heard{"a LostFocus", "row1 LostFocus"}));
  c.SetFocus();
  heard();
  row2.SetVisible(false);
  EXPECT_EQ(heard(), (Heard{"c LostFocus", "row2 LostFocus"}));
}

TEST_F(Focus, MayBeSentElsewhereByTheOneThatLosesIt) {
  a.SetFocus();
  heard();
  when("a LostFocus", [&] { plain.SetFocus(); });
  c.SetFocus();
  EXPECT_EQ(input().focus(), &plain);
  EXPECT_EQ(heard(), (Heard{"a LostFocus", "row1 LostFocus", "plain GotFocus"}))
      << "whoever was never told to have it is not told to have lost it";
}

TEST_F(Focus, MayBeKeptByTheOneThatLosesIt) {
  a.SetFocus();
  heard();
  when("a LostFocus", [&] { a.SetFocus(); });
  c.SetFocus();
  EXPECT_EQ(input().focus(), &a);
  EXPECT_EQ(heard(), (Heard{"a LostFocus", "a GotFocus"}));
  c.SetFocus();
  EXPECT_EQ(heard(), (Heard{"a LostFocus", "row1 LostFocus", "row2 GotFocus", "c GotFocus"}));
}

TEST_F(Focus, MayBeSentToANeighbourByTheOneThatLosesIt) {
  a.SetFocus();
  heard();
  when("a LostFocus", [&] { b.SetFocus(); });
  c.SetFocus();
  EXPECT_EQ(heard(), (Heard{"a LostFocus", "b GotFocus"})) << "their row never loses it";
}

TEST_F(Focus, MayBeSentOnByTheOneThatGetsIt) {
  when("a GotFocus", [&] { c.SetFocus(); });
  a.SetFocus();
  EXPECT_EQ(input().focus(), &c);
  EXPECT_EQ(heard(), (Heard{"row1 GotFocus", "a GotFocus", "a LostFocus", "row1 LostFocus", "row2 GotFocus",
                            "c GotFocus"}));
}

TEST_F(Focus, MayBeSentOnByWhatHoldsTheOneThatGetsIt) {
  when("row1 GotFocus", [&] { c.SetFocus(); });
  a.SetFocus();
  EXPECT_EQ(input().focus(), &c);
  EXPECT_EQ(heard(), (Heard{"row1 GotFocus", "row1 LostFocus", "row2 GotFocus", "c GotFocus"}));
}

TEST_F(Focus, MayRemoveTheOneThatLosesIt) {
  a.SetFocus();
  heard();
  when("a LostFocus", [&] { surface().controls().remove("row1"); });
  c.SetFocus();
  EXPECT_EQ(input().focus(), &c);
  EXPECT_EQ(heard(), (Heard{"a LostFocus", "row2 GotFocus", "c GotFocus"}));
}

TEST_F(Focus, MayRemoveTheOneThatIsToGetIt) {
  a.SetFocus();
  heard();
  when("a LostFocus", [&] { surface().controls().remove("row2"); });
  c.SetFocus();
  EXPECT_EQ(input().focus(), nullptr);
  EXPECT_EQ(heard(), (Heard{"a LostFocus", "row1 LostFocus"}));
}

TEST_F(Focus, MayRemoveTheOneThatGetsIt) {
  when("row1 GotFocus", [&] { surface().controls().remove("row1"); });
  a.SetFocus();
  EXPECT_EQ(input().focus(), nullptr);
  EXPECT_EQ(heard(), (Heard{"row1 GotFocus"}));
}

TEST_F(Focus, MayDestroyTheSurface) {
  for (const char* moment : {"a LostFocus", "row1 LostFocus", "row2 GotFocus", "c GotFocus"}) {
    Diary log;
    auto doomed = made<TestControl>(site, log, "surface");
    auto& first = doomed->addControl("row1").add<host::TextBox>("a");
    auto& second = doomed->addControl("row2").add<host::TextBox>("c");
    first.SetFocus();
    log.take();
    log.listener = [&](const std::string& what) {
      if (what == moment) doomed.reset();
    };
    second.SetFocus();
    EXPECT_EQ(log.lines.back(), moment);
    EXPECT_FALSE(doomed);
  }
}

TEST_F(Focus, MovesOnThoughAListenerRaisesAnErrorWhichThenReachesTheCaller) {
  for (const char* moment : {"a LostFocus", "row1 LostFocus", "row2 GotFocus", "c GotFocus"}) {
    a.SetFocus();
    heard();
    when(moment, [] { raiseRunTimeError(kOverflow); });
    EXPECT_EQ(errorOf([&] { c.SetFocus(); }), kOverflow) << moment;
    EXPECT_EQ(heard(), (Heard{"a LostFocus", "row1 LostFocus", "row2 GotFocus", "c GotFocus"})) << moment;
  }
}

TEST_F(Focus, MayRemoveAControlThatIsHiddenForIt) {
  a.SetFocus();
  when("a LostFocus", [&] { surface().controls().remove("row1"); });
  a.SetVisible(false);
  EXPECT_EQ(surface().controls().find("row1"), nullptr);
}

TEST_F(Focus, HidesAControlOnceEvenIfTheListenerShowsItAgain) {
  a.SetFocus();
  when("a LostFocus", [&] { a.SetVisible(true); });
  a.SetVisible(false);
  EXPECT_TRUE(a.Visible());
}

TEST_F(Focus, OfARemovedEditorIsNobodysAndItsRowHearsOfItWhenTheFocusGoesOn) {
  a.SetFocus();
  heard();
  row1.controls().remove("a");
  EXPECT_EQ(input().focus(), nullptr);
  EXPECT_EQ(heard(), Heard{});
  c.SetFocus();
  EXPECT_EQ(heard(), (Heard{"row1 LostFocus", "row2 GotFocus", "c GotFocus"}));
}

TEST_F(Focus, OfARemovedEditorCanGoToItsSuccessorWithoutItsRowNoticing) {
  a.SetFocus();
  heard();
  row1.controls().remove("a");
  row1.add<host::CheckBox>("a").SetFocus();
  EXPECT_EQ(heard(), (Heard{"a GotFocus"}));
}

TEST_F(Focus, OfARemovedEditorIsTakenFromItsRowWhenTheSurfaceLosesIt) {
  a.SetFocus();
  heard();
  row1.controls().remove("a");
  input().surfaceLostFocus();
  EXPECT_EQ(heard(), (Heard{"row1 LostFocus"}));
}

TEST_F(Focus, GoesWithTheRowThatIsRemovedWithoutAWord) {
  a.SetFocus();
  heard();
  surface().controls().remove("row1");
  EXPECT_EQ(input().focus(), nullptr);
  EXPECT_EQ(heard(), Heard{});
  c.SetFocus();
  EXPECT_EQ(heard(), (Heard{"row2 GotFocus", "c GotFocus"}));
}

TEST_F(Focus, ComesBackToWhereItWasWhenTheSurfaceGetsItAgain) {
  c.SetFocus();
  input().surfaceLostFocus();
  EXPECT_EQ(input().focus(), nullptr);
  heard();
  input().surfaceGotFocus();
  EXPECT_EQ(input().focus(), &c);
  EXPECT_EQ(heard(), (Heard{"row2 GotFocus", "c GotFocus"}));
  input().surfaceLostFocus();
  row2.SetVisible(false);
  input().surfaceGotFocus();
  EXPECT_EQ(input().focus(), nullptr) << "not to what can't be seen";
  surface().controls().remove("row2");
  input().surfaceGotFocus();
  EXPECT_EQ(input().focus(), nullptr) << "nor to what is gone";
}

TEST_F(Focus, DoesNotComeBackToASurfaceThatIsDisabled) {
  a.SetFocus();
  input().surfaceLostFocus();
  heard();
  surface().SetEnabled(false);
  input().surfaceGotFocus();
  EXPECT_EQ(input().focus(), nullptr);
  EXPECT_EQ(heard(), Heard{});
  surface().SetEnabled(true);
  input().surfaceGotFocus();
  EXPECT_EQ(input().focus(), &a);
}

class Peers : public Focus {
 protected:
  Peers() { surface().realise(); }
};

TEST_F(Peers, BelongToTheSurfaceAndToTheEditorWithTheFocusOnly) {
  EXPECT_EQ(platform.peers(), 1);
  a.SetFocus();
  EXPECT_TRUE(a.peer());
  EXPECT_EQ(platform.peers(), 2);
  EXPECT_EQ(peerOf(a).focused, 1);
  c.SetFocus();
  EXPECT_FALSE(a.peer());
  EXPECT_TRUE(c.peer());
  EXPECT_EQ(platform.peers(), 2);
  input().setFocus(nullptr);
  EXPECT_FALSE(c.peer());
  EXPECT_EQ(platform.peers(), 1);
}

TEST_F(Peers, AreNotMadeWhileTheSurfaceHasNone) {
  surface().dropPeer();
  a.SetFocus();
  EXPECT_FALSE(a.peer());
  EXPECT_EQ(platform.peers(), 0);
}

TEST_F(Peers, GoWithTheirControl) {
  a.SetFocus();
  surface().controls().remove("row1");
  EXPECT_EQ(platform.peers(), 1);
  owned.reset();
  EXPECT_EQ(platform.peers(), 0);
}

TEST_F(Peers, AreThereBeforeTheListenersHearOfTheFocusAndStillWhenItIsLost) {
  bool gotIt = false, lostIt = false;
  diary.listener = [&](const std::string& what) {
    if (what == "a GotFocus") gotIt = a.peer() != nullptr;
    if (what == "a LostFocus") lostIt = a.peer() != nullptr;
  };
  a.SetFocus();
  c.SetFocus();
  EXPECT_TRUE(gotIt);
  EXPECT_TRUE(lostIt);
}

TEST_F(Peers, OfAnEditorThatIsHiddenGo) {
  a.SetFocus();
  row1.SetVisible(false);
  EXPECT_FALSE(a.peer());
}

TEST_F(Peers, FollowTheFocusThatAListenerSendsElsewhere) {
  a.SetFocus();
  when("a LostFocus", [&] { plain.SetFocus(); });
  c.SetFocus();
  EXPECT_FALSE(a.peer());
  EXPECT_FALSE(c.peer());
  EXPECT_TRUE(plain.peer());
}

TEST_F(Peers, FollowTheFocusThoughAListenerRaisesAnError) {
  a.SetFocus();
  when("a LostFocus", [] { raiseRunTimeError(kOverflow); });
  EXPECT_EQ(errorOf([&] { c.SetFocus(); }), kOverflow);
  EXPECT_FALSE(a.peer());
  EXPECT_TRUE(c.peer());
}

TEST_F(Peers, AreToldOfTheirPlaceWhenTheirRowMovesOrTheAreaScrolls) {
  a.SetFocus();
  int before = peerOf(a).changes;
  row1.Move(0, 60, 200, 20);
  EXPECT_EQ(peerOf(a).changes, before + 1);

  auto& box = surface().add<host::PictureBox>("box", {0, 100, 100, 50});
  auto& inside = surface().add<host::TextBox>("inside", {0, 0, 50, 20}, box);
  inside.SetFocus();
  before = peerOf(inside).changes;
  box.scrollTo(30);
  EXPECT_EQ(peerOf(inside).changes, before + 1);
  EXPECT_EQ(inside.visibleOnSurface(), Rect({0, 100, 50, 0}));
  EXPECT_TRUE(inside.peer()) << "out of view it is moved, never dropped";
  box.scrollTo(30);
  EXPECT_EQ(peerOf(inside).changes, before + 1);
}

TEST_F(Peers, HearNothingOfWhatHappensElsewhere) {
  a.SetFocus();
  const int before = peerOf(a).changes;
  row2.Move(0, 100, 100, 20);
  c.SetText("other");
  plain.SetVisible(false);
  EXPECT_EQ(peerOf(a).changes, before);
}

TEST_F(Peers, AListBoxHasItsFirstEntryCurrentWhenItsOwnIsMade) {
  auto& list = row2.add<host::ListBox>("list");
  list.AddItem("a");
  list.SetFocus();
  EXPECT_TRUE(list.peer());
  EXPECT_EQ(list.ListIndex(), 0);
}

}  // namespace
}  // namespace qrn::test
