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

class EachType : public RowTest, public ::testing::WithParamInterface<Kind> {};

TEST_P(EachType, HasItsEditorUnderItsName) {
  const auto& [type, editor, frame] = GetParam();
  useType(type);
  EXPECT_EQ(row().ValueType(), type);
  ASSERT_NE(row().CurrentEditor(), nullptr);
  EXPECT_EQ(row().CurrentEditor()->typeName(), editor);
  EXPECT_NE(row().controls().find(frame), nullptr);
  EXPECT_EQ(row().controls().count(), 1);
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
    EXPECT_EQ(row().controls().count(), 0) << type;
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
    EXPECT_EQ(row().controls().count(), type == qrnTypeArray ? 0 : 1) << type;
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

// ---- the entries of the lists ----

class TheEntries : public RowTest, public ::testing::WithParamInterface<qrnValueType> {
 protected:
  TheEntries() { useType(GetParam()); }
  Events names() {
    Events result;
    for (int i = 0; i < row().ValueCount(); ++i) result.push_back(row().ValueNames(i));
    return result;
  }
};

TEST_P(TheEntries, AreEmptyAndNumberedZeroWhenTheyAreCounted) {
  row().SetValueCount(3);
  EXPECT_EQ(names(), (Events{"", "", ""}));
  for (int i = 0; i < 3; ++i) EXPECT_EQ(row().ValueItems(i), 0);
}

TEST_P(TheEntries, GrowAndShrinkAtTheEnd) {
  addEntries({"a", "b", "c"});
  row().SetValueCount(2);
  EXPECT_EQ(names(), (Events{"a", "b"}));
  row().SetValueCount(4);
  EXPECT_EQ(names(), (Events{"a", "b", "", ""}));
}

TEST_P(TheEntries, AreAllGoneForACountOfNothing) {
  for (const std::int16_t nothing : {0, -1, -32768}) {
    row().SetValueCount(2);
    row().SetValueCount(nothing);
    EXPECT_EQ(row().ValueCount(), 0);
  }
}

TEST_P(TheEntries, AreRenamedInTheListAndAppendedOutsideIt) {
  row().SetValueNames(7, "a");
  row().SetValueItems(0, 70);
  row().SetValueNames(1, "b");
  row().SetValueNames(-1, "c");
  row().SetValueNames(0, "A");
  EXPECT_EQ(names(), (Events{"A", "b", "c"}));
  EXPECT_EQ(row().ValueItems(0), 70);
  EXPECT_EQ(row().ValueItems(2), 0);
}

TEST_P(TheEntries, KeepANumberEach) {
  row().SetValueCount(2);
  row().SetValueItems(1, -5);
  EXPECT_EQ(row().ValueItems(0), 0);
  EXPECT_EQ(row().ValueItems(1), -5);
}

TEST_P(TheEntries, AreRefusedOutsideTheList) {
  row().SetValueCount(2);
  for (const int outside : {-1, 2}) {
    EXPECT_EQ(errorOf([&] { row().ValueNames(outside); }), 380);
    EXPECT_EQ(errorOf([&] { row().ValueItems(outside); }), 380);
    EXPECT_EQ(errorOf([&] { row().SetValueItems(outside, 1); }), 380);
  }
  EXPECT_EQ(names(), (Events{"", ""}));
}

TEST_P(TheEntries, CanBeAsManyAsTheirCountCanSay) {
  row().SetValueCount(32767);
  EXPECT_EQ(row().ValueCount(), 32767);
  EXPECT_EQ(errorOf([&] { row().SetValueNames(-1, "one more"); }), 6);
  EXPECT_EQ(row().ValueCount(), 32767);
}

TEST_P(TheEntries, CanNotBeUsedAtDesignTime) {
  site.ambientProperties.userMode = false;
  EXPECT_EQ(errorOf([&] { row().ValueCount(); }), 394);
  EXPECT_EQ(errorOf([&] { row().SetValueCount(1); }), 394);
  EXPECT_EQ(errorOf([&] { row().ValueNames(0); }), 394);
  EXPECT_EQ(errorOf([&] { row().SetValueNames(0, "a"); }), 383);
  EXPECT_EQ(errorOf([&] { row().ValueItems(0); }), 394);
  EXPECT_EQ(errorOf([&] { row().SetValueItems(0, 1); }), 383);
  site.ambientProperties.userMode = true;
  EXPECT_EQ(row().ValueCount(), 0);
}

INSTANTIATE_TEST_SUITE_P(Row, TheEntries, ::testing::Values(qrnTypeList, qrnTypeBitfield));

TEST_F(AnEditor, NamesItsRowAsTheSourceOfAnErrorAtDesignTime) {
  site.ambientProperties.userMode = false;
  try {
    row().SetValueCount(1);
    FAIL() << "no error";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.source(), "QRNEdit");
    EXPECT_EQ(error.description(), "Get not supported at design time.");
  }
}

