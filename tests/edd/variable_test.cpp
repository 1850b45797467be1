#include "reading.h"

namespace qrn::edd {
namespace {

TEST(Variable, HasItsLabelHelpAndUnit) {
  const Variable v =
      variableOf(R"(LABEL "Pressure"; HELP "Measured now."; CONSTANT_UNIT "m³/h"; TYPE FLOAT;)");
  EXPECT_EQ(v.name, "v");
  EXPECT_EQ(v.label, "Pressure");
  EXPECT_EQ(v.help, "Measured now.");
  EXPECT_EQ(v.unit, "m³/h");
}

TEST(Variable, WithoutLabelShowsItsName) { EXPECT_EQ(variableOf("TYPE FLOAT;").label, "v"); }

TEST(Variable, KnowsTheLineItWasDeclaredOn) {
  const Description d = read("\n\nVARIABLE v { TYPE FLOAT; }");
  EXPECT_EQ(d.variables().at(0).where.file, "test.ddl");
  EXPECT_EQ(d.variables().at(0).where.line, 3);
}

TEST(Variable, MayHaveSeveralClasses) {
  const Variable v = variableOf("CLASS CONTAINED & DYNAMIC; TYPE FLOAT;");
  EXPECT_TRUE(v.classes.has(VariableClass::Contained));
  EXPECT_TRUE(v.isDynamic());
  EXPECT_FALSE(v.classes.has(VariableClass::Diagnostic));
}

TEST(Variable, IsReadAndWrittenUnlessHandlingSaysOtherwise) {
  const Variable v = variableOf("TYPE FLOAT;");
  EXPECT_TRUE(v.readable);
  EXPECT_TRUE(v.writable);
}

TEST(Variable, WithHandlingReadCannotBeWritten) {
  const Variable v = variableOf("HANDLING READ; TYPE FLOAT;");
  EXPECT_TRUE(v.readable);
  EXPECT_FALSE(v.writable);
}

TEST(Variable, WithHandlingWriteCannotBeRead) {
  const Variable v = variableOf("HANDLING WRITE; TYPE FLOAT;");
  EXPECT_FALSE(v.readable);
  EXPECT_TRUE(v.writable);
}

TEST(Variable, WithHandlingReadAndWriteCanBeBoth) {
  const Variable v = variableOf("HANDLING READ & WRITE; TYPE FLOAT;");
  EXPECT_TRUE(v.readable);
  EXPECT_TRUE(v.writable);
}

struct WrittenType {
  std::string text;
  ValueKind kind;
  std::uint32_t size;
};

class EachType : public testing::TestWithParam<WrittenType> {};

TEST_P(EachType, IsRead) {
  const Variable v = variableOf("TYPE " + GetParam().text + ";");
  EXPECT_EQ(v.type.kind, GetParam().kind);
  EXPECT_EQ(v.type.size, GetParam().size);
}

INSTANTIATE_TEST_SUITE_P(
    Variable, EachType,
    testing::Values(
        WrittenType{"INTEGER(2)", ValueKind::Integer, 2}, WrittenType{"INTEGER", ValueKind::Integer, 1},
        WrittenType{"UNSIGNED_INTEGER(4)", ValueKind::UnsignedInteger, 4},
        WrittenType{"FLOAT", ValueKind::Float, 4}, WrittenType{"DOUBLE", ValueKind::Double, 8},
        WrittenType{"ENUMERATED(2) {{1,\"a\"}}", ValueKind::Enumerated, 2},
        WrittenType{"BIT_ENUMERATED {{1,\"a\"}}", ValueKind::BitEnumerated, 1},
        WrittenType{"INDEX(1) list_of_units", ValueKind::Index, 1},
        WrittenType{"ASCII(32)", ValueKind::Ascii, 32},
        WrittenType{"PACKED_ASCII(8)", ValueKind::PackedAscii, 8},
        WrittenType{"VISIBLE(4)", ValueKind::Visible, 4}, WrittenType{"EUC(4)", ValueKind::Euc, 4},
        WrittenType{"PASSWORD(0x10)", ValueKind::Password, 16},
        WrittenType{"BITSTRING(12)", ValueKind::BitString, 12},
        WrittenType{"OCTET(6)", ValueKind::OctetString, 6}, WrittenType{"DATE", ValueKind::Date, 0},
        WrittenType{"TIME", ValueKind::Time, 0}, WrittenType{"DATE_AND_TIME", ValueKind::DateAndTime, 0},
        WrittenType{"DURATION", ValueKind::Duration, 0},
        WrittenType{"TIME_VALUE(8)", ValueKind::TimeValue, 8}));

TEST(Variable, HasTheFormatsOfItsType) {
  const Variable v = variableOf(R"(TYPE FLOAT { DISPLAY_FORMAT "7.3f"; EDIT_FORMAT "6.2f"; })");
  EXPECT_EQ(v.displayFormat, "7.3f");
  EXPECT_EQ(v.editFormat, "6.2f");
}

TEST(Variable, KeepsALimitAsTextAndAsNumber) {
  const Variable v = variableOf("TYPE FLOAT { MIN_VALUE -1.50; MAX_VALUE +16; }");
  ASSERT_EQ(v.ranges.size(), 1u);
  EXPECT_EQ(v.ranges[0].minimum->text, "-1.50");
  EXPECT_EQ(v.ranges[0].minimum->value, -1.5);
  EXPECT_EQ(v.ranges[0].maximum->text, "16");
}

TEST(Variable, MayHaveOneLimitOnly) {
  const Variable v = variableOf("TYPE INTEGER(2) { MAX_VALUE 0x10; }");
  ASSERT_EQ(v.ranges.size(), 1u);
  EXPECT_FALSE(v.ranges[0].minimum.has_value());
  EXPECT_EQ(v.ranges[0].maximum->value, 16);
}

TEST(Variable, WithNumberedLimitsHasTheirRangesInOrder) {
  const Variable v =
      variableOf("TYPE INTEGER(2) { MIN_VALUE2 20; MAX_VALUE2 30; MIN_VALUE1 0; MAX_VALUE1 10; }");
  ASSERT_EQ(v.ranges.size(), 2u);
  EXPECT_EQ(v.ranges[0].maximum->value, 10);
  EXPECT_EQ(v.ranges[1].minimum->value, 20);
}

TEST(Variable, TakesALimitInParentheses) {
  EXPECT_EQ(variableOf("TYPE INTEGER(2) { MIN_VALUE ((-40)); }").ranges.at(0).minimum->value, -40);
}

TEST(Variable, WithALimitThatIsCalculatedHasNoneAndAWarning) {
  const Description d = read("VARIABLE v { TYPE FLOAT { MIN_VALUE other.low; MAX_VALUE (2 * 5); } }");
  EXPECT_TRUE(d.variables().at(0).ranges.empty());
  EXPECT_EQ(warningsOf(d), (Texts{"test.ddl:1: MIN_VALUE is not a constant here and skipped",
                                  "test.ddl:1: MAX_VALUE is not a constant here and skipped"}));
}

TEST(Variable, ListsItsEnumerators) {
  const Variable v = variableOf(R"(TYPE ENUMERATED(1) { { 0, "Off", "No power." }, { 0x10, "On" } })");
  ASSERT_EQ(v.enumerators.size(), 2u);
  EXPECT_EQ(v.enumerators[0].value, 0u);
  EXPECT_EQ(v.enumerators[0].text, "Off");
  EXPECT_EQ(v.enumerators[0].help, "No power.");
  EXPECT_EQ(v.enumerators[1].value, 16u);
  EXPECT_EQ(v.enumerators[1].help, "");
}

TEST(Variable, ListsBitsUpToTheTopOne) {
  const Variable v = variableOf(R"(TYPE BIT_ENUMERATED(4) { { 0x80000000, "Top" } })");
  EXPECT_EQ(v.enumerators.at(0).value, 0x80000000u);
}

TEST(Variable, IgnoresClassesAndActionsOfABit) {
  const Description d = read(
      R"(VARIABLE v { TYPE BIT_ENUMERATED(1) { { 1, "A", "h", HARDWARE & ALL, { x { y } } }, { 2, "B" } } })");
  EXPECT_EQ(d.variables().at(0).enumerators.size(), 2u);
  EXPECT_EQ(warningsOf(d), Texts{});
}

TEST(Variable, HasDefaultAndInitialValuesAsWritten) {
  const Variable v = variableOf(R"(TYPE FLOAT { DEFAULT_VALUE -1.50; INITIAL_VALUE 2; })");
  EXPECT_EQ(v.defaultValue, "-1.50");
  EXPECT_EQ(v.initialValue, "2");
}

TEST(Variable, TakesADefaultValueBesideItsType) {
  EXPECT_EQ(variableOf(R"(DEFAULT_VALUE "PT-1"; TYPE ASCII(8);)").defaultValue, "PT-1");
}

TEST(Variable, CountsCharactersOfADefaultTextAndNotBytes) {
  EXPECT_EQ(variableOf(R"(TYPE ASCII(4) { DEFAULT_VALUE "äöü°"; })").defaultValue, "äöü°");
  EXPECT_EQ(errorOf(R"(VARIABLE v { TYPE ASCII(4) { DEFAULT_VALUE "12345"; } })"),
            R"(test.ddl:1: DEFAULT_VALUE "12345" of variable "v" does not fit ASCII(4))");
}

TEST(Variable, WithADefaultOutsideItsRangesIsReadWithAWarning) {
  const Description d =
      read("VARIABLE v { TYPE INTEGER(1) { MIN_VALUE1 0; MAX_VALUE1 2; MIN_VALUE2 8; DEFAULT_VALUE 5; } }");
  EXPECT_EQ(warningsOf(d), Texts{R"(test.ddl:1: DEFAULT_VALUE 5 of variable "v" is not one of its values)"});
}

TEST(Variable, WithADefaultInItsSecondRangeIsFine) {
  EXPECT_EQ(
      warningsOf(read(
          "VARIABLE v { TYPE INTEGER(1) { MIN_VALUE1 0; MAX_VALUE1 2; MIN_VALUE2 8; DEFAULT_VALUE 9; } }")),
      Texts{});
}

TEST(Variable, WithADefaultThatIsNotListedIsReadWithAWarning) {
  EXPECT_EQ(warningsOf(read(R"(VARIABLE v { TYPE ENUMERATED(1) { {1,"a"}, {2,"b"} DEFAULT_VALUE 3; } })")),
            Texts{R"(test.ddl:1: DEFAULT_VALUE 3 of variable "v" is not one of its values)"});
}

TEST(Variable, MayHaveAnyCombinationOfListedBitsAsDefault) {
  EXPECT_EQ(
      warningsOf(read(R"(VARIABLE v { TYPE BIT_ENUMERATED(1) { {1,"a"}, {2,"b"} DEFAULT_VALUE 3; } })")),
      Texts{});
  EXPECT_EQ(
      warningsOf(read(R"(VARIABLE v { TYPE BIT_ENUMERATED(1) { {1,"a"}, {2,"b"} DEFAULT_VALUE 4; } })")),
      Texts{R"(test.ddl:1: DEFAULT_VALUE 4 of variable "v" is not one of its values)"});
}

TEST(Variable, ThatListsAValueTwiceIsReadWithAWarning) {
  EXPECT_EQ(warningsOf(read(R"(VARIABLE v { TYPE ENUMERATED(1) { {1,"a"}, {1,"b"} } })")),
            Texts{R"(test.ddl:1: variable "v" lists the value 1 twice)"});
}

struct Refused {
  std::string text;
  std::string message;
};

class VariableRefused : public testing::TestWithParam<Refused> {};

TEST_P(VariableRefused, WithAMessage) {
  EXPECT_EQ(errorOf("\nVARIABLE damping {\n" + GetParam().text + "\n}"), "test.ddl:" + GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    Variable, VariableRefused,
    testing::Values(
        Refused{"TYPE FLOTA;", R"(3: unknown type "FLOTA" of variable "damping")"},
        Refused{"LABEL \"x\";", R"(2: variable "damping" has no TYPE)"},
        Refused{"TYPE FLOAT { MIN_VALUE 10; MAX_VALUE 5; }",
                R"(3: MIN_VALUE 10 of variable "damping" is greater than MAX_VALUE 5)"},
        Refused{"TYPE FLOAT { MIN_VALUE 0; MAX_VALUE 5;\n MAX_VALUE7 1; MIN_VALUE7 2; }",
                R"(4: MIN_VALUE7 2 of variable "damping" is greater than MAX_VALUE7 1)"},
        Refused{"TYPE INTEGER(1) { MAX_VALUE 128; }",
                R"(3: MAX_VALUE 128 of variable "damping" does not fit INTEGER(1))"},
        Refused{"TYPE INTEGER(1) { MIN_VALUE -129; }",
                R"(3: MIN_VALUE -129 of variable "damping" does not fit INTEGER(1))"},
        Refused{"TYPE UNSIGNED_INTEGER(2) { DEFAULT_VALUE -1; }",
                R"(3: DEFAULT_VALUE -1 of variable "damping" does not fit UNSIGNED_INTEGER(2))"},
        Refused{"TYPE INTEGER(4) { DEFAULT_VALUE 1.5; }",
                R"(3: DEFAULT_VALUE 1.5 of variable "damping" does not fit INTEGER(4))"},
        Refused{"TYPE FLOAT { DEFAULT_VALUE 1e39; }",
                R"(3: DEFAULT_VALUE 1e39 of variable "damping" does not fit FLOAT)"},
        Refused{"TYPE FLOAT { DEFAULT_VALUE \"a\"; }",
                R"(3: DEFAULT_VALUE "a" of variable "damping" is not a number)"},
        Refused{"TYPE DOUBLE { DEFAULT_VALUE 1e999; }", R"(3: number "1e999" is out of range)"},
        Refused{"TYPE DOUBLE { DEFAULT_VALUE 12abc; }", R"(3: "12abc" is not a number)"},
        Refused{"TYPE DOUBLE { DEFAULT_VALUE 0x; }", R"(3: "0x" is not a number)"},
        Refused{"TYPE DOUBLE { DEFAULT_VALUE -x; }", R"(3: expected a number, found "x")"},
        Refused{"TYPE INTEGER(9);", R"(3: size 9 of variable "damping" is out of range: INTEGER has 1 to 8)"},
        Refused{"TYPE ASCII(0);", R"(3: size 0 of variable "damping" is out of range: ASCII has 1 to 65535)"},
        Refused{
            "TYPE ASCII(99999999999999999999999);",
            R"(3: size 99999999999999999999999 of variable "damping" is out of range: ASCII has 1 to 65535)"},
        Refused{"TYPE ASCII(x);", R"(3: expected the size of variable "damping", found "x")"},
        Refused{"TYPE ENUMERATED(1) { {256, \"x\"} }",
                R"(3: value 256 of variable "damping" does not fit ENUMERATED(1))"},
        Refused{"TYPE ENUMERATED(1) { {} }", R"(3: expected a value of variable "damping", found "}")"},
        Refused{"TYPE ENUMERATED(1) { {1} }",
                R"(3: expected "," after value 1 of variable "damping", found "}")"},
        Refused{"LABEL \"x\" HELP \"y\";", R"(3: expected ";" after LABEL, found "HELP")"},
        Refused{"CLASS ;", R"(3: expected a name of CLASS, found ";")"},
        Refused{"7;", R"(3: expected an attribute of VARIABLE "damping", found "7")"}));

TEST(Variable, TakesTheSmallestAndTheGreatestNumberOfEverySize) {
  EXPECT_EQ(
      errorOf(
          "VARIABLE a { TYPE INTEGER(1) { MIN_VALUE -128; MAX_VALUE 127; } }"
          "VARIABLE b { TYPE INTEGER(8) { MIN_VALUE -9223372036854775808; MAX_VALUE 9223372036854775807; } }"
          "VARIABLE c { TYPE UNSIGNED_INTEGER(8) { MIN_VALUE 0; MAX_VALUE 0xFFFFFFFFFFFFFFFF; } }"),
      "");
  EXPECT_NE(errorOf("VARIABLE b { TYPE INTEGER(8) { MIN_VALUE -9223372036854775809; } }"), "");
  EXPECT_NE(errorOf("VARIABLE b { TYPE INTEGER(8) { MAX_VALUE 9223372036854775808; } }"), "");
}

}  // namespace
}  // namespace qrn::edd
