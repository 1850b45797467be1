#include <functional>

#include "row_events_fixture.h"

namespace qrn::test {
namespace {

// ---- the edit bracket ----

TEST_F(RowFocus, StartsAnEditWhenItComesAndEndsItWhenItGoes) {
  user->focuses(row(1));
  EXPECT_EQ(raised(), Events{"StartEdit"});
  leave();
  EXPECT_EQ(raised(), Events{"EndEdit(False)"});
}

TEST_F(RowFocus, SaysAtTheEndWhetherTheValueWasChanged) {
  row(1).SetValue(Variant("a"));
  user->focuses(row(1));
  user->enters("b");
  raised();
  leave();
  EXPECT_EQ(raised(), Events{"EndEdit(True)"});
  EXPECT_TRUE(row(1).ValueChanged());
  user->focuses(row(1));
  leave();
  EXPECT_EQ(raised(), (Events{"StartEdit", "EndEdit(True)"}));
  row(1).SetValueChanged(false);
  row(1).SetValueChanged(false);
  EXPECT_EQ(raised(), Events{"StatusChange"});
}

TEST_F(RowFocus, StartsNoEditOfALockedRowAndEndsNone) {
  row(1).SetLocked(true);
  user->focuses(row(1));
  leave();
  EXPECT_EQ(raised(), Events{});
}

TEST_F(RowFocus, EndsNoEditOfARowThatIsLockedWhenItBegins) {
  const auto locking = row(1).events().StartEdit.connect([&] { row(1).SetLocked(true); });
  user->focuses(row(1));
  leave();
  EXPECT_EQ(raised(), Events{"StartEdit"});
  EXPECT_FALSE(row(1).ValueChanged());
}

TEST_F(RowFocus, EndsNoEditOfARowThatWasLockedMeanwhile) {
  user->focuses(row(1));
  raised();
  row(1).SetLocked(true);
  leave();
  EXPECT_EQ(raised(), Events{});
}

TEST_F(RowFocus, GoesToNoEditorThatCanNotTakeIt) {
  row(1).SetEnabled(false);
  user->focuses(row(1));
  row(1).SetEnabled(true);
  row(1).SetValueVisible(false);
  user->focuses(row(1));
  row(1).SetValueVisible(true);
  row(1).SetValueType(qrnTypeArray);
  user->focuses(row(1));
  EXPECT_EQ(raised(), Events{});
}

TEST_F(RowFocus, KeepsTheEditGoingWhileTheEditorChanges) {
  user->focuses(row(1));
  raised();
  row(1).SetValueType(qrnTypeBoolean);
  row(1).SetValueType(qrnTypeList);
  EXPECT_EQ(raised(), Events{});
  EXPECT_EQ(panel().input().focus(), row(1).CurrentEditor());
  row(1).SetValueCount(1);
  user->presses(host::key::Down);
  raised();
  leave();
  EXPECT_EQ(raised(), Events{"EndEdit(True)"});
  user->focuses(row(1));
  EXPECT_EQ(raised(), Events{"StartEdit"});
}

TEST_F(RowFocus, EndsTheEditOfARowThatLosesItsEditor) {
  row(1).SetValue(Variant("a"));
  user->focuses(row(1));
  raised();
  row(1).SetValueType(qrnTypeArray);
  EXPECT_EQ(raised(), Events{"EndEdit(False)"});
  row(1).SetValueType(qrnTypeString);
  user->focuses(row(1));
  EXPECT_EQ(raised(), Events{"StartEdit"});
}

TEST_F(RowFocus, CanNotBeGivenBackToAnEditorThatIsAboutToGo) {
  const std::function<void()> ways[] = {[&] { row(1).SetFocus(); },
                                        [&] { row(1).CurrentEditor()->SetFocus(); },
                                        [&] { panel().input().surfaceGotFocus(); }};
  for (const auto& giveBack : ways) {
    row(1).SetValueType(qrnTypeString);
    user->focuses(row(1));
    raised();
    {
      const auto back = row(1).events().EndEdit.connect([&](bool&) { giveBack(); });
      row(1).SetValueType(qrnTypeArray);
    }
    EXPECT_FALSE(row(1).hasFocus());
    EXPECT_EQ(raised(), Events{"EndEdit(False)"});
    row(1).SetValueType(qrnTypeString);
    user->focuses(row(1));
    EXPECT_EQ(raised(), Events{"StartEdit"});
    leave();
  }
}

TEST_F(RowFocus, EndsTheEditOfAnEditorThatIsHidden) {
  row(1).SetValue(Variant("a"));
  user->focuses(row(1));
  raised();
  row(1).SetValueVisible(false);
  EXPECT_EQ(raised(), Events{"EndEdit(False)"});
}

TEST_F(RowFocus, PassesTheChangedFlagByReference) {
  row(1).SetValue(Variant("a"));
  bool seen = false;
  const auto first = row(1).events().EndEdit.connect([](bool& changed) { changed = true; });
  const auto second = row(1).events().EndEdit.connect([&](bool& changed) { seen = changed; });
  user->focuses(row(1));
  leave();
  EXPECT_TRUE(seen);
}

}  // namespace
}  // namespace qrn::test
