#include <QLineEdit>

#include "rows_on_qt.h"

namespace qrn {
namespace {

using TypingOnQt = RowsOnQt;

TEST_F(TypingOnQt, GoesOnAtTheCaretWhenTheFirstCharacterHasColouredTheRow) {
  QRNEdit& row = add(qrnTypeLong);
  show();
  row.SetValue(1234);
  auto& line = focused<QLineEdit>(row);
  line.setCursorPosition(1);
  QTest::keyClicks(&line, "99");
  EXPECT_EQ(row.ValueText(), "199234");
  EXPECT_EQ(line.cursorPosition(), 3);
}

TEST_F(TypingOnQt, KeepsCaretAndSelectionWhileTheProgramChangesTheLookOfTheRow) {
  QRNEdit& row = add(qrnTypeString);
  show();
  row.SetValue("abcdef");
  auto& line = focused<QLineEdit>(row);
  const auto keeps = [&](const char* what, auto change) {
    line.setSelection(1, 3);
    change();
    EXPECT_EQ(line.selectedText(), "bcd") << what;
    line.deselect();
    line.setCursorPosition(2);
  };
  keeps("state", [&] { item(1).SetParamState(qrnStateNeeded); });
  keeps("colour", [&] { row.SetValueForeColor(host::rgb(0, 1, 2)); });
  keeps("tool tip", [&] { row.SetValueToolTip("tip"); });
  keeps("longest text", [&] { row.SetValueMaxLength(20); });
  keeps("locked", [&] { row.SetLocked(true); });
  keeps("not locked", [&] { row.SetLocked(false); });
  row.SetValueForeColor(host::rgb(0, 1, 3));
  row.SetValueMaxLength(30);
  EXPECT_EQ(line.cursorPosition(), 2);
}

}  // namespace
}  // namespace qrn
