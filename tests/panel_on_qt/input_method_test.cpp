#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>

#include "rows_on_qt.h"

namespace qrn {
namespace {

class InputMethodOnQt : public RowsOnQt {
 protected:
  void sends(const QString& composed, const QString& committed) {
    const auto end = static_cast<int>(composed.size());
    QInputMethodEvent event(composed, {{QInputMethodEvent::Cursor, end, 1, {}}});
    event.setCommitString(committed);
    QCoreApplication::sendEvent(QGuiApplication::focusObject(), &event);
  }
  static QVariant asked(Qt::InputMethodQuery query) {
    QInputMethodQueryEvent event(query);
    QCoreApplication::sendEvent(QGuiApplication::focusObject(), &event);
    return event.value(query);
  }
  static double caretX() { return asked(Qt::ImCursorRectangle).toRectF().center().x(); }
};

TEST_F(InputMethodOnQt, CommitsIntoAPaintedEditorThatWasClicked) {
  QRNEdit& row = add(qrnTypeString);
  show();
  int changes = 0;
  const auto listening = panel->ParameterChange.connect([&](std::int32_t&) { ++changes; });
  QTest::mouseClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier, middleOf(*row.CurrentEditor()));
  EXPECT_TRUE(asked(Qt::ImEnabled).toBool());
  EXPECT_GT(asked(Qt::ImCursorRectangle).toRectF().height(), 0);
  sends("ni", {});
  EXPECT_EQ(row.ValueText(), "");
  EXPECT_EQ(changes, 0);
  sends({}, QString::fromUtf8("你"));
  EXPECT_EQ(row.ValueText(), "你");
  EXPECT_EQ(changes, 1);
}

TEST_F(InputMethodOnQt, GoesOnComposingWhileTheRowTakesAnotherColour) {
  QRNEdit& row = add(qrnTypeString);
  show();
  row.SetValue("ab");
  auto& line = focused<QLineEdit>(row);
  line.setCursorPosition(1);
  const double before = caretX();
  sends("ni", {});
  const double composing = caretX();
  EXPECT_GT(composing, before);
  item(1).SetParamState(qrnStateNeeded);
  row.SetValueForeColor(host::rgb(0, 1, 2));
  EXPECT_EQ(caretX(), composing);
  sends({}, "N");
  EXPECT_EQ(row.ValueText(), "aNb");
}

TEST_F(InputMethodOnQt, TakesBackWhatWasCommitted) {
  QRNEdit& row = add(qrnTypeString);
  show();
  row.SetValue("ab");
  auto& line = focused<QLineEdit>(row);
  line.end(false);
  sends("ni", {});
  sends({}, "N");
  EXPECT_EQ(row.ValueText(), "abN");
  QTest::keySequence(&line, QKeySequence::Undo);
  EXPECT_EQ(row.ValueText(), "ab");
}

TEST_F(InputMethodOnQt, ChangesNothingInALockedRow) {
  QRNEdit& row = add(qrnTypeString);
  show();
  row.SetValue("ab");
  row.SetLocked(true);
  focused<QLineEdit>(row);
  sends("ni", {});
  sends({}, "N");
  EXPECT_EQ(row.ValueText(), "ab");
}

using LockedOnQt = RowsOnQt;

TEST_F(LockedOnQt, ATextIsCopiedButNeitherCutNorPastedOver) {
  QRNEdit& row = add(qrnTypeString);
  show();
  row.SetValue("reading");
  row.SetLocked(true);
  auto& line = focused<QLineEdit>(row);
  QApplication::clipboard()->setText("other");
  QTest::keyClick(&line, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&line, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "reading");
  QApplication::clipboard()->setText("other");
  QTest::keyClick(&line, Qt::Key_X, Qt::ControlModifier);
  QTest::keyClick(&line, Qt::Key_V, Qt::ControlModifier);
  QTest::keyClick(&line, Qt::Key_Delete);
  EXPECT_EQ(QApplication::clipboard()->text(), "other");
  EXPECT_EQ(row.ValueText(), "reading");
  EXPECT_EQ(line.text(), "reading");
}

TEST_F(LockedOnQt, ATextDoesNotLookDisabled) {
  QRNEdit& row = add(qrnTypeString);
  show();
  row.SetValue("reading");
  row.SetLocked(true);
  const auto& line = focused<QLineEdit>(row);
  EXPECT_TRUE(line.isEnabled());
  EXPECT_EQ(line.palette().color(QPalette::Text), QApplication::palette().color(QPalette::Text));
  EXPECT_NE(line.palette().color(QPalette::Text),
            QApplication::palette().color(QPalette::Disabled, QPalette::Text));
}

}  // namespace
}  // namespace qrn
