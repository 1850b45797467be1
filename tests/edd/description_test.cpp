#include "reading.h"

namespace qrn::edd {
namespace {

TEST(Description, HasTheIdentificationLine) {
  const Description d = readDescriptionText(
      "MANUFACTURER 0xF1A5, DEVICE_TYPE HM_300, DEVICE_REVISION 2, DD_REVISION 1 METHOD m { }", "x.ddl");
  EXPECT_EQ(d.identification.manufacturer.text, "0xF1A5");
  EXPECT_EQ(d.identification.manufacturer.number, 0xF1A5u);
  EXPECT_EQ(d.identification.deviceType.text, "HM_300");
  EXPECT_EQ(d.identification.deviceType.number, 0u);
  EXPECT_EQ(d.identification.deviceRevision.number, 2u);
  EXPECT_EQ(d.identification.ddRevision.number, 1u);
}

TEST(Description, WarnsOfAMissingIdentification) {
  const Description d = readDescriptionText("DEVICE_TYPE 1, DD_REVISION 1 METHOD m { }", "x.ddl");
  EXPECT_EQ(warningsOf(d), (Texts{"x.ddl:1: the identification has no MANUFACTURER",
                                  "x.ddl:1: the identification has no DEVICE_REVISION"}));
}

TEST(Description, RefusesAnIdentificationOutOfRange) {
  EXPECT_EQ(errorOf(", MANUFACTURER 0x100000000"), "test.ddl:1: MANUFACTURER 0x100000000 is out of range");
  EXPECT_EQ(errorOf(", MANUFACTURER ;"), R"(test.ddl:1: expected a value of MANUFACTURER, found ";")");
}

TEST(Description, KeepsTheOrderOfDeclarations) {
  const Description d = read("VARIABLE b { TYPE FLOAT; } MENU y { } VARIABLE a { TYPE FLOAT; } MENU x { }");
  EXPECT_EQ(d.variables()[0].name, "b");
  EXPECT_EQ(d.variables()[1].name, "a");
  EXPECT_EQ(d.menus()[0].name, "y");
  EXPECT_EQ(d.menus()[1].name, "x");
}

TEST(Description, FindsEachKindByName) {
  const Description d = read("VARIABLE v { TYPE FLOAT; } MENU m { } METHOD go { }");
  EXPECT_EQ(d.variable("v"), &d.variables()[0]);
  EXPECT_EQ(d.menu("m"), &d.menus()[0]);
  EXPECT_EQ(d.method("go"), &d.methods()[0]);
}

TEST(Description, AnswersNothingForAnotherKindOrAnUnknownName) {
  const Description d = read("VARIABLE v { TYPE FLOAT; }");
  EXPECT_EQ(d.menu("v"), nullptr);
  EXPECT_EQ(d.method("v"), nullptr);
  EXPECT_EQ(d.variable("w"), nullptr);
  EXPECT_FALSE(d.find("w").has_value());
}

TEST(Description, RefusesADuplicateNameAndSaysWhereTheFirstOneIs) {
  EXPECT_EQ(errorOf("\nVARIABLE a { TYPE FLOAT; }\n\nMENU a { }"),
            R"(test.ddl:4: duplicate name "a", declared already at test.ddl:2)");
}

TEST(Description, AddsNoSecondItemOfOneName) {
  Description d;
  Menu menu;
  menu.name = "a";
  Method method;
  method.name = "a";
  EXPECT_TRUE(d.add(menu));
  EXPECT_FALSE(d.add(method));
  EXPECT_TRUE(d.methods().empty());
}

TEST(Description, KeepsItsLookupsWhenMoved) {
  Description d = read("VARIABLE v { TYPE FLOAT; }");
  const Description moved = std::move(d);
  EXPECT_EQ(moved.variable("v"), &moved.variables()[0]);
}

TEST(Description, SkipsUnknownDeclarationsWithOneWarningForEachKind) {
  const Description d = read(R"(
COMMAND read_all { TRANSACTION 0 { REQUEST { a, b } REPLY { "}" } } }
COMMAND write_all { TRANSACTION 1 { REQUEST { a } } }
UNIT u { a: b, c }
IMPORT x;
VARIABLE v { TYPE FLOAT; })");
  EXPECT_EQ(d.variables().size(), 1u);
  EXPECT_EQ(warningsOf(d), (Texts{"test.ddl:2: COMMAND is not known and skipped",
                                  "test.ddl:4: UNIT is not known and skipped",
                                  "test.ddl:5: IMPORT is not known and skipped"}));
}

TEST(Description, SkipsUnknownAttributesWithOneWarningForEachName) {
  const Description d = read(R"(VARIABLE a {
VALIDITY IF (b == 1) { TRUE; } ELSE { FALSE; }
PRE_EDIT_ACTIONS { check }
RESPONSE_CODES codes;
TYPE FLOAT { SCALING_FACTOR 0.1; }
LABEL "A"; }
VARIABLE b { VALIDITY FALSE; TYPE FLOAT; LABEL "B"; })");
  EXPECT_EQ(d.variable("a")->label, "A");
  EXPECT_EQ(d.variable("b")->label, "B");
  EXPECT_EQ(warningsOf(d), (Texts{R"(test.ddl:2: "VALIDITY" of a VARIABLE is not known and skipped)",
                                  R"(test.ddl:3: "PRE_EDIT_ACTIONS" of a VARIABLE is not known and skipped)",
                                  R"(test.ddl:4: "RESPONSE_CODES" of a VARIABLE is not known and skipped)",
                                  R"(test.ddl:5: "SCALING_FACTOR" of a FLOAT is not known and skipped)"}));
}

TEST(Description, SkipsConditionalAttributesWithAWarning) {
  const Description d = read(
      R"(VARIABLE a { LABEL IF (x) { "A"; } ELSE { "B"; } HANDLING IF (x) { READ; } TYPE FLOAT; HELP "h"; })");
  EXPECT_EQ(d.variables()[0].label, "a");
  EXPECT_EQ(d.variables()[0].help, "h");
  EXPECT_TRUE(d.variables()[0].writable);
  EXPECT_EQ(d.warnings.size(), 2u);
}

TEST(Description, SkipsUnknownClassesAndHandlingsWithAWarning) {
  const Description d = read("VARIABLE a { CLASS CONTAINED & MAGIC; HANDLING READ & DREAM; TYPE FLOAT; }");
  EXPECT_TRUE(d.variables()[0].classes.has(VariableClass::Contained));
  EXPECT_FALSE(d.variables()[0].writable);
  EXPECT_EQ(warningsOf(d), (Texts{R"(test.ddl:1: "MAGIC" of CLASS is not known and skipped)",
                                  R"(test.ddl:1: "DREAM" of HANDLING is not known and skipped)"}));
}

TEST(Description, LeavesOutWarningsThatNobodyWouldRead) {
  std::string text = "METHOD m {";
  for (int i = 0; i < 1000; ++i) text += " A" + std::to_string(i) + " x;";
  const Description d = read(text + " }");
  ASSERT_EQ(d.warnings.size(), 201u);
  EXPECT_EQ(d.warnings.back().text, "further warnings are left out");
}

TEST(Method, HasLabelAndHelpAndSkipsItsDefinitionSilently) {
  const Description d = read(R"(METHOD test(int times) { LABEL "Test"; CLASS INPUT;
    DEFINITION { char c; c = '}'; if (a ? b : c) { x = y % 2; } "}" }
    HELP "Takes a minute."; })");
  EXPECT_EQ(d.method("test")->label, "Test");
  EXPECT_EQ(d.method("test")->help, "Takes a minute.");
  EXPECT_EQ(warningsOf(d), Texts{});
}

