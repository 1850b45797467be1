#include <QHelpEvent>
#include <QLineEdit>
#include <QMenu>
#include <QStyle>
#include <QTest>
#include <QTextDocument>
#include <QTimer>
#include <QToolTip>

#include "host/form.h"
#include "host/popup_menu.h"
#include "platform/qt/qt_text.h"
#include "test_panel.h"

namespace qrn::qt {
namespace {

using Platform = PanelTest;

bool waitFor(const std::function<bool()>& done) { return QTest::qWaitFor(done, 5000); }

TEST_F(Platform, ATimerTicksUntilItIsStoppedEvenByItself) {
  int ticks = 0;
  host::Clock::TimerId id = 0;
  id = platform.clock().start(std::chrono::milliseconds(1), [&] {
    if (++ticks == 3) platform.clock().stop(id);
  });
  int later = 0;
  platform.clock().start(std::chrono::milliseconds(5), [&] { ++later; });
  EXPECT_TRUE(waitFor([&] { return later >= 5; }));
  EXPECT_EQ(ticks, 3);
}

TEST_F(Platform, APostedMessageArrivesAfterTheRunningCodeInOrder) {
  host::Form form(platform, "posted");
  std::string heard;
  const auto down =
      form.KeyDown.connect([&](std::int16_t& code, std::int16_t&) { heard += "d" + std::to_string(code); });
  const auto up =
      form.KeyUp.connect([&](std::int16_t& code, std::int16_t&) { heard += "u" + std::to_string(code); });
  platform.windows().post(form.window(), {host::wm::KeyDown, 65, 0});
  platform.windows().post(form.window(), {host::wm::KeyUp, 65, 0});
  EXPECT_EQ(heard, "");
  EXPECT_TRUE(waitFor([&] { return heard == "d65u65"; })) << heard;
}

/// Does something with the menu once it is open.
void whenOpen(const std::function<void(QMenu&)>& action) {
  QTimer::singleShot(0, [action] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    action(*menu);
  });
}

class Menus : public PanelTest {
 protected:
  Menus() {
    menu.load(0, "&Copy");
    menu.load(1, "hidden");
    menu.load(2, "-");
    menu.load(3, "Paste");
    menu.entry(1)->SetVisible(false);
  }
  host::PopupMenu menu;
};

TEST_F(Menus, AnswerTheChosenEntry) {
  QStringList captions;
  whenOpen([&](QMenu& shown) {
    for (const QAction* action : shown.actions()) captions << (action->isSeparator() ? "-" : action->text());
    QTest::keyClick(&shown, Qt::Key_Up);
    QTest::keyClick(&shown, Qt::Key_Return);
  });
  EXPECT_EQ(menu.popUp(platform, {10, 10}), 3);
  EXPECT_EQ(captions, (QStringList{"&Copy", "-", "Paste"}));
}

TEST_F(Menus, HaveMnemonics) {
  whenOpen([](QMenu& shown) { QTest::keyClick(&shown, Qt::Key_C); });
  EXPECT_EQ(menu.popUp(platform, {10, 10}), 0);
}

TEST_F(Menus, ClosedByEscapeAnswerNothing) {
  whenOpen([](QMenu& shown) { QTest::keyClick(&shown, Qt::Key_Escape); });
  EXPECT_EQ(menu.popUp(platform, {10, 10}), std::nullopt);
}

TEST_F(Menus, LeaveTheFocusWithTheEditor) {
  panel->text().SetFocus();
  whenOpen([](QMenu& shown) { shown.close(); });
  menu.popUp(platform, {10, 10});
  EXPECT_EQ(panel->input().focus(), &panel->text());
  EXPECT_EQ(shownWidgets(), 2);
}

TEST_F(Platform, AToolTipIsThatOfTheControlOrOfTheOneAroundIt) {
  panel->text().SetToolTipText("a <b> text\nin two  lines");
  panel->box().SetToolTipText("box");
  const auto tipAt = [this](QPoint at) {
    QHelpEvent event(QEvent::ToolTip, at, canvas->mapToGlobal(at));
    QCoreApplication::sendEvent(canvas, &event);
    return QToolTip::text();
  };
  const auto readTip = [](const QString& tip) {
    QTextDocument read;
    read.setHtml(tip);
    return read.toPlainText();
  };
  EXPECT_TRUE(Qt::mightBeRichText(tipAt(middle(panel->text()))));
  EXPECT_EQ(readTip(tipAt(middle(panel->text()))), "a <b> text\nin two  lines");
  EXPECT_EQ(readTip(tipAt(middle(panel->check()))), "box");
}

TEST_F(Platform, ColoursAreThoseOfThePalette) {
  const QPalette usual = QApplication::palette();
  QPalette dark(QColor(0x35, 0x35, 0x35));
  dark.setColor(QPalette::Base, QColor(1, 2, 3));
  QApplication::setPalette(dark);
  EXPECT_EQ(platform.resolve(host::kButtonFace), host::rgb(0x35, 0x35, 0x35));
  EXPECT_EQ(platform.resolve(host::kWindowBackground), host::rgb(1, 2, 3));
  QApplication::setPalette(usual);
}

TEST_F(Platform, ARealEditorFollowsAChangeOfThePalette) {
  panel->text().SetFocus();
  const QPalette usual = QApplication::palette();
  QPalette dark(QColor(0x35, 0x35, 0x35));
  dark.setColor(QPalette::Base, QColor(1, 2, 3));
  QApplication::setPalette(dark);
  // Qt tells widgets only while the application runs its event loop.
  QEvent changed(QEvent::PaletteChange);
  QCoreApplication::sendEvent(canvas, &changed);
  EXPECT_EQ(shown<QLineEdit>()->palette().color(QPalette::Base), QColor(1, 2, 3));
  QApplication::setPalette(usual);
}

TEST_F(Platform, WidthsAreThoseOfShapedText) {
  for (const double size : {8.25, 9.0, 14.0}) {
    const host::Font font("DejaVu Sans", size);
    const QFontMetricsF exact(toQFont(font));
    for (const char* text : {"", "Damping", "AVATAR To. Wa", "office flow", "\u00b0C \u00b5m",
                             "\u03a9 \u4e2d", "1.234,5 %", "tab\there", "broken \xff byte"}) {
      // When its letters are not known yet, and when they are.
      for (int i = 0; i < 2; ++i) {
        EXPECT_NEAR(platform.metrics(font).advance(text), exact.horizontalAdvance(QString::fromUtf8(text)),
                    0.01)
            << text << " " << size;
      }
    }
  }
}

TEST_F(Platform, ALetterIsAsWideAsItIsAloneHoweverOthersMovedItBefore) {
  const QFontMetricsF exact(toQFont(host::Font("DejaVu Sans", 9)));
  int moved = 0;
  for (const char* accented : {"\u00c0", "\u00d9", "\u00e9", "\u00fd"}) {
    QtFontMetrics metrics(host::Font("DejaVu Sans", 9));
    for (char c = 'A'; c <= 'z'; ++c) {
      const std::string letter(1, c), pair = accented + letter;
      const double alone = exact.horizontalAdvance(QChar(c));
      moved += metrics.advance(pair) - metrics.advance(accented) == alone ? 0 : 1;
      EXPECT_EQ(metrics.advance(letter), alone) << pair;
    }
  }
  EXPECT_GT(moved, 0);
}

TEST_F(Platform, ATextThatHasToBeShapedIsShapedOnce) {
  QtFontMetrics metrics(host::Font("DejaVu Sans", 9));
  const QFontMetricsF exact(metrics.font());
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(metrics.advance("Office off"), exact.horizontalAdvance("Office off"));
    EXPECT_EQ(metrics.advance("\u03a9"), exact.horizontalAdvance(QString(QChar(0x3a9))));
  }
  EXPECT_EQ(metrics.textsShaped(), 2);
}

