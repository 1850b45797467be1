#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

#include "base/geometry.h"
#include "host/color.h"
#include "host/font.h"
#include "host/surface.h"
#include "host/windows.h"
#include "runtime/variant.h"

namespace qrn::host {

class Control;
class PopupMenu;

/// What of a control a peer has to look at again.
enum class Aspect : std::uint8_t {
  Place,    // bounds, scrolling, clipping, visibility
  Enabled,  // enabled and locked
  Look,     // font, colours, alignment, password character, tool tip
  Content,  // text, value, selection
  Entries,  // the entries of a list
  Range,    // minimum, maximum and steps of a scroll bar
};

/// The native widget or window of a control. The control's state is the truth; a peer that is made later
/// reads all of it when it is made. What the user does goes back up through the control's input entries and
/// is not echoed to the peer that it came from.
class Peer {
 public:
  virtual ~Peer() = default;
  virtual void changed(Aspect aspect) = 0;
  /// A part of the control, in its own coordinates, has to be painted again.
  virtual void invalidate(const Rect& area) = 0;
  virtual void takeFocus() = 0;
  /// To the peer of a surface: the control or one on it has another value or other states, which tools that
  /// know it may have to hear.
  virtual void accessibleChanged(Control& /*control*/, Aspect) {}
};

class Clock {
 public:
  using TimerId = std::int64_t;
  virtual ~Clock() = default;
  /// Calls back again and again until stopped; the callback may stop it.
  virtual TimerId start(std::chrono::milliseconds interval, std::function<void()> tick) = 0;
  virtual void stop(TimerId timer) = 0;
};

/// An object made by its ProgID whose methods are called by name.
class AutomationObject : public Object {
 public:
  virtual Variant call(std::string_view method, std::span<const Variant> arguments) = 0;
};

/// What a machine can do. Everything belongs to the thread that made it.
class Platform {
 public:
  Platform();
  Platform(const Platform&) = delete;
  Platform& operator=(const Platform&) = delete;
  virtual ~Platform();

  /// The one that this thread made last and still has, or null.
  static Platform* current();
  /// The windows of that one, or null when it has gone already, and its windows with it.
  static Windows* currentWindows();

  /// The native widget of a control, or null when it needs none.
  virtual std::unique_ptr<Peer> realise(Control& control) = 0;
  virtual FontMetrics& metrics(const Font& font) = 0;
  virtual FontPtr defaultFont() = 0;
  virtual Windows& windows() = 0;
  virtual Clock& clock() = 0;
  /// Shows a menu until it is closed; the chosen entry's index, if any.
  virtual std::optional<int> popUp(PopupMenu& menu, Point screen) = 0;
  /// In screen coordinates.
  virtual Point cursor() const = 0;
  /// Where a realised control's surface lies on the screen.
  virtual Point screenPosition(const Control& control) const = 0;
  virtual Color system(SystemColor which) const = 0;
  /// Draws an editor that has no peer in the platform's own look, as its peer would look without the focus.
  virtual void paintControl(Surface& surface, const Control& control) = 0;
  /// The width of a vertical scroll bar.
  virtual double scrollBarWidth() const = 0;
  /// The height of a drop-down list's closed box for a font.
  virtual double comboBoxHeight(const Font& font) = 0;
  virtual void beep() = 0;
  virtual std::shared_ptr<AutomationObject> createObject(std::string_view progId) = 0;
  virtual std::string applicationName() const = 0;

  /// A plain colour for any colour.
  Color resolve(Color color) const { return isSystemColor(color) ? system(systemColorOf(color)) : color; }
};

}  // namespace qrn::host
