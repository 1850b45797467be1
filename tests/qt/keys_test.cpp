#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QTest>

#include "platform/qt/qt_keys.h"
#include "test_panel.h"

namespace qrn::qt {
namespace {

using Keys = PanelTest;

std::int16_t codeOf(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  return keyCode(QKeyEvent(QEvent::KeyPress, key, modifiers));
}

TEST(KeyCodes, AreThoseOfTheControls) {
  EXPECT_EQ(codeOf(Qt::Key_A), 'A');
  EXPECT_EQ(codeOf(Qt::Key_7), '7');
  EXPECT_EQ(codeOf(Qt::Key_F4), host::key::F4);
  EXPECT_EQ(codeOf(Qt::Key_Enter, Qt::KeypadModifier), host::key::Enter);
  EXPECT_EQ(codeOf(Qt::Key_Backtab, Qt::ShiftModifier), host::key::Tab);
  EXPECT_EQ(codeOf(Qt::Key_5, Qt::KeypadModifier), 101);
  EXPECT_EQ(codeOf(Qt::Key_Period), 190);
  EXPECT_EQ(codeOf(Qt::Key_Period, Qt::KeypadModifier), 110);
  EXPECT_EQ(codeOf(Qt::Key_Exclam, Qt::ShiftModifier), '1');
  EXPECT_EQ(codeOf(Qt::Key_VolumeUp), 0);
}

TEST(KeyCodes, CommandsTypeNothing) {
  EXPECT_EQ(typedCharacter(QKeyEvent(QEvent::KeyPress, Qt::Key_C, Qt::ControlModifier, "\x03")), 0);
  EXPECT_EQ(
      typedCharacter(QKeyEvent(QEvent::KeyPress, Qt::Key_Q, Qt::ControlModifier | Qt::AltModifier, "@")),
      '@');
  EXPECT_EQ(typedCharacter(QKeyEvent(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier, "\x7f")), 0);
  EXPECT_EQ(typedCharacter(QKeyEvent(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r")), 13);
}

TEST_F(Keys, GoToTheFocusedControlFirst) {
  panel->text().SetFocus();
  panel->heard.clear();
  QTest::keyClicks(shown<QLineEdit>(), "x");
  const std::vector<std::string> expected = {"text KeyDown 88 0", "text KeyPress 120",
                                             "text Change \"xalpha beta\"", "text KeyUp 88"};
  EXPECT_EQ(panel->heard, expected);
}

TEST_F(Keys, AKeyThatIsUsedUpTypesNothing) {
  panel->text().SetFocus();
  panel->swallowedKey = 'X';
  QTest::keyClick(shown<QLineEdit>(), 'x');
  EXPECT_EQ(panel->text().Text(), "alpha beta");
  EXPECT_FALSE(heard("text KeyPress 120"));
}

TEST_F(Keys, ACharacterCanBeSwallowedOrReplaced) {
  panel->text().SetFocus();
  panel->typed = [](std::int16_t c) { return c == ',' ? std::int16_t{'.'} : std::int16_t{0}; };
  QTest::keyClicks(shown<QLineEdit>(), "a,b");
  EXPECT_EQ(panel->text().Text(), ".alpha beta");
}

TEST_F(Keys, TabWalksTheEditorsAndThenLeaves) {
  panel->text().SetFocus();
  const std::vector<std::string> names = {"second", "check", "combo", "list"};
  for (const std::string& name : names) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    ASSERT_TRUE(panel->input().focus());
    EXPECT_EQ(panel->input().focus()->Name(), name);
    EXPECT_EQ(shownWidgets(), 2);
  }
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), after);
  EXPECT_FALSE(panel->input().focus());
  EXPECT_TRUE(heard("list LostFocus"));
}

TEST_F(Keys, ShiftTabWalksBackAndLeavesAtTheBeginning) {
  panel->second().SetFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(panel->input().focus(), &panel->text());
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(QApplication::focusWidget(), before);
  EXPECT_FALSE(panel->input().focus());
}

TEST_F(Keys, TabFromOutsideGoesToTheFirstEditorAndShiftTabToTheLast) {
  QTest::keyClick(before, Qt::Key_Tab);
  EXPECT_EQ(panel->input().focus(), &panel->text());
  after->setFocus();
  EXPECT_FALSE(panel->input().focus());
  QTest::keyClick(after, Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(panel->input().focus(), &panel->list());
}

TEST_F(Keys, TabMarksWhatHasTheFocusFromThenOn) {
  click(panel->check());
  const auto marked = [&] { return window->testAttribute(Qt::WA_KeyboardFocusChange); };
  EXPECT_FALSE(marked());
  QTest::keyClick(shown<QCheckBox>(), Qt::Key_Tab);
  EXPECT_TRUE(marked());
}

TEST_F(Keys, WhereThereIsNothingElseTabStartsOver) {
  delete before;
  delete after;
  panel->list().SetFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(panel->input().focus(), &panel->text());
}

TEST_F(Keys, AnotherWindowBorrowsTheFocusOnly) {
  panel->text().SetFocus();
  QFocusEvent left(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
  QCoreApplication::sendEvent(shown<QLineEdit>(), &left);
  EXPECT_EQ(panel->input().focus(), &panel->text());
  EXPECT_TRUE(shown<QLineEdit>());
}

TEST_F(Keys, AWidgetThatTakesTheFocusDropsTheEditor) {
  panel->text().SetFocus();
  after->setFocus();
  EXPECT_TRUE(heard("text LostFocus"));
  EXPECT_FALSE(shown<QLineEdit>());
  EXPECT_EQ(QApplication::focusWidget(), after);
  canvas->setFocus();
  EXPECT_EQ(panel->input().focus(), &panel->text());
  EXPECT_TRUE(shown<QLineEdit>()->hasFocus());
}

/// Shortcuts of the window around a panel, counted.
struct Shortcuts {
  explicit Shortcuts(QWidget& window)
      : enter(Qt::Key_Return, &window), left(Qt::Key_Left, &window), save(Qt::CTRL | Qt::Key_S, &window) {
    QObject::connect(&enter, &QShortcut::activated, [this] { ++entered; });
    QObject::connect(&left, &QShortcut::activated, [this] { ++moved; });
    QObject::connect(&save, &QShortcut::activated, [this] { ++saved; });
  }
  QShortcut enter, left, save;
  int entered = 0, moved = 0, saved = 0;
};

std::intptr_t wantsAllKeys(host::WindowHandle, std::uint32_t, std::intptr_t, std::intptr_t) {
  return host::dlgc::WantAllKeys;
}

TEST_F(Keys, WhatAnEditorIsMovedAndFilledWithIsNotTakenAwayByTheWindowAround) {
  Shortcuts around(*window);
  panel->text().SetFocus();
  panel->text().select(3, 0);
  QTest::keyClick(window->windowHandle(), Qt::Key_Left);
  EXPECT_EQ(around.moved, 0);
  EXPECT_EQ(panel->text().SelStart(), 2);
  QTest::keyClick(window->windowHandle(), Qt::Key_Return);
  EXPECT_EQ(around.entered, 1) << "which is not for the text";
}

TEST_F(Keys, EnterIsNotTakenAwayFromAnEditorThatAsksForAllKeys) {
  Shortcuts around(*window);
  int& entered = around.entered;
  int& saved = around.saved;
  panel->text().SetFocus();
  platform.windows().setLong(panel->text().window(), host::kGwlWndProc,
                             reinterpret_cast<std::intptr_t>(&wantsAllKeys));
  QTest::keyClick(window->windowHandle(), Qt::Key_Return);
  EXPECT_EQ(entered, 0);
  EXPECT_TRUE(heard("text KeyPress 13"));
  EXPECT_EQ(std::count(panel->heard.begin(), panel->heard.end(), "text KeyDown 13 0"), 1);
  QTest::keyClick(window->windowHandle(), Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(saved, 1);
}

TEST_F(Keys, SpaceTicksTheCurrentEntryAndArrowsMove) {
  panel->list().SetFocus();
  auto* list = shown<QListWidget>();
  ASSERT_TRUE(list);
  QTest::keyClick(list, Qt::Key_Down);
  QTest::keyClick(list, Qt::Key_Space);
  EXPECT_EQ(panel->list().ListIndex(), 1);
  EXPECT_TRUE(panel->list().Selected(1));
  QTest::keyClick(list, Qt::Key_T);
  EXPECT_EQ(panel->list().ListIndex(), 2);
}

TEST_F(Keys, WithoutAnEditorKeysGoToThePanel) {
  canvas->setFocus();
  panel->heard.clear();
  QTest::keyClick(canvas, Qt::Key_F5);
  EXPECT_TRUE(heard("panel KeyDown 116"));
}

}  // namespace
}  // namespace qrn::qt
