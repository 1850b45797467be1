#pragma once

#include <QEvent>
#include <QPointer>
#include <QWidget>
#include <cstdint>
#include <optional>

#include "base/geometry.h"
#include "host/input.h"

namespace qrn::test {

/// A user in front of a window of Qt, who does everything by events of its widgets. Points are pixels of the
/// window; nothing happens without one.
class QtUser {
 public:
  void sitsDown(QWidget* window) { window_ = window; }
  QWidget* window() const { return window_; }
  /// The innermost widget at a point, and the one that has the keyboard. Both need the window.
  QWidget* widgetAt(Point at) const;
  QWidget* keyboard() const;

  void presses(Point at, host::MouseButton button) { mouse(QEvent::MouseButtonPress, at, button); }
  void releases(Point at, host::MouseButton button) { mouse(QEvent::MouseButtonRelease, at, button); }
  void doubleClicks(Point at) { mouse(QEvent::MouseButtonDblClick, at, host::MouseButton::Left); }
  void movesTo(Point at) { mouse(QEvent::MouseMove, at, std::nullopt); }
  /// Notches away from the user are positive.
  void turnsWheel(Point at, double notches);
  /// A key of host::key with bits of host::shift, down and up.
  void pressesKey(std::int16_t key, std::int16_t shift);
  void types(QChar character);

  /// Picks an entry of the menu that is open, or closes it; answers whether there is any.
  static bool chooses(std::optional<int> entry);
  /// What has been posted or put off happens, deleted widgets included.
  static void waits();

 private:
  void mouse(QEvent::Type type, Point at, std::optional<host::MouseButton> button);

  QPointer<QWidget> window_;
};

}  // namespace qrn::test
