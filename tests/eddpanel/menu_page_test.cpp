#include <memory>
#include <optional>

#include "sample_device.h"

#include "images/built_in_pictures.h"
#include "page_text.h"

namespace qrn::eddpanel {
namespace {

TEST_F(SampleDevice, MakesARowOfEachVariableAndAButtonOfEachMethodAndSubmenu) {
  EXPECT_EQ(main().panel().Items().Count(), 8);
  EXPECT_EQ(row("damping").LabelText(), "Damping");
  EXPECT_EQ(row("damping").UnitText(), "s");
  EXPECT_EQ(row("damping").ValueText(), "1.50");
  EXPECT_EQ(row("mode").ValueText(), "Automatic");
  EXPECT_EQ(row("simulate").ValueType(), qrnTypeBoolean);
  EXPECT_EQ(row("status").ValueText(), "10");
  EXPECT_EQ(main().row(6), nullptr);
}

TEST_F(SampleDevice, LocksWhatTheDeviceOnlyLetsRead) {
  EXPECT_TRUE(row("pressure").Locked());
  EXPECT_FALSE(row("damping").Locked());
}

TEST_F(SampleDevice, ListsTheMenusFromTheRootDown) {
  ASSERT_EQ(pages.menus().size(), 3u);
  EXPECT_EQ(pages.menus()[0]->name, "main");
  EXPECT_EQ(pages.menus()[1]->name, "more");
  EXPECT_EQ(pages.menus()[2]->name, "trim");
  EXPECT_EQ(pages.roots().size(), 1u);
}

TEST_F(SampleDevice, ShowsByItsPictureWhatAButtonLeadsTo) {
  const auto icon = [this](std::string_view name) {
    return static_cast<QRNMenuItem&>(main().control(main().itemOf(name))).Icon();
  };
  EXPECT_EQ(icon("self_test"), builtInPicture(qrnImageMethod));
  EXPECT_EQ(icon("more"), builtInPicture(qrnImageFolder));
  EXPECT_EQ(icon("trim"), builtInPicture(qrnImageDialog));
}

TEST_F(SampleDevice, KeepsWhatIsEditedInTheRowUntilItIsAppliedOrPutBack) {
  play("focus damping\nenter 2.5\nkey Tab");
  EXPECT_EQ(row("damping").ValueText(), "2.5");
  EXPECT_TRUE(row("damping").ValueChanged());
  EXPECT_EQ(linesWith("message", play("click Cancel")), "message: 1 value put back");
  EXPECT_EQ(row("damping").ValueText(), "1.50");
  EXPECT_FALSE(row("damping").ValueChanged());
}

TEST_F(SampleDevice, SendsAllGoodValuesToTheDeviceWithOkAndWithApply) {
  for (const std::string button : {"OK", "Apply"}) {
    const std::string value = button == "OK" ? "2.5" : "3.5";
    const std::string printed = play("focus damping\nenter " + value + "\nchoose mode " +
                                     (button == "OK" ? "Manual" : "Automatic") + "\nclick " + button);
    EXPECT_EQ(linesWith("message", printed), "message: 2 values written");
    EXPECT_EQ(row("damping").ValueText(), value + "0");
    EXPECT_FALSE(row("damping").ValueChanged());
    play("click Cancel");
    EXPECT_EQ(row("damping").ValueText(), value + "0") << "the device has it";
  }
}

TEST_F(SampleDevice, AppliesByTheLetterOfTheButtonFromTheRowBeingEdited) {
  play("focus damping\nenter 2.5\nkey Alt+A");
  EXPECT_EQ(row("damping").ValueText(), "2.50");
  EXPECT_FALSE(row("damping").ValueChanged());
}

TEST_F(SampleDevice, KeepsAValueOutOfRangeInTheRowAndAwayFromTheDevice) {
  const std::string printed = play("focus damping\nenter 99\nclick Apply");
  EXPECT_EQ(linesWith("message", printed), "message: 0 values written, 1 to be corrected");
  EXPECT_EQ(row("damping").ValueText(), "99");
  EXPECT_EQ(row("damping").ValueError(), qrnErrorRange);
  EXPECT_TRUE(row("damping").ValueChanged());
  play("click Cancel");
  EXPECT_EQ(row("damping").ValueText(), "1.50");
  EXPECT_EQ(row("damping").ValueError(), qrnErrorNone);
}

TEST_F(SampleDevice, ReadsDynamicValuesAgainEverySecondButNotTheRowBeingEdited) {
  play("focus damping\nenter 7");
  for (int second = 0; second < 3; ++second) {
    const std::string before = row("pressure").ValueText();
    EXPECT_EQ(playOn("wait 900"), "") << second;
    EXPECT_EQ(row("pressure").ValueText(), before) << second;
    EXPECT_EQ(playOn("wait 100"), "Main: ButtonClick(1, 4) Refresh\n") << second;
    EXPECT_NE(row("pressure").ValueText(), before) << second;
  }
  EXPECT_EQ(row("damping").ValueText(), "7");
}

TEST_F(SampleDevice, ReadsDynamicValuesAgainAtAClick) {
  const std::string before = row("pressure").ValueText();
  play("wait 500");
  EXPECT_EQ(row("pressure").ValueText(), before);
  playOn("click Refresh");
  const std::string clicked = row("pressure").ValueText();
  EXPECT_NE(clicked, before);
  playOn("wait 900");
  EXPECT_EQ(row("pressure").ValueText(), clicked) << "the second begins with the click";
  playOn("wait 100");
  EXPECT_NE(row("pressure").ValueText(), clicked);
}

TEST_F(SampleDevice, HasNothingToRefreshWhereNothingIsDynamic) {
  pages.open(*description.menu("trim"));
  EXPECT_EQ(top().panel().Buttons().Count(), 3);
  pages.open(*description.menu("more"));
  EXPECT_EQ(top().panel().Buttons().Count(), 4);
}

TEST_F(SampleDevice, RestoresTheDefaultFromTheContextMenu) {
  play("focus damping\nenter 2.5\nkey Tab\nmenu 2\nrightclick damping label");
  EXPECT_EQ(row("damping").ValueText(), "1.50");
  EXPECT_FALSE(row("damping").ValueChanged());
}

TEST_F(SampleDevice, ShowsTheSameVariableTwiceAndNamesThatDifferInTheirCaseOnly) {
  const auto twice = edd::readDescriptionText(
      "MANUFACTURER 1, DEVICE_TYPE 1, DEVICE_REVISION 1, DD_REVISION 1\n"
      "VARIABLE a { LABEL \"A\"; CLASS CONTAINED; TYPE INTEGER(2); }\n"
      "VARIABLE A { LABEL \"Other\"; CLASS CONTAINED; TYPE INTEGER(2); }\n"
      "MENU m { LABEL \"M\"; ITEMS { a, a, A } }",
      "twice.ddl");
  const auto other = host::create<QRNDisplayStack>(site);
  DevicePages shown(twice, *other, answers);
  shown.open(*twice.menu("m"));
  ASSERT_EQ(shown.top()->panel().Items().Count(), 3);
  EXPECT_EQ(shown.top()->row(2)->LabelText(), "A");
  EXPECT_EQ(shown.top()->row(3)->LabelText(), "Other");
}

// A page of its own description, opened by its menu "m".
class OwnPage : public SampleDevice {
 protected:
  MenuPage& open(const std::string& text) {
    own_ = edd::readDescriptionText(
        "MANUFACTURER 1, DEVICE_TYPE 1, DEVICE_REVISION 1, DD_REVISION 1\n" + text, "own.ddl");
    stack_ = host::create<QRNDisplayStack>(site);
    shown_ = std::make_unique<DevicePages>(*own_, *stack_, answers);
    shown_->open(*own_->menu("m"));
    return *shown_->top();
  }
  static void enter(MenuPage& page, std::int32_t item, std::string_view text) {
    auto& box = dynamic_cast<host::TextBox&>(*page.row(item)->CurrentEditor());
    page.row(item)->CurrentEditor()->SetFocus();
    box.userTyped(text, 0);
    page.row(page.panel().Items().Count())->CurrentEditor()->SetFocus();
  }

