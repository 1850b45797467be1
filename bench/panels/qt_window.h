#pragma once

#include <QObject>
#include <QPixmap>
#include <QScrollBar>
#include <QWidget>
#include <functional>

#include "panels/form.h"
#include "panels/shown_data.h"

namespace qrn::bench {

/// Shows a widget as a window and waits until it has been painted.
class QtWindow final : public QObject {
 public:
  /// Shown and painted on return.
  explicit QtWindow(QWidget& window);

  void paint();
  static void settle();

  bool eventFilter(QObject*, QEvent* event) override;

 private:
  void waitFor(int paints);

  int paints_ = 0;
};

/// What all forms on Qt have in common: a window with a vertical scroll bar, where there is something to
/// scroll.
class QtForm : public Form {
 public:
  /// What was put off until the window has gone must not be part of the next measurement.
  ~QtForm() override { QtWindow::settle(); }
  void paint() override { window_->paint(); }
  void settle() override { QtWindow::settle(); }
  bool run(double seconds, int timesASecond, const std::function<void()>& tick) override;
  int pages() const override { return bar_->maximum() / bar_->pageStep() + 1; }
  void toTop() override { bar_->setValue(0); }
  bool pageDown(int pages) override;

 protected:
  void showWindow(QWidget& widget, QScrollBar* bar);

 private:
  std::unique_ptr<QtWindow> window_;
  QScrollBar* bar_ = nullptr;
};

QPixmap pixmapOf(Icon icon);
/// "offscreen" or "xcb".
std::string displayName();

}  // namespace qrn::bench
