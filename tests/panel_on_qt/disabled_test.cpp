#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QListWidget>

#include "rows_on_qt.h"

namespace qrn {
namespace {

/// What the keyboard and the mouse do while a panel is disabled that has an editor with the focus.
class DisabledOnQt : public RowsOnQt {
 protected:
  void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(window->windowHandle(), key, modifiers);
  }
  void clickOn(const QWidget& widget) {
    const QPoint at = widget.mapTo(window.get(), widget.rect().center());
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier, at);
  }
};

TEST_F(DisabledOnQt, ATextTakesNeitherKeysNorThePasteboardNorInputMethods) {
  QRNEdit& row = add(qrnTypeString);
  show();
  row.SetValue("abc");
  auto& line = focused<QLineEdit>(row);
  line.home(false);
  QApplication::clipboard()->setText("pasted");
  panel->SetEnabled(false);
  key(Qt::Key_Delete);
  key(Qt::Key_X);
  key(Qt::Key_V, Qt::ControlModifier);
  QInputMethodEvent commit;
  commit.setCommitString("i");
  QCoreApplication::sendEvent(QGuiApplication::focusObject(), &commit);
  EXPECT_EQ(row.ValueText(), "abc");
  EXPECT_EQ(line.text(), "abc");
  EXPECT_FALSE(line.isEnabled());
}

TEST_F(DisabledOnQt, TheEditorWithTheFocusGoesOnWhereItWasWhenThePanelIsEnabledAgain) {
  QRNEdit& row = add(qrnTypeString);
  show();
  row.SetValue("abc");
  auto& line = focused<QLineEdit>(row);
  line.setCursorPosition(1);
  panel->SetEnabled(false);
  EXPECT_TRUE(row.hasFocus());
  panel->SetEnabled(true);
  EXPECT_TRUE(line.isEnabled());
  EXPECT_TRUE(line.hasFocus());
  key(Qt::Key_X);
  EXPECT_EQ(row.ValueText(), "axbc");
}

TEST_F(DisabledOnQt, ARowThatIsEnabledAgainGoesOnToo) {
  QRNEdit& row = add(qrnTypeString);
  add(qrnTypeString);
  show();
  auto& line = focused<QLineEdit>(row);
  row.SetEnabled(false);
  key(Qt::Key_X);
  EXPECT_EQ(row.ValueText(), "");
  row.SetEnabled(true);
  EXPECT_TRUE(line.hasFocus());
  key(Qt::Key_X);
  EXPECT_EQ(row.ValueText(), "x");
}

TEST_F(DisabledOnQt, TheFocusDoesNotComeBackFromWhereTheUserHasTakenIt) {
  QRNEdit& row = add(qrnTypeString);
  show();
  focused<QLineEdit>(row);
  QLineEdit other(window.get());
  other.show();
  panel->SetEnabled(false);
  other.setFocus();
  panel->SetEnabled(true);
  EXPECT_TRUE(other.hasFocus());
  EXPECT_FALSE(row.hasFocus());
}

TEST_F(DisabledOnQt, ACheckBoxIsNotTicked) {
  QRNEdit& row = add(qrnTypeBoolean);
  show();
  row.SetValue(false);
  auto& box = focused<QCheckBox>(row);
  panel->SetEnabled(false);
  key(Qt::Key_Space);
  clickOn(box);
  EXPECT_EQ(row.Value(), Variant(false));
  EXPECT_FALSE(box.isEnabled());
  panel->SetEnabled(true);
  key(Qt::Key_Space);
  EXPECT_EQ(row.Value(), Variant(true));
  clickOn(box);
  EXPECT_EQ(row.Value(), Variant(false));
}

TEST_F(DisabledOnQt, ListsStayAsTheyAre) {
  QRNEdit& drop = add(qrnTypeList);
  QRNEdit& bits = add(qrnTypeBitfield);
  for (QRNEdit* row : {&drop, &bits}) {
    for (const char* name : {"a", "b", "c"}) row->SetValueNames(-1, name);
  }
  show();
  drop.SetValue(0);
  bits.SetValue("000");
  auto& combo = focused<QComboBox>(drop);
  panel->SetEnabled(false);
  key(Qt::Key_Down);
  clickOn(combo);
  EXPECT_EQ(combo.currentIndex(), 0);
  EXPECT_FALSE(QApplication::activePopupWidget());
  EXPECT_FALSE(combo.isEnabled());
  panel->SetEnabled(true);
  auto& list = focused<QListWidget>(bits);
  panel->SetEnabled(false);
  key(Qt::Key_Space);
  clickOn(*list.viewport());
  EXPECT_EQ(bits.ValueText(), "000");
  panel->SetEnabled(true);
  key(Qt::Key_Space);
  EXPECT_EQ(bits.ValueText(), "001");
}

TEST_F(DisabledOnQt, EditorsLookLikeIt) {
  QRNEdit& row = add(qrnTypeString);
  show();
  auto& line = focused<QLineEdit>(row);
  const QColor usual = line.palette().color(QPalette::Text);
  panel->SetEnabled(false);
  EXPECT_NE(line.palette().color(QPalette::Text), usual);
  EXPECT_EQ(row.CurrentEditor()->textColor(), host::kGrayText);
  panel->SetEnabled(true);
  EXPECT_EQ(line.palette().color(QPalette::Text), usual);
}

}  // namespace
}  // namespace qrn
