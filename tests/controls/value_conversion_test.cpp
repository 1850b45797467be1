#include <cmath>
#include <limits>

#include "row_fixture.h"

namespace qrn::test {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

class AValue : public RowTest {
 protected:
  void show(qrnValueType type, const Variant& value) {
    useType(type);
    row().SetValue(value);
  }
  void enter(qrnValueType valueType, std::string_view text) {
    useType(valueType);
    type(text);
  }
  std::string text() { return textBox().Text(); }
};

// ---- to the editor ----

struct Shown {
  qrnValueType type;
  Variant value;
  std::string format;
  std::string text;

  friend void PrintTo(const Shown& one, std::ostream* out) { *out << one.type << " " << one.text; }
};

class ShowsA : public RowTest, public ::testing::WithParamInterface<Shown> {};

TEST_P(ShowsA, ValueAsThisText) {
  const auto& [type, value, format, text] = GetParam();
  useType(type);
  row().SetValueFormat(format);
  row().SetValue(value);
  EXPECT_EQ(textBox().Text(), text);
  EXPECT_FALSE(row().ValueChanged());
}

INSTANTIATE_TEST_SUITE_P(
    TextBox, ShowsA,
    ::testing::Values(
        Shown{qrnTypeString, Variant("text"), "", "text"}, Shown{qrnTypeString, Variant(5), "", "5"},
        // The format is for everything but texts.
        Shown{qrnTypeString, Variant(5), "0.00", "5"}, Shown{qrnTypeString, Variant(true), "", "True"},
        Shown{qrnTypeString, Variant(), "", ""}, Shown{qrnTypeInteger, Variant(7), "", "7"},
        Shown{qrnTypeInteger, Variant(7), "000", "007"},
        // What is no number is shown as it is.
        Shown{qrnTypeInteger, Variant("abc"), "", "abc"}, Shown{qrnTypeInteger, Variant("abc"), "0.0", "abc"},
        Shown{qrnTypeLong, Variant("12"), "0.0", "12.0"}, Shown{qrnTypeDouble, Variant(0.1), "", "0.1"},
        Shown{qrnTypeDouble, Variant(1234.5), "#,##0.00", "1,234.50"},
        Shown{qrnTypeDouble, Variant(1234.5), "0.00E+00", "1.23E+03"},
        Shown{qrnTypeDouble, Variant(Null()), "0.0", ""},
        Shown{qrnTypeDecimal, Variant(2.5), "0.000", "2.500"},
        Shown{qrnTypeDate, Variant(Date{36526}), "yyyy-mm-dd", "2000-01-01"},
        Shown{qrnTypeDate, Variant(36526), "yyyy-mm-dd", "2000-01-01"},
        Shown{qrnTypeCurrency, Variant(Currency{15000}), "", "1.5"},
        Shown{qrnTypeHexadecimal, Variant(255), "", "FF"}, Shown{qrnTypeHexadecimal, Variant(0), "", "0"},
        Shown{qrnTypeHexadecimal, Variant(-1), "", "FFFFFFFF"},
        Shown{qrnTypeHexadecimal, Variant(0x7FFFFFFF), "", "7FFFFFFF"},
        Shown{qrnTypeHexadecimal, Variant("255"), "", "FF"}, Shown{qrnTypeHexadecimal, Variant(), "", "0"},
        Shown{qrnTypeHexadecimal, Variant(255), "0000", "FF"},
        Shown{qrnTypeHexadecimal, Variant(254.6), "0", "FF"}));

struct Special {
  Variant value;
  std::string format;
  std::string text;

