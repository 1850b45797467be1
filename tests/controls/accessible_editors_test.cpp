#include "accessible_fixture.h"

namespace qrn::test {
namespace {

struct Kind {
  qrnValueType type;
  AccessibleRole role;
  std::string value;
};

class AccessibleEditor : public AccessibleTest, public testing::WithParamInterface<Kind> {
 protected:
  AccessibleEditor() {
    useType(GetParam().type);
    if (pressure().ValueType() == qrnTypeList || pressure().ValueType() == qrnTypeBitfield) {
      pressure().SetValueNames(0, "low");
      pressure().SetValueNames(1, "high");
    }
    item->SetParamValue(1);
    panel().LayoutControls(false);
  }
};

TEST_P(AccessibleEditor, HasTheRoleAndTheValueOfItsKind) {
  EXPECT_EQ(facts().role, GetParam().role);
  EXPECT_EQ(facts().value, GetParam().value);
}

TEST_P(AccessibleEditor, IsNamedByCaptionAndUnit) { EXPECT_EQ(facts().name, "Pressure (bar)"); }

TEST_P(AccessibleEditor, IsDescribedByItsToolTip) {
  pressure().SetLabelToolTip("of the caption");
  EXPECT_EQ(facts().description, "of the caption");
  pressure().SetValueToolTip("of the value");
  EXPECT_EQ(facts().description, "of the value");
}

TEST_P(AccessibleEditor, TellsTheSameWhetherItHasAWidgetOrNot) {
  pressure().SetFocus();
  const AccessibleFacts painted = facts();
  EXPECT_EQ(pressure().CurrentEditor()->peer(), nullptr);
  panel().SetItemFocus(Variant(0));
  showOnScreen();
  pressure().SetFocus();
  ASSERT_NE(pressure().CurrentEditor()->peer(), nullptr);
  const AccessibleFacts real = facts();
  EXPECT_EQ(real.role, painted.role);
  EXPECT_EQ(real.name, painted.name);
  EXPECT_EQ(real.value, painted.value);
  EXPECT_EQ(real.states, painted.states);
  EXPECT_EQ(editor().parent(), rowNode());
}

TEST_P(AccessibleEditor, IsFocusedByATool) {
  EXPECT_FALSE(states().focused);
  EXPECT_TRUE(states().focusable);
  EXPECT_TRUE(editor().focus());
  EXPECT_TRUE(states().focused);
  EXPECT_TRUE(pressure().hasFocus());
}

TEST_P(AccessibleEditor, IsReadOnlyWhenTheRowIsLocked) {
  EXPECT_FALSE(states().readOnly);
  item->SetParamState(qrnStateReadOnly);
  EXPECT_TRUE(states().readOnly);
  EXPECT_FALSE(editor().act());
  EXPECT_FALSE(editor().enter("2"));
}

TEST_P(AccessibleEditor, IsUnavailableInADisabledRow) {
  EXPECT_FALSE(states().unavailable);
  pressure().SetEnabled(false);
  EXPECT_TRUE(states().unavailable);
  EXPECT_FALSE(states().focusable);
  EXPECT_FALSE(editor().focus());
  EXPECT_FALSE(editor().act());
}

TEST_P(AccessibleEditor, IsUnavailableInADisabledPanel) {
  panel().SetEnabled(false);
  EXPECT_TRUE(states().unavailable);
  EXPECT_FALSE(states().focusable);
}

TEST_P(AccessibleEditor, IsInvisibleInAHiddenRow) {
  EXPECT_FALSE(states().invisible);
  pressure().SetVisible(false);
  EXPECT_TRUE(states().invisible);
  EXPECT_FALSE(states().focusable);
  EXPECT_FALSE(editor().act());
}

TEST_P(AccessibleEditor, IsOffscreenWhenScrolledOutOfView) {
  EXPECT_FALSE(states().offscreen);
  panel().ControlsContainer().scrollTo(1000);
  EXPECT_TRUE(states().offscreen);
  EXPECT_FALSE(states().invisible);
  EXPECT_TRUE(states().focusable);
}

INSTANTIATE_TEST_SUITE_P(OfEveryKind, AccessibleEditor,
                         testing::Values(Kind{qrnTypeString, AccessibleRole::Text, "1"},
                                         Kind{qrnTypeDouble, AccessibleRole::Text, "1"},
                                         Kind{qrnTypeHexadecimal, AccessibleRole::Text, "1"},
                                         Kind{qrnTypeBoolean, AccessibleRole::CheckBox, ""},
                                         Kind{qrnTypeList, AccessibleRole::DropList, "high"},
                                         Kind{qrnTypeBitfield, AccessibleRole::List, ""}),
                         [](const auto& one) { return "Type" + std::to_string(one.param.type); });

// ---- text ----

TEST_F(AccessibleTest, ATextEnteredByAToolIsAnEditLikeTheUsers) {
  EXPECT_TRUE(editor().enter("2.5"));
  EXPECT_EQ(facts().value, "2.5");
  EXPECT_EQ(item->ParamState(), qrnStateChanged);
  EXPECT_EQ(events(), (Events{"ParameterStartEdit(1)", "ItemGotFocus(1)", "ParameterStatusChange(1)",
                              "ParameterChange(1)"}));
}

TEST_F(AccessibleTest, ThePeerOfATextHearsWhatAToolEnters) {
  showOnScreen();
  pressure().SetFocus();
  auto* peer = static_cast<headless::HeadlessPeer*>(pressure().CurrentEditor()->peer());
  const int before = peer->changes;
  editor().enter("7");
  EXPECT_GT(peer->changes, before);
}

TEST_F(AccessibleTest, APasswordIsNeverTold) {
  useType(qrnTypeString);
  pressure().SetPassword(true);
  item->SetParamValue("secret");
  EXPECT_TRUE(states().secret);
  EXPECT_EQ(facts().value, "******");
}

// ---- lists and marks ----

TEST_F(AccessibleTest, ACheckBoxTellsItsMarkAndIsToggled) {
  useType(qrnTypeBoolean);
  EXPECT_TRUE(states().checkable);
  EXPECT_FALSE(states().checked);
  EXPECT_EQ(facts().action, AccessibleAction::Toggle);
  EXPECT_TRUE(editor().act());
  EXPECT_TRUE(states().checked);
  EXPECT_EQ(item->ParamState(), qrnStateChanged);
}

TEST_F(AccessibleTest, AnEntryOfADropListIsChosen) {
  useType(qrnTypeList);
  for (const int i : {0, 1, 2}) pressure().SetValueNames(i, "entry " + std::to_string(i));
  ASSERT_EQ(editor().childCount(), 3);
  const AccessibleNode entry = editor().child(2);
  EXPECT_EQ(entry.facts().role, AccessibleRole::Entry);
  EXPECT_EQ(entry.facts().name, "entry 2");
  EXPECT_EQ(entry.parent(), editor());
  EXPECT_EQ(editor().indexOf(entry), 2);
  EXPECT_FALSE(entry.facts().states.selected);
  EXPECT_TRUE(entry.act());
  EXPECT_TRUE(entry.facts().states.selected);
  EXPECT_EQ(facts().value, "entry 2");
}

TEST_F(AccessibleTest, ADropListTakesTheTextOfAnEntryAndNoOther) {
  useType(qrnTypeList);
  for (const int i : {0, 1}) pressure().SetValueNames(i, "entry " + std::to_string(i));
  EXPECT_TRUE(editor().enter("entry 1"));
  EXPECT_FALSE(editor().enter("entry 9"));
  EXPECT_EQ(facts().value, "entry 1");
}

TEST_F(AccessibleTest, TheEntriesOfABitListAreTickedOneByOne) {
  useType(qrnTypeBitfield);
  for (const int i : {0, 1, 2}) pressure().SetValueNames(i, "bit " + std::to_string(i));
  item->SetParamValue("001");
  ASSERT_EQ(editor().childCount(), 3);
  EXPECT_EQ(editor().child(1).facts().name, "bit 1");
  EXPECT_TRUE(editor().child(1).facts().states.checkable);
  EXPECT_TRUE(editor().child(0).facts().states.checked);
  EXPECT_TRUE(editor().child(2).act());
  EXPECT_EQ(pressure().ValueText(), "101");
  EXPECT_TRUE(editor().child(2).facts().states.checked);
}

TEST_F(AccessibleTest, TheEntriesOfALockedBitListStay) {
  useType(qrnTypeBitfield);
  for (const int i : {0, 1}) pressure().SetValueNames(i, "bit");
  item->SetParamValue("01");
  item->SetParamState(qrnStateReadOnly);
  EXPECT_TRUE(editor().child(1).facts().states.readOnly);
  EXPECT_FALSE(editor().child(1).act());
  EXPECT_EQ(pressure().ValueText(), "01");
}

// ---- rows without an editor ----

TEST_F(AccessibleTest, ARowOfAnArrayIsATextToRead) {
  useType(qrnTypeArray);
  pressure().SetArraySize(2);
  item->SetParamArrayValue(1, 7.5);
  const AccessibleFacts read = rowNode().facts();
  EXPECT_EQ(read.role, AccessibleRole::Label);
  EXPECT_EQ(read.name, "Pressure (bar)");
  EXPECT_EQ(read.value, "7.5");
}

TEST_F(AccessibleTest, ARowWithoutAVisibleValueIsItsCaption) {
  pressure().SetValueVisible(false);
  EXPECT_EQ(rowNode().facts().role, AccessibleRole::Label);
  EXPECT_EQ(rowNode().facts().name, "Pressure (bar)");
  EXPECT_EQ(rowNode().facts().value, "");
}

TEST_F(AccessibleTest, ARowAroundAnEditorHasNoNameThatWouldBeSaidTwice) {
  EXPECT_EQ(rowNode().facts().role, AccessibleRole::Group);
  EXPECT_EQ(rowNode().facts().name, "");
}

TEST_F(AccessibleTest, AUnitThatIsNotShownIsNotSaid) {
  pressure().SetUnitVisible(false);
  EXPECT_EQ(facts().name, "Pressure");
  pressure().SetUnitVisible(true);
  pressure().SetUnitText("");
  EXPECT_EQ(facts().name, "Pressure");
}

TEST_F(AccessibleTest, AHiddenCaptionIsStillTheName) {
  pressure().SetLabelVisible(false);
  EXPECT_EQ(facts().name, "Pressure (bar)");
}

// ---- a listener that ends the panel ----

TEST_F(AccessibleTest, APanelMayEndWhileAToolActs) {
  useType(qrnTypeBoolean);
  const AccessibleNode box = editor();
  const auto listening = panel().ParameterClick.connect([this](std::int32_t&) { panel_.reset(); });
  EXPECT_TRUE(box.act());
  EXPECT_EQ(panel_, nullptr);
}

TEST_F(AccessibleTest, APanelMayEndWhenAToolBringsTheFocus) {
  const AccessibleNode box = editor();
  const auto listening = panel().ItemGotFocus.connect([this](std::int32_t&) { panel_.reset(); });
  EXPECT_FALSE(box.enter("2"));
  EXPECT_EQ(panel_, nullptr);
}

}  // namespace
}  // namespace qrn::test
