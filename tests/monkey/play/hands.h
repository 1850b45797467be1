#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "host/input.h"
#include "host/platform.h"
#include "host/site.h"
#include "host/user_control.h"
#include "host/v_scroll_bar.h"

namespace qrn::monkey {

/// The monkey's hands on one platform: a machine, and a user who sits in front of its only surface, a panel
/// or a stack of them. Points are pixels of the surface, which may go inside any of these calls.
class Hands {
 public:
  virtual ~Hands() = default;

  virtual host::Platform& platform() = 0;
  /// Tells `siteHeard` of every changed property.
  virtual host::Site& site() = 0;

  /// Gives a control its native surface; it is the one in front of the user from here on.
  virtual void show(host::UserControl& surface) = 0;
  /// The native surface goes, the control stays.
  virtual void close() = 0;
  virtual void resize(Size size) = 0;
  virtual void paint() = 0;

  virtual void press(Point at, host::MouseButton button) = 0;
  virtual void release(Point at, host::MouseButton button) = 0;
  virtual void move(Point at) = 0;
  virtual void doubleClick(Point at) = 0;
  virtual void turnWheel(Point at, double notches) = 0;
  virtual void scroll(host::VScrollBar& bar, std::int32_t value) = 0;

  virtual void pressKey(std::int16_t key, std::int16_t shift) = 0;
  virtual void type(std::string_view text) = 0;
  /// What the user picks in the next menu that pops up; none closes it.
  virtual void willChoose(std::optional<int> entry) = 0;

  virtual void surfaceGetsFocus() = 0;
  virtual void surfaceLosesFocus() = 0;
  virtual void applicationActivated(bool active) = 0;
  virtual void letTimePass(std::chrono::milliseconds time) = 0;
  virtual void runMessages() = 0;

  /// What a surface that has gone left behind, in words; empty for nothing.
  virtual std::string leftBehind() = 0;
  /// An error that nobody could catch, in words; empty for none since the last call.
  virtual std::string uncaughtError() { return {}; }

  std::function<void(std::string_view key)> siteHeard;
};

using MakeHands = std::function<std::unique_ptr<Hands>()>;

}  // namespace qrn::monkey
