// Values at the edges of what an editor can show and read back, for whole rows.
#include <limits>

#include "row_fixture.h"

namespace qrn::test {
namespace {

class ARowAtTheEdge : public RowTest {
 protected:
  void enter(qrnValueType valueType, std::string_view text) {
    useType(valueType);
    type(text);
  }
};

// Only digits that are left over for the fallback make a number: it reads decimal digits and a decimal
// exponent.
TEST_F(ARowAtTheEdge, ReadsAHexadecimalTextBeyondALongAsTheDecimalNumberItStartsWith) {
  enter(qrnTypeHexadecimal, "7FFFFFFF");
  EXPECT_EQ(row().Value(), Variant(0x7FFFFFFF));
  type("80000000");
  EXPECT_EQ(row().Value(), Variant(80000000.0));
  type("800000000000");
  EXPECT_EQ(row().Value(), Variant(800000000000.0));
  type("9E000002");
  EXPECT_EQ(row().Value(), Variant(900.0));
  type("8000000G");
  EXPECT_EQ(row().Value(), Variant(8000000.0));
  type("FFFFFFFF");
  EXPECT_EQ(row().Value(), Variant(0.0));
  EXPECT_EQ(row().ValueError(), qrnErrorNone);
}

TEST_F(ARowAtTheEdge, ChecksTheFallbackOfAHexadecimalTextByItsRule) {
  row().SetValueRule("0..100");
  enter(qrnTypeHexadecimal, "80000000");
  EXPECT_EQ(row().ValueError(), qrnErrorRange);
  type("FFFFFFFF");
  EXPECT_EQ(row().ValueError(), qrnErrorNone);
}

TEST_F(ARowAtTheEdge, HasNoHexadecimalTextBeyondALongAsADecimalOne) {
  enter(qrnTypeHexadecimal, "80000000");
  EXPECT_EQ(row().ValueText(), "");
  type("7FFFFFFF");
  EXPECT_EQ(row().ValueText(), "2147483647");
}

TEST_F(ARowAtTheEdge, UnticksTheBitsAShortValueDoesNotHave) {
  useType(qrnTypeBitfield);
  addEntries({"a", "b", "c"});
  row().SetValue(Variant("101"));
  row().SetValue(Variant("1"));
  EXPECT_TRUE(bitList().Selected(0));
  EXPECT_FALSE(bitList().Selected(1));
  EXPECT_FALSE(bitList().Selected(2));
}

TEST_F(ARowAtTheEdge, WithoutAMaximumLengthTakesATextOfAnyLength) {
  useType(qrnTypeString);
  row().SetValueMaxLength(0);
  EXPECT_EQ(textBox().MaxLength(), 0);
  const std::string longText(70000, 'x');
  type(longText);
  EXPECT_EQ(row().Value(), Variant(longText));
  EXPECT_EQ(row().ValueError(), qrnErrorNone);
}

TEST_F(ARowAtTheEdge, RefusesATextThatItsPatternDoesNotMatch) {
  row().SetValueRule("###-??");
  enter(qrnTypeString, "123-ab");
  EXPECT_EQ(row().Value(), Variant("123-ab"));
  type("12-ab");
  EXPECT_EQ(row().Value(), Variant(Null()));
  EXPECT_EQ(row().ValueError(), qrnErrorSyntax);
}

TEST_F(ARowAtTheEdge, AdmitsEveryNumberButTheOneBetweenItsRanges) {
  row().SetValueRule("..-1;1..");
  enter(qrnTypeDouble, "-1");
  EXPECT_EQ(row().ValueError(), qrnErrorNone);
  type("1e300");
  EXPECT_EQ(row().ValueError(), qrnErrorNone);
  type("0");
  EXPECT_EQ(row().ValueError(), qrnErrorRange);
  row().SetValueRule("5");
  EXPECT_EQ(row().ValueError(), qrnErrorNone);
  row().SetValueRule("5..;x");
  EXPECT_EQ(row().ValueError(), qrnErrorRange);
  type("5");
  EXPECT_EQ(row().ValueError(), qrnErrorNone);
}

TEST_F(ARowAtTheEdge, ForgetsItsElementsWithEveryNewArraySize) {
  useType(qrnTypeArray);
  row().SetArraySize(4);
  row().SetArrayValue(2, Variant("c"));
  row().SetArraySize(4);
  for (std::int32_t i = 0; i < 4; ++i) EXPECT_EQ(row().ArrayValue(i), Variant()) << i;
  EXPECT_EQ(row().CurrentArrayValueIndex(), 2);
}

TEST_F(ARowAtTheEdge, DoesNotTakeAGermanDayThatDoesNotExistForANumber) {
  setCurrentLocale(deDE());
  enter(qrnTypeDate, "29.2.2000");
  EXPECT_EQ(row().Value(), Variant(Date{36585}));
  type("29.2.1900");
  EXPECT_EQ(row().Value(), Variant(Null()));
  EXPECT_EQ(row().ValueError(), qrnErrorTypeMismatch);
}

TEST_F(ARowAtTheEdge, TakesATextOfAProgramWithTheOtherSeparatorLikeATypedOne) {
  setCurrentLocale(deDE());
  useType(qrnTypeDouble);
  row().SetValue(Variant("3.5"));
  EXPECT_EQ(textBox().Text(), "3,5");
  EXPECT_EQ(row().Value(), Variant(3.5));
  EXPECT_FALSE(row().ValueChanged());
}

TEST_F(ARowAtTheEdge, LeavesTheSeparatorsOfEveryOtherType) {
  setCurrentLocale(deDE());
  for (const qrnValueType valueType : {qrnTypeString, qrnTypeDecimal, qrnTypeCurrency}) {
    useType(valueType);
    row().SetValue(Variant("3.5"));
    EXPECT_EQ(textBox().Text(), "3.5") << valueType;
  }
}

TEST_F(ARowAtTheEdge, LeavesTheGroupsThatAFormatMakes) {
  setCurrentLocale(deDE());
  useType(qrnTypeDouble);
  row().SetValueFormat("#,##0.0");
  row().SetValue(Variant(1234.5));
  EXPECT_EQ(textBox().Text(), "1.234,5");
  EXPECT_EQ(row().Value(), Variant(1234.5));
}

TEST_F(ARowAtTheEdge, ShowsAHexadecimalDateUnchanged) {
  useType(qrnTypeHexadecimal);
  row().SetValue(Variant(Date{255}));
  EXPECT_EQ(textBox().Text(), "FF");
  EXPECT_FALSE(row().ValueChanged());
}

TEST_F(ARowAtTheEdge, TellsAChangeOfATextThatNoLongHolds) {
  useType(qrnTypeHexadecimal);
  row().SetValue(Variant(-1));
  EXPECT_EQ(textBox().Text(), "FFFFFFFF");
  EXPECT_FALSE(row().ValueChanged());
  type("FFFFFFFE");
  EXPECT_TRUE(row().ValueChanged());
}

TEST_F(ARowAtTheEdge, TakesAnEmptyTextWhateverItsCharacters) {
  useType(qrnTypeString);
  row().SetValueCharSet("z-a");
  row().SetValue(Variant(""));
  EXPECT_EQ(row().Value(), Variant(""));
  EXPECT_EQ(row().ValueError(), qrnErrorNone);
  type("a");
  EXPECT_EQ(row().ValueError(), qrnErrorUnknown);
}

TEST_F(ARowAtTheEdge, ShowsInfinityInEveryKindOfNumberButReadsItBackInADoubleOnly) {
  const Variant infinity(std::numeric_limits<double>::infinity());
  for (const qrnValueType valueType :
       {qrnTypeInteger, qrnTypeLong, qrnTypeDecimal, qrnTypeDate, qrnTypeCurrency}) {
    useType(valueType);
    row().SetValue(infinity);
    EXPECT_EQ(textBox().Text(), "IEEE#: +INFINITE") << valueType;
    EXPECT_NE(row().Value(), infinity) << valueType;
  }
  EXPECT_EQ(row().ValueError(), qrnErrorTypeMismatch) << "no amount of money";
  useType(qrnTypeDecimal);
  EXPECT_EQ(row().Value(), Variant(0.0)) << "what Val makes of the text";
}

}  // namespace
}  // namespace qrn::test
