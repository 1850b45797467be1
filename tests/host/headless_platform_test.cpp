#include "host/check_box.h"
#include "host/combo_box.h"
#include "host/list_box.h"
#include "host/text_box.h"
#include "test_control.h"

namespace qrn::test {
namespace {

struct Echo final : host::AutomationObject {
  std::string_view typeName() const override { return "Echo"; }
  Variant call(std::string_view method, std::span<const Variant> arguments) override {
    return std::string(method) + std::to_string(arguments.size());
  }
};

class HeadlessPlatforms : public testing::Test {
 protected:
  headless::HeadlessPlatform platform;
};

TEST_F(HeadlessPlatforms, AreTheCurrentPlatformOfTheThreadUntilTheyGo) {
  EXPECT_EQ(host::Platform::current(), &platform);
  auto other = std::make_unique<headless::HeadlessPlatform>();
  EXPECT_EQ(host::Platform::current(), other.get());
  other.reset();
  EXPECT_EQ(host::Platform::current(), &platform);
}

TEST_F(HeadlessPlatforms, MeasureEveryCharacterAlikeAndKeepOneMeasureForEachFont) {
  auto& metrics = platform.metrics(host::Font("Sans", 9));
  EXPECT_EQ(metrics.advance("a\u20ac\U0001F600"), 18);
  EXPECT_EQ(&platform.metrics(host::Font("Sans", 9)), &metrics);
  EXPECT_NE(&platform.metrics(host::Font("Sans", 9, true)), &metrics);
  EXPECT_EQ(platform.measuredTexts(), 1);
}

TEST_F(HeadlessPlatforms, ChangeTheSizeOfTextForFontsBeforeAndAfter) {
  auto& before = platform.metrics(host::Font("Sans", 9));
  platform.setTextSize(10, 20);
  EXPECT_EQ(before.advance("ab"), 20);
  EXPECT_EQ(platform.metrics(host::Font("Serif", 12)).height(), 20);
}

TEST_F(HeadlessPlatforms, MakeTheObjectsThatATestProvides) {
  EXPECT_EQ(platform.createObject("Test.Echo"), nullptr);
  platform.provideObject("Test.Echo", [] { return std::make_shared<Echo>(); });
  const Variant arguments[] = {1, 2};
  EXPECT_EQ(platform.createObject("Test.Echo")->call("Write", arguments), Variant("Write2"));
}

TEST_F(HeadlessPlatforms, CountTheirBeeps) {
  platform.beep();
  platform.beep();
  EXPECT_EQ(platform.beeps(), 2);
}

class Users : public SurfaceTest {
 protected:
  host::TextBox& box = surface().add<host::TextBox>("txt", {0, 0, 100, 20});
};

TEST_F(Users, ReplaceAWholeTextByEnteringAnother) {
  box.SetText("before");
  box.SetFocus();
  heard();
  user.enters("3.5");
  EXPECT_EQ(box.Text(), "3.5");
  EXPECT_EQ(heard(), (Heard{"txt Change", "txt Change", "txt Change"}));
  user.enters("");
  EXPECT_EQ(box.Text(), "");
}

TEST_F(Users, MoveTheCaretAndDeleteOnBothSidesOfIt) {
  box.SetText("abcd");
  box.SetFocus();
  user.presses(host::key::End);
  user.presses(host::key::Left);
  user.presses(host::key::Delete);
  user.presses(host::key::Back);
  EXPECT_EQ(box.Text(), "ab");
  user.presses(host::key::Home);
  user.presses(host::key::Back);
  user.presses(host::key::Delete);
  EXPECT_EQ(box.Text(), "b");
  user.presses(host::key::Right);
  user.presses(host::key::Right);
  user.presses(host::key::Delete);
  EXPECT_EQ(box.Text(), "b");
}

TEST_F(Users, DeleteASelectionAsAWhole) {
  box.SetText("abcd");
  box.SetFocus();
  box.select(1, 2);
  user.presses(host::key::Back);
  EXPECT_EQ(box.Text(), "ad");
  box.select(0, 1);
  user.presses(host::key::Delete);
  EXPECT_EQ(box.Text(), "d");
}

TEST_F(Users, TypeTheCharacterThatAListenerPutsInPlaceOfTheirs) {
  struct Replacing : TestControl {
    using TestControl::TestControl;
    void childKeyPress(host::Control&, std::int16_t& keyAscii) override {
      if (keyAscii == ',') keyAscii = '.';
    }
  };
  const auto other = made<Replacing>(site, diary, "other");
  auto& text = other->add<host::TextBox>("txt");
  text.SetFocus();
  headless::User typist(platform, *other);
  typist.types("3,5");
  EXPECT_EQ(text.Text(), "3.5");
}

TEST_F(Users, CarryTheCursorAlong) {
  user.movesTo({7, 8});
  EXPECT_EQ(platform.cursor(), (Point{7, 8}));
  user.clicks(box);
  EXPECT_EQ(platform.cursor(), (Point{50, 10}));
}

TEST_F(Users, MayClickTypeOrChooseWhatGoesBecauseOfIt) {
  auto& combo = surface().add<host::ComboBox>("cbo", {0, 30, 100, 20});
  auto& list = surface().add<host::ListBox>("lst", {0, 60, 100, 40});
  combo.AddItem("a");
  list.AddItem("a");
  diary.listener = [&](const std::string& what) {
    const std::string name = what.substr(0, what.find(' '));
    if (surface().controls().find(name)) surface().controls().remove(name);
  };
  user.chooses(combo, 0);
  user.ticks(list, 0);
  user.doubleClicks(box);
  EXPECT_EQ(surface().controls().count(), 0);
}

TEST_F(Users, MayEndTheSurfaceByWhatTheyEnterOrClick) {
  for (const bool clicks : {false, true}) {
    Diary log;
    auto doomed = made<TestControl>(site, log, "surface");
    doomed->Move(0, 0, 100, 100);
    auto& text = doomed->add<host::TextBox>("txt");
    auto& check = doomed->add<host::CheckBox>("chk", {0, 30, 50, 20});
    text.SetFocus();
    log.listener = [&](const std::string& what) {
      if (what == "txt Change" || what == "chk Click") doomed.reset();
    };
    headless::User typist(platform, *doomed);
    if (clicks)
      typist.clicks(check);
    else
      typist.enters("abc");
    EXPECT_FALSE(doomed);
  }
}

}  // namespace
}  // namespace qrn::test
