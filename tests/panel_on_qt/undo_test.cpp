#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>

#include "rows_on_qt.h"
#include "runtime/locale.h"

namespace qrn {
namespace {

class UndoOnQt : public RowsOnQt {
 protected:
  ~UndoOnQt() override { setCurrentLocale(enUS()); }

  /// A row with the focus and its caret behind the text.
  QRNEdit& edited(qrnValueType type, const Variant& value) {
    QRNEdit& row = add(type);
    show();
    row.SetValue(value);
    line = &focused<QLineEdit>(row);
    line->end(false);
    return row;
  }
  void types(const char* text) { QTest::keyClicks(line, text); }
  std::string undone() {
    QTest::keySequence(line, QKeySequence::Undo);
    return line->text().toStdString();
  }
  std::string redone() {
    QTest::keySequence(line, QKeySequence::Redo);
    return line->text().toStdString();
  }
  QMenu* menu() {
    QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, line->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(line, &event);
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
  }

  QLineEdit* line = nullptr;
};

TEST_F(UndoOnQt, TakesBackWhatIsTypedAlthoughItColoursTheRow) {
  QRNEdit& row = edited(qrnTypeString, "abc");
  types("xy");
  EXPECT_EQ(undone(), "abc");
  EXPECT_EQ(row.ValueText(), "abc");
  EXPECT_EQ(undone(), "abc");
  EXPECT_EQ(redone(), "abcxy");
  EXPECT_EQ(row.ValueText(), "abcxy");
  EXPECT_EQ(redone(), "abcxy");
}

TEST_F(UndoOnQt, TakesBackOneStepAfterTheOtherWithTheCaretWhereItWas) {
  edited(qrnTypeString, "abcd");
  types("ef");
  line->setCursorPosition(2);
  types("x");
  QTest::keyClick(line, Qt::Key_Backspace);
  QTest::keyClick(line, Qt::Key_Backspace);
  line->setSelection(0, 2);
  types("z");
  EXPECT_EQ(line->text(), "zdef");
  EXPECT_EQ(undone(), "acdef");
  EXPECT_EQ(undone(), "abxcdef");
  EXPECT_EQ(line->cursorPosition(), 3);
  EXPECT_EQ(undone(), "abcdef");
  EXPECT_EQ(line->cursorPosition(), 2);
  EXPECT_EQ(undone(), "abcd");
  EXPECT_EQ(redone(), "abcdef");
}

TEST_F(UndoOnQt, TakesBackACorrectedSeparatorWithWhatWasTyped) {
  setCurrentLocale(deDE());
  QRNEdit& row = edited(qrnTypeDouble, 7.0);
  types("12.5");
  EXPECT_EQ(line->text(), "712,5");
  EXPECT_EQ(undone(), "7");
  EXPECT_EQ(row.ValueText(), "7");
  EXPECT_EQ(redone(), "712,5");
}

TEST_F(UndoOnQt, TakesBackLettersThatBecameCapitals) {
  QRNEdit& row = edited(qrnTypeString, "A");
  row.SetValueUpperCase(true);
  types("bcd");
  EXPECT_EQ(line->text(), "ABCD");
  EXPECT_EQ(undone(), "A");
  EXPECT_EQ(row.ValueText(), "A");
}

TEST_F(UndoOnQt, ForgetsWhatWasBeforeAnotherValueOfTheProgram) {
  QRNEdit& row = edited(qrnTypeString, "abc");
  types("x");
  row.SetValue("other");
  EXPECT_EQ(undone(), "other");
  types("y");
  EXPECT_EQ(undone(), "other");
}

TEST_F(UndoOnQt, DoesTheSameFromTheMenu) {
  edited(qrnTypeString, "abc");
  types("x");
  QMenu* first = menu();
  ASSERT_TRUE(first);
  EXPECT_TRUE(first->actions()[0]->isEnabled());
  EXPECT_FALSE(first->actions()[1]->isEnabled());
  first->actions()[0]->trigger();
  first->close();
  EXPECT_EQ(line->text(), "abc");
  QMenu* second = menu();
  ASSERT_TRUE(second);
  EXPECT_FALSE(second->actions()[0]->isEnabled());
  second->actions()[1]->trigger();
  second->close();
  EXPECT_EQ(line->text(), "abcx");
}

TEST_F(UndoOnQt, ChangesNothingInALockedRow) {
  QRNEdit& row = edited(qrnTypeString, "abc");
  types("x");
  row.SetLocked(true);
  EXPECT_EQ(undone(), "abcx");
  row.SetLocked(false);
  EXPECT_EQ(undone(), "abc");
}

TEST_F(UndoOnQt, BringsBackWhatTheUserCouldNotHaveTyped) {
  QRNEdit& row = edited(qrnTypeString, "abc");
  row.SetValueUpperCase(true);
  line->setCursorPosition(2);
  QTest::keyClick(line, Qt::Key_Backspace);
  EXPECT_EQ(row.ValueText(), "ac");
  EXPECT_EQ(undone(), "abc");
  EXPECT_EQ(row.ValueText(), "abc");
  EXPECT_EQ(redone(), "ac");
}

TEST_F(UndoOnQt, BringsBackATextThatIsLongerThanTheUserMayType) {
  QRNEdit& row = edited(qrnTypeString, "abcde");
  row.SetValueMaxLength(3);
  QTest::keyClick(line, Qt::Key_Backspace);
  QTest::keyClick(line, Qt::Key_Backspace);
  EXPECT_EQ(row.ValueText(), "abc");
  EXPECT_EQ(undone(), "abcde");
  EXPECT_EQ(row.ValueText(), "abcde");
}

}  // namespace
}  // namespace qrn
