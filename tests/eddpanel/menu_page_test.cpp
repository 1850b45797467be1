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
