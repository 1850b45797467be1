#pragma once

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QTest>
#include <QWidget>
#include <memory>
#include <string>
#include <vector>

#include "display/QRNDisplay.h"
#include "library/library.h"
#include "platform/qt/qt_canvas.h"
#include "platform/qt/qt_site.h"

namespace qrn {

/// A panel in a window of Qt, read as assistive tools do.
class AccessiblePanelOnQt : public ::testing::Test {
 protected:
  AccessiblePanelOnQt() {
    registerControls();
    panel->SetTitle("Basic setup");
    addRow("Pressure", qrnTypeDouble).SetValue(1.5);
    QRNEdit& mode = addRow("Mode", qrnTypeList);
    for (const int i : {0, 1}) mode.SetValueNames(i, i == 0 ? "slow" : "fast");
    mode.SetValue(0);
    addRow("Active", qrnTypeBoolean);
    QRNEdit& alarms = addRow("Alarms", qrnTypeBitfield);
    for (const int i : {0, 1}) alarms.SetValueNames(i, i == 0 ? "low" : "high");
    panel->Items().AddAction("selfTest", ddtypeMethod)->Control().SetCaption("Self test");
    panel->Buttons().AddButton("", "&Apply");
    panel->LayoutControls(false);
    window->resize(460, 420);
    canvas = static_cast<qt::QtCanvas*>(platform.widget(*panel));
    canvas->setParent(window.get());
    canvas->resize(window->size());
    window->show();
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
  }
  ~AccessiblePanelOnQt() override {
    panel.reset();
    window.reset();
    settle();
  }

  static void settle() {
    QTest::qWait(0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  QRNEdit& addRow(const std::string& caption, qrnValueType type) {
    QRNEdit& row = panel->Items().AddParameter(caption, type)->Control();
    row.SetLabelText(caption);
    row.SetUnitText("");
    return row;
  }
  clsQRNParam& item(const std::string& name) {
    return static_cast<clsQRNParam&>(*panel->Items().Item(Variant(name)));
  }
  QRNEdit& row(const std::string& name) { return item(name).Control(); }

  QAccessibleInterface& top() const { return *QAccessible::queryAccessibleInterface(canvas); }
  /// Two title buttons come first.
  QAccessibleInterface& rowPart(int position) const { return *top().child(1 + position); }
  QAccessibleInterface& editorOf(int position) const { return *rowPart(position).child(0); }
  static std::string textOf(const QAccessibleInterface& part, QAccessible::Text what = QAccessible::Name) {
    return part.text(what).toStdString();
  }

  qt::QtPlatform platform;
  qt::QtSite site{platform};
  host::Owned<QRNDisplay> panel = host::create<QRNDisplay>(site);
  std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
  qt::QtCanvas* canvas = nullptr;
};

}  // namespace qrn