  friend void PrintTo(const Special& one, std::ostream* out) { *out << one.text; }
};

class ShowsANumberThatIsNone : public RowTest, public ::testing::WithParamInterface<Special> {};

TEST_P(ShowsANumberThatIsNone, AsAFixedTextThatIsNotReadBack) {
  const auto& [value, format, text] = GetParam();
  useType(qrnTypeDouble);
  row().SetValueFormat(format);
  row().SetValue(value);
  EXPECT_EQ(row().ValueText(), text);
  EXPECT_EQ(row().ValueError(), qrnErrorNone);
  EXPECT_FALSE(row().ValueChanged());
  const auto* number = value.get<double>();
  const Variant read = row().Value();
  if (number && std::isnan(*number))
    EXPECT_TRUE(std::isnan(*read.get<double>()));
  else
    EXPECT_EQ(read, value);
}

INSTANTIATE_TEST_SUITE_P(Double, ShowsANumberThatIsNone,
                         ::testing::Values(Special{Variant(kInfinity), "", "IEEE#: +INFINITE"},
                                           Special{Variant(-kInfinity), "", "IEEE#: -INFINITE"},
                                           Special{Variant(kNoNumber), "", "IEEE#: NOT A NUMBER"},
                                           Special{Variant(kInfinity), "0.00", "IEEE#: +INFINITE"},
                                           Special{Variant(-kInfinity), "0.00E+00", "IEEE#: -INFINITE"},
                                           Special{Variant(kNoNumber), "0.00", "IEEE#: NOT A NUMBER"},
                                           Special{Variant(std::numeric_limits<float>::infinity()), "",
                                                   "IEEE#: +INFINITE"},
                                           Special{Variant("1.#INF"), "", "IEEE#: +INFINITE"},
                                           Special{Variant("-1.#INF"), "", "IEEE#: -INFINITE"},
                                           Special{Variant("-1,#inf"), "", "IEEE#: -INFINITE"},
                                           Special{Variant("1.#QNAN"), "", "IEEE#: NOT A NUMBER"},
                                           Special{Variant("-1.#IND"), "", "IEEE#: NOT A NUMBER"}));

TEST_F(AValue, ThatIsNoNumberPassesEveryRule) {
  useType(qrnTypeDouble);
  row().SetValueRule("0..100");
  row().SetValue(Variant(kInfinity));
  EXPECT_EQ(row().Value(), Variant(kInfinity));
  EXPECT_EQ(row().ValueError(), qrnErrorNone);
}

TEST_F(AValue, OfATextRowKeepsTheMarksOfInfinity) {
  show(qrnTypeString, Variant(kInfinity));
  EXPECT_EQ(text(), "1.#INF");
}

// The accepted value is the one that was given, and no digits can show its fraction.
TEST_F(AValue, WithAFractionCountsAsChangedInAHexadecimalRow) {
  show(qrnTypeHexadecimal, Variant(2.6));
  EXPECT_EQ(text(), "3");
  EXPECT_TRUE(row().ValueChanged());
  row().SetValueChanged(false);
  EXPECT_FALSE(row().ValueChanged());
}

TEST_F(AValue, TicksTheCheckBoxWhenItIsNotZero) {
  for (const Variant& value : {Variant(true), Variant(-1), Variant(0.5), Variant("True"), Variant("7")}) {
    show(qrnTypeBoolean, value);
    EXPECT_EQ(checkBox().Value(), 1);
    EXPECT_EQ(row().Value(), Variant(true));
    EXPECT_EQ(row().ValueText(), "True");
  }
  for (const Variant& value : {Variant(false), Variant(0), Variant(), Variant("False"), Variant("0")}) {
    show(qrnTypeBoolean, value);
    EXPECT_EQ(checkBox().Value(), 0);
    EXPECT_EQ(row().Value(), Variant(false));
    EXPECT_EQ(row().ValueText(), "False");
  }
}

TEST_F(AValue, OfAListSelectsByNumberOrByName) {
  useType(qrnTypeList);
  addEntries({"off", "on", "on", "On"});
  row().SetValue(Variant(2));
  EXPECT_EQ(row().Value(), Variant(2));
  row().SetValue(Variant("on"));
  EXPECT_EQ(row().Value(), Variant(1));
  EXPECT_EQ(row().ValueText(), "on");
  row().SetValue(Variant("On"));
  EXPECT_EQ(row().Value(), Variant(3));
  row().SetValueText("0");
  EXPECT_EQ(row().Value(), Variant(0));
  row().SetValue(Variant("ON"));
  EXPECT_EQ(row().Value(), Variant(-1));
  EXPECT_EQ(row().ValueText(), "");
}

TEST_F(AValue, OfAListIsRoundedToAnEntry) {
  useType(qrnTypeList);
  addEntries({"a", "b", "c"});
  row().SetValue(Variant(1.5));
  EXPECT_EQ(row().Value(), Variant(2));
  row().SetValue(Variant());
  EXPECT_EQ(row().Value(), Variant(0));
}

TEST_F(AValue, OfABitFieldTicksTheEntriesWithAOne) {
  useType(qrnTypeBitfield);
  addEntries({"a", "b", "c"});
  row().SetValue(Variant("101"));
  EXPECT_TRUE(bitList().Selected(0));
  EXPECT_FALSE(bitList().Selected(1));
  EXPECT_TRUE(bitList().Selected(2));
  EXPECT_EQ(row().Value(), Variant("101"));
  EXPECT_EQ(row().ValueText(), "101");
  row().SetValue(Variant("1"));
  EXPECT_EQ(row().Value(), Variant("001"));
}

TEST_F(AValue, OfABitFieldMayBeANumberWhoseDigitsAreTheBits) {
  useType(qrnTypeBitfield);
  addEntries({"a", "b", "c"});
  row().SetValue(Variant(110));
  EXPECT_EQ(row().Value(), Variant("110"));
}

TEST_F(AValue, OfABitFieldIgnoresBitsWithoutAnEntry) {
  useType(qrnTypeBitfield);
  addEntries({"a", "b"});
  row().SetValue(Variant("11101"));
  EXPECT_EQ(row().Value(), Variant("01"));
  EXPECT_FALSE(row().ValueChanged());
}

TEST_F(AValue, OfABitFieldLeavesNoEntryCurrent) {
  useType(qrnTypeBitfield);
  addEntries({"a", "b"});
  bitList().SetListIndex(1);
  row().SetValue(Variant("10"));
  EXPECT_EQ(bitList().ListIndex(), -1);
}

TEST_F(AValue, OfABitFieldWithoutEntriesIsAnEmptyText) {
  show(qrnTypeBitfield, Variant("101"));
  EXPECT_EQ(row().Value(), Variant(""));
}

TEST_F(AValue, OfAnUnknownTypeIsNeitherShownNorRead) {
  show(static_cast<qrnValueType>(99), Variant(5));
  EXPECT_EQ(row().CurrentEditor(), nullptr);
  EXPECT_EQ(row().ValueText(), "");
  EXPECT_EQ(row().Value(), Variant(Null()));
  EXPECT_EQ(row().ValueError(), qrnErrorUnknown);
  EXPECT_TRUE(row().ValueChanged());
}

// ---- what can't be shown ----

struct Refused {
  qrnValueType type;
  Variant before;
  Variant value;
  std::int32_t error;

