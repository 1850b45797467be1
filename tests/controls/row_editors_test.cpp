#include "host/prog_ids.h"
#include "row_fixture.h"

namespace qrn::test {
namespace {

class AnEditor : public RowTest {
 protected:
  host::Editor& editor() { return *row().CurrentEditor(); }
};

// ---- which one, and when it is made ----

struct Kind {
  qrnValueType type;
  std::string_view editor;
  std::string_view frame;
};

// By name, without the caption, the unit and the icons.
std::vector<std::string> editorsIn(const QRNEdit& row) {
  std::vector<std::string> names;
  for (const host::Control* part : row.contained()) {
    if (part->Name().ends_with("Value")) names.push_back(part->Name());
  }
  return names;
}

class EachType : public RowTest, public ::testing::WithParamInterface<Kind> {};

TEST_P(EachType, HasItsEditorUnderItsName) {
  const auto& [type, editor, frame] = GetParam();
  useType(type);
  EXPECT_EQ(row().ValueType(), type);
  ASSERT_NE(row().CurrentEditor(), nullptr);
  EXPECT_EQ(row().CurrentEditor()->typeName(), editor);
  EXPECT_EQ(editorsIn(row()), std::vector<std::string>{std::string(frame)});
}

INSTANTIATE_TEST_SUITE_P(
    Row, EachType,
    ::testing::Values(Kind{qrnTypeString, "TextBox", "txtValue"}, Kind{qrnTypeInteger, "TextBox", "txtValue"},
                      Kind{qrnTypeLong, "TextBox", "txtValue"}, Kind{qrnTypeBoolean, "CheckBox", "chkValue"},
                      Kind{qrnTypeDouble, "TextBox", "txtValue"}, Kind{qrnTypeDecimal, "TextBox", "txtValue"},
                      Kind{qrnTypeDate, "TextBox", "txtValue"}, Kind{qrnTypeCurrency, "TextBox", "txtValue"},
                      Kind{qrnTypeList, "ComboBox", "cboValue"}, Kind{qrnTypeBitfield, "ListBox", "lstValue"},
                      Kind{qrnTypeHexadecimal, "TextBox", "txtValue"}));

TEST_F(AnEditor, IsMissingForAnArrayAndForUnknownTypes) {
  for (const int type : {10, 12, -1, 1000}) {
    useType(qrnTypeBoolean);
    useType(static_cast<qrnValueType>(type));
    EXPECT_EQ(row().CurrentEditor(), nullptr) << type;
    EXPECT_TRUE(editorsIn(row()).empty()) << type;
    EXPECT_EQ(row().ValueType(), type);
  }
}

TEST_F(AnEditor, IsKeptWithItsTextForATypeOfTheSameKind) {
  useType(qrnTypeString);
  host::Editor* const box = &editor();
  row().SetValue(Variant("12"));
  for (const qrnValueType type : {qrnTypeInteger, qrnTypeHexadecimal, qrnTypeDate}) {
    useType(type);
    EXPECT_EQ(&editor(), box);
    EXPECT_EQ(textBox().Text(), "12");
  }
}

TEST_F(AnEditor, IsDestroyedBeforeOneOfAnotherKindIsMade) {
  const qrnValueType types[] = {qrnTypeBoolean, qrnTypeList,  qrnTypeBitfield,
                                qrnTypeString,  qrnTypeArray, qrnTypeBoolean};
  for (const qrnValueType type : types) {
    const WeakRef<host::Control> old(row().CurrentEditor());
    const bool hadOne = row().CurrentEditor() != nullptr;
    useType(type);
    EXPECT_EQ(static_cast<bool>(old), false) << hadOne;
    EXPECT_EQ(editorsIn(row()).size(), type == qrnTypeArray ? 0u : 1u) << type;
  }
}

TEST_F(AnEditor, HandsItsColourToolTipAndWidthToTheNextOne) {
  const qrnValueType types[] = {qrnTypeBoolean, qrnTypeList, qrnTypeBitfield, qrnTypeString};
  useType(qrnTypeString);
  row().SetValueForeColor(host::rgb(1, 2, 3));
  row().SetValueToolTip("Seconds");
  row().SetValueWidth(66);
  for (const qrnValueType type : types) {
    useType(type);
    EXPECT_EQ(row().ValueForeColor(), host::rgb(1, 2, 3)) << type;
    EXPECT_EQ(row().ValueToolTip(), "Seconds") << type;
    // A disabled check box shows none itself, so what it lies in has it as well.
    if (type == qrnTypeBoolean) {
      EXPECT_EQ(checkBox().Container()->ToolTipText(), "Seconds");
    }
    EXPECT_EQ(row().ValueWidth(), 66) << type;
  }
}

TEST_F(AnEditor, HandsNothingOnThroughARowThatHasNone) {
  useType(qrnTypeString);
  row().SetValueForeColor(host::rgb(1, 2, 3));
  row().SetValueToolTip("Seconds");
  row().SetValueWidth(66);
  useType(qrnTypeArray);
  useType(qrnTypeString);
  EXPECT_EQ(row().ValueForeColor(), host::kWindowText);
  EXPECT_EQ(row().ValueToolTip(), "");
  EXPECT_EQ(row().ValueWidth(), 100);
}

TEST_F(AnEditor, TakesTheSettingsOfItsRowWhenItIsMade) {
  row().SetValueAlignment(1);
  row().SetValueMaxLength(5);
  row().SetPassword(true);
  row().SetValueUpperCase(true);
  row().SetEnabled(false);
  row().SetValueVisible(false);
  const auto font = std::make_shared<host::Font>("Serif", 20);
  row().SetFont(font);
  useType(qrnTypeString);
  EXPECT_EQ(textBox().Alignment(), 1);
  EXPECT_EQ(textBox().MaxLength(), 5);
  EXPECT_EQ(textBox().PasswordChar(), "*");
  EXPECT_TRUE(textBox().upperCase());
  EXPECT_FALSE(textBox().Enabled());
  EXPECT_FALSE(textBox().Visible());
  EXPECT_EQ(*textBox().Font(), *font);
}

TEST_F(AnEditor, OfEveryKindIsMadeInvisibleInARowThatHidesItsValue) {
  row().SetValueVisible(false);
  for (const auto type : {qrnTypeString, qrnTypeBoolean, qrnTypeList, qrnTypeBitfield}) {
    useType(type);
    EXPECT_FALSE(editor().shown()) << type;
    EXPECT_TRUE(editor().visibleOnSurface().empty()) << type;
  }
}

TEST_F(AnEditor, OfEveryKindTakesTheFontOfItsRow) {
  const auto first = std::make_shared<host::Font>("Serif", 20);
  const auto second = std::make_shared<host::Font>("Sans", 7);
  for (const qrnValueType type : {qrnTypeString, qrnTypeBoolean, qrnTypeList, qrnTypeBitfield}) {
    row().SetFont(first);
    useType(type);
    EXPECT_EQ(*editor().Font(), *first) << type;
    row().SetFont(second);
    EXPECT_EQ(*editor().Font(), *second) << type;
  }
}

TEST_F(AnEditor, ThatCanNotBeMadeLeavesTheRowWithoutOne) {
  host::setControlClasses({});
  EXPECT_EQ(errorOf([&] { useType(qrnTypeBoolean); }), 0);
  EXPECT_EQ(row().CurrentEditor(), nullptr);
  EXPECT_EQ(errorOf([&] { row().SetValue(Variant(true)); }), 0);
  EXPECT_EQ(row().ValueText(), "");
  EXPECT_FALSE(row().ValueChanged());
  row().SetValueChanged(false);
  registerControls();
  useType(qrnTypeBoolean);
  EXPECT_NE(row().CurrentEditor(), nullptr);
}

TEST_F(AnEditor, KeepsTheValueOutOfAnotherKind) {
  useType(qrnTypeString);
  row().SetValue(Variant("hello"));
  useType(qrnTypeBoolean);
  EXPECT_EQ(row().Value(), Variant(false));
  useType(qrnTypeString);
  EXPECT_EQ(row().Value(), Variant(""));
}

// ---- settings of the living editor ----

TEST_F(AnEditor, IsGreyWhileItIsLockedUnlessItIsACheckBox) {
  for (const qrnValueType type : {qrnTypeString, qrnTypeList, qrnTypeBitfield}) {
    useType(type);
    EXPECT_EQ(editor().BackColor(), 0x80000005u) << type;
    row().SetLocked(true);
    EXPECT_EQ(editor().BackColor(), 0x8000000Fu) << type;
    EXPECT_TRUE(editor().Enabled()) << type;
    useType(qrnTypeArray);
    useType(type);
    EXPECT_EQ(editor().BackColor(), 0x8000000Fu) << type;
    row().SetLocked(false);
    EXPECT_EQ(editor().BackColor(), 0x80000005u) << type;
  }
}

TEST_F(AnEditor, IsReadOnlyWhileItIsLocked) {
  useType(qrnTypeString);
  row().SetLocked(true);
  EXPECT_TRUE(textBox().Locked());
  useType(qrnTypeList);
  EXPECT_TRUE(dropList().Locked());
  row().SetLocked(false);
  EXPECT_FALSE(dropList().Locked());
}

TEST_F(AnEditor, ThatIsACheckBoxCanBeUsedOnlyWhenEnabledAndNotLocked) {
  useType(qrnTypeBoolean);
  EXPECT_TRUE(checkBox().Enabled());
  row().SetLocked(true);
  EXPECT_FALSE(checkBox().Enabled());
  row().SetEnabled(false);
  row().SetLocked(false);
  EXPECT_FALSE(checkBox().Enabled());
  row().SetLocked(true);
  row().SetEnabled(true);
  EXPECT_FALSE(checkBox().Enabled());
  row().SetLocked(false);
  EXPECT_TRUE(checkBox().Enabled());
}

TEST_F(AnEditor, ThatIsACheckBoxHasTheBackColorOfItsRow) {
  row().SetBackColor(host::rgb(9, 8, 7));
  useType(qrnTypeBoolean);
  EXPECT_EQ(checkBox().BackColor(), host::rgb(9, 8, 7));
  row().SetBackColor(host::rgb(1, 1, 1));
  EXPECT_EQ(checkBox().BackColor(), host::rgb(1, 1, 1));
}

TEST_F(AnEditor, DoesNotFollowTheForeColorOfItsRow) {
  useType(qrnTypeString);
  row().SetForeColor(host::rgb(9, 8, 7));
  EXPECT_EQ(textBox().ForeColor(), host::kWindowText);
}

TEST_F(AnEditor, ThatIsACheckBoxShowsItsToolTipOnTheLabelUnderItToo) {
  useType(qrnTypeBoolean);
  row().SetValueToolTip("Active");
  EXPECT_EQ(checkBox().ToolTipText(), "Active");
  EXPECT_EQ(checkBox().Parent()->ToolTipText(), "Active");
  const auto& parts = checkBox().Parent()->contained();
  EXPECT_EQ(parts.front()->Name(), "lblBack");
  EXPECT_EQ(parts.front()->ToolTipText(), "Active");
}

TEST_F(AnEditor, FollowsTheSettingsOfItsRow) {
  useType(qrnTypeString);
  row().SetValueAlignment(2);
  EXPECT_EQ(textBox().Alignment(), 2);
  row().SetPassword(true);
  EXPECT_EQ(textBox().PasswordChar(), "*");
  row().SetPassword(false);
  EXPECT_EQ(textBox().PasswordChar(), "");
  row().SetValueUpperCase(true);
  user->focuses(textBox());
  user->types("ab1\u00e4");
  EXPECT_EQ(row().ValueText(), "AB1\u00c4");
}

TEST_F(AnEditor, TakesNoMoreCharactersThanItsRowAllows) {
  useType(qrnTypeString);
  row().SetValueMaxLength(3);
  user->focuses(textBox());
  user->types("abcd");
  EXPECT_EQ(row().ValueText(), "abc");
  row().SetValueMaxLength(0);
  user->types("defg");
  EXPECT_EQ(row().ValueText(), "abcdefg");
}

TEST_F(AnEditor, SelectsWhatItsRowIsToldTo) {
  useType(qrnTypeString);
  row().SetValue(Variant("12345"));
  row().SetSelection(1, 3);
  EXPECT_EQ(textBox().SelStart(), 1);
  EXPECT_EQ(textBox().SelLength(), 3);
  row().SetSelection(-4, 99);
  EXPECT_EQ(textBox().SelStart(), 0);
  EXPECT_EQ(textBox().SelLength(), 5);
}

// ---- the focus while the editor changes ----

TEST_F(AnEditor, TakesTheFocusOverFromTheOneBefore) {
  useType(qrnTypeString);
  user->focuses(row());
  for (const qrnValueType type : {qrnTypeBoolean, qrnTypeList, qrnTypeBitfield, qrnTypeString}) {
    useType(type);
    EXPECT_EQ(row().input().focus(), &editor()) << type;
  }
  useType(qrnTypeArray);
  EXPECT_EQ(row().input().focus(), nullptr);
}

TEST_F(AnEditor, IsNotGivenTheFocusThatNobodyHad) {
  useType(qrnTypeString);
  useType(qrnTypeList);
  EXPECT_EQ(row().input().focus(), nullptr);
}

TEST_F(AnEditor, GetsANativeWidgetWithTheFocusAndLosesItWithIt) {
  row().realise();
  useType(qrnTypeString);
  ASSERT_EQ(platform.peers(), 1);
  user->focuses(row());
  EXPECT_EQ(platform.peers(), 2);
  useType(qrnTypeList);
  EXPECT_EQ(platform.peers(), 2);
  EXPECT_NE(editor().peer(), nullptr);
  useType(qrnTypeArray);
  EXPECT_EQ(platform.peers(), 1);
}

}  // namespace
}  // namespace qrn::test
