#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QWidget>
#include <memory>
#include <string>

#include "display/QRNDisplay.h"
#include "library/library.h"
#include "platform/qt/qt_site.h"

namespace qrn {

/// A panel in a window of Qt with the rows that a test adds before it is shown.
class RowsOnQt : public ::testing::Test {
 protected:
  RowsOnQt() { registerControls(); }
  ~RowsOnQt() override {
    panel.reset();
    window.reset();
    settle();
  }

  QRNEdit& add(qrnValueType type) {
    QRNEdit& row = panel->Items().AddParameter("", type)->Control();
    row.SetLabelText("Row");
    return row;
  }
  void show() {
    panel->LayoutControls(false);
    canvas = platform.widget(*panel);
    canvas->setParent(window.get());
    window->resize(400, 300);
    canvas->resize(window->size());
    window->show();
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    panel->LayoutControls(false);
  }

  /// Runs the event loop until nothing is left to do, deletions included.
  static void settle() {
    QTest::qWait(0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  clsQRNParam& item(int position) {
    return static_cast<clsQRNParam&>(*panel->Items().Item(Variant(position)));
  }
  QRNEdit& row(int position) { return item(position).Control(); }
  /// The widget of a row that gets the focus with this.
  template <class Widget>
  Widget& focused(QRNEdit& row) {
    row.SetFocus();
    settle();
    return *canvas->findChildren<Widget*>(Qt::FindDirectChildrenOnly).front();
  }
  /// The middle of what can be seen of a control.
  static QPoint middleOf(const host::Control& control) {
    const Rect at = control.visibleOnSurface();
    return {static_cast<int>(at.left + at.width / 2), static_cast<int>(at.top + at.height / 2)};
  }

  qt::QtPlatform platform;
  qt::QtSite site{platform};
  host::Owned<QRNDisplay> panel = host::create<QRNDisplay>(site);
  std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
  QWidget* canvas = nullptr;
};

}  // namespace qrn