  friend void PrintTo(const Refused& one, std::ostream* out) {
    *out << one.type << " refuses with " << one.error;
  }
};

class RefusesA : public RowTest, public ::testing::WithParamInterface<Refused> {};

TEST_P(RefusesA, ValueItCanNotShowAndStaysAsItWas) {
  const auto& [type, before, value, error] = GetParam();
  useType(type);
  addEntries({"a", "b", "c"});
  row().SetArraySize(2);
  row().SetCurrentArrayValueIndex(0);
  row().SetValue(before);
  const Variant shown = row().Value();
  const bool changed = row().ValueChanged();
  notified();
  EXPECT_EQ(errorOf([&, &wrong = value] { row().SetValue(wrong); }), error);
  EXPECT_EQ(row().Value(), shown);
  EXPECT_EQ(row().ValueChanged(), changed);
  EXPECT_EQ(notified(), Events{});
}

const Variant kObject = Variant(std::make_shared<host::Font>());

INSTANTIATE_TEST_SUITE_P(EveryType, RefusesA,
                         ::testing::Values(Refused{qrnTypeString, Variant("x"), Variant(Null()), 94},
                                           Refused{qrnTypeString, Variant("x"), kObject, 13},
                                           Refused{qrnTypeLong, Variant(5), Variant(Null()), 94},
                                           Refused{qrnTypeDouble, Variant(kInfinity), Variant(Null()), 94},
                                           Refused{qrnTypeDouble, Variant(kInfinity), kObject, 13},
                                           Refused{qrnTypeBoolean, Variant(true), Variant("maybe"), 13},
                                           Refused{qrnTypeBoolean, Variant(true), Variant(Null()), 94},
                                           Refused{qrnTypeList, Variant(1), Variant(3), 380},
                                           Refused{qrnTypeList, Variant(1), Variant(-2), 380},
                                           Refused{qrnTypeList, Variant(1), Variant(1e10), 6},
                                           Refused{qrnTypeList, Variant(1), Variant(Null()), 94},
                                           Refused{qrnTypeBitfield, Variant("101"), Variant(Null()), 94},
                                           Refused{qrnTypeBitfield, Variant("101"), kObject, 13},
                                           Refused{qrnTypeArray, Variant("x"), Variant(Null()), 94},
                                           Refused{qrnTypeHexadecimal, Variant(16), Variant("abc"), 13},
                                           Refused{qrnTypeHexadecimal, Variant(16), Variant(4294967296.0), 6},
                                           Refused{qrnTypeHexadecimal, Variant(16), Variant(Null()), 94}));

// ---- from the editor ----

struct Typed {
  qrnValueType type;
  std::string text;
  Variant value;
  qrnErrorCode error = qrnErrorNone;

