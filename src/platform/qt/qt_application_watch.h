#pragma once

#include <QObject>

namespace qrn::qt {

class QtWindows;

/// Tells the windows of controls in messages what Qt knows of the application and of their native windows:
/// that the application has been activated or left, and that a window is about to close.
class QtApplicationWatch final : public QObject {
 public:
  explicit QtApplicationWatch(QtWindows& windows);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void closing(QObject& widget);

  QtWindows& windows_;
};

}  // namespace qrn::qt
