#include "runtime/variant.h"

#include <limits>

#include "runtime/compare_values.h"
#include "runtime/outcome.h"

namespace qrn::test {
namespace {

struct Thing : Object {
  std::string_view typeName() const override { return "Thing"; }
};

TEST(Variants, NameTheirTypes) {
  EXPECT_EQ(typeName(Variant().type()), "Empty");
  EXPECT_EQ(typeName(Variant(Null{}).type()), "Null");
  EXPECT_EQ(typeName(Variant(true).type()), "Boolean");
  EXPECT_EQ(typeName(Variant(std::int16_t{1}).type()), "Integer");
  EXPECT_EQ(typeName(Variant(1).type()), "Long");
  EXPECT_EQ(typeName(Variant(1.0F).type()), "Single");
  EXPECT_EQ(typeName(Variant(1.0).type()), "Double");
  EXPECT_EQ(typeName(Variant(Currency{1}).type()), "Currency");
  EXPECT_EQ(typeName(Variant(Decimal(1)).type()), "Decimal");
  EXPECT_EQ(typeName(Variant(Date{1}).type()), "Date");
  EXPECT_EQ(typeName(Variant("x").type()), "String");
  EXPECT_EQ(typeName(Variant(std::make_shared<Thing>()).type()), "Object");
  EXPECT_EQ(typeName(Variant(ErrorValue{1}).type()), "Error");
}

TEST(Variants, AreNumericWhenANumberCanBeMadeOfThemExceptDates) {
  for (const Variant& value : {Variant(),
                               Variant(true),
                               Variant(std::int16_t{1}),
                               Variant(1),
                               Variant(1.0F),
                               Variant(1.0),
                               Variant(Currency{1}),
                               Variant(Decimal(1)),
                               Variant("12"),
                               Variant("-1,234.5"),
                               Variant("$5"),
                               Variant("(5)"),
                               Variant("5-"),
                               Variant("1e5"),
                               Variant("1d5"),
                               Variant("&H1F"),
                               Variant(" 7 "),
                               Variant("1,2,3"),
                               Variant(".5"),
                               Variant("1e-999")}) {
    EXPECT_TRUE(isNumeric(value)) << CStr(value);
  }
  for (const Variant& value : {Variant(Null{}), Variant(Date{1}), Variant(std::make_shared<Thing>()),
                               Variant(ErrorValue{1}), Variant(""), Variant("abc"), Variant("1/2/2003"),
                               Variant("1e999"), Variant("12a"), Variant("True"), Variant("1.2.3")}) {
    EXPECT_FALSE(isNumeric(value)) << typeName(value.type());
  }
}

std::string order(const Variant& left, const Variant& right) {
  try {
    const std::partial_ordering result = compareValues(left, right);
    if (result == std::partial_ordering::unordered) return "none";
    return result < 0 ? "<" : (result > 0 ? ">" : "=");
  } catch (const RunTimeError& error) {
    return "error " + std::to_string(error.number());
  }
}

TEST(Variants, CompareNumbersByAmount) {
  EXPECT_EQ(order(1, 2.5), "<");
  EXPECT_EQ(order(2.5F, 2.5), "=");
  EXPECT_EQ(order(true, false), "<");  // True is -1
  EXPECT_EQ(order(Variant(), 0), "=");
  EXPECT_EQ(order(Date{36526}, Date{36525.5}), ">");
  EXPECT_EQ(order(Date{36526}, 36526), "=");
  EXPECT_EQ(order(CDec("0.1"), 0.1), "=");
  EXPECT_EQ(order(CDec("79228162514264337593543950335"), CDec("79228162514264337593543950334")), ">");
  EXPECT_EQ(order(CDec("79228162514264337593543950335"), 1e300), "<");
  EXPECT_EQ(order(CDec("1"), -std::numeric_limits<double>::infinity()), ">");
  EXPECT_EQ(order(Currency{std::numeric_limits<std::int64_t>::max()},
                  Currency{std::numeric_limits<std::int64_t>::max() - 1}),
            ">");
  EXPECT_EQ(order(Currency{1000}, 0.1), "=");
  EXPECT_EQ(order(std::numeric_limits<double>::quiet_NaN(), 1), "none");
  EXPECT_EQ(order(std::numeric_limits<double>::quiet_NaN(), CDec("1")), "none");
}

TEST(Variants, CompareTextsByCodePointAndBehindEveryNumber) {
  EXPECT_EQ(order("a", "b"), "<");
  EXPECT_EQ(order("B", "a"), "<");
  EXPECT_EQ(order("a", "a"), "=");
  EXPECT_EQ(order("z", "ä"), "<");
  EXPECT_EQ(order("1", 2), ">");
  EXPECT_EQ(order(2, "1"), "<");
  EXPECT_EQ(order(Variant(), ""), "=");
  EXPECT_EQ(order(Variant(), "a"), "<");
}

TEST(Variants, HaveNoOrderWithoutAValue) {
  EXPECT_EQ(order(Null{}, 1), "none");
  EXPECT_EQ(order("a", Null{}), "none");
  EXPECT_EQ(order(ErrorValue{1}, 1), "error 13");
  EXPECT_EQ(order("a", ErrorValue{1}), "error 13");
  EXPECT_EQ(order(std::make_shared<Thing>(), 1), "error 13");
}

TEST(Locales, AreSetForOneThread) {
  EXPECT_EQ(currentLocale().decimalSeparator, ".");
  const LocaleScope german(deDE());
  EXPECT_EQ(currentLocale().decimalSeparator, ",");
  Locale other = enUS();
  other.decimalSeparator = "·";
  other.groupSeparator = " ";
  const LocaleScope scope(other);
  EXPECT_EQ(CStr(1.5), "1·5");
  EXPECT_EQ(CDbl("1 234·5"), 1234.5);
  other.groupSeparator = other.dateSeparator = "";
  const LocaleScope withoutMarks(other);
  EXPECT_EQ(CDate("36526").serial, 36526);
}

}  // namespace
}  // namespace qrn::test
