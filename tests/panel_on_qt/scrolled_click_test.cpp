#include <QLineEdit>
#include <QListWidget>

#include "host/list_box.h"
#include "rows_on_qt.h"

namespace qrn {
namespace {

/// Clicks on editors that the focus scrolls away from under the mouse.
class ScrolledClickOnQt : public RowsOnQt {
 protected:
  QRNEdit& addBits(int count) {
    QRNEdit& row = add(qrnTypeBitfield);
    for (int i = 0; i < count; ++i) row.SetValueNames(-1, "bit " + std::to_string(i));
    return row;
  }
  /// The one ticked entry of a row, -1 for another number of them.
  static int ticked(const QRNEdit& row) {
    const auto& list = static_cast<host::ListBox&>(*row.CurrentEditor());
    int found = -1, count = 0;
    for (int i = 0; i < list.ListCount(); ++i) {
      if (list.Selected(i)) found = i, ++count;
    }
    return count == 1 ? found : -1;
  }
  void clickAt(QPoint at) {
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier, at);
    settle();
  }
};

TEST_F(ScrolledClickOnQt, TicksTheEntryThatWasUnderTheMouseOfAListSeenInPart) {
  for (int i = 0; i < 8; ++i) add(qrnTypeString);
  QRNEdit& row = addBits(8);
  show();
  const Rect whole = row.CurrentEditor()->onSurface(), seen = row.CurrentEditor()->visibleOnSurface();
  ASSERT_LT(seen.height, whole.height);
  clickAt(QPointF(seen.left + 20, seen.top + 10).toPoint());
  EXPECT_GT(panel->sbrVertical().Value(), 0);
  EXPECT_EQ(ticked(row), 0);
}

TEST_F(ScrolledClickOnQt, TicksTheEntryThatWasUnderTheMouseOfAListThatIsTallerThanThePanel) {
  constexpr int kBits = 30;
  QRNEdit& row = addBits(kBits);
  add(qrnTypeString);
  show();
  panel->sbrVertical().userScrolled(100);
  const Rect list = row.CurrentEditor()->onSurface();
  const double entry = list.height / kBits;
  const int wanted = static_cast<int>((150 - list.top) / entry);
  clickAt(QPointF(list.left + 60, list.top + (wanted + 0.5) * entry).toPoint());
  EXPECT_NE(panel->sbrVertical().Value(), 100);
  EXPECT_EQ(ticked(row), wanted);
}

TEST_F(ScrolledClickOnQt, SelectsTheTextThatTheMouseIsDraggedOver) {
  for (int i = 0; i < 20; ++i) add(qrnTypeString).SetValue("alpha beta");
  show();
  const host::Control& editor = *row(1).CurrentEditor();
  panel->sbrVertical().userScrolled(
      static_cast<std::int32_t>(editor.onSurface().top - panel->ControlsContainer().onSurface().top) + 15);
  const Rect seen = editor.visibleOnSurface();
  ASSERT_LT(seen.height, editor.onSurface().height);
  ASSERT_GT(seen.height, 2);
  const QPoint from(static_cast<int>(seen.left) + 4, static_cast<int>(seen.top) + 1);
  QTest::mousePress(window->windowHandle(), Qt::LeftButton, Qt::NoModifier, from);
  QTest::mouseMove(window->windowHandle(), from + QPoint(60, 0));
  QTest::mouseRelease(window->windowHandle(), Qt::LeftButton, Qt::NoModifier, from + QPoint(60, 0));
  settle();
  const auto* line = qobject_cast<QLineEdit*>(QApplication::focusWidget());
  ASSERT_TRUE(line);
  EXPECT_TRUE(line->text().startsWith(line->selectedText()));
  EXPECT_GT(line->selectedText().size(), 2);
}

}  // namespace
}  // namespace qrn
