#include "runtime/like.h"

#include "runtime/outcome.h"

namespace qrn::test {
namespace {

struct LikeRow {
  std::string text;
  std::string pattern;
  std::string expected;
};

void expectLikes(std::initializer_list<LikeRow> rows) {
  for (const LikeRow& row : rows) {
    EXPECT_EQ(outcome([&] { return Like(row.text, row.pattern); }), row.expected)
        << "\"" << row.text << "\" Like \"" << row.pattern << "\"";
  }
}

TEST(Like, PlainTextsMatchThemselvesInTheirCase) {
  expectLikes({
      {"", "", "true"},
      {"F", "F", "true"},
      {"F", "f", "false"},
      {"F", "FFF", "false"},
      {"FFF", "F", "false"},
      {"", "a", "false"},
      {"a", "", "false"},
      {"a]b", "a]b", "true"},
      {"!a-", "!a-", "true"},
      {"a b", "a b", "true"},
  });
}

TEST(Like, WildcardsStandForCharactersRunsAndDigits) {
  expectLikes({
      {"a", "?", "true"},
      {"", "?", "false"},
      {"ab", "?", "false"},
      {"", "*", "true"},
      {"anything", "*", "true"},
      {"aBBBa", "a*a", "true"},
      {"a", "a*a", "false"},
      {"aa", "a*a", "true"},
      {"aM5b", "a[L-P]#[!c-e]", "true"},
      {"BAT123khg", "B?T*", "true"},
      {"CAT123khg", "B?T*", "false"},
      {"a2a", "a#a", "true"},
      {"aba", "a#a", "false"},
      {"7", "#", "true"},
      {"x", "#", "false"},
      {"12a", "##", "false"},
      {"abcabd", "*abd", "true"},
      {"ab", "a**b", "true"},
      {"abc", "*b*", "true"},
      {"mississippi", "*iss*ip*", "true"},
      {"mississippi", "*issx*", "false"},
      {"ab", "*?*?*", "true"},
      {"a", "*?*?*", "false"},
      {"123-ab", "###-??", "true"},
      {"12-ab", "###-??", "false"},
      {"٣", "#", "false"},
  });
}

TEST(Like, ListsHoldCharactersAndRanges) {
  expectLikes({
      {"F", "[A-Z]", "true"},   {"F", "[!A-Z]", "false"}, {"f", "[A-Z]", "false"},   {"b", "[abc]", "true"},
      {"d", "[abc]", "false"},  {"d", "[!abc]", "true"},  {"5", "[a-z0-9]", "true"}, {"-", "[-a]", "true"},
      {"-", "[a-]", "true"},    {"-", "[!-a]", "false"},  {"b", "[!-a]", "true"},    {"-", "[a-z]", "false"},
      {"?", "[?]", "true"},     {"x", "[?]", "false"},    {"*", "[*]", "true"},      {"#", "[#]", "true"},
      {"5", "[#]", "false"},    {"[", "[[]", "true"},     {"[x", "[[]x", "true"},    {"!", "[a!]", "true"},
      {"!", "[!]", "true"},     {"a", "[!]", "false"},    {";", "[!;]", "false"},    {"a", "[!;]", "true"},
      {"!", "[!!]", "false"},   {"a", "[a-a]", "true"},   {"ab", "a[]b", "true"},    {"", "[]", "true"},
      {"a", "[]", "false"},     {"", "[a]", "false"},     {"", "[!a]", "false"},     {"ab", "[ab]", "false"},
      {"]", "[a]]", "false"},   {"a]", "[a]]", "true"},   {"-", "[--/]", "true"},    {".", "[--/]", "true"},
      {"b", "[a-b-c]", "true"}, {"-", "[a-b-c]", "true"}, {"c", "[a-b-c]", "true"},
  });
}

TEST(Like, APatternThatCannotBeReadIsAnError) {
  expectLikes({
      {"a", "[", "error 93"},
      {"a", "[a", "error 93"},
      {"a", "a[!", "error 93"},
      {"a", "[z-a]", "error 93"},
      {"a", "[!z-a]", "error 93"},
      {"b", "a[z-a]", "error 93"},
      {"", "*[", "error 93"},
      {"x", "x*[9-0]*", "error 93"},
  });
}

TEST(Like, CharactersAreCodePoints) {
  expectLikes({
      {"ä", "?", "true"},
      {"äö", "??", "true"},
      {"€", "[€]", "true"},
      {"ö", "[ä-ü]", "true"},
      {"z", "[ä-ü]", "false"},
      {"Ω7", "?#", "true"},
      {"\xff", "?", "true"},
      {"\xff\xfe", "??", "true"},
      {"\xff\xfe", "?", "false"},
      {"ä", "a", "false"},
      {"𝄞", "?", "true"},
  });
}

TEST(Like, ManyRunsDoNotMakeItSlow) {
  const std::string text(5000, 'a');
  std::string runs;
  for (int i = 0; i < 1000; ++i) runs += "*a";
  EXPECT_TRUE(Like(text, runs));
  EXPECT_FALSE(Like(text, runs + "b"));
  EXPECT_FALSE(Like(text, runs + "*b"));
  EXPECT_TRUE(Like(text, std::string(100000, '*')));
  EXPECT_FALSE(Like(text, std::string(100000, '?')));
  EXPECT_EQ(outcome([&] { return Like(text, std::string(100000, '[')); }), "error 93");
}

TEST(Like, APatternReadOnceMatchesOften) {
  const LikePattern pattern("[!0-9]*");
  EXPECT_TRUE(pattern.matches("a1"));
  EXPECT_FALSE(pattern.matches("1a"));
  EXPECT_FALSE(pattern.matches(""));
}

}  // namespace
}  // namespace qrn::test
