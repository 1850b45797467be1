#include <string>
#include <vector>

#include "controls/raised.h"
#include "diag/QRNErrors.h"
#include "row_events_fixture.h"

namespace qrn::test {
namespace {

constexpr std::int32_t kOwnError = 1000;

void fail() { RaiseError(kOwnError, "listener", "on purpose"); }

/// Two rows, of which the first one has the focus.
class AFocusedRow : public RowFocus {
 protected:
  AFocusedRow() {
    panel().LayoutControls(false);
    user->focuses(row(1));
    raised();
  }
  /// Does something each time an edit of the first row ends.
  template <class Action>
  Connection whenItsEditEnds(Action&& action) {
    return row(1).ObjectEvent.connect([action](std::string_view name, host::EventArgs) {
      if (name == "EndEdit") action();
    });
  }
  bool isHidden(std::int32_t position) {
    const host::Editor& editor = *row(position).CurrentEditor();
    return !editor.Visible() && !editor.hasFocus();
  }
};

TEST_F(AFocusedRow, WhoseEditorIsHiddenEndsItsEditOnceAlthoughAListenerGivesTheFocusBack) {
  for (const qrnValueType type : {qrnTypeString, qrnTypeList}) {
    row(1).SetValueType(type);
    row(1).SetValueVisible(true);
    user->focuses(row(1));
    int ends = 0;
    const auto connection = whenItsEditEnds([&] {
      if (++ends == 1) row(1).CurrentEditor()->SetFocus();
      if (ends == 2) items().Remove(Variant(1));
    });
    row(1).SetValueVisible(false);
    EXPECT_EQ(ends, 1);
    EXPECT_EQ(items().Count(), 2);
    EXPECT_TRUE(isHidden(1));
  }
}

TEST_F(AFocusedRow, MayBeShownHiddenAndRemovedByWhoHearsThatItsEditorIsHidden) {
  int ends = 0;
  const auto connection = whenItsEditEnds([&] {
    if (++ends == 2) return items().Remove(Variant(1));
    row(1).SetValueVisible(true);
    panel().SetItemFocus(1);
    row(1).SetRedraw(false);
    row(1).SetValueVisible(false);
    row(1).SetRedraw(true);
  });
  row(1).SetValueVisible(false);
  EXPECT_EQ(ends, 2);
  EXPECT_EQ(items().Count(), 1);
}

TEST_F(AFocusedRow, HidesItsEditorAndMovesItsPartsAlthoughAListenerFails) {
  const double unit = row(1).lblUnit().Left();
  const auto connection = whenItsEditEnds(fail);
  EXPECT_EQ(raisedBy([&] { row(1).SetValueVisible(false); }).number, kOwnError);
  EXPECT_TRUE(isHidden(1));
  EXPECT_LT(row(1).lblUnit().Left(), unit);
}

TEST_F(AFocusedRow, EndsEachEditThatItHasBegunWhenItLosesItsEditor) {
  int ends = 0;
  const auto connection = whenItsEditEnds([&] {
    if (++ends > 1) return;
    row(1).SetValueType(qrnTypeBoolean);
    row(1).SetFocus();
  });
  row(1).SetValueType(qrnTypeArray);
  EXPECT_EQ(raised(), (Events{"EndEdit(False)", "StartEdit", "EndEdit(False)"}));
  row(1).SetValueType(qrnTypeLong);
  row(1).SetFocus();
  EXPECT_EQ(raised(), Events{"StartEdit"});
}

TEST_F(AFocusedRow, TellsThePanelThatItLostTheFocusAlthoughAListenerFails) {
  const auto connection = whenItsEditEnds(fail);
  startListening();
  EXPECT_EQ(raisedBy([&] { user->focuses(row(2)); }).number, kOwnError);
  EXPECT_EQ(events(), (Events{"ParameterEndEdit(1, False)", "ItemLostFocus(1)", "ParameterStartEdit(2)",
                              "ItemGotFocus(2)"}));
}

TEST_F(AFocusedRow, TellsThePanelThatItGotTheFocusAlthoughAListenerFails) {
  const auto connection = row(2).events().StartEdit.connect(fail);
  startListening();
  EXPECT_EQ(raisedBy([&] { user->focuses(row(2)); }).number, kOwnError);
  EXPECT_EQ(events(), (Events{"ParameterEndEdit(1, False)", "ItemLostFocus(1)", "ItemGotFocus(2)"}));
}

}  // namespace
}  // namespace qrn::test
