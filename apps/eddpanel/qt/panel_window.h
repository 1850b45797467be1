#pragma once

#include <QHBoxLayout>
#include <QListWidget>
#include <QMainWindow>
#include <QTimer>

#include "device_panels.h"
#include "platform/qt/qt_platform.h"

namespace qrn::eddpanel {

/// The sample host's window: the panels at the left, the open one beside them, messages below.
class PanelWindow final : public QMainWindow {
 public:
  PanelWindow(qt::QtPlatform& platform, DevicePanels& panels, const QString& title);
  ~PanelWindow() override;

  void open(const edd::Menu& menu);

 private:
  void listPanels();
  void showHelp(const host::Control& item, const QString& text);

  qt::QtPlatform& platform_;
  DevicePanels& panels_;
  QListWidget* list_;
  QHBoxLayout* layout_;
  QWidget* shown_ = nullptr;
  QTimer timer_;
  std::vector<Connection> connections_;
};

}  // namespace qrn::eddpanel
