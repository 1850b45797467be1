#include "host/text_box.h"

#include "test_control.h"

namespace qrn::test {
namespace {

class TextBoxes : public SurfaceTest {
 protected:
  host::TextBox& box = surface().add<host::TextBox>("txt");
  void SetUp() override {
    box.SetFocus();
    heard();
  }
};

TEST_F(TextBoxes, ReportNothingThatTheProgramSets) {
  box.SetText("abc");
  box.select(1, 1);
  box.SetLocked(true);
  box.SetMaxLength(2);
  box.SetPasswordChar("*");
  box.setUpperCase(true);
  EXPECT_EQ(heard(), Heard{});
  EXPECT_EQ(box.Text(), "abc");
}

TEST_F(TextBoxes, ReportEveryChangeThatTheUserMakes) {
  user.types("ab");
  user.presses(host::key::Back);
  EXPECT_EQ(heard(), (Heard{"txt Change", "txt Change", "txt Change"}));
  EXPECT_EQ(box.Text(), "a");
}

TEST_F(TextBoxes, ReportNothingWhenTheUserLeavesTheTextAsItIs) {
  box.SetText("ab");
  box.userTyped("ab", 1);
  user.presses(host::key::Right);
  user.presses(host::key::Home);
  user.presses(host::key::Back);
  EXPECT_EQ(heard(), Heard{});
}

TEST_F(TextBoxes, TakeWhatIsTypedAtTheCaretAndInPlaceOfASelection) {
  box.SetText("ad");
  box.select(1, 0);
  user.types("bc");
  EXPECT_EQ(box.Text(), "abcd");
  EXPECT_EQ(box.SelStart(), 3);
  box.select(0, 3);
  user.types("X");
  EXPECT_EQ(box.Text(), "Xd");
  EXPECT_EQ(box.SelStart(), 1);
  EXPECT_EQ(box.SelLength(), 0);
}

TEST_F(TextBoxes, CountSelectionAndLengthInCodePoints) {
  box.SetText("\u00e4\u20ac\U0001F600z");
  box.select(1, 2);
  EXPECT_EQ(box.SelStart(), 1);
  EXPECT_EQ(box.SelLength(), 2);
  user.types("\u00fc");
  EXPECT_EQ(box.Text(), "\u00e4\u00fcz");
  EXPECT_EQ(box.SelStart(), 2);
  user.presses(host::key::Back);
  user.presses(host::key::Back);
  EXPECT_EQ(box.Text(), "z");
  box.SetMaxLength(3);
  user.types("\U0001F600\U0001F601\U0001F602");
  EXPECT_EQ(box.Text(), "\U0001F600\U0001F601z");
}

TEST_F(TextBoxes, KeepTheSelectionInsideTheText) {
  box.SetText("abc");
  box.select(-4, 99);
  EXPECT_EQ(box.SelStart(), 0);
  EXPECT_EQ(box.SelLength(), 3);
  box.select(2, 5);
  EXPECT_EQ(box.SelLength(), 1);
  box.select(77, -1);
  EXPECT_EQ(box.SelStart(), 3);
  EXPECT_EQ(box.SelLength(), 0);
  box.userSelected(50, 50);
  EXPECT_EQ(box.SelStart(), 3);
  EXPECT_EQ(box.SelLength(), 0);
  box.userTyped("ab", 9, 9);
  EXPECT_EQ(box.SelStart(), 2);
  EXPECT_EQ(box.SelLength(), 0);
}

TEST_F(TextBoxes, StartOverWithTheSelectionWhenTheProgramSetsAnotherText) {
  box.SetText("abc");
  box.select(2, 1);
  box.SetText("abc");
  EXPECT_EQ(box.SelStart(), 2);
  box.SetText("abd");
  EXPECT_EQ(box.SelStart(), 0);
  EXPECT_EQ(box.SelLength(), 0);
}

TEST_F(TextBoxes, TakeNoMoreThanTheirMaximumFromTheUser) {
  box.SetMaxLength(3);
  user.types("abcde");
  EXPECT_EQ(box.Text(), "abc");
  EXPECT_EQ(heard(), (Heard{"txt Change", "txt Change", "txt Change"}));
  box.userTyped("abXYZ", 5);
  EXPECT_EQ(box.Text(), "abX") << "a paste is cut";
  EXPECT_EQ(box.SelStart(), 3);
}

TEST_F(TextBoxes, TakeALongerTextFromTheProgramAllTheSame) {
  box.SetMaxLength(3);
  box.SetText("abcdef");
  EXPECT_EQ(box.Text(), "abcdef");
}

TEST_F(TextBoxes, LeaveOfALongerTextOfTheProgramWhatTheUserLeaves) {
  box.SetMaxLength(2);
  box.SetText("12345");
  box.select(5, 0);
  user.presses(host::key::Back);
  EXPECT_EQ(box.Text(), "1234");
  box.select(1, 1);
  user.types("x");
  EXPECT_EQ(box.Text(), "1x34");
  user.types("y");
  EXPECT_EQ(box.Text(), "1x34") << "it does not become longer";
  box.userTyped("1xyz34", 4);
  EXPECT_EQ(box.Text(), "1x34") << "nor by a paste";
}

TEST_F(TextBoxes, CutAPasteInTheMiddleAndNotWhatIsBehindIt) {
  box.SetMaxLength(5);
  box.SetText("abcd");
  box.userTyped("abXYZcd", 5);
  EXPECT_EQ(box.Text(), "abXcd");
}

TEST_F(TextBoxes, HaveTheirCaretBehindWhatIsLeftOfAPaste) {
  box.SetMaxLength(3);
  box.SetText("ab");
  box.userTyped("xyzab", 3);
  EXPECT_EQ(box.Text(), "xab");
  EXPECT_EQ(box.SelStart(), 1);
  box.SetText("ab");
  box.userTyped("ab\U0001F600\U0001F601", 4);
  EXPECT_EQ(box.Text(), "ab\U0001F600") << "counted in code points";
}

TEST_F(TextBoxes, TakeWhatIsUndoneAsItWas) {
  box.setUpperCase(true);
  box.SetMaxLength(2);
  box.SetText("abc");
  box.userTyped("ab", 2);
  box.userWentBack("abc", 3);
  EXPECT_EQ(box.Text(), "abc");
  EXPECT_EQ(box.SelStart(), 3);
}

TEST_F(TextBoxes, HaveNoMaximumAtZero) {
  user.types(std::string(100, 'x'));
  EXPECT_EQ(box.Text().size(), 100u);
}

TEST_F(TextBoxes, LockedTheyCanBeSelectedInButNotChanged) {
  box.SetText("abc");
  box.SetLocked(true);
  user.types("X");
  user.presses(host::key::Delete);
  box.userTyped("pasted", 6);
  EXPECT_EQ(box.Text(), "abc");
  user.presses('A', host::shift::Control);
  EXPECT_EQ(box.SelLength(), 3);
  EXPECT_EQ(heard(), Heard{});
  EXPECT_EQ(input().focus(), &box);
}

TEST_F(TextBoxes, DisabledTheyTakeNothing) {
  box.SetText("abc");
  box.SetEnabled(false);
  user.types("X");
  EXPECT_EQ(box.Text(), "abc");
  EXPECT_EQ(heard(), Heard{});
}

TEST_F(TextBoxes, TurnWhatIsTypedIntoCapitalsWhereTheyAreAskedTo) {
  box.setUpperCase(true);
  user.types("aB1\u00e4\u03b1\u0436\u00df");
  EXPECT_EQ(box.Text(), "AB1\u00c4\u0391\u0416\u00df");
  EXPECT_EQ(box.SelStart(), 7);
}

TEST_F(TextBoxes, InCapitalsKeepBytesThatAreNoText) {
  box.setUpperCase(true);
  box.userTyped("a\xC3(b", 4);
  EXPECT_EQ(box.Text(), "A\xC3(B");
}

TEST_F(TextBoxes, LeaveATextOfTheProgramInItsCase) {
  box.setUpperCase(true);
  box.SetText("abc");
  EXPECT_EQ(box.Text(), "abc");
}

TEST_F(TextBoxes, TurnIntoCapitalsOnlyWhatIsTyped) {
  box.setUpperCase(true);
  box.SetText("abc\u00e8");
  box.select(1, 0);
  user.types("a");
  EXPECT_EQ(box.Text(), "aAbc\u00e8") << "the one before the caret is new";
  box.select(5, 0);
  user.presses(host::key::Back);
  EXPECT_EQ(box.Text(), "aAbc");
  box.userTyped("aAb\u00e9c", 4);
  EXPECT_EQ(box.Text(), "aAb\u00c9c");
  box.SetText("\u00e8");
  box.userTyped("\u00e9", 1);
  EXPECT_EQ(box.Text(), "\u00c9") << "two letters that begin with the same byte";
}

TEST_F(TextBoxes, ShowTheirPasswordCharacterForEveryCharacter) {
  box.SetText("a\u00e4\U0001F600");
  EXPECT_EQ(box.shownText(), "a\u00e4\U0001F600");
  box.SetPasswordChar("*");
  EXPECT_EQ(box.shownText(), "***");
  box.SetPasswordChar("\u25cf");
  EXPECT_EQ(box.shownText(), "\u25cf\u25cf\u25cf");
  EXPECT_EQ(box.Text(), "a\u00e4\U0001F600");
  user.types("x");
  EXPECT_EQ(box.shownText(), "\u25cf\u25cf\u25cf\u25cf");
}

TEST_F(TextBoxes, TellTheirPeerOnlyWhatItDoesNotKnowAlready) {
  surface().realise();
  input().setFocus(nullptr);
  box.SetFocus();
  auto& peer = static_cast<headless::HeadlessPeer&>(*box.peer());
  const int before = peer.changes;
  box.userTyped("abc", 3);
  EXPECT_EQ(peer.changes, before) << "it comes from there";
  box.setUpperCase(true);
  const int corrected = peer.changes;
  box.userTyped("abcd", 4);
  EXPECT_EQ(peer.changes, corrected + 1) << "the control made something else of it";
  box.SetText("other");
  box.SetText("other");
  EXPECT_EQ(peer.changes, corrected + 2);
}

TEST_F(TextBoxes, WantEveryKeyForThemselves) {
  EXPECT_EQ(platform.windows().send(box.window(), {host::wm::GetDlgCode, 0, 0}), 0x89);
}

}  // namespace
}  // namespace qrn::test
