#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

#include "test_panel.h"

namespace qrn::qt {
namespace {

class Mouse : public PanelTest {
 protected:
  int textX(const char* until) const {
    return static_cast<int>(TestPanel::kLeft) + 3 +
           QFontMetrics(QApplication::font()).horizontalAdvance(until);
  }
  QPoint inText(const char* until) const { return {textX(until) + 1, middle(panel->text()).y()}; }
  void send(QEvent::Type type, QPoint at, Qt::MouseButtons buttons) {
    const QPoint global = canvas->mapToGlobal(at);
    QMouseEvent event(type, at, global, Qt::LeftButton, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(canvas, &event);
  }
  bool wheelAt(QWidget* receiver, QPoint at, int delta) {
    QWheelEvent event(at, receiver->mapToGlobal(QPointF(at)), {}, {0, delta}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(receiver, &event);
    return event.isAccepted();
  }
};

TEST_F(Mouse, ADragThatMakesTheEditorSelects) {
  send(QEvent::MouseButtonPress, inText("al"), Qt::LeftButton);
  send(QEvent::MouseMove, inText("alpha b"), Qt::LeftButton);
  send(QEvent::MouseButtonRelease, inText("alpha b"), Qt::NoButton);
  ASSERT_TRUE(shown<QLineEdit>());
  EXPECT_EQ(shown<QLineEdit>()->selectedText(), "pha b");
  EXPECT_EQ(panel->text().SelStart(), 2);
  EXPECT_EQ(panel->text().SelLength(), 5);
}

TEST_F(Mouse, AfterTheReleaseMovesAreThePanelsAgain) {
  click(panel->text());
  const QString selected = shown<QLineEdit>()->selectedText();
  send(QEvent::MouseMove, inText("alpha"), Qt::NoButton);
  EXPECT_EQ(shown<QLineEdit>()->selectedText(), selected);
  clickAt({5, 195});
  EXPECT_TRUE(heard("panel MouseDown") && heard("panel MouseUp"));
}

TEST_F(Mouse, ADoubleClickOnAPaintedTextSelectsTheWord) {
  QWindow* const screen = window->windowHandle();
  const QPoint at = canvas->mapTo(window.get(), inText("al"));
  QTest::mouseDClick(screen, Qt::LeftButton, Qt::NoModifier, at);
  ASSERT_TRUE(shown<QLineEdit>());
  EXPECT_EQ(shown<QLineEdit>()->selectedText().trimmed(), "alpha");
}

TEST_F(Mouse, AClickOnAPaintedCheckBoxTogglesItOnce) {
  click(panel->check());
  EXPECT_EQ(panel->check().Value(), 1);
  ASSERT_TRUE(shown<QCheckBox>());
  EXPECT_TRUE(shown<QCheckBox>()->isChecked());
  click(panel->check());
  EXPECT_EQ(panel->check().Value(), 0);
  EXPECT_EQ(std::count(panel->heard.begin(), panel->heard.end(), "check Click"), 2);
}

TEST_F(Mouse, APressOnAPaintedDropListOpensItAndChoosingReports) {
  click(panel->combo());
  auto* combo = shown<QComboBox>();
  ASSERT_TRUE(combo);
  ASSERT_TRUE(combo->view()->isVisible());
  QTest::keyClick(combo->view(), Qt::Key_Down);
  QTest::keyClick(combo->view(), Qt::Key_Return);
  EXPECT_FALSE(combo->view()->isVisible());
  EXPECT_EQ(panel->combo().ListIndex(), 1);
  EXPECT_TRUE(heard("combo Change") && heard("combo Click"));
  EXPECT_FALSE(heard("combo LostFocus"));
}

TEST_F(Mouse, ALockedDropListNeitherOpensNorChanges) {
  panel->combo().SetLocked(true);
  click(panel->combo());
  auto* combo = shown<QComboBox>();
  ASSERT_TRUE(combo);
  EXPECT_FALSE(combo->view()->isVisible());
  QTest::keyClick(combo, Qt::Key_Down);
  QTest::keyClick(combo, Qt::Key_T);
  wheelAt(combo, {5, 5}, -120);
  EXPECT_EQ(combo->currentIndex(), 0);
  EXPECT_EQ(panel->combo().ListIndex(), 0);
  EXPECT_FALSE(heard("combo Change"));
}

TEST_F(Mouse, AClickOnAnEntryOfAPaintedListTicksIt) {
  const Rect at = panel->list().onSurface();
  clickAt({static_cast<int>(at.left) + 60, static_cast<int>(at.top) + 1 + 16 + 8});
  EXPECT_TRUE(panel->list().Selected(1));
  EXPECT_TRUE(heard("list ItemCheck 1"));
  EXPECT_EQ(panel->list().ListIndex(), 1);
  ASSERT_TRUE(shown<QListWidget>());
  EXPECT_EQ(shown<QListWidget>()->item(1)->checkState(), Qt::Checked);
}

TEST_F(Mouse, ATickThatAListenerTakesBackIsNotSeen) {
  panel->listener = [this](const std::string& what) {
    if (what == "list ItemCheck 0") panel->list().SetSelected(0, false);
  };
  const Rect at = panel->list().onSurface();
  clickAt({static_cast<int>(at.left) + 8, static_cast<int>(at.top) + 8});
  EXPECT_TRUE(heard("list ItemCheck 0"));
  ASSERT_TRUE(shown<QListWidget>());
  EXPECT_EQ(shown<QListWidget>()->item(0)->checkState(), Qt::Unchecked);
}

TEST_F(Mouse, ADisabledEditorIsNotRealised) {
  panel->check().SetEnabled(false);
  click(panel->check());
  EXPECT_FALSE(shown<QCheckBox>());
  EXPECT_EQ(panel->check().Value(), 0);
}

TEST_F(Mouse, TheSecondPressOfADoubleClickReachesAPaintedEditor) {
  const QPoint at = middle(panel->check());
  send(QEvent::MouseButtonDblClick, at, Qt::LeftButton);
  send(QEvent::MouseButtonRelease, at, Qt::NoButton);
  ASSERT_TRUE(shown<QCheckBox>());
  EXPECT_EQ(panel->check().Value(), 1);
}

TEST_F(Mouse, AListForgetsThePressOfWhatIsDisabledOrGoneMeanwhile) {
  panel->list().SetFocus();
  auto* list = shown<QListWidget>();
  ASSERT_TRUE(list);
  const QPoint at = list->visualItemRect(list->item(0)).center();
  const auto clickAround = [&](const std::function<void()>& meanwhile) {
    QTest::mousePress(list->viewport(), Qt::LeftButton, Qt::NoModifier, at);
    meanwhile();
    QTest::mouseRelease(list->viewport(), Qt::LeftButton, Qt::NoModifier, at);
  };
  clickAround([&] {
    panel->list().SetEnabled(false);
    panel->list().SetEnabled(true);
  });
  EXPECT_FALSE(heard("list ItemCheck 0"));
  clickAround([&] {
    panel->list().Clear();
    panel->list().AddItem("other");
  });
  EXPECT_FALSE(heard("list ItemCheck 0"));
}

TEST_F(Mouse, AClickBesideTheEditorsLeavesTheFocusWhereItIs) {
  click(panel->text());
  clickAt({5, 195});
  ASSERT_TRUE(shown<QLineEdit>());
  EXPECT_TRUE(shown<QLineEdit>()->hasFocus());
}

TEST_F(Mouse, TheWheelOverAPaintedEditorScrollsThePanel) {
  EXPECT_TRUE(wheelAt(canvas, middle(panel->combo()), -120));
  EXPECT_TRUE(heard("panel Wheel -1"));
  EXPECT_EQ(panel->combo().ListIndex(), 0);
  panel->scrollsByWheel = false;
  EXPECT_FALSE(wheelAt(canvas, middle(panel->combo()), -120));
}

TEST_F(Mouse, TheWheelOverTheFocusedDropListChangesIt) {
  panel->combo().SetFocus();
  ASSERT_TRUE(shown<QComboBox>());
  wheelAt(shown<QComboBox>(), {5, 5}, -120);
  EXPECT_EQ(panel->combo().ListIndex(), 1);
}

TEST_F(Mouse, TheWheelLeavesADropListWhoseWindowIsNotActiveToThePanel) {
  panel->combo().SetFocus();
  auto* combo = shown<QComboBox>();
  ASSERT_TRUE(combo);
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  EXPECT_FALSE(wheelAt(combo, {5, 5}, -120));
  EXPECT_EQ(panel->combo().ListIndex(), 0);
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  EXPECT_TRUE(wheelAt(combo, {5, 5}, -120));
  EXPECT_EQ(panel->combo().ListIndex(), 1);
}

TEST_F(Mouse, AScrolledEditorMovesAndIsClippedButNeverHidden) {
  panel->text().SetFocus();
  auto* line = shown<QLineEdit>();
  ASSERT_TRUE(line);
  shown<QScrollBar>()->setValue(20);
  EXPECT_TRUE(heard("bar Change 20"));
  EXPECT_EQ(line->y(), -10);
  EXPECT_EQ(line->mask().boundingRect(), QRect(0, 10, 140, 12));
  shown<QScrollBar>()->setValue(100);
  EXPECT_EQ(line->y(), -90);
  EXPECT_TRUE(line->isVisible());
  EXPECT_TRUE(line->hasFocus());
  EXPECT_FALSE(line->mask().intersects(line->rect()));
  shown<QScrollBar>()->setValue(0);
  EXPECT_TRUE(line->mask().isEmpty());
}

TEST_F(Mouse, AnEditorMovesAlongWithWhatItLiesIn) {
  panel->text().SetFocus();
  panel->box().Move(0, 15, 200, 175);
  EXPECT_EQ(shown<QLineEdit>()->y(), 25);
}

TEST_F(Mouse, TheScrollBarFollowsItsControl) {
  panel->bar().SetMax(500);
  panel->bar().SetLargeChange(50);
  panel->bar().SetValue(70);
  const auto* bar = shown<QScrollBar>();
  EXPECT_EQ(bar->maximum(), 500);
  EXPECT_EQ(bar->pageStep(), 50);
  EXPECT_EQ(bar->value(), 70);
  EXPECT_FALSE(heard("bar Change 70"));
  panel->bar().SetVisible(false);
  EXPECT_FALSE(shown<QScrollBar>());
  panel->bar().SetVisible(true);
  EXPECT_TRUE(shown<QScrollBar>());
}

}  // namespace
}  // namespace qrn::qt