TEST_F(AnEditor, WithoutAListHasNoEntries) {
  useType(qrnTypeString);
  row().SetValueCount(3);
  row().SetValueNames(0, "a");
  row().SetValueItems(0, 1);
  EXPECT_EQ(row().ValueCount(), 0);
  EXPECT_EQ(row().ValueNames(0), "");
  EXPECT_EQ(row().ValueItems(0), 0);
}

// ---- the composite editors by themselves ----

template <class T>
host::Owned<T> alone(host::Site& site) {
  auto control = host::create<T>(site);
  control->Move(0, 0, 80, 30);
  return control;
}

TEST_F(AnEditor, FillsAQrnCheckOverItsLabel) {
  const auto control = alone<QRNCheck>(site);
  EXPECT_EQ(control->Check().bounds(), (Rect{0, 0, 80, 30}));
  EXPECT_EQ(control->contained().front()->Name(), "lblBack");
  EXPECT_EQ(control->contained().front()->bounds(), (Rect{0, 0, 80, 30}));
}

TEST_F(AnEditor, FillsAQrnDropListInItsWidthOnly) {
  const auto control = alone<QRNDropList>(site);
  EXPECT_EQ(control->Combo().bounds(), (Rect{0, 0, 80, 21}));
}

TEST_F(AnEditor, FillsAQrnBitList) {
  const auto control = alone<QRNBitList>(site);
  EXPECT_EQ(control->List().bounds(), (Rect{0, 0, 80, 30}));
}

TEST_F(AnEditor, FillsItsControlInTheScaleOfThat) {
  const auto control = alone<QRNCheck>(site);
  control->SetScaleMode(1);
  EXPECT_EQ(control->Check().bounds(), (Rect{0, 0, 1200, 450}));
  EXPECT_EQ(control->Check().pixelSize(), (Size{80, 30}));
}

TEST_F(AnEditor, OfABitFieldMakesItsFirstEntryCurrentWithTheFocus) {
  useType(qrnTypeBitfield);
  user->focuses(row());
  EXPECT_EQ(bitList().ListIndex(), -1);
  row().input().setFocus(nullptr);
  addEntries({"a", "b"});
  user->focuses(row());
  EXPECT_EQ(bitList().ListIndex(), 0);
  bitList().userMovedTo(1);
  row().input().setFocus(nullptr);
  user->focuses(row());
  EXPECT_EQ(bitList().ListIndex(), 1);
}

TEST_F(AnEditor, OfALockedBitFieldTakesNoTick) {
  useType(qrnTypeBitfield);
  addEntries({"a", "b", "c"});
  row().SetValue(Variant("010"));
  row().SetLocked(true);
  raised();
  for (std::int16_t i = 0; i < 3; ++i) bitList().userChecked(i);
  EXPECT_EQ(row().Value(), Variant("010"));
  EXPECT_EQ(raised(), Events{});
}

TEST_F(AnEditor, OfALockedBitFieldNeverGivenAValueTakesNoTick) {
  useType(qrnTypeBitfield);
  addEntries({"a"});
  row().SetLocked(true);
  bitList().userChecked(0);
  EXPECT_EQ(row().Value(), Variant("0"));
}

TEST_F(AnEditor, OfALockedBitFieldStillHearsAfterAReportOfNoEntry) {
  useType(qrnTypeBitfield);
  addEntries({"a"});
  row().SetLocked(true);
  EXPECT_EQ(errorOf([&] { row().childItemChecked(bitList(), 99); }), 0);
  row().SetLocked(false);
  raised();
  bitList().userChecked(0);
  EXPECT_EQ(raised(), Events{"ItemCheck(0)"});
}

}  // namespace
}  // namespace qrn::test
