#include "host/accessible.h"

#include "host/user_control.h"

namespace qrn::host {
namespace {

// What the user does comes from a peer as a rule, which then knows it.
void bringPeerUpToDate(Control& control) {
  if (control.peer()) control.peer()->changed(Aspect::Content);
}

bool takesInput(const AccessibleStates& states) { return !states.unavailable && !states.invisible; }

}  // namespace

AccessibleFacts AccessibleNode::facts() const {
  AccessibleFacts facts = control->accessibleFacts();
  if (entry == kWhole) return facts;
  // An entry shares the states of its list, but neither its name nor what is said about it.
  AccessibleFacts own;
  own.role = AccessibleRole::Entry;
  own.states = facts.states;
  own.states.focused = false;
  control->tellEntryFacts(entry, own);
  return own;
}

// Whoever counts it among its children: not every user control in between does.
AccessibleNode AccessibleNode::parent() const {
  if (entry != kWhole) return {control};
  for (UserControl* holder = control->Parent(); holder; holder = holder->Parent()) {
    if (holder->accessibleIndexOf(*this) >= 0) return {holder};
  }
  return {};
}

std::int32_t AccessibleNode::childCount() const { return entry == kWhole ? control->accessibleCount() : 0; }

AccessibleNode AccessibleNode::child(std::int32_t index) const {
  return index >= 0 && index < childCount() ? control->accessibleChild(index) : AccessibleNode{};
}

std::int32_t AccessibleNode::indexOf(const AccessibleNode& child) const {
  return entry == kWhole ? control->accessibleIndexOf(child) : -1;
}

bool AccessibleNode::focus() const {
  if (!control->accessibleFacts().states.focusable) return false;
  const WeakRef<Control> guard(control);
  control->SetFocus();
  return guard && guard->hasFocus();
}

// Like a click, it brings the focus first: only so an edit begins, which the host hears end later.
bool AccessibleNode::act() const {
  const AccessibleFacts now = facts();
  if (now.action == AccessibleAction::None || now.states.readOnly || !takesInput(now.states)) return false;
  const WeakRef<Control> guard(control);
  if (now.states.focusable && !focus()) return false;
  if (!guard) return false;
  control->accessibleAct(entry);
  if (guard) bringPeerUpToDate(*control);
  return true;
}

bool AccessibleNode::enter(std::string_view text) const {
  const AccessibleStates states = facts().states;
  if (entry != kWhole || states.readOnly || !takesInput(states)) return false;
  const WeakRef<Control> guard(control);
  if (states.focusable && !focus()) return false;
  if (!guard) return false;
  const bool entered = control->accessibleEnter(text);
  if (guard) bringPeerUpToDate(*control);
  return entered;
}

}  // namespace qrn::host
