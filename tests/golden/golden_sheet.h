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
#include "stack/QRNDisplayStack.h"

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

/// The mouse over the middle of a control, its left button down there, and up again.
void hover(host::Control& control);
void press(host::Control& control);
void release(host::Control& control);

/// A control on a window of its own, which goes when its end says so.
class ShownControl {
 public:
  ShownControl(const ShownControl&) = delete;
  ShownControl& operator=(const ShownControl&) = delete;

  /// Shows it, if it is not yet, and draws it with all the widgets on it.
  QImage picture();
  /// Makes the window active and goes to its first editor as Tab does.
  void focusByKeyboard();
  void resize(int width, int height) { canvas_->resize(width, height); }

 protected:
  ShownControl() = default;
  ~ShownControl();
  void putOnWindow(host::UserControl& control, int width, int height);
  host::Site& site() { return site_; }

 private:
  qt::QtPlatform platform_;
  qt::QtSite site_{platform_};
  std::unique_ptr<QWidget> canvas_;
};

/// What it shows is a T, made for it.
template <class T>
class Shown : public ShownControl {
 public:
  Shown(int width, int height) { putOnWindow(*control_, width, height); }

 protected:
  T& control() { return *control_; }

 private:
  host::Owned<T> control_ = host::create<T>(site());
};

class ShownPanel final : public Shown<QRNDisplay> {
 public:
  using Shown::Shown;
  QRNDisplay& panel() { return control(); }
};

class ShownStack final : public Shown<QRNDisplayStack> {
 public:
  using Shown::Shown;
  QRNDisplayStack& stack() { return control(); }
};

}  // namespace qrn::golden
