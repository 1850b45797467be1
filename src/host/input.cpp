#include "host/input.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "base/first_error.h"
#include "host/command_button.h"
#include "host/user_control.h"

namespace qrn::host {
namespace {

bool isInside(const Control* control, const Control& outer) {
  while (control && control != &outer) control = control->Container();
  return control != nullptr;
}

// The control itself and those around it, the surface first.
std::vector<Control*> chainTo(Control* control) {
  std::vector<Control*> chain;
  for (; control; control = control->Container()) chain.push_back(control);
  std::reverse(chain.begin(), chain.end());
  return chain;
}

UserControl* asUserControl(Control* control) { return dynamic_cast<UserControl*>(control); }

// Alt and the letter of a button's caption press it from wherever the focus is; it comes to the button first.
bool pressedByMnemonic(const UserControl& root, std::int16_t letter) {
  const WeakRef<CommandButton> button(buttonOfMnemonic(root, letter));
  if (!button || !button->enabledUpToSurface()) return false;
  button->SetFocus();
  if (button && button->hasFocus()) button->userClicked();
  return true;
}

}  // namespace

bool reachedByKeyboard(const Control& control) {
  for (const Control* inner = &control; inner->Container(); inner = inner->Container()) {
    const ContainerControl& area = inner->Container()->keyboardArea();
    if (&area != inner->Container() && &area != inner) return false;
  }
  return control.shown() && control.enabledUpToSurface();
}

Control* Input::hit(Point at) const {
  Control* found = root_;
  while (auto* container = found->asContainer()) {
    Control* child = container->childAt(at);
    if (!child) break;
    at = at - container->pixelBounds(*child).topLeft();
    found = child;
  }
  return found;
}

// A focus that has moved for some and not for others would stay so: the next move to the same control would
// find nothing to do.
void Input::setFocus(Control* control) {
  if (control == focus_ && (control || told_.empty())) return;
  const WeakRef<Control> previous(focus_);
  focus_ = control;
  if (control) lastFocus_ = WeakRef<Control>(control);
  FirstError error;
  if (tellLost(error)) {
    settlePeers(previous.get());
    tellGot(error);
  }
  error.raise();
}

// Each step looks at the focus anew: a listener may have sent it elsewhere, and by then told whom it had to.
bool Input::tellLost(FirstError& error) {
  const WeakRef<Control> root(root_);
  while (!told_.empty() && !(told_.back() && isInside(focus_, *told_.back()))) {
    const WeakRef<Control> lost = told_.back();
    told_.pop_back();
    if (!lost) continue;
    error.of([&] { lost->lostFocus(); });
    if (!root) return false;
    if (lost && !asUserControl(lost.get()) && lost->Parent())
      error.of([&] { lost->Parent()->childLostFocus(*lost); });
    if (!root) return false;
  }
  return true;
}

bool Input::tellGot(FirstError& error) {
  const WeakRef<Control> root(root_);
  while (true) {
    const std::vector<Control*> chain = chainTo(focus_);
    if (told_.size() >= chain.size()) return true;
    const WeakRef<Control> got(chain[told_.size()]);
    told_.push_back(got);
    error.of([&] { got->gotFocus(); });
    if (!root) return false;
    if (got && !asUserControl(got.get()) && got->Parent())
      error.of([&] { got->Parent()->childGotFocus(*got); });
    if (!root) return false;
  }
}

void Input::settlePeers(Control* old) {
  if (old && old != focus_ && old->peerPolicy() == PeerPolicy::WhenFocused) old->dropPeer();
  if (!root_->peer()) return;
  if (focus_ && focus_->peerPolicy() == PeerPolicy::WhenFocused) focus_->realise();
  Peer* peer = focus_ && focus_->peer() ? focus_->peer() : root_->peer();
  if (focus_) peer->takeFocus();
}

bool Input::moveFocus(bool forward) {
  Control* next = root_->nextTabStop(focus_, forward);
  if (!next) return false;
  next->SetFocus();
  return true;
}

void Input::surfaceGotFocus() {
  if (focus_) return;
  if (Control* last = lastFocus_.get(); last && reachedByKeyboard(*last)) last->SetFocus();
}

void Input::surfaceLostFocus() { setFocus(nullptr); }

// The focus comes before the press is told.
template <class Tell>
Control* Input::press(MouseButton button, Point at, Tell&& tell) {
  if (!root_->Enabled()) return nullptr;
  const WeakRef<Control> root(root_);
  // One that is down already has come up where nobody could see it.
  if (holds(button)) releaseAll();
  dropLostCapture();
  if (!root) return nullptr;
  held_ = static_cast<std::int16_t>(held_ | static_cast<std::int16_t>(button));
  if (!capture_) capture_ = hit(at);
  const WeakRef<Control> target(capture_);
  if (target->acceptsFocus()) {
    setFocus(target.get());
    if (!root || !target) return nullptr;
    if (target->peer()) {
      // The widget follows the mouse from here on, and nobody reports the release.
      releaseAll();
      return target.get();
    }
  }
  tell(*target, target->fromSurface(at));
  return nullptr;
}

Control* Input::mouseDown(MouseButton button, std::int16_t shiftState, Point at) {
  return press(button, at, [&](Control& target, Point local) {
    if (auto* user = asUserControl(&target))
      user->mouseDown(button, shiftState, local);
    else if (target.Parent())
      target.Parent()->childMouseDown(target, button, shiftState, local);
  });
}

Control* Input::doubleClick(Point at) {
  return press(MouseButton::Left, at, [](Control& target, Point local) {
    if (auto* user = asUserControl(&target))
      user->doubleClick(local);
    else if (target.Parent())
      target.Parent()->childDoubleClick(target, local);
  });
}

// What has been hidden or disabled since it was pressed can't have the mouse any longer. To it, the buttons
// that are down come up where it is not, so that nothing is clicked.
void Input::dropLostCapture() {
  if (!capture_ || (capture_->shown() && capture_->enabledUpToSurface())) return;
  const WeakRef<Control> root(root_), lost(capture_);
  const std::int16_t held = held_;
  releaseAll();
  constexpr Point kNowhere{-1, -1};
  for (const MouseButton button : {MouseButton::Left, MouseButton::Right, MouseButton::Middle}) {
    if (root && lost && (held & static_cast<std::int16_t>(button)) != 0)
      tellReleased(*lost, button, shift::None, kNowhere);
  }
}

void Input::mouseMove(std::int16_t buttons, std::int16_t shiftState, Point at) {
  const WeakRef<Control> root(root_);
  dropLostCapture();
  if (!root || (!root_->Enabled() && !capture_)) return;
  if (buttons == 0) releaseAll();
  Control* target = capture_ ? capture_ : hit(at);
  Control* told = asUserControl(target) ? target : target->Parent();
  if (told != underMouse_.get()) {
    const WeakRef<Control> guard(target);
    mouseLeft();
    if (!guard) return;
    underMouse_ = WeakRef<Control>(told);
  }
  const Point local = target->fromSurface(at);
  if (auto* user = asUserControl(target))
    user->mouseMove(buttons, shiftState, local);
  else if (target->Parent())
    target->Parent()->childMouseMove(*target, buttons, shiftState, local);
}

void Input::mouseLeft() {
  if (UserControl* left = asUserControl(std::exchange(underMouse_, {}).get())) left->mouseLeft();
}

void Input::mouseUp(MouseButton button, std::int16_t shiftState, Point at) {
  if (!root_->Enabled() && !capture_) return;
  const bool captured = capture_ != nullptr;
  const WeakRef<Control> root(root_);
  dropLostCapture();
  if (!root || (captured && !capture_)) return;
  Control* target = capture_ ? capture_ : hit(at);
  held_ = static_cast<std::int16_t>(held_ & ~static_cast<std::int16_t>(button));
  if (held_ == 0) capture_ = nullptr;
  tellReleased(*target, button, shiftState, target->fromSurface(at));
}

void Input::tellReleased(Control& target, MouseButton button, std::int16_t shiftState, Point local) {
  if (auto* user = asUserControl(&target))
    user->mouseUp(button, shiftState, local);
  else if (target.Parent())
    target.Parent()->childMouseUp(target, button, shiftState, local);
}

bool Input::wheel(Point at, double notches) {
  for (WeakRef<Control> target(hit(at)); target; target = WeakRef<Control>(target->Container())) {
    if (target->wheel(notches)) return true;
    if (!target) return true;
  }
  return false;
}

bool Input::wantsKey(std::int16_t keyCode) const {
  if (!focus_) return false;
  const std::intptr_t wanted =
      focus_->platform().windows().send(focus_->window(), {wm::GetDlgCode, keyCode, 0});
  std::intptr_t asked = dlgc::WantAllKeys;
  switch (keyCode) {
    case key::Enter:
    case key::Escape: break;
    case key::Tab: asked |= dlgc::WantTab; break;
    case key::Left:
    case key::Up:
    case key::Right:
    case key::Down: asked |= dlgc::WantArrows; break;
    // A button is worked with the space bar.
    case key::Space: asked |= dlgc::WantChars | dlgc::Button; break;
    default: asked |= dlgc::WantChars; break;
  }
  return (wanted & asked) != 0;
}

Control* Input::keyReceiver() const {
  Control* const target = focus_ ? focus_ : root_;
  return target->enabledUpToSurface() ? target : nullptr;
}

bool Input::keyDown(std::int16_t keyCode, std::int16_t shiftState) {
  const WeakRef<Control> root(root_);
  Control* const target = keyReceiver();
  const WeakRef<Control> guard(target);
  const std::int16_t given = keyCode;
  if (auto* user = asUserControl(target))
    user->keyDown(keyCode, shiftState);
  else if (target && target->Parent())
    target->Parent()->childKeyDown(*target, keyCode, shiftState);
  if (!root || keyCode == 0) return true;
  if (guard && !guard->peer() && guard->userKeyed(keyCode, shiftState)) return true;
  if (given == key::Tab && (shiftState & (shift::Control | shift::Alt)) == 0) {
    return moveFocus((shiftState & shift::Shift) == 0);
  }
  return shiftState == shift::Alt && given != 0 && pressedByMnemonic(*root_, given);
}

bool Input::keyUp(std::int16_t keyCode, std::int16_t shiftState) {
  Control* const target = keyReceiver();
  if (!target) return false;
  if (auto* user = asUserControl(target))
    user->keyUp(keyCode, shiftState);
  else if (target->Parent())
    target->Parent()->childKeyUp(*target, keyCode, shiftState);
  return keyCode == 0;
}

std::int16_t Input::keyPress(std::int16_t keyAscii) {
  Control* const target = keyReceiver();
  if (!target) return 0;
  if (auto* user = asUserControl(target))
    user->keyPress(keyAscii);
  else if (target->Parent())
    target->Parent()->childKeyPress(*target, keyAscii);
  return keyAscii;
}

void Input::forget(const Control& control) {
  if (isInside(focus_, control)) focus_ = nullptr;
  if (isInside(capture_, control)) capture_ = nullptr;
  std::erase_if(peers_, [&](const Control* one) { return isInside(one, control); });
}

void Input::tellInside(const Control& outer, Aspect aspect) {
  // By index: a widget may go while it is told.
  for (std::size_t i = 0; i < peers_.size(); ++i) {
    Control& control = *peers_[i];
    if (&control != &outer && isInside(&control, outer)) control.peer()->changed(aspect);
  }
}

}  // namespace qrn::host
