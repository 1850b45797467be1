#include <QLineEdit>
#include <QTest>

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

}  // namespace
}  // namespace qrn::qt
