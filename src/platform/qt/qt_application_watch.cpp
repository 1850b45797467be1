#include "platform/qt/qt_application_watch.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <vector>

#include "host/user_control.h"
#include "platform/qt/qt_canvas.h"
#include "platform/qt/qt_guard.h"
#include "platform/qt/qt_windows.h"

namespace qrn::qt {

QtApplicationWatch::QtApplicationWatch(QtWindows& windows) : windows_(windows) {
  qApp->installEventFilter(this);
  connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
    guarded([&] { windows_.applicationActivated(state == Qt::ApplicationActive); });
  });
}

bool QtApplicationWatch::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Close && watched->isWidgetType()) closing(*watched);
  return false;
}

// The native window is the host's; the controls' own windows in it are those that hear of it.
void QtApplicationWatch::closing(QObject& widget) {
  auto& closed = static_cast<QWidget&>(widget);
  std::vector<QPointer<QWidget>> inside{&closed};
  for (QWidget* child : closed.findChildren<QWidget*>()) {
    if (child->window() == closed.window()) inside.emplace_back(child);
  }
  for (const QPointer<QWidget>& one : inside) {
    const auto* canvas = dynamic_cast<QtCanvas*>(one.data());
    if (!canvas || !canvas->control()) continue;
    guarded([&] { windows_.send(canvas->control()->window(), {host::wm::Close, 0, 0}); });
  }
}

}  // namespace qrn::qt
