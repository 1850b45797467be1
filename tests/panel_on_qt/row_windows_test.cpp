#include <gtest/gtest.h>

#include <QApplication>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QTest>
#include <QVBoxLayout>

#include "display/QRNDisplay.h"
#include "library/library.h"
#include "platform/qt/qt_site.h"

namespace qrn {
namespace {

/// A panel in a dialog's window: what the window and the application do reaches its rows.
class RowsInAWindow : public ::testing::Test {
 protected:
  RowsInAWindow() {
    registerControls();
    panel = host::create<QRNDisplay>(site);
    for (const auto type : {qrnTypeDouble, qrnTypeBitfield})
      items.push_back(panel->Items().AddParameter("", type));
    row(0).SetValue(1.5);
    for (const char* name : {"a", "b"}) row(1).SetValueNames(-1, name);
    QWidget* canvas = platform.widget(*panel);
    (new QVBoxLayout(&window))->addWidget(canvas);
    window.resize(400, 300);
    window.show();
    window.activateWindow();
    QTest::qWait(0);
    panel->LayoutControls(false);
    log = panel->ObjectEvent.connect([this](std::string_view name, host::EventArgs) {
      if (name.starts_with("Parameter")) raised.emplace_back(name);
    });
  }

  QRNEdit& row(std::size_t index) { return items[index]->Control(); }

  using Events = std::vector<std::string>;

  qt::QtPlatform platform;
  qt::QtSite site{platform};
  host::Owned<QRNDisplay> panel;
  QWidget window;
  std::vector<std::shared_ptr<clsQRNParam>> items;
  Events raised;
  Connection log;
};

TEST_F(RowsInAWindow, KeepEnterAndEscapeFromTheDialogWhileTheyAreEdited) {
  int taken = 0;
  QShortcut enter(Qt::Key_Return, &window), escape(Qt::Key_Escape, &window);
  QObject::connect(&enter, &QShortcut::activated, [&] { ++taken; });
  QObject::connect(&escape, &QShortcut::activated, [&] { ++taken; });
  for (std::size_t i = 0; i < items.size(); ++i) {
    row(i).SetFocus();
    QTest::keyClick(window.windowHandle(), Qt::Key_Return);
    QTest::keyClick(window.windowHandle(), Qt::Key_Escape);
  }
  EXPECT_EQ(taken, 0);
}

TEST_F(RowsInAWindow, EndTheEditWhenTheApplicationIsLeftAndBeginAgainWhenItIsBack) {
  row(0).SetFocus();
  raised.clear();
  Q_EMIT qApp->applicationStateChanged(Qt::ApplicationInactive);
  EXPECT_EQ(raised, Events{"ParameterEndEdit"});
  Q_EMIT qApp->applicationStateChanged(Qt::ApplicationActive);
  EXPECT_EQ(raised, (Events{"ParameterEndEdit", "ParameterStartEdit"}));
}

TEST_F(RowsInAWindow, EndTheEditWhenTheWindowCloses) {
  row(0).SetFocus();
  raised.clear();
  window.close();
  ASSERT_FALSE(raised.empty());
  EXPECT_EQ(raised.front(), "ParameterEndEdit");
}

TEST_F(RowsInAWindow, HearNothingOfAWindowAroundTheirOwn) {
  QWidget around;
  window.setParent(&around, Qt::Dialog);
  window.show();
  around.show();
  row(0).SetFocus();
  raised.clear();
  around.close();
  EXPECT_EQ(raised, Events{});
  window.setParent(nullptr);
}

TEST_F(RowsInAWindow, MayAllGoWhileTheWindowCloses) {
  row(0).SetFocus();
  const Connection ending = panel->ParameterEndEdit.connect([this](std::int32_t&, bool&) { panel.reset(); });
  window.close();
  EXPECT_FALSE(panel);
}

TEST_F(RowsInAWindow, ABitFieldReportsTheClickAfterTheTickOfItsRealList) {
  row(1).SetFocus();
  auto* list = window.findChild<QListWidget*>();
  ASSERT_TRUE(list);
  raised.clear();
  const QRect entry = list->visualItemRect(list->item(1));
  QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, {entry.left() + 8, entry.center().y()});
  EXPECT_EQ(raised, (Events{"ParameterStatusChange", "ParameterItemCheck", "ParameterClick"}));
}

TEST_F(RowsInAWindow, ALockedBitFieldKeepsItsMarksInItsRealList) {
  row(1).SetLocked(true);
  row(1).SetFocus();
  auto* list = window.findChild<QListWidget*>();
  ASSERT_TRUE(list);
  QTest::keyClick(list, Qt::Key_Space);
  EXPECT_EQ(list->item(0)->checkState(), Qt::Unchecked);
  EXPECT_FALSE(dynamic_cast<host::ListBox&>(*row(1).CurrentEditor()).Selected(0));
}

}  // namespace
}  // namespace qrn