TEST_F(Platform, OfTextsThatWereShapedFewAreKept) {
  QtFontMetrics metrics(host::Font("DejaVu Sans", 9));
  const QFontMetricsF exact(metrics.font());
  for (int i = 0; i < 2000; ++i) {
    const QString text = QString("off %1").arg(i % 700);
    ASSERT_EQ(metrics.advance(toUtf8(text)), exact.horizontalAdvance(text));
    ASSERT_LE(metrics.textsKept(), 512U);
  }
  const std::size_t kept = metrics.textsKept();
  metrics.advance(std::string(1000, 'f'));
  EXPECT_EQ(metrics.textsKept(), kept);
}

TEST_F(Platform, PointsAreThoseOfNinetySixToTheInch) {
  EXPECT_EQ(QFontInfo(toQFont(host::Font("DejaVu Sans", 9))).pixelSize(), 12);
}

TEST_F(Platform, SizesComeFromTheStyle) {
  EXPECT_EQ(platform.scrollBarWidth(), QApplication::style()->pixelMetric(QStyle::PM_ScrollBarExtent));
  const host::Font font("DejaVu Sans", 9);
  EXPECT_EQ(platform.comboBoxHeight(font), platform.metrics(font).height() + 8);
}

TEST_F(Platform, ASurfaceKnowsWhereItLiesOnTheScreen) {
  const QPoint at = canvas->mapToGlobal(QPoint(0, 0));
  EXPECT_EQ(platform.screenPosition(panel->text()), (Point{double(at.x()), double(at.y())}));
}

}  // namespace
}  // namespace qrn::qt
