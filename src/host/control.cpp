#include "host/control.h"

#include <algorithm>

#include "base/first_error.h"
#include "host/container_control.h"
#include "host/user_control.h"
#include "runtime/errors.h"

namespace qrn::host {

/// The window of a control, for the code that works with windows and messages.
class ControlWindow final : public WindowOwner {
 public:
  explicit ControlWindow(Control& control)
      : control_(control), windows_(control.platform().windows()), handle_(windows_.create(*this)) {}
  ~ControlWindow() override { windows_.destroy(handle_); }

  WindowHandle handle() const { return handle_; }

  std::intptr_t windowMessage(const Message& message) override { return control_.windowMessage(message); }
  bool windowEnabled() const override { return control_.Enabled(); }
  WindowHandle parentWindow() const override {
    return control_.Container() ? control_.Container()->window() : 0;
  }
  std::string_view windowTitle() const override { return {}; }
  void windowInvalidated() override { control_.invalidate(); }
  std::intptr_t windowStyle(std::intptr_t style) const override { return control_.windowStyle(style); }
  void windowStyleChanged(std::intptr_t style) override { control_.windowStyleChanged(style); }

 private:
  Control& control_;
  Windows& windows_;
  WindowHandle handle_;
};

const std::string Control::kNoName;

Control::Rare::Rare() = default;

Control::Rare::~Rare() = default;

Control::Control() = default;

Control::~Control() {
  if (follower_) follower_->controlGone();
  if (container_) {
    if (UserControl& top = root(); &top != this) top.input().forget(*this);
    container_->release(*this);
  }
}

void Control::raiseByName(std::string_view name, EventArgs arguments) {
  const WeakRef<Control> self(this);
  if (follower_) follower_->controlEvent(name, arguments);
  if (self) ObjectEvent.raise(name, arguments);
}

Control::Rare& Control::rare() {
  if (!rare_) rare_ = std::make_unique<Rare>();
  return *rare_;
}

void Control::SetVisible(bool visible) {
  if (visible == visible_) return;
  invalidate();
  visible_ = visible;
  const WeakRef<Control> self(this);
  FirstError error;
  if (!visible && container_ && hasFocus()) error.of([&] { input().setFocus(nullptr); });
  // A listener may have removed the control, or shown it again.
  if (self && visible_ == visible) {
    tellPlace();
    invalidate();
    error.of([&] { visibilityChanged(); });
  }
  error.raise();
}

// The native widgets inside can be used no longer, or again.
void Control::SetEnabled(bool enabled) {
  const bool isOnSurface = container_ || peerPolicy() == PeerPolicy::Surface;
  if (change(enabled_, enabled, Aspect::Enabled) && isOnSurface) input().tellInside(*this, Aspect::Enabled);
}

const Rect& Control::bounds() const {
  if (container_) container_->settle();
  return bounds_;
}

void Control::Move(double left, double top, double width, double height) {
  const Rect target{left, top, width, height};
  const Rect before = bounds();
  if (target == before) return;
  if (container_) container_->forgetStrips();
  // Nobody, where many move at once, or where nobody looks yet.
  const bool toBeTold = container_ ? container_->rearranging_ == 0 : peer() != nullptr;
  if (toBeTold) invalidate();
  bounds_ = target;
  if (toBeTold) {
    tellPlace();
    invalidate();
  }
  moved(before, bounds_);
}

const std::string& Control::ToolTipText() const {
  static const std::string none;
  return rare_ ? rare_->toolTip : none;
}

void Control::SetToolTipText(std::string_view text) {
  if (text == ToolTipText()) return;
  rare().toolTip = text;
  if (peer()) peer()->changed(Aspect::Look);
}

void Control::SetFocus() {
  Control* target = focusTarget();
  if (target && target->shown() && target->enabledUpToSurface()) input().setFocus(target);
}

bool Control::enabledUpToSurface() const {
  return enabled_ && (!container_ || container_->enabledUpToSurface());
}

// The native widgets inside move, appear and vanish along with what they lie in.
void Control::tellPlace() {
  if (peer()) peer()->changed(Aspect::Place);
  if (container_) input().tellInside(*this, Aspect::Place);
}

bool Control::hasFocus() const {
  const Control* control = input().focus();
  while (control && control != this) control = control->container_;
  return control != nullptr;
}

WindowHandle Control::window() {
  auto& window = rare().window;
  if (!window) {
    window = std::make_unique<ControlWindow>(*this);
    if (parent_) parent_->childWindowMade(*this);
  }
  return window->handle();
}

std::int32_t Control::hwnd() { return static_cast<std::int32_t>(window()); }

std::intptr_t Control::windowMessage(const Message& message) {
  if (message.number != wm::NcHitTest) return 0;
  // The screen position is packed as two 16-bit halves, x low.
  const Point screen{static_cast<double>(static_cast<std::int16_t>(message.lParam & 0xFFFF)),
                     static_cast<double>(static_cast<std::int16_t>(message.lParam >> 16 & 0xFFFF))};
  const Point at = screen - platform().screenPosition(root());
  return shown() && visibleOnSurface().contains(at) ? kHitClient : kHitNowhere;
}

UserControl& Control::root() const {
  const Control* control = this;
  while (control->container_) control = control->container_;
  // Only user controls stand alone; everything else lies in a container.
  return const_cast<UserControl&>(static_cast<const UserControl&>(*control));
}

Input& Control::input() const { return root().input(); }

Platform& Control::platform() const { return root().site().platform(); }

void Control::realise() {
  if (peer()) return;
  std::unique_ptr<Peer> made = platform().realise(*this);
  if (!made) return;
  rare().peer = std::move(made);
  if (container_) input().remember(*this);
  realised();
}

void Control::dropPeer() {
  if (!peer()) return;
  if (container_) input().forgetPeer(*this);
  rare_->peer.reset();
  invalidate();
}

Size Control::pixelSize() const {
  return container_ ? container_->pixelBounds(*this).size() : bounds_.size();
}

Rect Control::onSurface() const {
  if (!container_) return {0, 0, bounds_.width, bounds_.height};
  return container_->pixelBounds(*this).translated(container_->onSurface().topLeft());
}

Rect Control::visibleOnSurface() const {
  if (!visible_) return {};
  if (!container_) return onSurface();
  const Rect outer = container_->visibleOnSurface();
  return onSurface().intersected(outer);
}

bool Control::shown() const { return visible_ && (!container_ || container_->shown()); }

bool Control::covered() const {
  const Rect place = onSurface();
  const auto inFront = [&](const Control* other) {
    return other->visible_ && other->onSurface().intersects(place);
  };
  for (const Control* control = this; control->container_; control = control->container_) {
    const auto& beside = control->container_->contained();
    const auto self = std::find(beside.begin(), beside.end(), control);
    if (std::any_of(std::next(self), beside.end(), inFront)) return true;
  }
  return false;
}

Point Control::fromSurface(Point at) const { return at - onSurface().topLeft(); }

void Control::invalidate() { invalidate({{}, {}, 1e9, 1e9}); }

void Control::setName(const std::string& name) { name_ = &name; }

// The control whose native widget shows this one: itself, one around it, or none while nothing is on screen.
const Control* Control::paintedBy() const {
  const Control* control = this;
  while (!control->peer() && control->container_) {
    if (!control->visible_) return nullptr;
    control = control->container_;
  }
  return control->visible_ && control->peer() ? control : nullptr;
}

void Control::invalidate(const Rect& pixels) {
  const Control* const painter = paintedBy();
  if (!painter) return;
  // Once for all that this one lies in.
  if (container_) container_->settle();
  Rect area = pixels;
  // Whatever is clipped away on the way to the surface needs no painting.
  for (const Control* control = this; control != painter; control = control->container_) {
    const Rect place = control->container_->toPixels(control->bounds_);
    area = area.intersected({0, 0, place.width, place.height}).translated(place.topLeft());
    if (area.empty()) return;
  }
  const Size whole = painter->pixelSize();
  area = area.intersected({0, 0, whole.width, whole.height});
  if (!area.empty()) painter->peer()->invalidate(area);
}

void Control::touched(Aspect aspect) {
  if (peer())
    peer()->changed(aspect);
  else
    invalidate();
  tellTools(aspect);
}

void Control::touchedByUser(Aspect aspect) {
  if (!peer()) invalidate();
  tellTools(aspect);
}

// ---- assistive tools ----

// Only a surface that is on a screen has tools that look at it.
void Control::tellTools(Aspect aspect) {
  const Control* top = this;
  while (top->container_) top = top->container_;
  if (top->peer()) top->peer()->accessibleChanged(*this, aspect);
}

AccessibleFacts Control::accessibleFacts() const {
  AccessibleFacts facts;
  AccessibleStates& states = facts.states;
  states.unavailable = !enabledUpToSurface();
  states.invisible = !shown();
  states.offscreen = !states.invisible && visibleOnSurface().empty();
  states.focusable = acceptsFocus() && !states.unavailable && !states.invisible;
  states.focused = input().focus() == this;
  tellFacts(facts);
  for (const UserControl* holder = parent_; holder; holder = holder->Parent())
    holder->tellFactsOf(*this, facts);
  return facts;
}

std::int32_t Control::accessibleIndexOf(const AccessibleNode& child) {
  std::int32_t index = accessibleCount() - 1;
  while (index >= 0 && accessibleChild(index) != child) --index;
  return index;
}

}  // namespace qrn::host