  friend void PrintTo(const Typed& one, std::ostream* out) { *out << one.type << " " << one.text; }
};

class ReadsA : public RowTest, public ::testing::WithParamInterface<Typed> {};

TEST_P(ReadsA, TypedTextAsThisValue) {
  const auto& [valueType, text, value, error] = GetParam();
  useType(valueType);
  type(text);
  EXPECT_EQ(row().Value(), value);
  EXPECT_EQ(row().ValueError(), error);
}

const Variant kNull = Null();
constexpr auto kMismatch = qrnErrorTypeMismatch;

INSTANTIATE_TEST_SUITE_P(
    TextBox, ReadsA,
    ::testing::Values(
        Typed{qrnTypeString, "text", Variant("text")}, Typed{qrnTypeInteger, "12", Variant(std::int16_t{12})},
        Typed{qrnTypeInteger, "-2.5", Variant(std::int16_t{-2})},
        Typed{qrnTypeInteger, "70000", Variant(70000.0)}, Typed{qrnTypeInteger, "abc", Variant(0.0)},
        Typed{qrnTypeInteger, "12 mbar", Variant(12.0)}, Typed{qrnTypeInteger, "", Variant(0.0)},
        Typed{qrnTypeLong, "70000", Variant(70000)}, Typed{qrnTypeLong, "3000000000", Variant(3000000000.0)},
        Typed{qrnTypeLong, "&HFF", Variant(255)},
        // Too large for every number, so nothing is left.
        Typed{qrnTypeLong, "1e999", kNull, qrnErrorUnknown},
        Typed{qrnTypeDecimal, "1e999", kNull, qrnErrorUnknown}, Typed{qrnTypeDouble, "2.5", Variant(2.5)},
        Typed{qrnTypeDouble, "abc", kNull, kMismatch}, Typed{qrnTypeDouble, "", kNull, kMismatch},
        Typed{qrnTypeDouble, "1e999", kNull, qrnErrorRange}, Typed{qrnTypeDecimal, "abc", Variant(0.0)},
        Typed{qrnTypeDate, "2000-01-01", Variant(Date{36526})}, Typed{qrnTypeDate, "abc", kNull, kMismatch},
        Typed{qrnTypeDate, "9999999", kNull, qrnErrorRange},
        Typed{qrnTypeCurrency, "1.5", Variant(Currency{15000})},
        Typed{qrnTypeCurrency, "abc", kNull, kMismatch}, Typed{qrnTypeCurrency, "1e20", kNull, qrnErrorRange},
        Typed{qrnTypeHexadecimal, "FF", Variant(255)}, Typed{qrnTypeHexadecimal, "ff", Variant(-1)},
        Typed{qrnTypeHexadecimal, " 1", Variant(-1)}, Typed{qrnTypeHexadecimal, "-1", Variant(-1)},
        Typed{qrnTypeHexadecimal, "7FFFFFFF", Variant(0x7FFFFFFF)},
        Typed{qrnTypeHexadecimal, "FFFFFFFF", Variant(0.0)}));

TEST_F(AValue, OfADecimalRowIsExact) {
  enter(qrnTypeDecimal, "0.1000000000000000000000001");
  EXPECT_EQ(row().Value(), Variant(CDec(Variant("0.1000000000000000000000001"))));
}

TEST_F(AValue, OfAHexadecimalRowIsADecimalNumberAsText) {
  show(qrnTypeHexadecimal, Variant(255));
  EXPECT_EQ(row().ValueText(), "255");
  type("ff");
  EXPECT_EQ(row().ValueText(), "-1");
}

TEST_F(AValue, IsReadAsItIsTypedForAText) {
  for (const qrnValueType type : {qrnTypeInteger, qrnTypeDouble, qrnTypeDate, qrnTypeCurrency}) {
    enter(type, "no number");
    EXPECT_EQ(row().ValueText(), "no number");
  }
}

TEST_F(AValue, GivenAsATextIsFormattedLikeANumber) {
  useType(qrnTypeDouble);
  row().SetValueFormat("0.00");
  row().SetValueText("2.5");
  EXPECT_EQ(row().ValueText(), "2.50");
}

TEST_F(AValue, IsShownAndReadTheWayOfTheLocale) {
  setCurrentLocale(deDE());
  show(qrnTypeDouble, Variant(2.5));
  EXPECT_EQ(text(), "2,5");
  EXPECT_EQ(row().Value(), Variant(2.5));
}

TEST_F(AValue, IsTheCheckMarkTheUserHasSet) {
  show(qrnTypeBoolean, Variant(false));
  checkBox().userToggled();
  EXPECT_EQ(row().Value(), Variant(true));
}

// ---- changed or not ----

TEST_F(AValue, IsUnchangedInEveryTypeUntilTheEditorDiffers) {
  const std::pair<qrnValueType, Variant> shown[] = {
      {qrnTypeString, Variant("a")},   {qrnTypeInteger, Variant(1)},      {qrnTypeLong, Variant(1)},
      {qrnTypeDouble, Variant(1.5)},   {qrnTypeDecimal, Variant(1)},      {qrnTypeDate, Variant(Date{36526})},
      {qrnTypeCurrency, Variant(1.5)}, {qrnTypeHexadecimal, Variant(255)}};
  for (const auto& [valueType, value] : shown) {
    show(valueType, value);
    EXPECT_FALSE(row().ValueChanged()) << valueType;
    type("123");
    EXPECT_TRUE(row().ValueChanged()) << valueType;
    raised();
    row().SetValueChanged(true);
    EXPECT_TRUE(row().ValueChanged()) << valueType;
    EXPECT_EQ(raised(), Events{});
    row().SetValueChanged(false);
    EXPECT_FALSE(row().ValueChanged()) << valueType;
    EXPECT_EQ(raised(), Events{"StatusChange"}) << valueType;
    row().SetValueChanged(false);
    EXPECT_EQ(raised(), Events{}) << valueType;
  }
}

TEST_F(AValue, OfACheckBoxChangesWithItsTick) {
  show(qrnTypeBoolean, Variant(true));
  checkBox().userToggled();
  EXPECT_TRUE(row().ValueChanged());
  checkBox().userToggled();
  EXPECT_FALSE(row().ValueChanged());
  checkBox().userToggled();
  raised();
  row().SetValueChanged(false);
  EXPECT_EQ(raised(), Events{"StatusChange"});
  EXPECT_FALSE(row().ValueChanged());
}

TEST_F(AValue, OfAListChangesWithTheChosenEntry) {
  useType(qrnTypeList);
  addEntries({"a", "b"});
  row().SetValue(Variant(0));
  dropList().userSelected(1);
  EXPECT_TRUE(row().ValueChanged());
  raised();
  row().SetValueChanged(false);
  EXPECT_EQ(raised(), Events{"StatusChange"});
  EXPECT_FALSE(row().ValueChanged());
}

TEST_F(AValue, OfABitFieldChangesWithAnyEntry) {
  useType(qrnTypeBitfield);
  addEntries({"a", "b", "c"});
  row().SetValue(Variant("001"));
  EXPECT_FALSE(row().ValueChanged());
  bitList().userChecked(2);
  EXPECT_TRUE(row().ValueChanged());
  bitList().userChecked(2);
  EXPECT_FALSE(row().ValueChanged());
  bitList().userChecked(0);
  raised();
  row().SetValueChanged(false);
  EXPECT_EQ(raised(), Events{"StatusChange"});
  EXPECT_FALSE(row().ValueChanged());
}

TEST_F(AValue, IsUnchangedWhileNothingHasBeenShownOrTouched) {
  for (int type = qrnTypeString; type <= qrnTypeHexadecimal; ++type) {
    useType(static_cast<qrnValueType>(type));
    addEntries({"a"});
    EXPECT_EQ(row().ValueChanged(), type == qrnTypeArray) << type;
  }
  useType(qrnTypeList);
  addEntries({"a"});
  dropList().userSelected(0);
  EXPECT_TRUE(row().ValueChanged());
}

TEST_F(AValue, IsComparedByCase) {
  show(qrnTypeString, Variant("a"));
  type("A");
  EXPECT_TRUE(row().ValueChanged());
}

TEST_F(AValue, CountsAsChangedAsSoonAsItsTextDiffersEvenIfTheNumberDoesNot) {
  show(qrnTypeDouble, Variant(1.5));
  type("1.50");
  EXPECT_TRUE(row().ValueChanged());
  show(qrnTypeHexadecimal, Variant(255));
  type("0FF");
  EXPECT_FALSE(row().ValueChanged());
}

TEST_F(AValue, WithATooLargeHexadecimalTextIsChangedUntilItIsAccepted) {
  show(qrnTypeHexadecimal, Variant(1));
  for (const char* text : {"80000000", "123456789", "31.12.1999"}) {
    type(text);
    EXPECT_TRUE(row().ValueChanged()) << text;
    raised();
    row().SetValueChanged(false);
    EXPECT_EQ(raised(), (Events{"StatusChange"})) << text;
    EXPECT_FALSE(row().ValueChanged()) << text;
  }
  type("1");
  EXPECT_TRUE(row().ValueChanged());
}

TEST_F(AValue, OfAnArrayAlwaysCountsAsChanged) {
  useType(qrnTypeArray);
  EXPECT_TRUE(row().ValueChanged());
  row().SetArraySize(1);
  row().SetArrayValue(0, Variant(1));
  raised();
  row().SetValueChanged(false);
  EXPECT_TRUE(row().ValueChanged());
  EXPECT_EQ(raised(), Events{});
}

TEST_F(AValue, SetAgainBecomesTheAcceptedOneWithoutAnEvent) {
  show(qrnTypeLong, Variant(1));
  type("2");
  raised();
  row().SetValue(Variant(3));
  EXPECT_FALSE(row().ValueChanged());
  EXPECT_EQ(raised(), Events{});
}

}  // namespace
}  // namespace qrn::test
