#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QTest>

#include "platform/qt/qt_text.h"
#include "test_panel.h"

namespace qrn::qt {
namespace {

using TextBoxPeer = PanelTest;

TEST_F(TextBoxPeer, APanelHasOneCanvasAndAScrollBarUntilAnEditorHasTheFocus) {
  EXPECT_EQ(shownWidgets(), 1);
  click(panel->text());
  EXPECT_EQ(shownWidgets(), 2);
  click(panel->second());
  EXPECT_EQ(shownWidgets(), 2);
  EXPECT_EQ(shown<QLineEdit>()->geometry().top(), 40);
}

TEST_F(TextBoxPeer, ThePressThatMakesTheEditorPutsTheCaretWhereItHit) {
  const QFontMetrics metrics(QApplication::font());
  const int x = static_cast<int>(TestPanel::kLeft) + 3 + metrics.horizontalAdvance("alph");
  clickAt({x + 1, middle(panel->text()).y()});
  ASSERT_TRUE(shown<QLineEdit>());
  EXPECT_TRUE(shown<QLineEdit>()->hasFocus());
  EXPECT_EQ(shown<QLineEdit>()->cursorPosition(), 4);
  EXPECT_EQ(panel->text().SelStart(), 4);
}

TEST_F(TextBoxPeer, TypingReportsTextAndCaret) {
  click(panel->text());
  QTest::keyClick(shown<QLineEdit>(), Qt::Key_Home);
  QTest::keyClicks(shown<QLineEdit>(), "x");
  EXPECT_EQ(panel->text().Text(), "xalpha beta");
  EXPECT_EQ(panel->text().SelStart(), 1);
  EXPECT_TRUE(heard("text Change \"xalpha beta\""));
}

TEST_F(TextBoxPeer, PositionsCountCodePoints) {
  panel->text().SetText("a\U0001F600b");
  panel->text().SetFocus();
  auto* line = shown<QLineEdit>();
  line->setCursorPosition(3);
  EXPECT_EQ(panel->text().SelStart(), 2);
  QTest::keyClicks(line, "x");
  EXPECT_EQ(panel->text().Text(), "a\U0001F600xb");
  panel->text().select(1, 1);
  EXPECT_EQ(line->selectionStart(), 1);
  EXPECT_EQ(line->selectionLength(), 2);
}

TEST_F(TextBoxPeer, WhatTheProgramWritesIsShownAndNotReported) {
  panel->text().SetFocus();
  panel->heard.clear();
  panel->text().SetText("new");
  panel->text().select(1, 2);
  EXPECT_EQ(shown<QLineEdit>()->text(), "new");
  EXPECT_EQ(shown<QLineEdit>()->selectedText(), "ew");
  EXPECT_EQ(panel->heard, std::vector<std::string>());
}

TEST_F(TextBoxPeer, NoMoreIsTypedThanFits) {
  panel->text().SetText("\U0001F600");
  panel->text().SetMaxLength(3);
  panel->text().SetFocus();
  QTest::keyClicks(shown<QLineEdit>(), "abc");
  EXPECT_EQ(panel->text().Text(), "ab\U0001F600");
  EXPECT_EQ(toUtf8(shown<QLineEdit>()->text()), panel->text().Text());
  EXPECT_EQ(shown<QLineEdit>()->cursorPosition(), 2);
}

TEST_F(TextBoxPeer, ALetterOfTwoUnitsFitsWhereOneFits) {
  panel->text().SetText("ab");
  panel->text().SetMaxLength(3);
  panel->text().SetFocus();
  shown<QLineEdit>()->end(false);
  QApplication::clipboard()->setText(QString::fromUtf8("\U0001F600\U0001F601"));
  shown<QLineEdit>()->paste();
  EXPECT_EQ(panel->text().Text(), "ab\U0001F600");
  EXPECT_EQ(toUtf8(shown<QLineEdit>()->text()), panel->text().Text());
}

TEST_F(TextBoxPeer, ATextLiesAtTheSameSideWhicheverWayItIsWritten) {
  panel->text().SetFocus();
  EXPECT_TRUE(shown<QLineEdit>()->alignment().testFlag(Qt::AlignAbsolute));
}

TEST_F(TextBoxPeer, LosesAFocusThatIsGivenToAnotherWhileItsWindowIsNotActive) {
  panel->text().SetFocus();
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  EXPECT_EQ(panel->input().focus(), &panel->text());
  after->setFocus();
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  EXPECT_EQ(panel->input().focus(), nullptr);
  EXPECT_TRUE(heard("text LostFocus"));
  EXPECT_FALSE(shown<QLineEdit>());
}

TEST_F(TextBoxPeer, TypedLettersBecomeCapitalsAndTheCaretStays) {
  panel->text().setUpperCase(true);
  panel->text().SetText("AC");
  panel->text().SetFocus();
  shown<QLineEdit>()->setCursorPosition(1);
  QTest::keyClicks(shown<QLineEdit>(), "b");
  EXPECT_EQ(shown<QLineEdit>()->text(), "ABC");
  EXPECT_EQ(shown<QLineEdit>()->cursorPosition(), 2);
}

TEST_F(TextBoxPeer, APasswordShowsItsCharacterForEveryOther) {
  panel->text().SetPasswordChar("*");
  click(panel->text());
  ASSERT_TRUE(shown<QLineEdit>());
  EXPECT_EQ(shown<QLineEdit>()->displayText(), "**********");
  QTest::keyClicks(shown<QLineEdit>(), "x");
  EXPECT_EQ(shown<QLineEdit>()->displayText(), "***********");
  panel->text().SetPasswordChar("#");
  EXPECT_EQ(shown<QLineEdit>()->displayText(), "###########");
  panel->text().SetPasswordChar("");
  EXPECT_EQ(shown<QLineEdit>()->displayText().size(), 11);
  EXPECT_EQ(shown<QLineEdit>()->displayText(), shown<QLineEdit>()->text());
  EXPECT_EQ(shown<QLineEdit>()->style(), QApplication::style()) << "it follows the application's again";
}

TEST_F(TextBoxPeer, ALockedBoxSelectsButDoesNotChange) {
  panel->text().SetLocked(true);
  click(panel->text());
  auto* line = shown<QLineEdit>();
  ASSERT_TRUE(line);
  QTest::keyClicks(line, "x");
  QTest::keyClick(line, Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(line->selectedText(), "alpha beta");
  EXPECT_EQ(panel->text().SelLength(), 10);
  EXPECT_EQ(panel->text().Text(), "alpha beta");
  panel->text().SetLocked(false);
  QTest::keyClicks(line, "x");
  EXPECT_EQ(panel->text().Text(), "x");
}

TEST_F(TextBoxPeer, ADisabledBoxKeepsItsPlaceAndComesBack) {
  panel->text().SetFocus();
  panel->text().SetEnabled(false);
  EXPECT_EQ(panel->input().focus(), &panel->text());
  EXPECT_FALSE(shown<QLineEdit>()->isEnabled());
  EXPECT_NE(QApplication::focusWidget(), after);
}

}  // namespace
}  // namespace qrn::qt
