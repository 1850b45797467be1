#include "host/class_table.h"
#include "row_fixture.h"

namespace qrn::test {
namespace {

class TheEditor : public RowTest {
 protected:
  host::Editor& editor() { return *row().CurrentEditor(); }
};

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

TEST_F(TheEditor, NamesItsRowAsTheSourceOfAnErrorAtDesignTime) {
  site.ambientProperties.userMode = false;
  try {
    row().SetValueCount(1);
    FAIL() << "no error";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.source(), "QRNEdit");
    EXPECT_EQ(error.description(), "Get not supported at design time.");
  }
}

TEST_F(TheEditor, WithoutAListHasNoEntries) {
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

TEST_F(TheEditor, FillsAQrnCheckOverItsLabel) {
  const auto control = alone<QRNCheck>(site);
  EXPECT_EQ(control->Check().bounds(), (Rect{0, 0, 80, 30}));
  EXPECT_EQ(control->contained().front()->Name(), "lblBack");
  EXPECT_EQ(control->contained().front()->bounds(), (Rect{0, 0, 80, 30}));
}

TEST_F(TheEditor, FillsAQrnDropListInItsWidthOnly) {
  const auto control = alone<QRNDropList>(site);
  EXPECT_EQ(control->Combo().bounds(), (Rect{0, 0, 80, 21}));
}

TEST_F(TheEditor, FillsAQrnBitList) {
  const auto control = alone<QRNBitList>(site);
  EXPECT_EQ(control->List().bounds(), (Rect{0, 0, 80, 30}));
}

TEST_F(TheEditor, FillsItsControlInTheScaleOfThat) {
  const auto control = alone<QRNCheck>(site);
  control->SetScaleMode(1);
  EXPECT_EQ(control->Check().bounds(), (Rect{0, 0, 1200, 450}));
  EXPECT_EQ(control->Check().pixelSize(), (Size{80, 30}));
}

template <class T>
class EditorsByName : public RowTest {};
using Editors = ::testing::Types<QRNCheck, QRNDropList, QRNBitList>;
TYPED_TEST_SUITE(EditorsByName, Editors);

TYPED_TEST(EditorsByName, TakeTheirScaleAndKeepItInNoBag) {
  const auto control = alone<TypeParam>(this->site);
  const host::Property* scale = control->classTable().find("ScaleMode");
  ASSERT_NE(scale, nullptr);
  scale->write(*control, Variant(1));
  EXPECT_EQ(control->ScaleMode(), 1);
  host::PropertyBag bag;
  control->writeProperties(bag);
  EXPECT_EQ(bag.find("ScaleMode"), nullptr);
}

TEST_F(TheEditor, OfABitFieldMakesItsFirstEntryCurrentWithTheFocus) {
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

TEST_F(TheEditor, OfALockedBitFieldTakesNoTick) {
  useType(qrnTypeBitfield);
  addEntries({"a", "b", "c"});
  row().SetValue(Variant("010"));
  row().SetLocked(true);
  raised();
  for (std::int16_t i = 0; i < 3; ++i) bitList().userChecked(i);
  EXPECT_EQ(row().Value(), Variant("010"));
  EXPECT_EQ(raised(), Events{});
}

TEST_F(TheEditor, OfALockedBitFieldNeverGivenAValueTakesNoTick) {
  useType(qrnTypeBitfield);
  addEntries({"a"});
  row().SetLocked(true);
  bitList().userChecked(0);
  EXPECT_EQ(row().Value(), Variant("0"));
}

TEST_F(TheEditor, OfALockedBitFieldStillHearsAfterAReportOfNoEntry) {
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
