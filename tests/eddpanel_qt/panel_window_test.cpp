#include "qt/panel_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMenu>
#include <QStatusBar>
#include <QTest>
#include <QToolTip>

#include "library/library.h"
#include "edd/reader.h"
#include "platform/qt/qt_site.h"

namespace qrn::eddpanel {
namespace {

constexpr std::string_view kText = R"(
  MANUFACTURER 1, DEVICE_TYPE 1, DEVICE_REVISION 1, DD_REVISION 1
  VARIABLE damping { LABEL "Damping"; HELP "Filters <b>the</b> value."; CLASS CONTAINED;
    HANDLING READ & WRITE; TYPE FLOAT { DEFAULT_VALUE 1.5; } }
  METHOD self_test { LABEL "Self test"; HELP "Runs it."; DEFINITION { int x; x = 1; } }
  MENU main { LABEL "Main"; ITEMS { damping, self_test } }
)";

/// The window of the sample host, without a display.
class Window : public testing::Test {
 protected:
  Window() {
    registerControls();
    window = std::make_unique<PanelWindow>(platform, panels, "Sample");
    window->show();
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
  }

  MenuPanel& panel() { return panels.open(*description.menu("main")); }
  void clicks(host::Control& control, Qt::MouseButton button) {
    const Rect at = control.visibleOnSurface();
    const QPoint middle(static_cast<int>(at.left + at.width / 2), static_cast<int>(at.top + at.height / 2));
    QTest::mouseClick(platform.widget(panel().display()), button, Qt::NoModifier, middle);
  }
  /// Chooses an entry, counted from 0, of the menu that pops up at a right click on an item.
  void choosesInMenuOf(host::Control& control, int entry) {
    QTimer::singleShot(0, [entry] {
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      ASSERT_NE(menu, nullptr);
      QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier,
                        menu->actionGeometry(menu->actions()[entry]).center());
    });
    clicks(control, Qt::RightButton);
  }

  edd::Description description = edd::readDescriptionText(kText, "sample.ddl");
  qt::QtPlatform platform;
  qt::QtSite site{platform};
  DevicePanels panels{description, site};
  std::unique_ptr<PanelWindow> window;
};

TEST_F(Window, ShowsTheHelpOfARowAtAClickOnItsIconAndNeverAsMarkup) {
  clicks(panel().row(1)->imgIcon2(), Qt::LeftButton);
  EXPECT_EQ(QToolTip::text().toStdString(), "<span>Filters &lt;b&gt;the&lt;/b&gt; value.</span>");
  EXPECT_TRUE(QToolTip::isVisible());
}

TEST_F(Window, ShowsTheHelpOfAButtonThatIsChosenInItsMenu) {
  choosesInMenuOf(panel().control(2), 0);
  EXPECT_EQ(QToolTip::text().toStdString(), "<span>Runs it.</span>");
  EXPECT_TRUE(QToolTip::isVisible());
}

TEST_F(Window, ReportsWhatAMethodHasDoneInItsStatusBar) {
  clicks(panel().control(2), Qt::LeftButton);
  EXPECT_EQ(window->statusBar()->currentMessage().toStdString(), "Self test: done");
}

}  // namespace
}  // namespace qrn::eddpanel
