#include "row_fixture.h"
#include "values/QRNArray.h"
#include "values/clsQRNArray.h"

namespace qrn::test {
namespace {

const Variant kEmpty;
const Variant kNull = Null();

// ---- the array itself ----

TEST(AnArray, StartsWithoutElements) {
  const clsQRNArray array;
  EXPECT_EQ(array.ArrayType(), 0);
  EXPECT_EQ(array.Size(), 0);
  EXPECT_EQ(array.CurrentArrayValueIndex(), -1);
  EXPECT_EQ(array.Value(0), kNull);
}

TEST(AnArray, StartsWithEmptyElements) {
  clsQRNArray array;
  array.SetSize(3);
  EXPECT_EQ(array.Value(0), kEmpty);
  EXPECT_EQ(array.Value(2), kEmpty);
  EXPECT_EQ(array.Value(3), kNull);
  EXPECT_EQ(array.Value(-1), kNull);
}

TEST(AnArray, KeepsAnElementAndIgnoresOneOutside) {
  clsQRNArray array;
  array.SetSize(2);
  array.SetValue(1, Variant("b"));
  array.SetValue(2, Variant("c"));
  array.SetValue(-1, Variant("z"));
  EXPECT_EQ(array.Value(1), Variant("b"));
  EXPECT_EQ(array.Value(0), kEmpty);
  EXPECT_EQ(array.Value(2), kNull);
}

TEST(AnArray, ForgetsItsElementsWithEveryNewSize) {
  clsQRNArray array;
  array.SetSize(4);
  array.SetValue(0, Variant(1));
  array.SetSize(4);
  EXPECT_EQ(array.Value(0), kEmpty);
}

TEST(AnArray, KeepsItsElementsOutOfReachForASizeOfNothing) {
  for (const std::int32_t nothing : {0, -7}) {
    clsQRNArray array;
    array.SetSize(2);
    array.SetValue(0, Variant("a"));
    array.SetCurrentArrayValueIndex(0);
    array.SetSize(nothing);
    EXPECT_EQ(array.Size(), nothing);
    EXPECT_EQ(array.Value(0), kNull);
    EXPECT_EQ(array.CurrentArrayValue(), Variant("a"));
  }
}

TEST(AnArray, AnswersItsFirstElementForACurrentIndexOutside) {
  clsQRNArray array;
  array.SetSize(3);
  array.SetValue(0, Variant("first"));
  for (const std::int32_t outside : {-1, 3, 100}) {
    array.SetCurrentArrayValueIndex(outside);
    EXPECT_EQ(array.CurrentArrayValueIndex(), outside);
    EXPECT_EQ(array.CurrentArrayValue(), Variant("first"));
    array.SetCurrentArrayValue(Variant("lost"));
    EXPECT_EQ(array.CurrentArrayValue(), Variant("first"));
  }
}

TEST(AnArray, HasNoCurrentElementWithoutElements) {
  clsQRNArray array;
  EXPECT_EQ(errorOf([&] { array.CurrentArrayValue(); }), 9);
  array.SetSize(0);
  EXPECT_EQ(errorOf([&] { array.CurrentArrayValue(); }), 9);
}

TEST(AnArray, OfAnySizeTakesRoomOnlyForWhatIsStored) {
  clsQRNArray array;
  constexpr std::int32_t kHuge = std::numeric_limits<std::int32_t>::max();
  array.SetSize(kHuge);
  array.SetValue(kHuge - 1, Variant("last"));
  EXPECT_EQ(array.Value(kHuge - 1), Variant("last"));
  EXPECT_EQ(array.Value(kHuge - 2), kEmpty);
  EXPECT_EQ(array.Value(kHuge), kNull);
}

TEST(AnArray, ConvertsNothingByItsType) {
  clsQRNArray array;
  array.SetSize(1);
  array.SetArrayType(qrnTypeLong);
  array.SetValue(0, Variant("text"));
  EXPECT_EQ(array.ArrayType(), qrnTypeLong);
  EXPECT_EQ(array.Value(0), Variant("text"));
}

TEST(TheArrayControl, HasNoParts) {
  headless::HeadlessPlatform platform;
  headless::HeadlessSite site(platform);
  const auto control = host::create<QRNArray>(site);
  EXPECT_EQ(control->FlexGrid(), nullptr);
  EXPECT_EQ(control->TextBox(), nullptr);
  EXPECT_TRUE(control->contained().empty());
}

// ---- in a row ----

class AnArrayRow : public RowTest {
 protected:
  AnArrayRow() {
    useType(qrnTypeArray);
    notified();
  }
};

TEST_F(AnArrayRow, HasNoEditor) { EXPECT_EQ(row().CurrentEditor(), nullptr); }

TEST_F(AnArrayRow, StartsWithoutAnArray) {
  EXPECT_EQ(row().ArrayType(), 0);
  EXPECT_EQ(row().ArraySize(), 0);
  EXPECT_EQ(row().ArrayValue(0), kEmpty);
  EXPECT_EQ(row().CurrentArrayValueIndex(), -1);
  EXPECT_EQ(row().CurrentArrayValue(), kEmpty);
  EXPECT_EQ(row().Value(), kEmpty);
  EXPECT_EQ(row().ValueText(), "");
}

TEST_F(AnArrayRow, LosesATypeAndValuesThatComeBeforeTheSize) {
  row().SetArrayType(qrnTypeDouble);
  EXPECT_EQ(row().ArrayType(), 0);
  row().SetArrayValue(0, Variant(1));
  row().SetCurrentArrayValue(Variant(1));
  EXPECT_EQ(notified(), Events{});
  row().SetArraySize(2);
  row().SetArrayType(qrnTypeDouble);
  EXPECT_EQ(row().ArrayType(), qrnTypeDouble);
  EXPECT_EQ(row().ArrayValue(0), kEmpty);
}

TEST_F(AnArrayRow, CanTakeItsTypeAfterACurrentIndex) {
  row().SetCurrentArrayValueIndex(2);
  row().SetArrayType(qrnTypeLong);
  EXPECT_EQ(row().ArrayType(), qrnTypeLong);
  EXPECT_EQ(row().CurrentArrayValueIndex(), 2);
}

TEST_F(AnArrayRow, StoresItsElementsAsTheyAreDisplayed) {
  row().SetArraySize(3);
  row().SetValueFormat("0.00");
  row().SetArrayValue(1, Variant(2.5));
  EXPECT_EQ(row().ArrayValue(1), Variant("2.50"));
  EXPECT_EQ(row().Value(), Variant("2.50"));
  EXPECT_EQ(row().ValueText(), "2.50");
  EXPECT_EQ(row().CurrentArrayValueIndex(), 1);
  EXPECT_EQ(notified(), (Events{"ValueFormat", "Value", "ValueText"}));
}

TEST_F(AnArrayRow, StoresAsATextWhatHasNoFormat) {
  row().SetArraySize(1);
  row().SetArrayValue(0, Variant(2.5));
  EXPECT_EQ(row().ArrayValue(0), Variant("2.5"));
}

TEST_F(AnArrayRow, MakesAnIndexOutsideCurrentButStoresNothingThere) {
  row().SetArraySize(3);
  row().SetArrayValue(0, Variant("first"));
  row().SetArrayValue(5, Variant("lost"));
  EXPECT_EQ(row().CurrentArrayValueIndex(), 5);
  EXPECT_EQ(row().CurrentArrayValue(), Variant("first"));
  EXPECT_EQ(row().ArrayValue(5), kNull);
}

TEST_F(AnArrayRow, AnswersEmptyForAnElementNeverWrittenAndNullOutside) {
  row().SetArraySize(3);
  EXPECT_EQ(row().ArrayValue(1), kEmpty);
  EXPECT_EQ(row().ArrayValue(3), kNull);
}

TEST_F(AnArrayRow, ReadsItsCurrentElementAsItsValue) {
  row().SetArraySize(2);
  row().SetCurrentArrayValueIndex(1);
  row().SetValue(Variant("b"));
  row().SetCurrentArrayValueIndex(0);
  row().SetValue(Variant("a"));
  EXPECT_EQ(row().ArrayValue(1), Variant("b"));
  EXPECT_EQ(row().Value(), Variant("a"));
}

TEST_F(AnArrayRow, WithoutElementsHasAnErrorInsteadOfAValue) {
  row().SetCurrentArrayValueIndex(0);
  EXPECT_EQ(errorOf([&] { row().CurrentArrayValue(); }), 9);
  EXPECT_EQ(row().Value(), kNull);
  EXPECT_EQ(row().ValueError(), qrnErrorUnknown);
  EXPECT_EQ(row().ValueText(), "");
}

TEST_F(AnArrayRow, TurnsToAnElementThatItThenRefusesToStore) {
  row().SetArraySize(3);
  row().SetArrayValue(1, Variant("b"));
  EXPECT_EQ(errorOf([&] { row().SetArrayValue(2, Variant(Null())); }), 94);
  EXPECT_EQ(row().CurrentArrayValueIndex(), 2);
  EXPECT_EQ(row().ArrayValue(1), Variant("b"));
  EXPECT_EQ(row().ArrayValue(2), kEmpty);
}

TEST_F(AnArrayRow, IsPaintedAgainWithANewElement) {
  row().SetArraySize(3);
  row().realise();
  auto& shown = static_cast<headless::HeadlessPeer&>(*row().peer());
  shown.invalidated.clear();
  row().SetArrayValue(1, Variant("b"));
  EXPECT_FALSE(shown.invalidated.empty());
}

TEST_F(AnArrayRow, KeepsItsArrayThroughOtherTypes) {
  row().SetArraySize(2);
  row().SetArrayValue(0, Variant("a"));
  useType(qrnTypeString);
  row().SetArrayValue(1, Variant("shown"));
  EXPECT_EQ(textBox().Text(), "shown");
  useType(qrnTypeArray);
  EXPECT_EQ(row().ArrayValue(0), Variant("a"));
  EXPECT_EQ(row().ArrayValue(1), kEmpty);
  EXPECT_EQ(row().CurrentArrayValueIndex(), 1);
}

}  // namespace
}  // namespace qrn::test
