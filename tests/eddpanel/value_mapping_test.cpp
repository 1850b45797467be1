#include "value_mapping.h"

#include <gtest/gtest.h>

#include "runtime/locale.h"

namespace qrn::eddpanel {
namespace {

edd::Variable variableOf(edd::ValueKind kind, std::uint32_t size = 4, std::string displayFormat = {}) {
  edd::Variable variable;
  variable.name = "v";
  variable.type = {kind, size};
  variable.displayFormat = std::move(displayFormat);
  return variable;
}

edd::Variable enumerationOf(edd::ValueKind kind, std::vector<edd::Enumerator> entries) {
  edd::Variable variable = variableOf(kind, 1);
  variable.enumerators = std::move(entries);
  return variable;
}

using edd::ValueKind;

TEST(ValueMapping, GivesEachTypeItsRow) {
  EXPECT_EQ(valueTypeOf(variableOf(ValueKind::Float)), qrnTypeDouble);
  EXPECT_EQ(valueTypeOf(variableOf(ValueKind::Integer, 2)), qrnTypeInteger);
  EXPECT_EQ(valueTypeOf(variableOf(ValueKind::Integer, 4)), qrnTypeLong);
  EXPECT_EQ(valueTypeOf(variableOf(ValueKind::Ascii, 16)), qrnTypeString);
  EXPECT_EQ(valueTypeOf(variableOf(ValueKind::Password, 8)), qrnTypeString);
  EXPECT_EQ(valueTypeOf(variableOf(ValueKind::Date)), qrnTypeDate);
}

TEST(ValueMapping, TakesAWiderRowForUnsignedNumbersThatNeedIt) {
  EXPECT_EQ(valueTypeOf(variableOf(ValueKind::UnsignedInteger, 1)), qrnTypeInteger);
  EXPECT_EQ(valueTypeOf(variableOf(ValueKind::UnsignedInteger, 2)), qrnTypeLong);
  EXPECT_EQ(valueTypeOf(variableOf(ValueKind::UnsignedInteger, 4)), qrnTypeDouble);
}

TEST(ValueMapping, ShowsShortIntegersInHexadecimalWhereTheFormatSaysSo) {
  EXPECT_EQ(valueTypeOf(variableOf(ValueKind::UnsignedInteger, 2, "x")), qrnTypeHexadecimal);
  EXPECT_EQ(valueTypeOf(variableOf(ValueKind::UnsignedInteger, 4, "x")), qrnTypeDouble);
}

TEST(ValueMapping, MakesOffAndOnACheckBoxAndOtherPairsAList) {
  EXPECT_EQ(valueTypeOf(enumerationOf(ValueKind::Enumerated, {{0, "Off", ""}, {1, "On", ""}})),
            qrnTypeBoolean);
  EXPECT_EQ(valueTypeOf(enumerationOf(ValueKind::Enumerated, {{0, "Linear", ""}, {1, "Square root", ""}})),
            qrnTypeList);
  EXPECT_EQ(valueTypeOf(enumerationOf(ValueKind::Enumerated, {{1, "Off", ""}, {2, "On", ""}})), qrnTypeList);
}

TEST(ValueMapping, TurnsDisplayFormatsIntoPatterns) {
  EXPECT_EQ(valueFormatOf(variableOf(ValueKind::Float, 4, "7.3f")), "0.000");
  EXPECT_EQ(valueFormatOf(variableOf(ValueKind::Float, 4, ".0f")), "0");
  EXPECT_EQ(valueFormatOf(variableOf(ValueKind::Float, 4, "8.2e")), "0.00E+00");
  EXPECT_EQ(valueFormatOf(variableOf(ValueKind::Float, 4, "")), "");
  EXPECT_EQ(valueFormatOf(variableOf(ValueKind::Float, 4, "7.99999f")), "0.000000000000000");
  EXPECT_EQ(valueFormatOf(variableOf(ValueKind::Integer, 4, "5d")), "");
}

TEST(ValueMapping, JoinsRangesIntoOneRule) {
  edd::Variable variable = variableOf(ValueKind::Float);
  variable.ranges = {{edd::Limit{"0", 0}, edd::Limit{"10", 10}}, {edd::Limit{"20.5", 20.5}, std::nullopt}};
  EXPECT_EQ(valueRuleOf(variable), "0..10;20.5..");
}

TEST(ValueMapping, WritesTheLimitsOfARuleTheSameInEveryLanguage) {
  edd::Variable variable = variableOf(ValueKind::Double, 8);
  variable.ranges = {{edd::Limit{"0.1", 0.1}, edd::Limit{"1234567.890123456", 1234567.890123456}}};
  setCurrentLocale(deDE());
  const std::string rule = valueRuleOf(variable);
  setCurrentLocale(enUS());
  EXPECT_EQ(rule, "0.1..1234567.890123456");
}

TEST(ValueMapping, KeepsWholeNumbersInTheirType) {
  EXPECT_EQ(valueRuleOf(variableOf(ValueKind::UnsignedInteger, 1)), "0..255");
  EXPECT_EQ(valueRuleOf(variableOf(ValueKind::Integer, 2)), "-32768..32767");
  EXPECT_EQ(valueRuleOf(variableOf(ValueKind::UnsignedInteger, 4)), "0..4294967295");
  EXPECT_EQ(valueRuleOf(variableOf(ValueKind::Float, 4)), "");
  EXPECT_EQ(fromRow(variableOf(ValueKind::UnsignedInteger, 4), Variant(1.5), Variant(0.0)), Variant(2.0));
}

TEST(ValueMapping, ShowsAnEnumerationByThePlaceOfItsValue) {
  const edd::Variable variable = enumerationOf(ValueKind::Enumerated, {{10, "ten", ""}, {20, "twenty", ""}});
  EXPECT_EQ(toRow(variable, Variant(20.0)), Variant(std::int32_t{1}));
  EXPECT_EQ(toRow(variable, Variant(5.0)), Variant(std::int32_t{-1}));
  EXPECT_EQ(fromRow(variable, Variant(std::int32_t{1}), Variant(10.0)), Variant(20.0));
}

TEST(ValueMapping, ShowsBitsByTheirMasks) {
  const edd::Variable variable =
      enumerationOf(ValueKind::BitEnumerated, {{1, "a", ""}, {4, "b", ""}, {0x18, "c", ""}});
  EXPECT_EQ(toRow(variable, Variant(29.0)), Variant("111"));
  EXPECT_EQ(toRow(variable, Variant(13.0)), Variant("011"));
  EXPECT_EQ(fromRow(variable, Variant("101"), Variant(0.0)), Variant(25.0));
}

TEST(ValueMapping, LeavesBitsWithoutANameAsTheyAre) {
  const edd::Variable variable = enumerationOf(ValueKind::BitEnumerated, {{1, "a", ""}, {2, "b", ""}});
  EXPECT_EQ(fromRow(variable, Variant("10"), Variant(129.0)), Variant(130.0));
  EXPECT_EQ(fromRow(variable, Variant("11"), Variant(0x1p63)), Variant(0x1p63 + 3));
}

TEST(ValueMapping, ReadsDefaultsOfEveryKind) {
  edd::Variable number = variableOf(ValueKind::UnsignedInteger);
  number.defaultValue = "0x80";
  EXPECT_EQ(defaultOf(number), Variant(128.0));
  number.defaultValue = "0b101";
  EXPECT_EQ(defaultOf(number), Variant(5.0));
  number.defaultValue = "-0x10";
  EXPECT_EQ(defaultOf(number), Variant(-16.0));
  edd::Variable date = variableOf(ValueKind::Date);
  date.defaultValue = "2024-03-18";
  EXPECT_EQ(defaultOf(date), Variant(Date{45369}));
  edd::Variable text = variableOf(ValueKind::Ascii, 8);
  text.defaultValue = "PT-1";
  EXPECT_EQ(defaultOf(text), Variant("PT-1"));
}

}  // namespace
}  // namespace qrn::eddpanel
