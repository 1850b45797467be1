#include "panels/qt_window.h"

#include <xcb/xcb.h>

#include <QAbstractEventDispatcher>
#include <QElapsedTimer>
#include <QEvent>
#include <QGuiApplication>
#include <QImage>
#include <QTimer>
#include <cstdlib>

#include "panels/workloads.h"

namespace qrn::bench {
namespace {

// A question that the display answers when it has drawn everything it was told before.
void waitForDisplay() {
  auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  if (!x11 || QGuiApplication::platformName() != QLatin1String("xcb")) return;
  xcb_connection_t* connection = x11->connection();
  std::free(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
}

}  // namespace

QtWindow::QtWindow(QWidget& window) {
  window.installEventFilter(this);
  window.show();
  waitFor(1);
  while (QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)) {
  }
  waitForDisplay();
}

void QtWindow::paint() {
  waitFor(paints_ + 1);
  waitForDisplay();
}

void QtWindow::settle() {
  for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
  // Without a loop nothing else would delete what is to be deleted later.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  waitForDisplay();
}

bool QtWindow::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::Paint || event->type() == QEvent::UpdateRequest) ++paints_;
  return false;
}

void QtWindow::waitFor(int paints) {
  QElapsedTimer timer;
  timer.start();
  while (paints_ < paints) {
    QCoreApplication::processEvents();
    if (timer.elapsed() > 60000) fail("nothing was painted");
  }
}

void QtForm::showWindow(QWidget& widget, QScrollBar* bar) {
  bar_ = bar;
  window_ = std::make_unique<QtWindow>(widget);
}

bool QtForm::pageDown(int pages) {
  if (bar_->value() >= bar_->maximum()) return false;
  bar_->setValue(bar_->value() + pages * bar_->pageStep());
  return true;
}

bool QtForm::run(double seconds, int timesASecond, const std::function<void()>& tick) {
  QEventLoop loop;
  QTimer ticks;
  ticks.setTimerType(Qt::PreciseTimer);
  QObject::connect(&ticks, &QTimer::timeout, tick);
  ticks.start(1000 / timesASecond);
  QTimer::singleShot(static_cast<int>(seconds * 1000), &loop, &QEventLoop::quit);
  loop.exec();
  return true;
}

QPixmap pixmapOf(Icon icon) {
  const std::vector<std::uint32_t> pixels = iconPixels(icon);
  return QPixmap::fromImage(
      QImage(reinterpret_cast<const uchar*>(pixels.data()), kIconSize, kIconSize, QImage::Format_ARGB32)
          .copy());
}

std::string displayName() { return QGuiApplication::platformName().toStdString(); }

}  // namespace qrn::bench
