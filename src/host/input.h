#pragma once

#include <cstdint>
#include <vector>

#include "base/geometry.h"
#include "base/weak_ref.h"

namespace qrn {
class FirstError;
}

namespace qrn::host {

enum class Aspect : std::uint8_t;
class Control;
class UserControl;

enum class MouseButton : std::int16_t { Left = 1, Right = 2, Middle = 4 };

/// Bits of the shift state of keys and mouse events.
namespace shift {
inline constexpr std::int16_t None = 0;
inline constexpr std::int16_t Shift = 1;
inline constexpr std::int16_t Control = 2;
inline constexpr std::int16_t Alt = 4;
}  // namespace shift

namespace key {
inline constexpr std::int16_t Cancel = 3;
inline constexpr std::int16_t Back = 8;
inline constexpr std::int16_t Tab = 9;
inline constexpr std::int16_t Enter = 13;
inline constexpr std::int16_t Escape = 27;
inline constexpr std::int16_t Space = 32;
inline constexpr std::int16_t PageUp = 33;
inline constexpr std::int16_t PageDown = 34;
inline constexpr std::int16_t End = 35;
inline constexpr std::int16_t Home = 36;
inline constexpr std::int16_t Left = 37;
inline constexpr std::int16_t Up = 38;
inline constexpr std::int16_t Right = 39;
inline constexpr std::int16_t Down = 40;
inline constexpr std::int16_t Insert = 45;
inline constexpr std::int16_t Delete = 46;
inline constexpr std::int16_t F1 = 112;
inline constexpr std::int16_t F4 = 115;
inline constexpr std::int16_t F10 = 121;
}  // namespace key

/// The one door through which everything comes in that a user does with a native surface: each platform
/// reports here, and so do tests. It knows which control of the surface has the focus, the mouse and the
/// pointer over it. Points are logical pixels of the surface.
class Input {
 public:
  explicit Input(UserControl& root) : root_(&root) {}

  Control* focus() const { return focus_; }
  /// Moves the focus, telling those that lose it before those that get it; null takes it off the surface. An
  /// error of a listener is raised when everybody has been told, the first one if there are more.
  void setFocus(Control* control);
  /// To the next or previous tab stop; false at the end of the surface.
  bool moveFocus(bool forward);
  /// The native surface got the focus from outside, or lost it to something else of the application.
  void surfaceGotFocus();
  void surfaceLostFocus();

  /// Answers the editor with a peer to which the platform has to deliver the same press, if any.
  Control* mouseDown(MouseButton button, std::int16_t shift, Point at);
  void mouseMove(std::int16_t buttons, std::int16_t shift, Point at);
  void mouseUp(MouseButton button, std::int16_t shift, Point at);
  /// The mouse is over something else than this surface now.
  void mouseLeft();
  /// The second press of a double click with the left button; the release follows. Answers as `mouseDown`.
  Control* doubleClick(Point at);
  /// Whether the button is down since a press on this surface.
  bool holds(MouseButton button) const { return (held_ & static_cast<std::int16_t>(button)) != 0; }
  /// The same where the control has the mouse.
  bool holds(MouseButton button, const Control& on) const { return capture_ == &on && holds(button); }
  /// Notches away from the user are positive. Answers whether somebody scrolled.
  bool wheel(Point at, double notches);

  /// Whether the focused control wants a key for itself, which a dialog around it would otherwise take for
  /// its own navigation. Asks the control's window, as a dialog would.
  bool wantsKey(std::int16_t keyCode) const;
  /// Each answers whether the key is used up; otherwise the native editor does what it does with it.
  bool keyDown(std::int16_t keyCode, std::int16_t shift);
  bool keyUp(std::int16_t keyCode, std::int16_t shift);
  /// Answers the character that remains, 0 for none; a listener may have replaced it.
  std::int16_t keyPress(std::int16_t keyAscii);

  /// The deepest visible and enabled control at a point.
  Control* hit(Point at) const;

  /// A control is about to go.
  void forget(const Control& control);

  /// The controls inside the surface that have a native widget; a handful at most.
  void remember(Control& withPeer) { peers_.push_back(&withPeer); }
  void forgetPeer(const Control& control) { std::erase(peers_, &control); }
  const std::vector<Control*>& withPeers() const { return peers_; }
  /// Something of a control that counts for all that lies in it is another now.
  void tellInside(const Control& outer, Aspect aspect);

 private:
  bool tellLost(FirstError& error);
  bool tellGot(FirstError& error);
  void settlePeers(Control* old);
  void releaseAll() {
    capture_ = nullptr;
    held_ = 0;
  }
  void dropLostCapture();
  void tellReleased(Control& target, MouseButton button, std::int16_t shift, Point local);
  template <class Tell>
  Control* press(MouseButton button, Point at, Tell&& tell);
  /// The focused control, or the surface itself; null for one that can't be used.
  Control* keyReceiver() const;

  UserControl* root_;
  Control* focus_ = nullptr;
  Control* capture_ = nullptr;   // has the mouse from the first press to the last release
  std::int16_t held_ = 0;        // the mouse buttons that are down
  WeakRef<Control> underMouse_;  // the user control that was told of the mouse last
  WeakRef<Control> lastFocus_;
  // Those who have been told that they got the focus and not that they lost it, the outermost first. While
  // listeners run it may lag behind focus_; it also survives the end of the focused control.
  std::vector<WeakRef<Control>> told_;
  std::vector<Control*> peers_;
};

/// Whether a user can come to a control by keys alone: it is shown and enabled, as is all that it lies in,
/// and nothing around it keeps the keyboard elsewhere.
bool reachedByKeyboard(const Control& control);

}  // namespace qrn::host
