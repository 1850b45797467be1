#pragma once

#include <QListWidget>
#include <QMainWindow>
#include <QTimer>

#include "device_pages.h"
#include "platform/qt/qt_platform.h"

namespace qrn::eddpanel {

/// The sample host's window: the pages, messages below, and at the left the menus to start from where a
/// device has several.
class StackWindow final : public QMainWindow {
 public:
  StackWindow(qt::QtPlatform& platform, DevicePages& pages);
  ~StackWindow() override;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void listRoots();
  void start(int root);

  DevicePages& pages_;
  QWidget* stack_;
  QListWidget* roots_;
  QTimer timer_;
  std::vector<Connection> connections_;
};

}  // namespace qrn::eddpanel
