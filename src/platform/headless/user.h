#pragma once

#include <cstdint>
#include <string_view>

#include "host/control.h"
#include "host/user_control.h"
#include "platform/headless/headless_platform.h"

namespace qrn::headless {

/// A simulated user of one surface. Everything goes through the surface's input door, as it does from a real
/// one; what a native editor would make of it, such as inserting a typed letter, is done here, and comes back
/// through the editor's own entries.
///
/// Not simulated: drags inside a text, double clicks on a word, and the pixels at which a native widget
/// reacts.
class User {
 public:
  User(HeadlessPlatform& platform, host::UserControl& surface) : platform_(platform), surface_(surface) {}

  /// In the middle of what can be seen of a control; a control that is hidden or scrolled away can't be hit.
  void clicks(host::Control& control, host::MouseButton button = host::MouseButton::Left);
  void doubleClicks(host::Control& control);
  void hovers(host::Control& control) { movesTo(middleOf(control)); }
  void focuses(host::Control& control) { control.SetFocus(); }
  /// Closes the window of the surface; nothing happens to the controls but what its watchers do.
  void closes() { platform_.windows().send(surface_.window(), {host::wm::Close, 0, 0}); }
  void switchesAway() { platform_.windows().applicationActivated(false); }
  void comesBack() { platform_.windows().applicationActivated(true); }

  // Points are pixels of the surface.
  void clicksAt(Point at, host::MouseButton button = host::MouseButton::Left);
  void pressesAt(Point at, host::MouseButton button = host::MouseButton::Left);
  void releasesAt(Point at, host::MouseButton button = host::MouseButton::Left);
  void movesTo(Point at);
  void turnsWheel(Point at, double notches);

  /// One key after the other: down, press, up.
  void types(std::string_view text);
  void presses(std::int16_t keyCode, std::int16_t shift = host::shift::None);
  void holds(std::int16_t keyCode, std::int16_t shift = host::shift::None);
  void lets(std::int16_t keyCode, std::int16_t shift = host::shift::None);
  /// Replaces the whole text of the focused text box.
  void enters(std::string_view text);

  /// Picks an entry of the drop-down list.
  void chooses(host::Control& combo, std::int32_t entry);
  /// Clicks the check mark of an entry.
  void ticks(host::Control& list, std::int16_t entry);
  void scrollsTo(host::Control& bar, std::int32_t value);

  static Point middleOf(const host::Control& control);

 private:
  host::Input& input() { return surface_.input(); }
  void press(Point at, host::MouseButton button, bool again);
  void typeAhead(host::Control* list, char32_t character);
  void typeCharacter(char32_t character);
  void keyInto(host::Control& editor, std::int16_t keyCode, std::int16_t shift);

  HeadlessPlatform& platform_;
  host::UserControl& surface_;
  WeakRef<host::Control> pressedWidget_;  // has a native widget, which follows the mouse until the release
  // The push buttons that the left mouse button and the space bar hold down.
  WeakRef<host::Control> heldByMouse_;
  WeakRef<host::Control> heldBySpace_;
};

}  // namespace qrn::headless
