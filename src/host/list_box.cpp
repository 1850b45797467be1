#include "host/list_box.h"

#include "host/user_control.h"

namespace qrn::host {

void ListBox::SetSelected(std::int32_t index, bool selected) {
  Entry& changed = entry(index);
  if (changed.selected == selected) return;
  changed.selected = selected;
  touched(Aspect::Content);
}

void ListBox::userMovedTo(std::int32_t index) {
  if (!enabledUpToSurface() || index < -1 || index >= ListCount()) return;
  listIndex_ = index;
  if (!peer()) invalidate();
}

void ListBox::userChecked(std::int16_t index) {
  if (!enabledUpToSurface() || index < 0 || index >= ListCount()) return;
  Entry& changed = entry(index);
  changed.selected = !changed.selected;
  touchedByUser(Aspect::Content);
  Parent()->childItemChecked(*this, index);
}

void ListBox::userPressed(MouseButton button, Point at) {
  Parent()->childMouseDown(*this, button, shift::None, at);
}

void ListBox::userReleased(MouseButton button, Point at) {
  Parent()->childMouseUp(*this, button, shift::None, at);
}

void ListBox::tellEntryFacts(std::int32_t index, AccessibleFacts& facts) const {
  if (index >= ListCount()) return;
  facts.name = List(index);
  facts.action = AccessibleAction::Toggle;
  facts.states.checkable = true;
  facts.states.checked = Selected(index);
  facts.states.selectable = true;
  facts.states.selected = index == ListIndex();
}

void ListBox::accessibleAct(std::int32_t index) {
  userMovedTo(index);
  userChecked(static_cast<std::int16_t>(index));
}

void ListBox::gotFocus() {
  // So that the focus mark can be seen.
  if (ListIndex() == -1 && ListCount() > 0) SetListIndex(0);
}

}  // namespace qrn::host