TEST(Menu, HasItsItemsInOrderWithKindsAndPlaces) {
  const Description d = read(R"(
MENU main { LABEL "Main"; HELP "Start here."; STYLE WINDOW; ITEMS {
  v (READ_ONLY),
  v,
  sub, go } }
MENU sub { } METHOD go { } VARIABLE v { TYPE FLOAT; })");
  const Menu& main = d.menus()[0];
  EXPECT_EQ(main.label, "Main");
  EXPECT_EQ(main.help, "Start here.");
  ASSERT_EQ(main.items.size(), 4u);
  EXPECT_EQ(main.items[0].kind, ItemKind::Variable);
  EXPECT_TRUE(main.items[0].readOnly);
  EXPECT_EQ(main.items[0].line, 3);
  EXPECT_FALSE(main.items[1].readOnly);
  EXPECT_EQ(main.items[2].kind, ItemKind::Menu);
  EXPECT_EQ(d.menus()[main.items[2].index].name, "sub");
  EXPECT_EQ(main.items[3].kind, ItemKind::Method);
  EXPECT_EQ(main.items[3].line, 5);
  EXPECT_EQ(warningsOf(d), Texts{});
}

TEST(Menu, KnowsWhetherItIsADialog) {
  const Description d =
      read("MENU a { STYLE DIALOG; ITEMS { b } } MENU b { STYLE WINDOW; } MENU c { STYLE; }");
  EXPECT_TRUE(d.menu("a")->isDialog);
  EXPECT_EQ(d.menu("a")->items.size(), 1u);
  EXPECT_FALSE(d.menu("b")->isDialog);
  EXPECT_FALSE(d.menu("c")->isDialog);
}

