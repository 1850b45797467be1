#include "runtime/format_rows.h"

namespace qrn::test {
namespace {

TEST(FormatOfTexts, PlacesAreFilledFromTheRight) {
  expectFormats({
      {"abc", "@@@", "abc"},
      {"ab", "@@@@", "  ab"},
      {"", "@@@", "   "},
      {"abcdef", "@@@", "abcdef"},
      {"ab", "&&&&", "ab"},
      {"", "&&&", ""},
      {"123456", "@@@-@@@", "123-456"},
      {"1234", "@@@-@@@", "  1-234"},
      {"1234", "&&&-&&&", "1-234"},
      {"12345678", "@@@-@@@", "12345-678"},
      {"12", "@-&-@", " -1-2"},
      {"5551234", "(@@@) @@-@@", "(555) 12-34"},
      {"a", "x@", "xa"},
      {"abc", "x@", "xabc"},
      {"ab", "@@ text", "ab text"},
  });
}

TEST(FormatOfTexts, AnExclamationMarkFillsFromTheLeft) {
  expectFormats({
      {"ab", "!@@@@", "ab  "},
      {"ab", "@@@@!", "ab  "},
      {"ab", "!&&&&", "ab"},
      {"1234", "!@@@-@@@", "123-4  "},
      {"1234", "!&&&-&&&", "123-4"},
      {"abcdef", "!@@@", "abcdef"},
      {"abcdef", "!@@@-", "abc-def"},
  });
}

TEST(FormatOfTexts, TheCaseIsSetForTheWholeText) {
  expectFormats({
      {"This is IT", "<", "this is it"},
      {"This is it", ">", "THIS IS IT"},
      {"aBc", ">@@@@", " ABC"},
      {"aBc", "@@<@@", " abc"},
      {"abc", ">\\x@@@", "xABC"},
      {"äöüß", ">", "ÄÖÜß"},
      {"ÄÖÜ", "<", "äöü"},
      {"šžф", ">", "ŠŽФ"},
      {"ΩМЯ", "<", "ωмя"},
      {"abc", "<>", "ABC"},
      {"\xff"
       "ab",
       ">",
       "\xff"
       "AB"},
  });
}

TEST(FormatOfTexts, ASecondSectionIsForTheEmptyText) {
  expectFormats({
      {"", "@;none", "none"},
      {"a", "@;none", "a"},
      {Null{}, "@;none", "none"},
      {Empty{}, "@;none", "none"},
      {Null{}, "@@", "  "},
      {"", "@@;", "  "},
      {"", "@;a;b", "a"},
      {"", ">;\"@\"", "@"},
  });
}

TEST(FormatOfTexts, OtherValuesAreWrittenInFullFirst) {
  expectFormats({
      {5.5, "@@@@@", "  5.5"},
      {true, ">", "TRUE"},
      {7, "&&", "7"},
      {Date{36526}, "@", "1/1/2000"},
      {ErrorValue{1}, "@", "Error 1"},
      {ObjectPtr(), "@", "error 13"},
  });
}

TEST(FormatOfTexts, CharactersAreCodePoints) {
  expectFormats({
      {"äö", "@@@", " äö"},
      {"äö", "@-@", "ä-ö"},
      {"€5", "!@|@|@", "€|5| "},
      {"\xff\xfe", "@-@", "\xff-\xfe"},
      {"a°", "°@°@", "°a°°"},
  });
}

TEST(FormatOfTexts, TheFirstPartThatSaysSoDecidesTheKind) {
  expectFormats({
      {5.0, "0@", "5@"},
      {5.0, "@0", "50"},
      {"5", "@d", "5d"},
      {5.0, "\"@\"0", "@5"},
      {"ab", "\\0@@", "0ab"},
      {"ab", "x-@@", "x-ab"},
  });
}

TEST(FormatOfTexts, HostilePatternsCostNoMoreThanTheirLength) {
  constexpr std::size_t kLength = 100000;
  EXPECT_EQ(Format("abc", std::string(kLength, '@')).size(), kLength);
  EXPECT_EQ(Format("abc", std::string(kLength, '&')), "abc");
  EXPECT_EQ(Format("abc", std::string(kLength, '!')), "abc");
  EXPECT_EQ(Format(std::string(kLength, 'x'), "@").size(), kLength);
  EXPECT_EQ(Format(std::string(kLength, '\xff'), std::string(kLength, '@')).size(), kLength);
}

}  // namespace
}  // namespace qrn::test
