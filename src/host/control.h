#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>

#include "base/event.h"
#include "base/geometry.h"
#include "base/weak_ref.h"
#include "host/accessible.h"
#include "host/event_args.h"
#include "host/input.h"
#include "host/platform.h"
#include "runtime/object.h"

namespace qrn::host {

class ContainerControl;
class ControlWindow;
class UserControl;

/// When a control gets a native widget.
enum class PeerPolicy : std::uint8_t { Never, WhenFocused, WhenShown, Surface };

/// Whoever belongs to one control and hears of all its events before any listener, at the cost of a pointer.
/// It lets go of the control when it goes itself.
class ControlFollower {
 public:
  virtual void controlEvent(std::string_view name, EventArgs arguments) = 0;
  /// The control is about to go.
  virtual void controlGone() = 0;

 protected:
  ~ControlFollower() = default;
};

/// Everything that sits on a container. The public part is what a container adds to any control: its name and
/// place, its visibility, the focus, and its events by name.
class Control : public Object {
 public:
  Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  ~Control() override;

  /// Under which the holder has it.
  const std::string& Name() const { return *name_; }
  /// The user control whose collection made this one; null for one that the host made.
  UserControl* Parent() const { return parent_; }
  /// Gives coordinates and clipping only.
  ContainerControl* Container() const { return container_; }

  /// Whether the control is to be seen, when what it lies on is.
  bool Visible() const { return visible_; }
  void SetVisible(bool visible);
  /// Whether it takes input, when what it lies on does.
  bool Enabled() const { return enabled_; }
  virtual void SetEnabled(bool enabled);
  /// Its place when Tab goes round. Stored as given.
  std::int32_t TabIndex() const { return tabIndex_; }
  void SetTabIndex(std::int32_t index) { tabIndex_ = index; }

  /// From the left edge of the container, in its scale units, as the other three.
  double Left() const { return bounds().left; }
  /// From the upper edge of the container.
  double Top() const { return bounds().top; }
  /// With its frame.
  double Width() const { return bounds().width; }
  /// With its frame.
  double Height() const { return bounds().height; }
  /// The container arranges what lies in it no sooner than somebody asks.
  const Rect& bounds() const;
  void SetLeft(double left) { Move(left, Top(), Width(), Height()); }
  void SetTop(double top) { Move(Left(), top, Width(), Height()); }
  void SetWidth(double width) { Move(Left(), Top(), width, Height()); }
  void SetHeight(double height) { Move(Left(), Top(), Width(), height); }
  /// All four at once.
  void Move(double left, double top, double width, double height);

  /// What shows when the mouse rests on the control.
  const std::string& ToolTipText() const;
  virtual void SetToolTipText(std::string_view text);

  /// Gives the focus to the control; nothing happens to one that can't take it.
  void SetFocus();
  /// The focus is on this control or on one inside it.
  bool hasFocus() const;

  /// The handle of the control's window, which is made when it is first asked for, and kept.
  std::int32_t hwnd();
  /// The same, where a handle is wider than a Long.
  WindowHandle window();

  /// Every event of the control by its name, arguments by reference.
  Event<std::string_view /*name*/, EventArgs /*arguments*/> ObjectEvent;
  /// Tells of an event by its name only: whoever follows the control first, then those who listen.
  void raiseByName(std::string_view name, EventArgs arguments);

  // ---- between controls and platforms ----

  Anchor& anchor() { return anchor_; }
  void follow(ControlFollower* follower) { follower_ = follower; }
  Platform& platform() const;
  UserControl& root() const;
  Input& input() const;

  Peer* peer() const { return rare_ ? rare_->peer.get() : nullptr; }
  virtual PeerPolicy peerPolicy() const { return PeerPolicy::Never; }
  virtual UserControl* asUserControl() { return nullptr; }
  virtual ContainerControl* asContainer() { return nullptr; }
  /// Makes the native widget if there is none yet and the platform has one for this control.
  void realise();
  void dropPeer();

  /// The whole of the control, and what can be seen of it, in logical pixels of the surface. Of a control
  /// that is hidden, or lies in a hidden one, nothing can be seen.
  Rect onSurface() const;
  Rect visibleOnSurface() const;
  /// Every control up to the surface is visible.
  bool shown() const;
  /// Something lies in front of part of it.
  bool covered() const;
  /// Every control up to the surface is enabled.
  bool enabledUpToSurface() const;
  Size pixelSize() const;
  /// In pixels of the control; the right and lower edges are outside.
  bool contains(Point at) const { return Rect{0, 0, pixelSize().width, pixelSize().height}.contains(at); }
  Point fromSurface(Point at) const;

