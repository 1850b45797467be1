#include "host/input.h"

#include <algorithm>
#include <vector>

#include "host/user_control.h"

namespace qrn::host {
namespace {

// The control itself and those around it, the outermost first; the surface itself stays out.
std::vector<WeakRef<Control>> chainTo(Control* control, const Control& root) {
  std::vector<WeakRef<Control>> chain;
  for (; control && control != &root; control = control->Container()) chain.emplace_back(control);
  std::reverse(chain.begin(), chain.end());
  return chain;
}

std::size_t commonLength(const std::vector<WeakRef<Control>>& a, const std::vector<WeakRef<Control>>& b) {
  std::size_t i = 0;
  while (i < a.size() && i < b.size() && a[i].get() == b[i].get()) ++i;
  return i;
}

UserControl* asUserControl(Control* control) { return dynamic_cast<UserControl*>(control); }

}  // namespace

Control* Input::hit(Point at) const {
  Control* found = root_;
  while (auto* container = dynamic_cast<ContainerControl*>(found)) {
    Control* child = container->childAt(at);
    if (!child) break;
    at = at - container->pixelBounds(*child).topLeft();
    found = child;
  }
  return found;
}

void Input::setFocus(Control* control) {
  if (control == focus_) return;
  Control* const old = focus_;
  const auto leaving = chainTo(old, *root_), entering = chainTo(control, *root_);
  const std::size_t common = commonLength(leaving, entering);
  const WeakRef<Control> target(control), previous(old), root(root_);
  focus_ = control;
  if (control) lastFocus_ = WeakRef<Control>(control);

  for (std::size_t i = leaving.size(); i-- > common;) {
    if (!leaving[i]) continue;
    Control& lost = *leaving[i];
    lost.lostFocus();
    if (!root) return;
    if (leaving[i] && !asUserControl(&lost) && lost.Parent()) lost.Parent()->childLostFocus(lost);
    if (!root) return;
  }
  settlePeers(previous.get());
  // A listener may have sent the focus elsewhere meanwhile; then that is what counts.
  for (std::size_t i = common; i < entering.size() && target && focus_ == target.get(); ++i) {
    if (!entering[i]) continue;
    Control& got = *entering[i];
    got.gotFocus();
    if (!root) return;
    if (entering[i] && !asUserControl(&got) && got.Parent()) got.Parent()->childGotFocus(got);
    if (!root) return;
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
  if (Control* last = lastFocus_.get(); last && last->shown() && last->acceptsFocus()) setFocus(last);
}

void Input::surfaceLostFocus() { setFocus(nullptr); }

Control* Input::mouseDown(MouseButton button, std::int16_t shiftState, Point at) {
  const WeakRef<Control> root(root_);
  Control* target = hit(at);
  capture_ = target;
  const WeakRef<Control> guard(target);
  if (Control* wish = target->acceptsFocus() ? target : nullptr) {
    setFocus(wish);
    if (!root || !guard) return nullptr;
    if (target->peer()) {
      // The widget follows the mouse from here on, and nobody reports the release.
      capture_ = nullptr;
      return target;
    }
  }
  const Point local = target->fromSurface(at);
  if (auto* user = asUserControl(target))
    user->mouseDown(button, shiftState, local);
  else if (target->Parent())
    target->Parent()->childMouseDown(*target, button, shiftState, local);
  return nullptr;
}

void Input::mouseMove(std::int16_t buttons, std::int16_t shiftState, Point at) {
  Control* target = capture_ ? capture_ : hit(at);
  const Point local = target->fromSurface(at);
  if (auto* user = asUserControl(target))
    user->mouseMove(buttons, shiftState, local);
  else if (target->Parent())
    target->Parent()->childMouseMove(*target, buttons, shiftState, local);
}

void Input::mouseUp(MouseButton button, std::int16_t shiftState, Point at) {
  Control* target = capture_ ? capture_ : hit(at);
  capture_ = nullptr;
  const Point local = target->fromSurface(at);
  if (auto* user = asUserControl(target))
    user->mouseUp(button, shiftState, local);
  else if (target->Parent())
    target->Parent()->childMouseUp(*target, button, shiftState, local);
}

void Input::doubleClick(Point at) {
  Control* target = hit(at);
  const Point local = target->fromSurface(at);
  if (auto* user = asUserControl(target))
    user->doubleClick(local);
  else if (target->Parent())
    target->Parent()->childDoubleClick(*target, local);
}

bool Input::wheel(Point at, double notches) {
  for (Control* target = hit(at); target; target = target->Container()) {
    auto* user = asUserControl(target);
    if (user && user->wheel(notches)) return true;
  }
  return false;
}

bool Input::keyDown(std::int16_t keyCode, std::int16_t shiftState) {
  const WeakRef<Control> root(root_);
  Control* target = focus_ ? focus_ : root_;
  const std::int16_t given = keyCode;
  if (auto* user = asUserControl(target))
    user->keyDown(keyCode, shiftState);
  else if (target->Parent())
    target->Parent()->childKeyDown(*target, keyCode, shiftState);
  if (!root || keyCode == 0) return true;
  if (given == key::Tab && (shiftState & (shift::Control | shift::Alt)) == 0) {
    return moveFocus((shiftState & shift::Shift) == 0);
  }
  return false;
}

bool Input::keyUp(std::int16_t keyCode, std::int16_t shiftState) {
  Control* target = focus_ ? focus_ : root_;
  if (auto* user = asUserControl(target))
    user->keyUp(keyCode, shiftState);
  else if (target->Parent())
    target->Parent()->childKeyUp(*target, keyCode, shiftState);
  return keyCode == 0;
}

std::int16_t Input::keyPress(std::int16_t keyAscii) {
  Control* target = focus_ ? focus_ : root_;
  if (auto* user = asUserControl(target))
    user->keyPress(keyAscii);
  else if (target->Parent())
    target->Parent()->childKeyPress(*target, keyAscii);
  return keyAscii;
}

void Input::forget(const Control& control) {
  if (focus_ == &control) focus_ = nullptr;
  if (capture_ == &control) capture_ = nullptr;
}

}  // namespace qrn::host
