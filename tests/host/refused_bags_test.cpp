#include <cmath>
#include <random>

#include "bags.h"

namespace qrn::test {
namespace {

// Every refusal names the text, the line, and what is wrong there.
struct Refusal {
  const char* lines;
  const char* expected;
};

TEST(PropertyBags, SayWhereAndWhyATextIsRefused) {
  const Refusal refusals[] = {
      {"Width", "panel.qrn:2: property \"Width\": expected \"=\""},
      {"Width Long 5", "panel.qrn:2: property \"Width\": expected \"=\""},
      {"= Long 5", "panel.qrn:2: expected a property's name"},
      {"A = True\n\nWidth = Lung 5", "panel.qrn:4: property \"Width\": unknown type \"Lung\""},
      {"Width =", "panel.qrn:2: property \"Width\": unknown type \"\""},
      {"Width = 5", "panel.qrn:2: property \"Width\": unknown type \"5\""},
      {"Width = Long", "panel.qrn:2: property \"Width\": \"\" is no Long"},
      {"Width = Long 2147483648", "panel.qrn:2: property \"Width\": \"2147483648\" is no Long"},
      {"Width = Long 5.5", "panel.qrn:2: property \"Width\": \"5.5\" is no Long"},
      {"Width = Integer 32768", "panel.qrn:2: property \"Width\": \"32768\" is no Integer"},
      {"Width = Double 1,5", "panel.qrn:2: property \"Width\": \"1,5\" is no Double"},
      {"Width = Double 1e999", "panel.qrn:2: property \"Width\": \"1e999\" is no Double"},
      {"Width = Single 1e39", "panel.qrn:2: property \"Width\": \"1e39\" is no Single"},
      {"Width = Double nan", "panel.qrn:2: property \"Width\": \"nan\" is no Double"},
      {"Width = Double -inf", "panel.qrn:2: property \"Width\": \"-inf\" is no Double"},
      {"Width = Single infinity", "panel.qrn:2: property \"Width\": \"infinity\" is no Single"},
      {"Width = Date nan(5)", "panel.qrn:2: property \"Width\": \"nan(5)\" is no Date"},
      {"Width = Date monday", "panel.qrn:2: property \"Width\": \"monday\" is no Date"},
      {"Width = Error x", "panel.qrn:2: property \"Width\": \"x\" is no Error"},
      {"Width = Currency 1e30", "panel.qrn:2: property \"Width\": \"1e30\" is no Currency"},
      {"Width = Currency 1,5", "panel.qrn:2: property \"Width\": \"1,5\" is no Currency"},
      {"Width = Decimal much", "panel.qrn:2: property \"Width\": \"much\" is no Decimal"},
      {"Width = Decimal", "panel.qrn:2: property \"Width\": \"\" is no Decimal"},
      {"Width = Long 5 6", "panel.qrn:2: property \"Width\": unexpected \"6\" after the value"},
      {"Flag = True False", "panel.qrn:2: property \"Flag\": unexpected \"False\" after the value"},
      {"A = \"open", "panel.qrn:2: property \"A\": the text has no closing quotation mark"},
      {"A = \"open\\\"", "panel.qrn:2: property \"A\": the text has no closing quotation mark"},
      {"A = \"a\\", "panel.qrn:2: property \"A\": the text ends inside an escape"},
      {"A = \"a\\x\"", "panel.qrn:2: property \"A\": unknown escape \"\\x\""},
      {"A = \"a\" b", "panel.qrn:2: property \"A\": unexpected \"b\" after the value"},
      {"A = Font Sans 9", "panel.qrn:2: property \"A\": expected \"\"\""},
      {"A = Font \"Sans\"", "panel.qrn:2: property \"A\": \"\" is no font size"},
      {"A = Font \"Sans\" nan", "panel.qrn:2: property \"A\": \"nan\" is no font size"},
      {"A = Font \"Sans\" -9", "panel.qrn:2: property \"A\": \"-9\" is no font size"},
      {"A = Font \"Sans\" 0", "panel.qrn:2: property \"A\": \"0\" is no font size"},
      {"A = Font \"Sans\" 1e9", "panel.qrn:2: property \"A\": \"1e9\" is no font size"},
      {"A = Font \"Sans\" 9 fat", "panel.qrn:2: property \"A\": unknown font style \"fat\""},
      {"A = Picture 3x2", "panel.qrn:2: property \"A\": A picture text has no colon after its sizes"},
      {"A = Picture 9x9:!!!!", "panel.qrn:2: property \"A\": The pixels of a picture text are not in base64"},
      {"A = Picture 60000x60000:AAAA",
       "panel.qrn:2: property \"A\": A picture text has too few pixels for its sizes"},
      {"A = True\na = True", "panel.qrn:3: property \"a\" stands here a second time"},
  };
  for (const Refusal& one : refusals) {
    const std::string text = bagText(one.lines);
    EXPECT_EQ(errorOf([&] { PropertyBag::fromText(text, "panel.qrn"); }), 321) << one.lines;
    EXPECT_EQ(refusal([&] { PropertyBag::fromText(text, "panel.qrn"); }), one.expected) << one.lines;
  }
}

// What stands in a message can be shown on a line, however long and broken the text is.
TEST(PropertyBags, ShowOnlyTheStartOfWhatTheyRefuseAndNothingThatCanNotBeShown) {
  const std::string nul(1, '\0');
  const struct {
    std::string lines;
    std::string expected;
  } refusals[] = {
      {"A = " + std::string(100, 'x'), "\"A\": unknown type \"" + std::string(40, 'x') + "...\""},
      {std::string(100, 'k') + " = 5", '"' + std::string(40, 'k') + "...\": unknown type \"5\""},
      {"A = Lo" + nul + "ng 5", "\"A\": unknown type \"Lo?ng\""},
      {"A = Long \xC3(", "\"A\": \"\uFFFD(\" is no Long"},
      {"A = \"\\\x1B\"", "\"A\": unknown escape \"\\?\""},
      {"A = \"\" \x07", "\"A\": unexpected \"?\" after the value"},
  };
  for (const auto& one : refusals) {
    EXPECT_EQ(refusal([&] { PropertyBag::fromText(bagText(one.lines), "x"); }),
              "x:2: property " + one.expected);
  }
}

TEST(PropertyBags, AreRefusedAsTextOrStayWholeWhereverTheyAreCutOff) {
  const PropertyBag bag = bagOf(everyValue());
  const std::string text = bag.toText();
  for (std::size_t length = 0; length < text.size(); ++length) {
    PropertyBag part;
    const auto error = errorOf([&] { part = PropertyBag::fromText(text.substr(0, length)); });
    EXPECT_TRUE(error == 0 || error == 321) << length;
    EXPECT_LE(part.items().size(), bag.items().size());
  }
}

TEST(PropertyBags, ReadALineOfTenMegabytes) {
  const std::string longText(10'000'000, 'x');
  EXPECT_EQ(PropertyBag::fromText(bagText("A = \"" + longText + "\"")).readProperty("A"), Variant(longText));
  for (const std::string& lines :
       {longText, "A = " + longText, "A = Long " + longText, "A = \"" + longText, "A = Picture " + longText,
        "A = Decimal " + std::string(10'000'000, '9')}) {
    const std::string why = refusal([&] { PropertyBag::fromText(bagText(lines), "x"); });
    EXPECT_TRUE(why.starts_with("x:2: ")) << why;
    EXPECT_LT(why.size(), 200u);
  }
}

// Comparing each name with all that came before would take minutes.
TEST(PropertyBags, ReadManyLines) {
  std::string lines;
  for (int i = 0; i < 200'000; ++i) lines += "k" + std::to_string(i) + "=True\n";
  EXPECT_EQ(PropertyBag::fromText(bagText(lines)).items().size(), 200'000u);
  EXPECT_EQ(refusal([&] { PropertyBag::fromText(bagText(lines + "K5=True"), "x"); }),
            "x:200002: property \"K5\" stands here a second time");
}

TEST(PropertyBags, RefuseToWriteWhatTheyCouldNotReadAgain) {
  struct Thing final : Object {
    std::string_view typeName() const override { return "Thing"; }
  };
  const double infinite = std::numeric_limits<double>::infinity();
  const struct {
    Variant value;
    const char* why;
  } refusals[] = {
      {infinite, "Property \"Level\": a number that is not finite can't be kept"},
      {-infinite, "Property \"Level\": a number that is not finite can't be kept"},
      {std::nan(""), "Property \"Level\": a number that is not finite can't be kept"},
      {std::nanf(""), "Property \"Level\": a number that is not finite can't be kept"},
      {Date{infinite}, "Property \"Level\": a number that is not finite can't be kept"},
      {std::make_shared<host::Font>("Sans", 0), "Property \"Level\": a font of that size can't be kept"},
      {std::make_shared<host::Font>("Sans", infinite),
       "Property \"Level\": a font of that size can't be kept"},
      {std::make_shared<Thing>(), "Property \"Level\": a Thing can't be kept"},
  };
  for (const auto& one : refusals) {
    PropertyBag bag;
    bag.writeProperty("Width", 5);
    bag.writeProperty("Level", one.value);
    EXPECT_EQ(errorOf([&] { bag.toText(); }), 380) << one.why;
    EXPECT_EQ(refusal([&] { bag.toText(); }), one.why);
  }
}

TEST(PropertyBags, RefuseATextThatDoesNotBeginLikeOne) {
  for (const char* text : {"", "\n", "Width = Long 5", "QRNV16Controls2 properties 2\n", "\xFF\xFE"}) {
    EXPECT_EQ(refusal([&] { PropertyBag::fromText(text, "x.qrn"); }),
              "x.qrn:1: expected \"QRNV16Controls2 properties 1\"");
  }
}

TEST(PropertyBags, RefuseOrReadAnyText) {
  const std::string model = bagOf(everyValue()).toText();
  std::mt19937 random(11);
  int refused = 0;
  for (int round = 0; round < 2000; ++round) {
    std::string text = model;
    for (auto changes = 1 + random() % 3; changes > 0; --changes) {
      const std::size_t at = random() % text.size();
      switch (random() % 3) {
        case 0: text[at] = static_cast<char>(random() % 256); break;
        case 1: text.erase(at, 1 + random() % 10); break;
        default: text.insert(at, text.substr(random() % text.size(), random() % 10)); break;
      }
    }
    const auto read = [&] {
      const PropertyBag bag = PropertyBag::fromText(text);
      expectSame(bag, PropertyBag::fromText(bag.toText()));
    };
    if (errorOf(read) == 321) ++refused;
  }
  EXPECT_GT(refused, 100);
}

}  // namespace
}  // namespace qrn::test
