#include "reading.h"

namespace qrn::edd {
namespace {

bool declares(const std::string& text, const std::string& method, const ReadOptions& options = {}) {
  return read("METHOD always { }\n" + text, options).method(method) != nullptr;
}

TEST(Comments, AreSpace) {
  EXPECT_TRUE(declares("METHOD/* x */go // y }\n { /* // */ }", "go"));
  EXPECT_TRUE(declares("METHOD go { } // the last line has no end", "go"));
}

TEST(Comments, CountLines) {
  EXPECT_EQ(read("/*\n\n*/ METHOD go { }").methods()[0].where.line, 3);
  EXPECT_EQ(read("/*\r\n\r\n*/ METHOD go { }").methods()[0].where.line, 3);
}

TEST(Comments, InTextsAreText) {
  EXPECT_EQ(read(R"(METHOD m { LABEL "a//b/*c"; })").methods()[0].label, "a//b/*c");
}

TEST(Comments, WithoutEndAreRefusedWhereTheyBegin) {
  EXPECT_EQ(errorOf("\n /* a\n\n b"), "test.ddl:2: this comment has no end");
  EXPECT_EQ(errorOf("/*/"), "test.ddl:1: this comment has no end");
}

TEST(Define, ReplacesNamesButNotTexts) {
  const Description d = read(
      "\n#define UNIT_OF_FLOW \"m³/h\"\nVARIABLE v { CONSTANT_UNIT UNIT_OF_FLOW; LABEL \"UNIT_OF_FLOW\"; "
      "TYPE FLOAT; }");
  EXPECT_EQ(d.variables()[0].unit, "m³/h");
  EXPECT_EQ(d.variables()[0].label, "UNIT_OF_FLOW");
}

TEST(Define, MayUseOtherMacrosAndSeveralLines) {
  const Variable v = read(
                         "\n#define LIST {0, OFF}, \\\n {1, \"On\"}\n#define OFF \"Off\"\n"
                         "VARIABLE v { TYPE ENUMERATED(1) { LIST } }")
                         .variables()[0];
  ASSERT_EQ(v.enumerators.size(), 2u);
  EXPECT_EQ(v.enumerators[0].text, "Off");
}

TEST(Define, MayBeEmptyAndReplacedAndRemoved) {
  EXPECT_EQ(
      read("\n#define X\n#define L \"a\"\n#define L \"b\"\nMETHOD m { X LABEL L X; }").methods()[0].label,
      "b");
  EXPECT_TRUE(declares("#define go other\n#undef go\nMETHOD go { }", "go"));
}

TEST(Define, ThatExpandsToItselfIsRefusedWhereItIsUsed) {
  EXPECT_EQ(errorOf("\n#define A A\n\nMETHOD A { }"), R"(test.ddl:4: macro "A" expands to itself: A -> A)");
  EXPECT_EQ(errorOf("\n#define A B\n#define B C\n#define C B\nMETHOD A { }"),
            R"(test.ddl:5: macro "B" expands to itself: B -> C -> B)");
}

TEST(Define, ThatIsNeverUsedMayNameItself) { EXPECT_EQ(errorOf("\n#define A A\nMETHOD m { }"), ""); }

TEST(Define, MistakesShowWhereTheMacroIsUsed) {
  EXPECT_EQ(errorOf("\n#define T FLOTA\n\nVARIABLE v {\nTYPE T; }"),
            R"(test.ddl:5: unknown type "FLOTA" of variable "v")");
}

TEST(Define, WithArgumentsIsSkippedWithAWarning) {
  EXPECT_EQ(warningsOf(read("\n#define F(x) x\nMETHOD m { }")),
            Texts{R"(test.ddl:2: macro "F" takes arguments, which is not supported, and is skipped)"});
}

TEST(Define, ThatMultipliesItselfBeyondMeasureIsRefused) {
  std::string text = "\n#define M0 x\n";
  for (int i = 1; i <= 64; ++i)
    text +=
        "#define M" + std::to_string(i) + " M" + std::to_string(i - 1) + " M" + std::to_string(i - 1) + "\n";
  EXPECT_EQ(errorOf(text + "M64"), "test.ddl:67: macros expand to more than 4000000 tokens");
}

TEST(Define, ThatMultipliesNothingBeyondMeasureIsRefused) {
  std::string text = "\n#define M0\n";
  for (int i = 1; i <= 64; ++i)
    text +=
        "#define M" + std::to_string(i) + " M" + std::to_string(i - 1) + " M" + std::to_string(i - 1) + "\n";
  EXPECT_EQ(errorOf(text + "M64"), "test.ddl:67: macros expand to more than 4000000 tokens");
}

TEST(Define, MayPassThroughAHundredThousandNames) {
  std::string text = "\n";
  for (int i = 0; i < 100'000; ++i)
    text += "#define M" + std::to_string(i) + " M" + std::to_string(i + 1) + "\n";
  EXPECT_EQ(read(text + "METHOD M0 { }").methods()[0].name, "M100000");
}

TEST(Condition, TakesItsBranchByWhetherANameIsDefined) {
  EXPECT_TRUE(declares("#ifdef X\nMETHOD a { }\n#else\nMETHOD b { }\n#endif", "b"));
  EXPECT_FALSE(declares("#ifdef X\nMETHOD a { }\n#else\nMETHOD b { }\n#endif", "a"));
  EXPECT_TRUE(declares("#define X\n#ifdef X\nMETHOD a { }\n#endif", "a"));
  EXPECT_TRUE(declares("#ifndef X\nMETHOD a { }\n#endif", "a"));
}

TEST(Condition, NestsAndSkipsWhatIsInsideASkippedBranch) {
  const std::string text =
      "#ifdef X\n#ifndef Y\nMETHOD a { }\n#else\nMETHOD b { }\n#endif\n#define Z\n#include \"none\"\n"
      "#else\nMETHOD c { }\n#endif\n#ifdef Z\nMETHOD d { }\n#endif";
  EXPECT_FALSE(declares(text, "a"));
  EXPECT_FALSE(declares(text, "b"));
  EXPECT_TRUE(declares(text, "c"));
  EXPECT_FALSE(declares(text, "d"));
}

TEST(Condition, DecidesSimpleExpressions) {
  EXPECT_TRUE(declares("#define N 2\n#define M N\n#if M\nMETHOD a { }\n#endif", "a"));
  EXPECT_FALSE(declares("#if 0\nMETHOD a { }\n#endif", "a"));
  EXPECT_TRUE(declares("#if !defined(X)\nMETHOD a { }\n#endif", "a"));
  EXPECT_FALSE(declares("#if defined X\nMETHOD a { }\n#endif", "a"));
}

TEST(Condition, TakesTheFirstBranchThatHolds) {
  const std::string text =
      "#if 0\nMETHOD a { }\n#elif 1\nMETHOD b { }\n#elif 1\nMETHOD c { }\n#else\nMETHOD d { }\n#endif";
  EXPECT_FALSE(declares(text, "a"));
  EXPECT_TRUE(declares(text, "b"));
  EXPECT_FALSE(declares(text, "c"));
  EXPECT_FALSE(declares(text, "d"));
}

TEST(Condition, ThatIsNotUnderstoodIsFalseWithAWarning) {
  const Description d = read("\n#if X > 2\nMETHOD a { }\n#endif\nMETHOD b { }");
  EXPECT_EQ(d.method("a"), nullptr);
  EXPECT_EQ(warningsOf(d), Texts{"test.ddl:2: this condition of #if is not understood and taken as false"});
}

TEST(Condition, OfANameThatStandsForItselfEnds) {
  EXPECT_FALSE(declares("#define A A\n#if A\nMETHOD a { }\n#endif", "a"));
}

TEST(Condition, ThatIsNotPairedIsRefused) {
  EXPECT_EQ(errorOf("\n#ifdef X\n"), "test.ddl:2: this condition has no #endif");
  EXPECT_EQ(errorOf("\n#endif"), "test.ddl:2: #endif without #if");
  EXPECT_EQ(errorOf("\n#else"), "test.ddl:2: #else without #if");
  EXPECT_EQ(errorOf("\n#if 0\n#else\n#else\n#endif"), "test.ddl:4: #else follows #else");
  EXPECT_EQ(errorOf("\n#ifdef\n#endif"), "test.ddl:2: #ifdef needs a name");
}

TEST(Directive, ThatIsNotKnownIsSkippedWithAWarning) {
  EXPECT_EQ(warningsOf(read("\n#pragma once {\n#\nMETHOD m { }")),
            Texts{"test.ddl:2: #pragma is not known and skipped"});
}

TEST(Directive, ErrorIsRefusedWithItsText) {
  EXPECT_EQ(errorOf("\n#error no profile"), "test.ddl:2: #error no profile");
  EXPECT_EQ(errorOf("\n#error"), "test.ddl:2: #error");
}

TEST(Include, ReadsAFileBesideTheIncludingOne) {
  const auto options =
      includesFrom({{"dir/inc/a.ddh", "#include \"b.ddh\"\n"}, {"dir/inc/b.ddh", "METHOD m { }"}});
  const Description d = readDescriptionText("#include \"inc/a.ddh\"", "dir/main.ddl", options);
  EXPECT_EQ(d.method("m")->where.file, "dir/inc/b.ddh");
}

TEST(Include, TakesBackslashesInPaths) {
  EXPECT_TRUE(declares("#include \"inc\\a.ddh\"", "m", includesFrom({{"inc/a.ddh", "METHOD m { }"}})));
}

TEST(Include, SharesMacrosWithTheIncludingFile) {
  EXPECT_EQ(
      read("\n#define L \"x\"\n#include \"a\"\nMETHOD n { LABEL K; }", includesFrom({{"a", "#define K L\n"}}))
          .methods()[0]
          .label,
      "x");
}

TEST(Include, MayComeTwice) {
  const auto options = includesFrom({{"a", "#ifndef A\n#define A\nMETHOD m { }\n#endif"}});
  EXPECT_TRUE(declares("#include \"a\"\n#include \"a\"", "m", options));
}

TEST(Include, OfAMissingFileIsRefused) {
  EXPECT_EQ(errorOf("\n#include \"none.ddh\""), R"(test.ddl:2: cannot open the included file "none.ddh")");
  EXPECT_EQ(errorOf("\n#include none"), "test.ddl:2: #include needs a file name in quotes");
}

TEST(Include, OfItselfIsRefused) {
  EXPECT_EQ(errorOf("\n#include \"test.ddl\"", includesFrom({{"test.ddl", "x"}})),
            R"(test.ddl:2: the file includes itself: test.ddl -> test.ddl)");
}

TEST(Include, OfItselfThroughOthersIsRefusedWithTheWay) {
  const auto options = includesFrom({{"a", "#include \"b\""}, {"b", "\n\n#include \"./c/../a\""}});
  EXPECT_EQ(errorOf("\n#include \"a\"", options), R"(b:3: the file includes itself: a -> b -> a)");
}

TEST(Include, NestsToALimit) {
  Files files;
  for (int i = 0; i < 100; ++i)
    files["f" + std::to_string(i)] = "#include \"f" + std::to_string(i + 1) + "\"";
  EXPECT_EQ(errorOf("\n#include \"f0\"", includesFrom(files)), "f30:1: includes nest deeper than 32 files");
}

TEST(Include, ThatMultipliesItselfBeyondMeasureIsRefused) {
  Files files = {{"f24", ""}};
  for (int i = 0; i < 24; ++i) {
    const std::string line = "#include \"f" + std::to_string(i + 1) + "\"\n";
    files["f" + std::to_string(i)] = line + line;
  }
  EXPECT_NE(errorOf("\n#include \"f0\"", includesFrom(files))
                .find("the included files are more than 64 MB or 10000"),
            std::string::npos);
}

TEST(Include, OfAFileIsLoadedOnce) {
  int loads = 0;
  ReadOptions options;
  options.loadInclude = [&loads](const std::string&) {
    ++loads;
    return std::optional<std::string>("");
  };
  read("METHOD m { }\n#include \"a\"\n#include \"b/../a\"\n", options);
  EXPECT_EQ(loads, 1);
}

TEST(Include, MistakesNameTheIncludedFile) {
  EXPECT_EQ(errorOf("\n#include \"a\"", includesFrom({{"a", "\n}"}})),
            R"(a:2: expected a declaration, found "}")");
}

TEST(Include, WithAnOpenConditionIsRefused) {
  EXPECT_EQ(errorOf("\n#include \"a\"\n#endif", includesFrom({{"a", "#if 1\n"}})),
            "a:1: this condition has no #endif");
}

}  // namespace
}  // namespace qrn::edd
