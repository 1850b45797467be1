#include "sample_device.h"

namespace qrn::eddpanel {
namespace {

std::string errorOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const ReplayError& error) {
    return error.what();
  }
  return "no error";
}

TEST_F(SampleDevice, TypingRaisesTheEventsOfAnEditInTheirOrder) {
  EXPECT_EQ(play("focus damping\nenter 3\nkey Tab\n"),
            "-- Main\n"
            "Main: ParameterStartEdit(1, 1) damping = \"1.50\"\n"
            "Main: ItemGotFocus(1, 1) damping = \"1.50\"\n"
            "Main: ItemKeyDown(1, 1, 65, 2) damping = \"1.50\"\n"
            "Main: ItemKeyUp(1, 1, 65, 2) damping = \"1.50\"\n"
            "Main: ItemKeyDown(1, 1, 51, 0) damping = \"1.50\"\n"
            "Main: ItemKeyPress(1, 1, 51) damping = \"1.50\"\n"
            "Main: ParameterStatusChange(1, 1) damping = \"3\"\n"
            "Main: ParameterChange(1, 1) damping = \"3\"\n"
            "Main: ItemKeyUp(1, 1, 51, 0) damping = \"3\"\n"
            "Main: ItemKeyDown(1, 1, 9, 0) damping = \"3\"\n"
            "Main: ParameterEndEdit(1, 1, True) damping = \"3\"\n"
            "Main: ItemLostFocus(1, 1) damping = \"3\"\n"
            "Main: ParameterStartEdit(1, 2) mode = \"Automatic\"\n"
            "Main: ItemGotFocus(1, 2) mode = \"Automatic\"\n"
            "Main: ItemKeyUp(1, 2, 9, 0) mode = \"Automatic\"\n");
}

TEST_F(SampleDevice, ChoosingInADropListRaisesChangeThenClick) {
  const std::string printed = play("choose mode Manual\n");
  EXPECT_NE(
      printed.find("ParameterChange(1, 2) mode = \"Manual\"\nMain: ParameterClick(1, 2) mode = \"Manual\""),
      std::string::npos)
      << printed;
}

TEST_F(SampleDevice, ClickingTheCaptionOfACheckBoxWorksIt) {
  const std::string printed = play("click simulate label\n");
  EXPECT_NE(printed.find("ParameterClick(1, 3) simulate = \"True\""), std::string::npos) << printed;
}

TEST_F(SampleDevice, TickingABitRaisesItemCheck) {
  const std::string printed = play("tick status 0\n");
  EXPECT_NE(printed.find("ParameterItemCheck(1, 4, 0) status = \"11\""), std::string::npos) << printed;
}

TEST_F(SampleDevice, AMethodReportsAndASubmenuIsAnnounced) {
  EXPECT_NE(play("click self_test\n").find("message: Self test: done"), std::string::npos);
  EXPECT_NE(play("click more\n").find("ActionClick(1, 7) more"), std::string::npos);
}

TEST_F(SampleDevice, AChosenMenuEntryIsAnEvent) {
  const std::string printed = play("menu 1\nrightclick damping label\n");
  EXPECT_NE(printed.find("ItemMenuClick(1, 1, 1) damping"), std::string::npos) << printed;
  EXPECT_NE(printed.find("help: Filters the value."), std::string::npos) << printed;
}

TEST_F(SampleDevice, AScriptErrorNamesItsLineAndWhatIsWrong) {
  const auto error = [this](const std::string& line) {
    return errorOf([&] { replay.playText("page Main\n\n" + line, "s"); });
  };
  EXPECT_EQ(error("jump 3"), "s:3: unknown action \"jump\"");
  EXPECT_EQ(error("focus"), "s:3: \"focus\" takes one word, or a text in quotation marks");
  EXPECT_EQ(error("focus nothing"), "s:3: page \"Main\" has no item \"nothing\"");
  EXPECT_EQ(error("page Nowhere"), "s:3: there is no page \"Nowhere\"");
  EXPECT_EQ(error("key F99"), "s:3: unknown key \"F99\"");
  EXPECT_EQ(error("wait soon"), "s:3: \"soon\" is no number");
  EXPECT_EQ(error("type \"abc"), "s:3: the text has no closing quotation mark");
  EXPECT_EQ(error("choose mode Nothing"), "s:3: \"mode\" has no entry \"Nothing\"");
  EXPECT_EQ(error("click damping nose"), "s:3: a row has no part \"nose\"");
  EXPECT_EQ(error("back 1"), "s:3: no page 1 is covered");
  EXPECT_EQ(error("back home"), "s:3: \"home\" is no number");
  EXPECT_EQ(error("answer maybe"), "s:3: unknown answer \"maybe\"");
  EXPECT_EQ(error("close"), "s:3: the page on top has no such icon");
  EXPECT_EQ(error("tick damping 1"), "s:3: \"damping\" has no list");
}

TEST_F(SampleDevice, AScriptStartsOnThePageOfTheFirstMenu) {
  playOn("page Trim");
  EXPECT_EQ(titles(), "Main > Trim");
}

TEST_F(SampleDevice, AMissingScriptIsAnError) {
  EXPECT_EQ(errorOf([this] { replay.play("no/such/script"); }), "no/such/script:1: can't be read");
}

TEST_F(SampleDevice, CommentsAndEmptyLinesAreSkipped) { EXPECT_EQ(play("# nothing\n\n   \n"), "-- Main\n"); }

}  // namespace
}  // namespace qrn::eddpanel
