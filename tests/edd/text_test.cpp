#include "edd/literal.h"
#include "reading.h"

namespace qrn::edd {
namespace {

std::string label(const std::string& literals, const std::string& language = "en") {
  return variableOf("TYPE FLOAT; LABEL " + literals + ";", inLanguage(language)).label;
}

const std::string twoLanguages = R"("|en|Pressure|de|Druck")";

TEST(Text, IsInTheLanguageAskedFor) {
  EXPECT_EQ(label(twoLanguages, "en"), "Pressure");
  EXPECT_EQ(label(twoLanguages, "de"), "Druck");
}

TEST(Text, TakesALanguageInAnyCaseAndWithARegion) {
  EXPECT_EQ(label(twoLanguages, "DE-at"), "Druck");
  EXPECT_EQ(label(R"("|en us|Color|de zz|Farbe")", "de"), "Farbe");
}

TEST(Text, IsEnglishIfTheLanguageIsMissing) {
  EXPECT_EQ(label(R"("|de|Druck|en|Pressure")", "fr"), "Pressure");
}

TEST(Text, IsEnglishIfTheTranslationIsEmpty) { EXPECT_EQ(label(R"("|de||en|Pressure")", "de"), "Pressure"); }

TEST(Text, IsTheFirstLanguageIfEnglishIsMissingToo) {
  EXPECT_EQ(label(R"("|de|Druck|it|Pressione")", "fr"), "Druck");
}

TEST(Text, BeforeTheFirstLanguageIsEnglish) {
  EXPECT_EQ(label(R"("Pressure|de|Druck")", "fr"), "Pressure");
  EXPECT_EQ(label(R"("Pressure|de|Druck")", "de"), "Druck");
}

TEST(Text, KeepsBarsThatAreNoLanguage) {
  EXPECT_EQ(label(R"("a|b|c")"), "a|b|c");
  EXPECT_EQ(label(R"("|x|")"), "|x|");
  EXPECT_EQ(label(R"("|")"), "|");
  EXPECT_EQ(label(R"("|en")"), "|en");
}

TEST(Text, KeepsAnEscapedLanguageMark) { EXPECT_EQ(label(R"("a\|de|b")", "de"), "a|de|b"); }

TEST(Text, IsJoinedFromAdjacentLiterals) {
  EXPECT_EQ(label("\"|en|Pres\" \"sure\"\n\"|de|Dr\" /* u */ \"uck\"", "de"), "Druck");
}

TEST(Text, ReplacesEscapes) { EXPECT_EQ(label(R"("a\"b\\c\nd\te\x41\xB0\q")"), "a\"b\\c\nd\teA°q"); }

TEST(Text, NeverContainsNul) {
  EXPECT_EQ(label(R"("a\x00" "b")"),
            "a\uFFFD"
            "b");
}

TEST(Text, GoesOnBehindABackslashAtTheEndOfALine) {
  const Description d = read("METHOD a { LABEL \"one \\\ntwo\"; }\nMETHOD b { }");
  EXPECT_EQ(d.methods()[0].label, "one two");
  EXPECT_EQ(d.methods()[1].where.line, 3);
}

TEST(Text, ThatIsNotUtf8IsTakenAsLatin1) {
  EXPECT_EQ(label("\"\xB0"
                  "C\""),
            "°C");
}

TEST(Text, OfAnyBytesIsDecodedWithoutReadingBeyondItsEnd) {
  EXPECT_EQ(textOfLiteral("abc\\", "en"), "abc\\");
  EXPECT_EQ(textOfLiteral("\\x", "en"), "\uFFFD");
  EXPECT_EQ(textOfLiteral("", ""), "");
  EXPECT_EQ(textOfLiteral("|en|", "e"), "");
}

TEST(Text, FromADictionaryIsSkippedWithAWarning) {
  const Description d = read("METHOD a { LABEL [restart]; }");
  EXPECT_EQ(d.methods()[0].label, "a");
  EXPECT_EQ(warningsOf(d), Texts{"test.ddl:1: LABEL is not a constant here and skipped"});
}

}  // namespace
}  // namespace qrn::edd