  void invalidate();
  void invalidate(const Rect& pixels);

  /// Draws the control itself, not what it contains; `size` is in pixels.
  virtual void paint(Surface&, Size /*size*/) {}
  virtual bool acceptsFocus() const { return false; }
  /// Notches away from the user are positive. Answers whether the control scrolls.
  virtual bool wheel(double /*notches*/) { return false; }
  /// A key that no listener has taken, for a control that has no native widget to take it. Answers whether it
  /// is used up.
  virtual bool userKeyed(std::int16_t /*keyCode*/, std::int16_t /*shift*/) { return false; }
  /// Where the focus goes that is given to this control.
  virtual Control* focusTarget() { return acceptsFocus() ? this : nullptr; }
  virtual std::intptr_t windowMessage(const Message& message);
  /// The style of the window, with the bits that the control keeps itself.
  virtual std::intptr_t windowStyle(std::intptr_t style) const { return style; }
  virtual void windowStyleChanged(std::intptr_t /*style*/) {}
  /// The user control that holds this one has another font.
  virtual void fontChanged() {}

  // ---- what assistive tools are told, see AccessibleNode ----

  AccessibleFacts accessibleFacts() const;
  /// The controls and entries that are seen as parts of this one, in reading order.
  virtual std::int32_t accessibleCount() const { return 0; }
  virtual AccessibleNode accessibleChild(std::int32_t /*index*/) { return {}; }
  /// -1 for what is no part of this one.
  virtual std::int32_t accessibleIndexOf(const AccessibleNode& child);

 protected:
  friend struct AccessibleNode;
  friend class ContainerControl;
  friend class Controls;
  friend class Input;
  friend struct LifeCycle;

  /// The control has just got its container.
  virtual void placed() {}
  virtual void moved(const Rect& /*before*/, const Rect& /*now*/) {}
  virtual void visibilityChanged() {}
  /// The native widget has just been made.
  virtual void realised() {}
  /// The focus came to this control or one inside it, or left it.
  virtual void gotFocus() {}
  virtual void lostFocus() {}

  /// What the control itself has to tell; where it is and whether it can be used is known already.
  virtual void tellFacts(AccessibleFacts&) const {}
  virtual void tellEntryFacts(std::int32_t /*entry*/, AccessibleFacts&) const {}
  /// Does what the facts name as the action.
  virtual void accessibleAct(std::int32_t /*entry*/) {}
  virtual bool accessibleEnter(std::string_view /*text*/) { return false; }

  /// Raises an event and hands it to the listeners by name, the control's own listeners first.
  template <class... Args>
  void raise(Event<Args...>& event, std::string_view name, std::type_identity_t<Args>... args) {
    const WeakRef<Control> self(this);
    event.raise(args...);
    if (self) raiseByName<Args...>(name, args...);
  }
  /// For the listeners by name only.
  template <class... Args>
  void raiseByName(std::string_view name, std::type_identity_t<Args>... args) {
    if (!follower_ && !ObjectEvent.hasListeners()) return;
    if constexpr (sizeof...(Args) == 0) {
      raiseByName(name, EventArgs());
    } else {
      const EventArg list[] = {EventArg(args)...};
      raiseByName(name, EventArgs(list));
    }
  }

  /// Stores a changed value and tells the peer, or has the place painted again.
  template <class T>
  bool change(T& field, const std::type_identity_t<T>& value, Aspect aspect) {
    if (field == value) return false;
    field = value;
    touched(aspect);
    return true;
  }
  void touched(Aspect aspect);
  /// The same for what the user did, which a peer knows already.
  void touchedByUser(Aspect aspect);

 private:
  const Control* paintedBy() const;
  /// By a name that lives as long as the control.
  void setName(const std::string& name);

  // What few controls have.
  struct Rare {
    Rare();
    ~Rare();
    std::unique_ptr<Peer> peer;
    std::string toolTip;
    std::unique_ptr<ControlWindow> window;
  };
  Rare& rare();
  void tellPlace();
  void tellTools(Aspect aspect);

  static const std::string kNoName;

  const std::string* name_ = &kNoName;
  UserControl* parent_ = nullptr;
  ContainerControl* container_ = nullptr;
  Rect bounds_;
  ControlFollower* follower_ = nullptr;
  std::unique_ptr<Rare> rare_;
  Anchor anchor_;
  std::int32_t tabIndex_ = 0;
  bool visible_ = true;
  bool enabled_ = true;
};

}  // namespace qrn::host
