#include "host/property_bag.h"

#include <cmath>
#include <filesystem>
#include <fstream>
#include <limits>
#include <random>

#include "host/font.h"
#include "host/picture.h"
#include "runtime/locale.h"
#include "test_control.h"

namespace qrn::test {
namespace {

using host::PropertyBag;

Variant decimal(const char* digits, std::int64_t exponent) {
  return Decimal::fromDigits(false, digits, exponent);
}

std::shared_ptr<host::Font> fancyFont() {
  auto font = std::make_shared<host::Font>("A \"quoted\" family\\", 10.25, true, true);
  font->underline = font->strikethrough = true;
  return font;
}

std::shared_ptr<host::Picture> smallPicture() {
  std::vector<std::uint32_t> pixels(6, 0xFF102030);
  pixels[4] = 0x00000000;
  return std::make_shared<host::Picture>(
      std::vector<host::Picture::Bitmap>{{3, 2, pixels}, {6, 4, std::vector<std::uint32_t>(24, 0x80FFFFFF)}});
}

/// A value of every type, the ones at the edges among them.
std::vector<Variant> everyValue() {
  const double tiny = std::numeric_limits<double>::denorm_min();
  return {Null{},
          true,
          false,
          std::numeric_limits<std::int16_t>::min(),
          std::int16_t{7},
          std::numeric_limits<std::int32_t>::min(),
          std::numeric_limits<std::int32_t>::max(),
          0.1F,
          std::numeric_limits<float>::max(),
          0.1,
          1.0 / 3,
          -tiny,
          std::numeric_limits<double>::max(),
          std::numeric_limits<double>::infinity(),
          Currency{1234567890123456789},
          Currency{-5},
          decimal("79228162514264337593543950335", 0),
          decimal("15", -28),
          -Decimal::fromDigits(false, "1234567", -3),
          Date{45000.75},
          Date{-1.25},
          ErrorValue{-2147352572},
          "",
          "plain",
          " blanks around ",
          "a = b, \"quoted\" \\ back\\nslash",
          "lines\r\nand\ttabs\n",
          "True",
          "Long 5",
          "\u00e4\u20ac\U0001F600",
          std::string("zero\0byte", 9),
          "broken \xC3( bytes",
          fancyFont(),
          std::make_shared<host::Font>(),
          smallPicture(),
          std::make_shared<host::Picture>(std::vector<host::Picture::Bitmap>{})};
}

PropertyBag bagOf(const std::vector<Variant>& values) {
  PropertyBag bag;
  for (std::size_t i = 0; i < values.size(); ++i)
    bag.writeProperty("Key" + std::to_string(i), values[i], Empty{});
  return bag;
}

void expectSame(const PropertyBag& bag, const PropertyBag& other) {
  ASSERT_EQ(bag.items().size(), other.items().size());
  for (std::size_t i = 0; i < bag.items().size(); ++i) {
    EXPECT_EQ(bag.items()[i].key, other.items()[i].key);
    EXPECT_EQ(bag.items()[i].value.type(), other.items()[i].value.type()) << bag.items()[i].key;
    EXPECT_TRUE(host::sameValue(bag.items()[i].value, other.items()[i].value))
        << bag.items()[i].key << " in\n"
        << bag.toText();
  }
}

std::string bagText(std::string_view lines) { return "QRNV16Controls2 properties 1\n" + std::string(lines); }

TEST(PropertyBags, KeepAValueOfEveryType) {
  const auto values = everyValue();
  const PropertyBag bag = bagOf(values);
  for (std::size_t i = 0; i < values.size(); ++i)
    EXPECT_EQ(bag.readProperty("kEY" + std::to_string(i)), values[i]);
}

TEST(PropertyBags, BringEveryValueBackFromTheirText) {
  const PropertyBag bag = bagOf(everyValue());
  expectSame(bag, PropertyBag::fromText(bag.toText()));
}

TEST(PropertyBags, AreWrittenAndReadTheSameInEveryLocale) {
  const PropertyBag bag = bagOf(everyValue());
  const std::string text = bag.toText();
  setCurrentLocale(deDE());
  const std::string german = bag.toText();
  PropertyBag back;
  const std::string refused = refusal([&] { back = PropertyBag::fromText(text); });
  setCurrentLocale(enUS());
  EXPECT_EQ(german, text);
  EXPECT_EQ(refused, "nothing was refused");
  expectSame(bag, back);
}

TEST(PropertyBags, TakeAnyNumberOfRandomTextsThroughTheirText) {
  std::mt19937 random(3);
  PropertyBag bag;
  for (int i = 0; i < 300; ++i) {
    std::string bytes;
    for (auto left = random() % 30; left > 0; --left) bytes += static_cast<char>(random() % 256);
    bag.writeProperty("k" + std::to_string(i), bytes + "x");
  }
  expectSame(bag, PropertyBag::fromText(bag.toText()));
}

TEST(PropertyBags, TakeAnyKeyThroughTheirText) {
  PropertyBag bag;
  for (const char* key : {"Width", "two words", "a=b", "\"quoted\"", "line\nbreak", "\u00e4", " ", "\\"})
    bag.writeProperty(key, 1);
  expectSame(bag, PropertyBag::fromText(bag.toText()));
}

TEST(PropertyBags, LookLikeThis) {
  PropertyBag bag;
  bag.writeProperty("Title", "Tank \"1\"\n");
  bag.writeProperty("Width", 100);
  bag.writeProperty("Factor", 0.5);
  bag.writeProperty("Locked", true);
  bag.writeProperty("Nothing", Null{});
  bag.writeProperty("Price", Currency{12345});
  bag.writeProperty("Font", std::make_shared<host::Font>("Sans", 9, true));
  EXPECT_EQ(bag.toText(), bagText("Title = \"Tank \\\"1\\\"\\n\"\n"
                                  "Width = Long 100\n"
                                  "Factor = Double 0.5\n"
                                  "Locked = True\n"
                                  "Nothing = Null\n"
                                  "Price = Currency 1.2345\n"
                                  "Font = Font \"Sans\" 9 bold\n"));
}

TEST(PropertyBags, MayBeEditedByHand) {
  const PropertyBag bag = PropertyBag::fromText(
      "  QRNV16Controls2 properties 1 \r\n\r\n\tWidth=Long 5\r\n  Title   =   \"a\"  \r\nFlag = False");
  EXPECT_EQ(bag.readProperty("Width"), Variant(5));
  EXPECT_EQ(bag.readProperty("Title"), Variant("a"));
  EXPECT_EQ(bag.readProperty("Flag"), Variant(false));
  EXPECT_EQ(bag.items().size(), 3u);
}

TEST(PropertyBags, DoNotKeepAValueThatEqualsItsDefault) {
  PropertyBag bag;
  bag.writeProperty("a", 5, 5);
  bag.writeProperty("b", 5, 6);
  bag.writeProperty("c", 5, 5.0);
  bag.writeProperty("d", Empty{});
  bag.writeProperty("e", std::make_shared<host::Font>("Sans", 9), std::make_shared<host::Font>("Sans", 9));
  bag.writeProperty("f", smallPicture(), smallPicture());
  bag.writeProperty("g", std::make_shared<host::Font>("Sans", 9), std::make_shared<host::Font>("Sans", 10));
  Heard keys;
  for (const auto& item : bag.items()) keys.push_back(item.key);
  EXPECT_EQ(keys, (Heard{"b", "c", "g"}));
}

TEST(PropertyBags, ReplaceAValueAndForgetOneThatBecomesItsDefault) {
  PropertyBag bag;
  bag.writeProperty("Width", 5);
  bag.writeProperty("Height", 6);
  bag.writeProperty("WIDTH", 7);
  EXPECT_EQ(bag.items().size(), 2u);
  EXPECT_EQ(bag.readProperty("width"), Variant(7));
  bag.writeProperty("width", 0, 0);
  EXPECT_EQ(bag.find("Width"), nullptr);
}

TEST(PropertyBags, AnswerTheDefaultForAKeyThatIsNotThere) {
  const PropertyBag bag;
  EXPECT_EQ(bag.readProperty("Width", 42), Variant(42));
  EXPECT_TRUE(bag.readProperty("Width").isEmpty());
}

// Every refusal names the text, the line, and what is wrong there.
struct Refusal {
  const char* lines;
  const char* expected;
};

TEST(PropertyBags, SayWhereAndWhyATextIsRefused) {
  const Refusal refusals[] = {
      {"Width", "panel.qrn:2: expected \"=\""},
      {"Width Long 5", "panel.qrn:2: expected \"=\""},
      {"= Long 5", "panel.qrn:2: expected a property's name"},
      {"A = True\n\nWidth = Lung 5", "panel.qrn:4: unknown type \"Lung\""},
      {"Width =", "panel.qrn:2: unknown type \"\""},
      {"Width = 5", "panel.qrn:2: unknown type \"5\""},
      {"Width = Long", "panel.qrn:2: \"\" is no Long"},
      {"Width = Long 2147483648", "panel.qrn:2: \"2147483648\" is no Long"},
      {"Width = Long 5.5", "panel.qrn:2: \"5.5\" is no Long"},
      {"Width = Integer 32768", "panel.qrn:2: \"32768\" is no Integer"},
      {"Width = Double 1,5", "panel.qrn:2: \"1,5\" is no Double"},
      {"Width = Double 1e999", "panel.qrn:2: \"1e999\" is no Double"},
      {"Width = Single 1e39", "panel.qrn:2: \"1e39\" is no Single"},
      {"Width = Date monday", "panel.qrn:2: \"monday\" is no Date"},
      {"Width = Error x", "panel.qrn:2: \"x\" is no Error"},
      {"Width = Currency 1e30", "panel.qrn:2: \"1e30\" is no Currency"},
      {"Width = Currency 1,5", "panel.qrn:2: \"1,5\" is no Currency"},
      {"Width = Decimal much", "panel.qrn:2: \"much\" is no Decimal"},
      {"Width = Decimal", "panel.qrn:2: \"\" is no Decimal"},
      {"Width = Long 5 6", "panel.qrn:2: unexpected \"6\" after the value"},
      {"Flag = True False", "panel.qrn:2: unexpected \"False\" after the value"},
      {"A = \"open", "panel.qrn:2: the text has no closing quotation mark"},
      {"A = \"open\\\"", "panel.qrn:2: the text has no closing quotation mark"},
      {"A = \"a\\", "panel.qrn:2: the text ends inside an escape"},
      {"A = \"a\\x\"", "panel.qrn:2: unknown escape \"\\x\""},
      {"A = \"a\" b", "panel.qrn:2: unexpected \"b\" after the value"},
      {"A = Font Sans 9", "panel.qrn:2: expected \"\"\""},
      {"A = Font \"Sans\"", "panel.qrn:2: \"\" is no font size"},
      {"A = Font \"Sans\" nan", "panel.qrn:2: \"nan\" is no font size"},
      {"A = Font \"Sans\" -9", "panel.qrn:2: \"-9\" is no font size"},
      {"A = Font \"Sans\" 0", "panel.qrn:2: \"0\" is no font size"},
      {"A = Font \"Sans\" 1e9", "panel.qrn:2: \"1e9\" is no font size"},
      {"A = Font \"Sans\" 9 fat", "panel.qrn:2: unknown font style \"fat\""},
      {"A = Picture 3x2", "panel.qrn:2: A picture text has no colon after its sizes"},
      {"A = Picture 9x9:!!!!", "panel.qrn:2: The pixels of a picture text are not in base64"},
      {"A = Picture 60000x60000:AAAA", "panel.qrn:2: A picture text has too few pixels for its sizes"},
      {"A = True\na = True", "panel.qrn:3: property \"a\" stands here a second time"},
  };
  for (const Refusal& one : refusals) {
    const std::string text = bagText(one.lines);
    EXPECT_EQ(errorOf([&] { PropertyBag::fromText(text, "panel.qrn"); }), 321) << one.lines;
    EXPECT_EQ(refusal([&] { PropertyBag::fromText(text, "panel.qrn"); }), one.expected) << one.lines;
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

class BagFiles : public testing::Test {
 protected:
  BagFiles() { std::filesystem::create_directories(folder); }
  ~BagFiles() override { std::filesystem::remove_all(folder); }

  const std::filesystem::path folder =
      std::filesystem::path(testing::TempDir()) /
      (std::string("bags-") + testing::UnitTest::GetInstance()->current_test_info()->name());
  const std::filesystem::path file = folder / "panel.qrn";
};

TEST_F(BagFiles, BringEveryValueBack) {
  const PropertyBag bag = bagOf(everyValue());
  bag.save(file);
  expectSame(bag, PropertyBag::load(file));
}

TEST_F(BagFiles, ThatCanNotBeReadAreNamed) {
  EXPECT_EQ(errorOf([&] { PropertyBag::load(folder / "none.qrn"); }), 53);
  EXPECT_EQ(refusal([&] { PropertyBag::load(folder / "none.qrn"); }),
            (folder / "none.qrn").string() + ": can't be read");
  EXPECT_EQ(errorOf([&] { PropertyBag::load(folder); }), 53);
}

TEST_F(BagFiles, ThatCanNotBeWrittenAreNamed) {
  EXPECT_EQ(errorOf([&] { PropertyBag().save(folder); }), 53);
  EXPECT_EQ(refusal([&] { PropertyBag().save(folder / "none" / "panel.qrn"); }),
            (folder / "none" / "panel.qrn").string() + ": can't be written");
}

TEST_F(BagFiles, ThatAreNoBagsAreNamedWithTheLine) {
  std::ofstream(file) << bagText("A = True\nB = maybe\n");
  EXPECT_EQ(errorOf([&] { PropertyBag::load(file); }), 321);
  EXPECT_EQ(refusal([&] { PropertyBag::load(file); }), file.string() + ":3: unknown type \"maybe\"");
}

}  // namespace
}  // namespace qrn::test
