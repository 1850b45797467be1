#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QWidget>
#include <memory>
#include <tuple>

#include "display/QRNDisplay.h"
#include "golden/sheet.h"
#include "platform/qt/qt_platform.h"
#include "platform/qt/qt_site.h"

namespace qrn::golden {

enum class Look : std::uint8_t { Light, Dark };

/// Sheets of one palette and scale factor. The factor of an application is fixed when it starts, so a test of
/// another one runs itself in a process of its own.
class GoldenSheet : public testing::TestWithParam<std::tuple<Look, double>> {
 protected:
  GoldenSheet();
  ~GoldenSheet() override;

  /// Draws a sheet and compares it with the one that is kept, both in a process of the right scale factor.
  void compareSheet(const char* name, Sheet (*draw)());

 private:
  static double scale() { return std::get<double>(GetParam()); }
  void runAtOwnScale();

  const QPalette usual_ = QApplication::palette();
};

/// Every palette at every scale factor, and what tests of them are called.
inline auto allLooks() {
  return testing::Combine(testing::Values(Look::Light, Look::Dark), testing::Values(1.0, 1.5, 2.0));
}
std::string nameOfLook(const testing::TestParamInfo<std::tuple<Look, double>>& test);

/// The mouse over the middle of a control, and its left button down there.
void hover(host::Control& control);
void press(host::Control& control);

/// A panel on a window of its own.
class ShownPanel {
 public:
  ShownPanel(int width, int height);
  ~ShownPanel();

  QRNDisplay& panel() { return *panel_; }
  /// Shows it, if it is not yet, and draws it with all the widgets on it.
  QImage picture();
  /// Makes the window active and goes to its first editor as Tab does.
  void focusByKeyboard();
  void resize(int width, int height) { canvas_->resize(width, height); }

 private:
  qt::QtPlatform platform_;
  qt::QtSite site_{platform_};
  host::Owned<QRNDisplay> panel_ = host::create<QRNDisplay>(site_);
  std::unique_ptr<QWidget> canvas_;
};

}  // namespace qrn::golden
