#include "sample_device.h"

#include "panel_text.h"

namespace qrn::eddpanel {
namespace {

TEST_F(SampleDevice, MakesARowOfEachVariableAndAButtonOfEachMethodAndSubmenu) {
  EXPECT_EQ(main().display().Items().Count(), 7);
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
  ASSERT_EQ(panels.menus().size(), 2u);
  EXPECT_EQ(panels.menus()[0]->name, "main");
  EXPECT_EQ(panels.menus()[1]->name, "more");
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

TEST_F(SampleDevice, MovesDynamicValuesButNotTheOneBeingEdited) {
  const std::string before = row("pressure").ValueText();
  play("focus damping\nenter 7\nwait 1000");
  EXPECT_NE(row("pressure").ValueText(), before);
  EXPECT_EQ(row("damping").ValueText(), "7");
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
            "  (OK) (Apply) (Cancel)\n");
}

}  // namespace
}  // namespace qrn::eddpanel
