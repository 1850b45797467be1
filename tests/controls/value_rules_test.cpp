#include "values/value_rules.h"

#include "row_fixture.h"
#include "runtime/conversions.h"

namespace qrn::test {
namespace {

// ---- texts ----

struct TextCase {
  std::string text;
  TextRule rule;
  qrnErrorCode error;
};

class ATextRule : public ::testing::TestWithParam<TextCase> {};

TEST_P(ATextRule, AllowsOrNamesWhatIsWrong) {
  const auto& [text, rule, error] = GetParam();
  const RuleResult result = CheckTextRule(Variant(text), rule);
  EXPECT_EQ(result.error, error);
  EXPECT_EQ(result.passed, error == qrnErrorNone);
}

INSTANTIATE_TEST_SUITE_P(Texts, ATextRule,
                         ::testing::Values(TextCase{"anything", {}, qrnErrorNone},
                                           TextCase{"", {"", "0-9", 1}, qrnErrorNone},
                                           TextCase{"abc", {"", "", 3}, qrnErrorNone},
                                           TextCase{"abcd", {"", "", 3}, qrnErrorLength},
                                           TextCase{"abcd", {"", "", 0}, qrnErrorNone},
                                           // Characters count, not bytes.
                                           TextCase{"\u00e4\u00f6\u00fc", {"", "", 3}, qrnErrorNone},
                                           TextCase{"\u00e4\u00f6\u00fcx", {"", "", 3}, qrnErrorLength},
                                           TextCase{"12a", {"", "0-9", 65535}, qrnErrorCharSet},
                                           TextCase{"12A", {"", "0-9A-F", 65535}, qrnErrorNone},
                                           TextCase{"12a", {"", "0-9", 2}, qrnErrorLength},
                                           TextCase{"a;b", {"", "!;", 65535}, qrnErrorCharSet},
                                           TextCase{"a,b", {"", "!;", 65535}, qrnErrorNone},
                                           TextCase{"\u00e4", {"", "\u00e4\u00f6", 65535}, qrnErrorNone},
                                           TextCase{"123-ab", {"###-??", "", 65535}, qrnErrorNone},
                                           TextCase{"12-ab", {"###-??", "", 65535}, qrnErrorSyntax},
                                           TextCase{"x", {"[!a-m]", "", 65535}, qrnErrorNone},
                                           TextCase{"b", {"[!a-m]", "", 65535}, qrnErrorSyntax},
                                           // The characters come before the pattern.
                                           TextCase{"12-ab", {"###-??", "0-9", 65535}, qrnErrorCharSet}));

TEST(ATextRuleItself, FailsWithoutACodeForNull) {
  const RuleResult result = CheckTextRule(Variant(Null()), {});
  EXPECT_FALSE(result.passed);
  EXPECT_EQ(result.error, qrnErrorNone);
}

// ---- numbers ----

struct NumberCase {
  std::string rule;
  Variant value;
  bool passes;
};

class ANumberRule : public ::testing::TestWithParam<NumberCase> {};

TEST_P(ANumberRule, AdmitsTheNumbersOfItsRanges) {
  const auto& [rule, value, passes] = GetParam();
  const RuleResult result = CheckNumberRule(value, rule);
  EXPECT_EQ(result.passed, passes);
  EXPECT_EQ(result.error, passes ? qrnErrorNone : qrnErrorRange);
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, ANumberRule,
    ::testing::Values(NumberCase{"", Variant(5), true}, NumberCase{"0..100", Variant(0), true},
                      NumberCase{"0..100", Variant(100), true}, NumberCase{"0..100", Variant(101), false},
                      NumberCase{"0..100", Variant(-1), false}, NumberCase{"..100", Variant(-1e300), true},
                      NumberCase{"..100", Variant(100.5), false}, NumberCase{"5..", Variant(5), true},
                      NumberCase{"5..", Variant(4.999), false}, NumberCase{"..", Variant(7), true},
                      NumberCase{"..-1;1..", Variant(-1), true}, NumberCase{"..-1;1..", Variant(1), true},
                      NumberCase{"..-1;1..", Variant(0), false}, NumberCase{"..-1;1..", Variant(0.5), false},
                      // No range at all: no restriction.
                      NumberCase{"5", Variant(7), true}, NumberCase{"5;6;x", Variant(7), true},
                      // A token that is none admits nothing.
                      NumberCase{"5..;x", Variant(7), true}, NumberCase{"5..;x", Variant(4), false},
                      NumberCase{"4;5..", Variant(4), false}, NumberCase{" 1..2 ; 4..5 ", Variant(5), true},
                      NumberCase{" 1..2 ; 4..5 ", Variant(3), false},
                      NumberCase{"&H10..&H20", Variant(16), true},
                      NumberCase{"&H10..&H20", Variant(15), false},
                      NumberCase{"0.5..1.5", Variant(1.5), true}, NumberCase{"0.5..1.5", Variant(1.6), false},
                      NumberCase{"1..1e999", Variant(5), false},
                      NumberCase{"1..1e999;5..5", Variant(5), true}, NumberCase{"10..1", Variant(5), false},
                      NumberCase{";;..;", Variant(5), true}, NumberCase{"1..5..9", Variant(6), false},
                      NumberCase{"0.1..0.1", Variant(CDec(Variant("0.1"))), true},
                      NumberCase{"0.1..0.2", Variant(CDec(Variant("0.2000000000000000000001"))), false},
                      // Bounds that no Decimal can hold make their token void.
                      NumberCase{"1e50..", Variant(CDec(Variant("5"))), false}));

TEST(ANumberRuleItself, FailsWithoutACodeForNull) {
  const RuleResult result = CheckNumberRule(Variant(Null()), "0..1");
  EXPECT_FALSE(result.passed);
  EXPECT_EQ(result.error, qrnErrorNone);
}

TEST(ANumberRuleItself, RefusesWhatIsNoNumber) {
  for (const Variant& value : {Variant("abc"), Variant(ErrorValue{5}), Variant(Date{1})}) {
    EXPECT_EQ(CheckNumberRule(value, "").error, qrnErrorTypeMismatch);
    EXPECT_FALSE(CheckNumberRule(value, "").passed);
  }
}

TEST(ANumberRuleItself, ReadsItsBoundsWithAPointInEveryLocale) {
  setCurrentLocale(deDE());
  EXPECT_FALSE(CheckNumberRule(Variant(2.0), "0.5..1.5").passed);
  EXPECT_TRUE(CheckNumberRule(Variant(1.25), "0.5..1.5").passed);
  setCurrentLocale(enUS());
}

// ---- in a row ----

class ARule : public RowTest {
 protected:
  qrnErrorCode errorFor(qrnValueType valueType, std::string_view text) {
    useType(valueType);
    type(text);
    EXPECT_EQ(row().Value().isNull(), row().ValueError() != qrnErrorNone);
    return row().ValueError();
  }
};

TEST_F(ARule, OfRangesChecksEveryKindOfNumber) {
  row().SetValueRule("0..100");
  for (const qrnValueType type : {qrnTypeInteger, qrnTypeLong, qrnTypeDouble, qrnTypeDecimal}) {
    EXPECT_EQ(errorFor(type, "100"), qrnErrorNone) << type;
    EXPECT_EQ(errorFor(type, "101"), qrnErrorRange) << type;
  }
  EXPECT_EQ(errorFor(qrnTypeHexadecimal, "64"), qrnErrorNone);
  EXPECT_EQ(errorFor(qrnTypeHexadecimal, "65"), qrnErrorRange);
  EXPECT_EQ(errorFor(qrnTypeHexadecimal, "ff"), qrnErrorRange);
}

TEST_F(ARule, DecidesAboutNumbersThatTheTypeCanNotHold) {
  EXPECT_EQ(errorFor(qrnTypeInteger, "70000"), qrnErrorNone);
  row().SetValueRule("0..65535");
  EXPECT_EQ(errorFor(qrnTypeInteger, "70000"), qrnErrorRange);
}

TEST_F(ARule, SeesATextThatIsNoNumberAsZero) {
  row().SetValueRule("0..100");
  EXPECT_EQ(errorFor(qrnTypeInteger, "abc"), qrnErrorNone);
  row().SetValueRule("1..100");
  EXPECT_EQ(errorFor(qrnTypeInteger, "abc"), qrnErrorRange);
}

TEST_F(ARule, ChecksTheSerialNumberOfADate) {
  row().SetValueRule("36526..36527");
  EXPECT_EQ(errorFor(qrnTypeDate, "2000-01-02"), qrnErrorNone);
  EXPECT_EQ(errorFor(qrnTypeDate, "2000-01-03"), qrnErrorRange);
}

TEST_F(ARule, ChecksNeitherCurrencyNorChecksNorLists) {
  row().SetValueRule("1..2");
  EXPECT_EQ(errorFor(qrnTypeCurrency, "50"), qrnErrorNone);
  useType(qrnTypeBoolean);
  EXPECT_EQ(row().Value(), Variant(false));
  useType(qrnTypeList);
  EXPECT_EQ(row().Value(), Variant(-1));
  useType(qrnTypeBitfield);
  EXPECT_EQ(row().ValueError(), qrnErrorNone);
}

TEST_F(ARule, OfTextsIsThePatternTheLengthAndTheCharacters) {
  row().SetValueCharSet("0-9");
  EXPECT_EQ(errorFor(qrnTypeString, "12a"), qrnErrorCharSet);
  // Typed text would be cut off, but not one that a program has set.
  row().SetValueMaxLength(2);
  row().SetValue(Variant("12a"));
  EXPECT_EQ(row().ValueError(), qrnErrorLength);
  row().SetValueMaxLength(0);
  EXPECT_EQ(row().ValueError(), qrnErrorCharSet);
  row().SetValueCharSet("");
  row().SetValueRule("###");
  EXPECT_EQ(row().ValueError(), qrnErrorSyntax);
  row().SetValueRule("##?");
  EXPECT_EQ(row().ValueError(), qrnErrorNone);
}

TEST_F(ARule, ThatCanNotBeReadIsAnUnknownErrorAndNeverThrown) {
  row().SetValueRule("[z-a]");
  EXPECT_EQ(errorFor(qrnTypeString, "x"), qrnErrorUnknown);
  row().SetValueRule("");
  row().SetValueCharSet("z-a");
  EXPECT_EQ(errorFor(qrnTypeString, "x"), qrnErrorUnknown);
}

TEST_F(ARule, LeavesTheTextAsItWasTyped) {
  row().SetValueRule("0..1");
  EXPECT_EQ(errorFor(qrnTypeLong, "77"), qrnErrorRange);
  EXPECT_EQ(row().ValueText(), "77");
}

}  // namespace
}  // namespace qrn::test