 private:
  std::optional<edd::Description> own_;
  host::Owned<QRNDisplayStack> stack_;
  std::unique_ptr<DevicePages> shown_;
};

TEST_F(OwnPage, MayHaveItemsNamedLikePartsOfThePanelOrMadeNames) {
  MenuPage& page = open(R"(
    VARIABLE lblTitle { LABEL "T"; CLASS CONTAINED; TYPE INTEGER(2); }
    VARIABLE Parameter2 { LABEL "P"; CLASS CONTAINED; TYPE INTEGER(2); }
    MENU imlImages { LABEL "I"; ITEMS { lblTitle } }
    MENU m { LABEL "M"; ITEMS { lblTitle, lblTitle, Parameter2, imlImages } })");
  EXPECT_EQ(page.panel().Items().Count(), 4);
}

TEST_F(OwnPage, ShowsWhatWasWrittenInEveryRowOfTheVariable) {
  MenuPage& page = open(R"(
    VARIABLE a { LABEL "A"; CLASS CONTAINED; TYPE INTEGER(2); }
    VARIABLE b { LABEL "B"; CLASS CONTAINED; TYPE INTEGER(2); }
    MENU m { LABEL "M"; ITEMS { a, a, a, b } })");
  enter(page, 1, "12");
  page.apply();
  EXPECT_EQ(page.row(2)->ValueText(), "12");
  enter(page, 1, "13");
  enter(page, 3, "57");
  page.apply();
  for (const std::int32_t item : {1, 2, 3}) EXPECT_EQ(page.row(item)->ValueText(), "57") << item;
}

TEST_F(OwnPage, MayBeLongerThanAScrollBarOf16BitsReaches) {
  std::string items;
  for (int i = 0; i < 2000; ++i) items += i ? ", a" : "a";
  MenuPage& page =
      open("VARIABLE a { LABEL \"A\"; CLASS CONTAINED; TYPE INTEGER(2); }\nMENU m { LABEL \"M\"; ITEMS { " +
           items + " } }");
  EXPECT_GT(page.panel().sbrVertical().Max(), 32767);
}

TEST(DeviceInMemory, LetsWhatIsWrittenToADynamicValueStay) {
  const auto description = edd::readDescriptionText(
      "MANUFACTURER 1, DEVICE_TYPE 1, DEVICE_REVISION 1, DD_REVISION 1\n"
      "VARIABLE count { LABEL \"C\"; CLASS DYNAMIC; TYPE UNSIGNED_INTEGER(2) { DEFAULT_VALUE 7; } }\n"
      "VARIABLE level { LABEL \"L\"; CLASS DYNAMIC; TYPE FLOAT { DEFAULT_VALUE 10; } }\n",
      "dynamic.ddl");
  Device device(description);
  device.write(0, Variant(99.0));
  device.write(1, Variant(50.0));
  for (int i = 0; i < 20; ++i) device.tick();
  EXPECT_EQ(device.read(0), Variant(99.0));
  EXPECT_NEAR(*device.read(1).get<double>(), 50, 2);
}

TEST_F(SampleDevice, PrintsAPageAsText) {
  std::ostringstream text;
  printPage(text, main());
  EXPECT_EQ(text.str(),
            "== Main ==\n"
            "  Damping     1.50 s\n"
            "  Mode        Automatic\n"
            "  Simulation  [ ]\n"
            "  Status      {Service}\n"
            "  Pressure    4.000 bar locked dynamic\n"
            "  ! Self test\n"
            "  > More\n"
            "  > Trim\n"
            "  (OK) (Apply) (Cancel) (Refresh)\n");
}

}  // namespace
}  // namespace qrn::eddpanel
