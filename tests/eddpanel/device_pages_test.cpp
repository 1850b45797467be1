#include "sample_device.h"

#include "item_help.h"
#include "tooltip/QRNToolTip.h"

namespace qrn::eddpanel {
namespace {

// ---- pages on each other ----

TEST_F(SampleDevice, OpensAPageOnTopForASubmenu) {
  play("click more");
  EXPECT_EQ(titles(), "Main > More");
  EXPECT_EQ(top().row(2)->LabelText(), "Limit");
  EXPECT_FALSE(stack->Pages(Variant(1)).Active());
  EXPECT_TRUE(stack->Pages(Variant(1)).Enabled());
}

TEST_F(SampleDevice, OpensADialogThatDisablesThePagesBelow) {
  play("click more\nclick trim");
  EXPECT_EQ(titles(), "Main > More > Trim");
  EXPECT_EQ(top().panel().TitleStyle(), qrnTitleDialog);
  EXPECT_FALSE(stack->Pages(Variant(1)).Enabled());
  EXPECT_FALSE(stack->Pages(Variant(2)).Enabled());
  playOn("back 1");
  EXPECT_EQ(titles(), "Main > More > Trim");
  EXPECT_EQ(platform.beeps(), 1);
  playOn("close");
  EXPECT_EQ(titles(), "Main > More");
  EXPECT_TRUE(stack->Pages(Variant(1)).Enabled());
}

TEST_F(SampleDevice, GoesBackByTheCloseIconByACoveredPageAndByTheFooter) {
  for (const std::string way : {"close", "back 1", "click OK", "click Cancel"}) {
    play("click more");
    playOn(way);
    EXPECT_EQ(titles(), "Main") << way;
  }
  play("click more\nclick Apply");
  EXPECT_EQ(titles(), "Main > More");
}

TEST_F(SampleDevice, GoesBackToThePageOfAMenuThatIsOpen) {
  play("click more\nclick trim\npage Main");
  EXPECT_EQ(titles(), "Main");
}

TEST_F(SampleDevice, MaximizesAPageAndRestoresIt) {
  play("click more\nmaximize");
  EXPECT_EQ(top().panel().Top(), 0);
  playOn("maximize");
  EXPECT_EQ(top().panel().Top(), stack->TopIndent());
}

TEST_F(SampleDevice, HasNoModalFirstPage) {
  pages.open(*description.menu("trim"));
  EXPECT_EQ(top().panel().TitleStyle(), qrnTitleStandard);
  EXPECT_TRUE(top().panel().IconCloseHidden());
}

TEST_F(SampleDevice, TellsWhenTheFooterHasClosedTheLastPage) {
  int closed = 0;
  const Connection hears = pages.LastPageClosed.connect([&] { ++closed; });
  play("click more\nclick OK");
  EXPECT_EQ(closed, 0);
  playOn("click OK");
  EXPECT_EQ(closed, 1);
  EXPECT_EQ(stack->Count(), 0);
}

TEST_F(SampleDevice, ShowsOnThePageBelowWhatADialogHasWritten) {
  play("click trim\nfocus damping\nenter 2.5\nclick OK");
  EXPECT_EQ(titles(), "Main");
  EXPECT_EQ(row("damping").ValueText(), "2.50");
}

TEST_F(SampleDevice, ReadsLiveValuesAgainOnThePageOnTopOnly) {
  play("click trim");
  EXPECT_EQ(playOn("wait 3000"), "");
  playOn("close");
  EXPECT_EQ(playOn("wait 1000"), "Main: ButtonClick(1, 4) Refresh\n");
}

// ---- values that are not written ----

constexpr std::string_view kQuestion =
    "question: \"More\" has a value that has not been written to the device.\n";

TEST_F(SampleDevice, AsksBeforeItClosesAPageWithEditedValues) {
  play("click more\nfocus limit\nenter 9");
  for (const std::string way : {"close", "back 1", "page Main"}) {
    EXPECT_NE(playOn(way).find(kQuestion), std::string::npos) << way;
    EXPECT_EQ(titles(), "Main > More") << way;
    EXPECT_EQ(top().row(2)->ValueText(), "9") << way;
  }
}

TEST_F(SampleDevice, AsksNothingWhereNothingIsEdited) {
  EXPECT_EQ(linesWith("question", play("click more\nfocus limit\nkey F1\nclose")), "");
  EXPECT_EQ(titles(), "Main");
}

TEST_F(SampleDevice, KeepsAPageOpenAtACancel) {
  EXPECT_EQ(linesWith("answer", play("click more\nfocus limit\nenter 9\nanswer cancel\nclose")),
            "answer: cancel");
  EXPECT_EQ(titles(), "Main > More");
  EXPECT_TRUE(top().panel().Active());
  EXPECT_TRUE(top().row(2)->ValueChanged());
  EXPECT_FALSE(pages.closeAll());
}

TEST_F(SampleDevice, WritesAndClosesAtApply) {
  EXPECT_EQ(linesWith("message", play("click more\nfocus limit\nenter 9\nanswer apply\nclose")),
            "message: 1 value written");
  EXPECT_EQ(titles(), "Main");
  playOn("click more");
  EXPECT_EQ(top().row(2)->ValueText(), "9");
}

TEST_F(SampleDevice, PutsTheValuesBackAndClosesAtDiscard) {
  EXPECT_EQ(linesWith("message", play("click more\nfocus limit\nenter 9\nanswer discard\nclose")),
            "message: 1 value put back");
  EXPECT_EQ(titles(), "Main");
  playOn("click more");
  EXPECT_EQ(top().row(2)->ValueText(), "7");
}

TEST_F(SampleDevice, KeepsAPageOpenWhileAValueOfItIsWrong) {
  const std::string printed = play("click trim\nfocus damping\nenter 99\nanswer apply\nclose");
  EXPECT_EQ(linesWith("question", printed),
            "question: \"Trim\" has a value that has not been written to the device. It has to be corrected "
            "first.");
  EXPECT_EQ(linesWith("message", printed), "message: 0 values written, 1 to be corrected");
  EXPECT_EQ(titles(), "Main > Trim");
  playOn("click OK");
  EXPECT_EQ(titles(), "Main > Trim");
  playOn("click Cancel");
  EXPECT_EQ(titles(), "Main");
}

TEST_F(SampleDevice, AsksForEachPageThatIsToClose) {
  play("click more\nfocus limit\nenter 9\nclick trim\nfocus damping\nenter 2.5");
  const std::string printed = playOn("answer discard\npage Main");
  EXPECT_EQ(linesWith("question", printed),
            "question: \"Trim\" has a value that has not been written to the device.\n"
            "question: \"More\" has a value that has not been written to the device.");
  EXPECT_EQ(linesWith("answer", printed), "answer: discard\nanswer: cancel");
  EXPECT_EQ(titles(), "Main > More");
}

TEST(ChangesQuestion, TellsHowManyValuesAreNotWrittenAndHowManyAreWrong) {
  EXPECT_EQ(questionText("A", {2, 0}), "\"A\" has 2 values that have not been written to the device.");
  EXPECT_EQ(
      questionText("A", {3, 1}),
      "\"A\" has 3 values that have not been written to the device. 1 of them has to be corrected first.");
  EXPECT_EQ(
      questionText("A", {3, 2}),
      "\"A\" has 3 values that have not been written to the device. 2 of them have to be corrected first.");
}

// ---- help ----

TEST_F(SampleDevice, ShowsTheHelpOfAnItemWithABoldCaption) {
  QRNToolTip* tip = nullptr;
  const Connection hears = pages.HelpShown.connect([&](QRNToolTip& shown) { tip = &shown; });
  play("focus damping\nkey F1");
  ASSERT_NE(tip, nullptr);
  EXPECT_EQ(tip->Text(), "Damping\r\nFilters the value.\r\n0 … 60 s");
  tip->RichTextControl().SetSelStart(0);
  EXPECT_EQ(tip->FontBold(), Variant(true));
  tip->RichTextControl().SetSelStart(10);
  EXPECT_EQ(tip->FontBold(), Variant(false));
}

TEST_F(SampleDevice, MakesTheToolTipAsTallAsItsText) {
  std::string text = "First line.\n";
  for (int word = 0; word < 20; ++word) text += "sevenish ";  // 180 characters, of which a line takes 80
  QRNToolTip* tip = showHelp(main().panel(), 1, {"Caption", text, {}, {}});
  ASSERT_NE(tip, nullptr);
  EXPECT_EQ(tip->Height(), 5 * 13 + 2 * host::RichTextBox::kMargin);
  EXPECT_TRUE(tip->Text().starts_with("Caption\r\nFirst line.\r\nsevenish"));
}

TEST_F(SampleDevice, ShowsHelpByKeyByIconAndByContextMenu) {
  const auto help = [this](const std::string& script) { return linesWith("help", play(script)); };
  const std::string damping = "help: Damping\nhelp: Filters the value.\nhelp: 0 … 60 s";
  EXPECT_EQ(help("focus damping\nkey F1"), damping);
  EXPECT_EQ(help("click damping icon2"), damping);
  EXPECT_EQ(help("menu 1\nrightclick damping label"), damping);
  EXPECT_EQ(help("menu 1\nrightclick self_test"), "help: Self test\nhelp: Runs it.");
  EXPECT_EQ(help("focus more\nkey F1"), "help: More\nhelp: Shows the rest.");
}

TEST_F(SampleDevice, TellsWhatTheChoicesOfAnEnumerationMean) {
  EXPECT_EQ(linesWith("help", play("focus status\nkey F1")), "help: Status\nhelp: Hot: Above 85 °C.");
}

TEST_F(SampleDevice, OffersNoHelpWhereThereIsNone) {
  EXPECT_TRUE(row("damping").GetMenuItem(1)->Enabled());
  EXPECT_FALSE(row("mode").GetMenuItem(1)->Enabled());
  EXPECT_EQ(linesWith("help", play("focus mode\nkey F1\nclick mode icon2")), "");
}

TEST_F(SampleDevice, ClosesTheHelpAtEscapeAndGoesOnWithTheEdit) {
  const auto shown = [this] { return main().panel().ControlsCollection().find("ctlToolTip") != nullptr; };
  play("focus damping\nenter 2.5\nkey F1");
  EXPECT_TRUE(shown());
  EXPECT_EQ(linesWith("Main: ParameterEndEdit", playOn("key Escape")), "");
  EXPECT_FALSE(shown());
  EXPECT_EQ(linesWith("Main: ParameterEndEdit", playOn("key Tab")),
            "Main: ParameterEndEdit(1, 1, True) damping = \"2.5\"");
}

TEST_F(SampleDevice, ClosesTheHelpWhenTheUserGoesToAnotherApplication) {
  play("focus damping\nkey F1\nleave");
  EXPECT_EQ(main().panel().ControlsCollection().find("ctlToolTip"), nullptr);
}

}  // namespace
}  // namespace qrn::eddpanel
