#include <cmath>
#include <filesystem>
#include <fstream>
#include <random>

#include "bags.h"
#include "runtime/locale.h"

namespace qrn::test {
namespace {

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

TEST(PropertyBags, MayBeginWithTheMarkThatSomeEditorsPutInFront) {
  EXPECT_EQ(PropertyBag::fromText("\xEF\xBB\xBFQRNV16Controls2 properties 1\nWidth = Long 5\n")
                .readProperty("Width"),
            Variant(5));
}

TEST(PropertyBags, RefuseAKeyThatIsThereInTheOtherCase) {
  for (const char* keys : {"Width = Long 1\nWIDTH = Long 2\n", "\u00e4 = Long 1\n\u00c4 = Long 2\n"})
    EXPECT_NE(refusal([&] {
                PropertyBag::fromText("QRNV16Controls2 properties 1\n" + std::string(keys));
              }).find("stands here a second time"),
              std::string::npos)
        << keys;
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

TEST_F(BagFiles, KeepWhatIsInThemWhenAValueCanNotBeWritten) {
  PropertyBag bag;
  bag.writeProperty("Width", 5);
  bag.save(file);
  bag.writeProperty("Level", std::nan(""));
  EXPECT_EQ(errorOf([&] { bag.save(file); }), 380);
  EXPECT_EQ(PropertyBag::load(file).readProperty("Width"), Variant(5));
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
  EXPECT_EQ(refusal([&] { PropertyBag::load(file); }),
            file.string() + ":3: property \"B\": unknown type \"maybe\"");
}

}  // namespace
}  // namespace qrn::test
