#include "host/check_box.h"
#include "host/combo_box.h"
#include "host/list_box.h"
#include "host/v_scroll_bar.h"
#include "test_control.h"

namespace qrn::test {
namespace {

class CheckBoxes : public SurfaceTest {
 protected:
  host::CheckBox& box = surface().add<host::CheckBox>("chk");
};

TEST_F(CheckBoxes, ReportAClickOfTheUserAndNothingThatTheProgramSets) {
  box.SetValue(1);
  box.SetValue(0);
  EXPECT_EQ(heard(), Heard{});
  user.clicks(box);
  EXPECT_EQ(box.Value(), 1);
  EXPECT_EQ(heard(), (Heard{"chk GotFocus", "chk Click"}));
  user.clicks(box);
  EXPECT_EQ(box.Value(), 0);
}

TEST_F(CheckBoxes, AreToggledByTheSpaceBar) {
  box.SetFocus();
  user.types(" ");
  EXPECT_EQ(box.Value(), 1);
  user.presses(host::key::Space);
  EXPECT_EQ(box.Value(), 0);
  user.presses(host::key::Enter);
  EXPECT_EQ(box.Value(), 0);
}

TEST_F(CheckBoxes, DisabledTheyCanNotBeToggled) {
  box.SetEnabled(false);
  user.clicks(box);
  box.userToggled();
  EXPECT_EQ(box.Value(), 0);
  EXPECT_EQ(heard(), Heard{});
}

class ComboBoxes : public SurfaceTest {
 protected:
  ComboBoxes() {
    for (const char* text : {"slow", "medium", "fast"}) box.AddItem(text);
  }
  host::ComboBox& box = surface().add<host::ComboBox>("cbo");
};

TEST_F(ComboBoxes, StartWithNoEntryChosen) {
  EXPECT_EQ(box.ListIndex(), -1);
  EXPECT_EQ(box.Text(), "");
}

TEST_F(ComboBoxes, ReportAChangeAndThenAClickWhenTheUserChooses) {
  box.SetListIndex(1);
  EXPECT_EQ(heard(), Heard{});
  user.chooses(box, 2);
  EXPECT_EQ(box.Text(), "fast");
  EXPECT_EQ(heard(), (Heard{"cbo GotFocus", "cbo Change", "cbo Click"}));
  user.chooses(box, 2);
  EXPECT_EQ(heard(), Heard{}) << "it was chosen already";
}

TEST_F(ComboBoxes, AreWorkedByTheArrowKeys) {
  box.SetFocus();
  heard();
  user.presses(host::key::Down);
  user.presses(host::key::End);
  user.presses(host::key::Down);
  user.presses(host::key::Up);
  EXPECT_EQ(box.ListIndex(), 1);
  EXPECT_EQ(heard(),
            (Heard{"cbo Change", "cbo Click", "cbo Change", "cbo Click", "cbo Change", "cbo Click"}));
}

TEST_F(ComboBoxes, LockedOrDisabledTheyRefuseAndTellTheirPeerSo) {
  surface().realise();
  box.SetFocus();
  heard();
  box.SetLocked(true);
  auto& peer = static_cast<headless::HeadlessPeer&>(*box.peer());
  int before = peer.changes;
  box.userSelected(1);
  EXPECT_EQ(box.ListIndex(), -1);
  EXPECT_EQ(peer.changes, before + 1);
  box.SetLocked(false);
  box.SetEnabled(false);
  before = peer.changes;
  box.userSelected(1);
  EXPECT_EQ(box.ListIndex(), -1);
  EXPECT_EQ(peer.changes, before + 1);
  EXPECT_EQ(heard(), Heard{});
}

TEST_F(ComboBoxes, IgnoreAChoiceOutsideTheList) {
  box.userSelected(3);
  box.userSelected(-2);
  EXPECT_EQ(box.ListIndex(), -1);
  EXPECT_EQ(heard(), Heard{});
}

TEST_F(ComboBoxes, MayBeRemovedByTheListenerToTheirChange) {
  diary.listener = [&](const std::string& what) {
    if (what == "cbo Change") surface().controls().remove("cbo");
  };
  box.userSelected(1);
  EXPECT_EQ(heard(), (Heard{"cbo Change"}));
}

class ListBoxes : public SurfaceTest {
 protected:
  void fill() {
    for (const char* text : {"a", "b", "c"}) box.AddItem(text);
  }
  host::ListBox& box = surface().add<host::ListBox>("lst", {0, 0, 100, 60});
};

TEST_F(ListBoxes, HaveACheckMarkForEachEntry) {
  fill();
  box.SetSelected(1, true);
  EXPECT_FALSE(box.Selected(0));
  EXPECT_TRUE(box.Selected(1));
  EXPECT_EQ(box.ListIndex(), -1);
  EXPECT_EQ(heard(), Heard{});
}

TEST_F(ListBoxes, ReportWhichEntryTheUserTicked) {
  fill();
  user.ticks(box, 2);
  EXPECT_TRUE(box.Selected(2));
  EXPECT_EQ(box.ListIndex(), 2);
  user.ticks(box, 2);
  EXPECT_FALSE(box.Selected(2));
  EXPECT_EQ(heard(), (Heard{"lst GotFocus", "lst ItemCheck 2", "lst ItemCheck 2"}));
}

TEST_F(ListBoxes, TickTheCurrentEntryWithTheSpaceBar) {
  fill();
  box.SetFocus();
  user.presses(host::key::Down);
  user.types(" ");
  EXPECT_TRUE(box.Selected(1));
  EXPECT_EQ(heard(), (Heard{"lst GotFocus", "lst ItemCheck 1"}));
}

TEST_F(ListBoxes, MakeTheirFirstEntryCurrentWhenTheyGetTheFocus) {
  fill();
  box.SetFocus();
  EXPECT_EQ(box.ListIndex(), 0);
  box.SetListIndex(2);
  input().setFocus(nullptr);
  box.SetFocus();
  EXPECT_EQ(box.ListIndex(), 2);
}

TEST_F(ListBoxes, HaveNoCurrentEntryWhileTheyAreEmpty) {
  box.SetFocus();
  EXPECT_EQ(box.ListIndex(), -1);
  user.presses(host::key::Down);
  user.types(" ");
  EXPECT_EQ(box.ListIndex(), -1);
  EXPECT_EQ(heard(), (Heard{"lst GotFocus"}));
}

TEST_F(ListBoxes, DisabledTheyCanNeitherBeMovedInNorTicked) {
  fill();
  box.SetEnabled(false);
  user.ticks(box, 1);
  box.userChecked(1);
  box.userMovedTo(1);
  EXPECT_FALSE(box.Selected(1));
  EXPECT_EQ(box.ListIndex(), -1);
  EXPECT_EQ(heard(), Heard{});
}

// What drop lists and list boxes share.
class Lists : public SurfaceTest {
 protected:
  host::ListEditor& list = surface().add<host::ComboBox>("cbo");
};

TEST_F(Lists, AddTheirEntriesAtTheEnd) {
  EXPECT_EQ(list.NewIndex(), -1);
  list.AddItem("a");
  list.AddItem("b");
  EXPECT_EQ(list.ListCount(), 2);
  EXPECT_EQ(list.NewIndex(), 1);
  EXPECT_EQ(list.List(1), "b");
  list.SetItemData(1, -7);
  EXPECT_EQ(list.ItemData(1), -7);
  EXPECT_EQ(list.ItemData(0), 0);
  list.SetList(0, "changed");
  EXPECT_EQ(list.List(0), "changed");
}

TEST_F(Lists, AddATextOfTheirOwnAgain) {
  const std::string first = "a text that is too long to lie in its string";
  list.AddItem(first);
  for (int i = 1; i < 20; ++i) list.AddItem(list.List(i - 1));
  EXPECT_EQ(list.ListCount(), 20);
  EXPECT_EQ(list.List(19), first);
}

TEST_F(Lists, AnswerAnIndexOutsideThemWithError380) {
  list.AddItem("a");
  for (const std::int32_t index : {-1, 1, 40'000}) {
    EXPECT_EQ(errorOf([&] { list.List(index); }), 380);
    EXPECT_EQ(errorOf([&] { list.SetList(index, "x"); }), 380);
    EXPECT_EQ(errorOf([&] { list.ItemData(index); }), 380);
    EXPECT_EQ(errorOf([&] { list.SetItemData(index, 1); }), 380);
    EXPECT_EQ(errorOf([&] { list.RemoveItem(index); }), 380);
  }
  EXPECT_EQ(errorOf([&] { list.SetListIndex(-2); }), 380);
  EXPECT_EQ(errorOf([&] { list.SetListIndex(1); }), 380);
  EXPECT_EQ(list.ListCount(), 1);
  EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(Lists, KeepTheirCurrentEntryWhenAnotherOneIsRemoved) {
  for (const char* text : {"a", "b", "c", "d"}) list.AddItem(text);
  list.SetListIndex(2);
  list.RemoveItem(0);
  EXPECT_EQ(list.List(list.ListIndex()), "c");
  list.RemoveItem(2);
  EXPECT_EQ(list.List(list.ListIndex()), "c");
  list.RemoveItem(1);
  EXPECT_EQ(list.ListIndex(), -1);
  list.SetListIndex(0);
  list.Clear();
  EXPECT_EQ(list.ListIndex(), -1);
  EXPECT_EQ(list.ListCount(), 0);
  EXPECT_EQ(heard(), Heard{});
}

TEST_F(Lists, HoldNoMoreEntriesThanAnIntegerCounts) {
  for (int i = 0; i < 32'767; ++i) list.AddItem("x");
  EXPECT_EQ(list.ListCount(), 32'767);
  EXPECT_EQ(errorOf([&] { list.AddItem("one too many"); }), 6);
  EXPECT_EQ(list.ListCount(), 32'767);
}

class ScrollBars : public SurfaceTest {
 protected:
  host::VScrollBar& bar = surface().add<host::VScrollBar>("bar", {184, 0, 16, 150});
};

TEST_F(ScrollBars, ReportWhereTheUserScrollsAndNothingThatTheProgramSets) {
  bar.SetMax(100);
  bar.SetValue(30);
  EXPECT_EQ(heard(), Heard{});
  user.scrollsTo(bar, 40);
  user.scrollsTo(bar, 40);
  EXPECT_EQ(bar.Value(), 40);
  EXPECT_EQ(heard(), (Heard{"bar Change"}));
  user.scrollsTo(bar, 1000);
  EXPECT_EQ(bar.Value(), 100);
  user.scrollsTo(bar, -5);
  EXPECT_EQ(bar.Value(), 0);
}

TEST_F(ScrollBars, RefuseAValueOutsideTheirRangeWithError380) {
  bar.SetMax(100);
  bar.SetValue(30);
  EXPECT_EQ(errorOf([&] { bar.SetValue(101); }), 380);
  EXPECT_EQ(errorOf([&] { bar.SetValue(-1); }), 380);
  EXPECT_EQ(bar.Value(), 30);
}

TEST_F(ScrollBars, KeepTheirValueInsideAShorterRange) {
  bar.SetMax(100);
  bar.SetValue(80);
  bar.SetMax(50);
  EXPECT_EQ(bar.Value(), 50);
  EXPECT_EQ(heard(), Heard{});
}

TEST_F(ScrollBars, MayCountDownwards) {
  bar.SetMax(-100);
  bar.SetValue(-30);
  EXPECT_EQ(bar.Value(), -30);
  user.scrollsTo(bar, -500);
  EXPECT_EQ(bar.Value(), -100);
  user.scrollsTo(bar, 5);
  EXPECT_EQ(bar.Value(), 0);
}

TEST_F(ScrollBars, NeverTakeTheFocus) {
  bar.SetFocus();
  EXPECT_EQ(input().focus(), nullptr);
}

TEST_F(ScrollBars, HaveANativeWidgetWhereverTheSurfaceHasOneAndTheyAreVisible) {
  EXPECT_FALSE(bar.peer());
  surface().realise();
  bar.SetVisible(false);
  bar.SetVisible(true);
  EXPECT_TRUE(bar.peer());
  bar.SetVisible(false);
  EXPECT_FALSE(bar.peer());
  EXPECT_TRUE(surface().add<host::VScrollBar>("later").peer()) << "one that comes later gets its own";
}

TEST_F(ScrollBars, GetTheirWidgetWhenWhatTheyLieInIsPutOnASurfaceThatHasOne) {
  // A page is built, with its scroll bar, before it has a place.
  struct Page : TestControl {
    using TestControl::TestControl;
    void initialize() override { contain(bar, *this, "bar"); }
    host::VScrollBar bar;
  };
  surface().realise();
  auto* page = new Page(diary, "page");
  surface().controls().add(host::Owned<host::Control>(page), "page", surface());
  EXPECT_TRUE(page->bar.peer());
  surface().controls().remove("page");
  EXPECT_EQ(platform.peers(), 1);
}

TEST_F(ScrollBars, AreToldOfTheirPlaceWhenWhatTheyLieInMovesOrHides) {
  surface().realise();
  auto& page = surface().addControl("page", {0, 0, 100, 100});
  auto& inner = page.add<host::VScrollBar>("inner", {84, 0, 16, 100});
  auto& peer = static_cast<headless::HeadlessPeer&>(*inner.peer());
  int before = peer.changes;
  page.Move(10, 10, 100, 100);
  EXPECT_EQ(peer.changes, before + 1);
  before = peer.changes;
  page.SetVisible(false);
  EXPECT_EQ(peer.changes, before + 1);
  EXPECT_TRUE(inner.visibleOnSurface().empty()) << "nothing of it can be seen";
  page.SetVisible(true);
  EXPECT_EQ(peer.changes, before + 2);
  EXPECT_EQ(inner.visibleOnSurface(), (Rect{94, 10, 16, 100}));
}

}  // namespace
}  // namespace qrn::test
