#include "sample_device.h"

#include "images/built_in_pictures.h"
#include "panel_text.h"

namespace qrn::eddpanel {
namespace {

TEST_F(SampleDevice, MakesARowOfEachVariableAndAButtonOfEachMethodAndSubmenu) {
  EXPECT_EQ(main().display().Items().Count(), 8);
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
  ASSERT_EQ(panels.menus().size(), 3u);
  EXPECT_EQ(panels.menus()[0]->name, "main");
  EXPECT_EQ(panels.menus()[1]->name, "more");
  EXPECT_EQ(panels.menus()[2]->name, "trim");
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
  const std::string printed = play("click Cancel");
  EXPECT_NE(printed.find("message: 1 value put back\nMain: ButtonClick(3) Cancel\n"), std::string::npos)
      << printed;
  EXPECT_EQ(row("damping").ValueText(), "1.50");
  EXPECT_FALSE(row("damping").ValueChanged());
}

TEST_F(SampleDevice, SendsAllGoodValuesToTheDeviceWithOkAndWithApply) {
  for (const std::string button : {"OK", "Apply"}) {
    const std::string value = button == "OK" ? "2.5" : "3.5";
    const std::string printed = play("focus damping\nenter " + value + "\nchoose mode " +
                                     (button == "OK" ? "Manual" : "Automatic") + "\nclick " + button);
    EXPECT_NE(printed.find("message: 2 values written\n"), std::string::npos) << printed;
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
  EXPECT_NE(printed.find("message: 0 values written, 1 to be corrected\n"), std::string::npos) << printed;
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
    EXPECT_EQ(playOn("wait 100"), "Main: ButtonClick(4) Refresh\n") << second;
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
  EXPECT_EQ(panels.open(*description.menu("trim")).display().Buttons().Count(), 3);
  EXPECT_EQ(panels.open(*description.menu("more")).display().Buttons().Count(), 4);
}

TEST_F(SampleDevice, ShowsWhatAnotherPanelHasWrittenWhenItIsOpenedAgain) {
  row("damping");
  play("panel Trim\nfocus damping\nenter 2.5\nclick Apply\npanel Main");
  EXPECT_EQ(row("damping").ValueText(), "2.50");
}

TEST_F(SampleDevice, TellsTheHelpOfRowsAndButtonsFromTheirContextMenus) {
  const auto help = [this](const std::string& target) {
    const std::string printed = play("menu 1\nrightclick " + target);
    const auto found = printed.find("help: ");
    return found == std::string::npos ? "no help in " + printed
                                      : printed.substr(found, printed.find('\n', found) - found);
  };
  EXPECT_EQ(help("damping label"), "help: Filters the value.");
  EXPECT_EQ(help("self_test"), "help: Runs it.");
  EXPECT_EQ(help("more"), "help: Shows the rest.");
}

TEST_F(SampleDevice, OffersNoHelpWhereThereIsNone) {
  EXPECT_TRUE(row("damping").GetMenuItem(1)->Enabled());
  EXPECT_FALSE(row("mode").GetMenuItem(1)->Enabled());
  EXPECT_FALSE(static_cast<QRNMenuItem&>(main().control(main().itemOf("trim"))).GetMenuItem(1)->Enabled());
}

TEST_F(SampleDevice, TellsTheHelpOfARowThatIsAskedByItsStatusIcon) {
  const std::string printed = play("click damping icon2");
  EXPECT_NE(printed.find("help: Filters the value.\n"), std::string::npos) << printed;
}

TEST_F(SampleDevice, RestoresTheDefaultFromTheContextMenu) {
  play("focus damping\nenter 2.5\nkey Tab\nmenu 2\nrightclick damping label");
  EXPECT_EQ(row("damping").ValueText(), "1.50");
  EXPECT_FALSE(row("damping").ValueChanged());
}

TEST_F(SampleDevice, ShowsTheSameVariableTwiceOnOnePanel) {
  const auto twice = edd::readDescriptionText(
      "MANUFACTURER 1, DEVICE_TYPE 1, DEVICE_REVISION 1, DD_REVISION 1\n"
      "VARIABLE a { LABEL \"A\"; CLASS CONTAINED; TYPE INTEGER(2); }\n MENU m { LABEL \"M\"; ITEMS { a, a } "
      "}",
      "twice.ddl");
  DevicePanels other(twice, site);
  EXPECT_EQ(other.open(*twice.menu("m")).display().Items().Count(), 2);
}

TEST_F(SampleDevice, PrintsAPanelAsText) {
  std::ostringstream text;
  printPanel(text, main());
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