TEST(Menu, MayEndItsItemsWithAComma) {
  EXPECT_EQ(read("MENU a { ITEMS { m, } } METHOD m { }").menus()[0].items.size(), 1u);
}

TEST(Menu, SkipsWhatIsNoItemWithOneWarningForEachKind) {
  const Description d =
      read(R"(MENU a { ITEMS { "Heading", m, SEPARATOR, list[1], set.member (READ_ONLY), SEPARATOR,
    IF (x) { m, m } ELSE { m } m (REVIEW, READ_ONLY), trend } }
    METHOD m { } CHART trend { LENGTH 5; })");
  ASSERT_EQ(d.menus()[0].items.size(), 2u);
  EXPECT_TRUE(d.menus()[0].items[1].readOnly);
  EXPECT_EQ(
      warningsOf(d),
      (Texts{
          "test.ddl:1: a text among the items of a menu is not supported and skipped",
          "test.ddl:1: SEPARATOR is not supported and skipped",
          "test.ddl:1: a menu item that is an element of a list or collection is not supported and skipped",
          "test.ddl:2: IF among the items of a menu is not supported and skipped",
          R"(test.ddl:2: "REVIEW" of a menu item is not known and skipped)",
          "test.ddl:3: CHART is not known and skipped",
          "test.ddl:2: a menu item that names a CHART is skipped"}));
}

TEST(Menu, WithAnItemThatIsNotDeclaredIsRefused) {
  EXPECT_EQ(errorOf("MENU main { ITEMS {\n pressure } }"),
            R"(test.ddl:2: menu "main" contains "pressure", which is not declared)");
}

TEST(Menu, ThatContainsItselfIsRefused) {
  EXPECT_EQ(errorOf("MENU a { ITEMS {\n a } }"), R"(test.ddl:2: menu "a" contains itself: a -> a)");
}

TEST(Menu, ThatContainsItselfThroughOthersIsRefusedWithTheWay) {
  EXPECT_EQ(errorOf("MENU main { ITEMS { a } }\nMENU a { ITEMS { b } }\nMENU b { ITEMS { c } }\nMENU c { "
                    "ITEMS { a } }"),
            R"(test.ddl:4: menu "a" contains itself: a -> b -> c -> a)");
}

TEST(Menu, MayStandInSeveralMenus) {
  EXPECT_EQ(
      errorOf("MENU main { ITEMS { a, b, c } } MENU a { ITEMS { c } } MENU b { ITEMS { c, c } } MENU c { }"),
      "");
}

std::string nestedMenus(int levels) {
  std::string text;
  for (int i = 1; i < levels; ++i)
    text += "MENU m" + std::to_string(i) + " { ITEMS { m" + std::to_string(i + 1) + " } } ";
  return text + "MENU m" + std::to_string(levels) + " { }";
}

TEST(Menu, NestsUpToTheLimitAndNoDeeper) {
  EXPECT_EQ(errorOf(nestedMenus(Description::maximumMenuDepth)), "");
  EXPECT_EQ(errorOf(nestedMenus(Description::maximumMenuDepth + 1)),
            R"(test.ddl:1: menus nest deeper than 64 levels below "m1")");
}

TEST(Menu, WithoutACommaBetweenItemsIsRefused) {
  EXPECT_EQ(errorOf("MENU a { ITEMS { m m } } METHOD m { }"),
            R"(test.ddl:1: expected "," or "}" after a menu item, found "m")");
}

TEST(Description, KnowsTheMenusThatNoOtherContains) {
  const Description d = read("MENU a { ITEMS { b } } MENU b { } MENU c { }");
  const auto roots = d.rootMenus();
  ASSERT_EQ(roots.size(), 2u);
  EXPECT_EQ(roots[0]->name, "a");
  EXPECT_EQ(roots[1]->name, "c");
}

}  // namespace
}  // namespace qrn::edd
