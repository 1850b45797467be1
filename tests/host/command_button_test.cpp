#include "host/command_button.h"

#include "host/picture_box.h"
#include "host/prog_ids.h"
#include "host/text_box.h"
#include "test_control.h"

namespace qrn::test {
namespace {

class CommandButtons : public SurfaceTest {
 protected:
  CommandButtons() {
    button.SetCaption("&Apply");
    listening = button.Click.connect([this] { ++clicks; });
  }
  int taken() { return std::exchange(clicks, 0); }

  host::CommandButton& button = surface().add<host::CommandButton>("cmd");
  int clicks = 0;
  Connection listening;
};

TEST_F(CommandButtons, AreMadeByTheirProgId) {
  EXPECT_EQ(host::createByProgId("vb.commandbutton")->typeName(), "CommandButton");
}

TEST_F(CommandButtons, AreClickedByThePressAndTheReleaseOfTheLeftButton) {
  user.pressesAt({50, 10});
  EXPECT_EQ(taken(), 0);
  EXPECT_TRUE(button.hasFocus());
  user.releasesAt({60, 12});
  EXPECT_EQ(taken(), 1);
}

TEST_F(CommandButtons, LetGoBesideAreNotClicked) {
  user.pressesAt({50, 10});
  user.releasesAt({50, 100});
  EXPECT_EQ(taken(), 0);
  user.releasesAt({50, 10});
  EXPECT_EQ(taken(), 0);
}

TEST_F(CommandButtons, OtherMouseButtonsDoNotClick) {
  user.clicks(button, host::MouseButton::Right);
  EXPECT_EQ(taken(), 0);
}

TEST_F(CommandButtons, AreClickedByTheSpaceBarWhenItIsLetGo) {
  button.SetFocus();
  user.holds(host::key::Space);
  EXPECT_EQ(taken(), 0);
  user.lets(host::key::Space);
  EXPECT_EQ(taken(), 1);
  user.types(" ");
  EXPECT_EQ(taken(), 1);
}

TEST_F(CommandButtons, ASpaceBarLetGoElsewhereDoesNotClick) {
  auto& text = surface().add<host::TextBox>("txt", {0, 30, 100, 20});
  button.SetFocus();
  user.holds(host::key::Space);
  text.SetFocus();
  user.lets(host::key::Space);
  EXPECT_EQ(taken(), 0);
}

TEST_F(CommandButtons, AreClickedByEnter) {
  button.SetFocus();
  user.presses(host::key::Enter);
  EXPECT_EQ(taken(), 1);
}

TEST_F(CommandButtons, DisabledTheyCanNotBeClicked) {
  button.SetEnabled(false);
  user.clicks(button);
  button.userClicked();
  user.presses('A', host::shift::Alt);
  EXPECT_EQ(taken(), 0);
}

TEST_F(CommandButtons, WantTheKeysThatClickThemAndLeaveADialogItsOthers) {
  button.SetFocus();
  for (const std::int16_t key : {host::key::Space, host::key::Enter})
    EXPECT_TRUE(input().wantsKey(key)) << key;
  for (const std::int16_t key : {host::key::Escape, host::key::Tab, host::key::Left})
    EXPECT_FALSE(input().wantsKey(key)) << key;
}

TEST_F(CommandButtons, AKeyThatTheHolderClearsDoesNotReachThem) {
  button.SetFocus();
  surface().swallowedKey = host::key::Enter;
  user.presses(host::key::Enter);
  surface().swallowedKey = host::key::Space;
  user.presses(host::key::Space);
  surface().swallowedKey = 'A';
  user.presses('A', host::shift::Alt);
  EXPECT_EQ(taken(), 0);
}

TEST_F(CommandButtons, TellTheirPeerOfAnotherCaptionOnly) {
  surface().realise();
  button.SetFocus();
  auto& peer = static_cast<headless::HeadlessPeer&>(*button.peer());
  const int before = peer.changes;
  button.SetCaption("&Apply");
  EXPECT_EQ(peer.changes, before);
  button.SetCaption("&Send");
  EXPECT_EQ(peer.changes, before + 1);
}

TEST_F(CommandButtons, MayGoInsideTheirOwnClick) {
  const auto removing = button.Click.connect([this] { surface().controls().remove("cmd"); });
  user.clicks(button);
  EXPECT_EQ(surface().controls().find("cmd"), nullptr);
  EXPECT_EQ(input().focus(), nullptr);
}

TEST_F(CommandButtons, TheSurfaceMayGoInsideAClickOfEachKind) {
  const auto removing = button.Click.connect([this] { owned.reset(); });
  user.presses('A', host::shift::Alt);
  EXPECT_EQ(owned, nullptr);
}

// ---- the letter of the caption ----

class Mnemonics : public CommandButtons {
 protected:
  std::int16_t letterOf(const char* caption) {
    button.SetCaption(caption);
    return button.mnemonic();
  }
};

TEST_F(Mnemonics, AreTheLetterOrDigitBehindTheSign) {
  EXPECT_EQ(letterOf("&Apply"), 'A');
  EXPECT_EQ(letterOf("He&lp"), 'L');
  EXPECT_EQ(letterOf("Step &2"), '2');
}

TEST_F(Mnemonics, ADoubledSignIsNone) {
  EXPECT_EQ(letterOf("This && that"), 0);
  EXPECT_EQ(letterOf("This && &that"), 'T');
  EXPECT_EQ(letterOf("&&&x"), 'X');
}

TEST_F(Mnemonics, NothingOrAnythingElseBehindTheSignIsNone) {
  for (const char* caption : {"", "Apply", "Apply&", "& Apply",
                              "&\xc3\x96"
                              "ffnen",
                              "&."})
    EXPECT_EQ(letterOf(caption), 0) << caption;
}

TEST_F(Mnemonics, ClickFromWhereverTheFocusIsAndBringIt) {
  auto& text = surface().add<host::TextBox>("txt", {0, 30, 100, 20});
  text.SetFocus();
  heard();
  user.presses('A', host::shift::Alt);
  EXPECT_EQ(taken(), 1);
  EXPECT_TRUE(button.hasFocus());
  EXPECT_EQ(heard(), (Heard{"txt LostFocus", "cmd GotFocus"}));
  user.presses('A', host::shift::Alt);
  EXPECT_EQ(taken(), 1);
}

TEST_F(Mnemonics, NeedAltAndNothingElse) {
  for (const std::int16_t state : {std::int16_t{0}, host::shift::Shift, host::shift::Control,
                                   static_cast<std::int16_t>(host::shift::Alt | host::shift::Control)})
    user.presses('A', state);
  user.presses('B', host::shift::Alt);
  EXPECT_EQ(taken(), 0);
}

TEST_F(Mnemonics, AreFoundAtAnyDepthAndNotWhereTheyCanNotBeSeen) {
  auto& box = surface().add<host::PictureBox>("box", {0, 60, 100, 50});
  auto& inner = surface().add<host::CommandButton>("inner", {0, 0, 50, 20}, box);
  inner.SetCaption("&Inner");
  int heardInner = 0;
  const auto connection = inner.Click.connect([&] { ++heardInner; });
  user.presses('I', host::shift::Alt);
  EXPECT_EQ(heardInner, 1);
  box.SetVisible(false);
  user.presses('I', host::shift::Alt);
  EXPECT_EQ(heardInner, 1);
}

TEST_F(Mnemonics, AreNotFoundInWhatIsDisabled) {
  auto& box = surface().add<host::PictureBox>("box", {0, 60, 100, 50});
  auto& inner = surface().add<host::CommandButton>("inner", {0, 0, 50, 20}, box);
  inner.SetCaption("&Inner");
  auto& behind = surface().add<host::CommandButton>("behind", {0, 30, 100, 20});
  behind.SetCaption("&Into");
  box.SetEnabled(false);
  int clicks = 0;
  const auto connection = behind.Click.connect([&] { ++clicks; });
  user.presses('I', host::shift::Alt);
  EXPECT_EQ(clicks, 1);
}

TEST_F(Mnemonics, TheFirstButtonThatCanBePressedHasIt) {
  auto& second = surface().add<host::CommandButton>("second", {0, 30, 100, 20});
  second.SetCaption("&Again");
  int again = 0;
  const auto connection = second.Click.connect([&] { ++again; });
  user.presses('A', host::shift::Alt);
  EXPECT_EQ(taken() * 10 + again, 10);
  button.SetEnabled(false);
  user.presses('A', host::shift::Alt);
  EXPECT_EQ(taken() * 10 + again, 1);
}

TEST_F(Mnemonics, AButtonThatGoesWhenTheFocusComesIsNotClicked) {
  auto& text = surface().add<host::TextBox>("txt", {0, 30, 100, 20});
  text.SetFocus();
  diary.listener = [this](const std::string& line) {
    if (line == "txt LostFocus") surface().controls().remove("cmd");
  };
  user.presses('A', host::shift::Alt);
  EXPECT_EQ(taken(), 0);
}

}  // namespace
}  // namespace qrn::test
