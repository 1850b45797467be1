#include "host/combo_box.h"

#include "host/user_control.h"

namespace qrn::host {

void ComboBox::userSelected(std::int32_t index) {
  if (index == listIndex_) return;
  if (locked_ || !enabledUpToSurface() || index < -1 || index >= ListCount()) {
    if (peer()) peer()->changed(Aspect::Content);
    return;
  }
  listIndex_ = index;
  touchedByUser(Aspect::Content);
  const WeakRef<Control> self(this);
  Parent()->childChanged(*this);
  if (self) Parent()->childClicked(*this);
}

void ComboBox::tellFacts(AccessibleFacts& facts) const {
  facts.role = AccessibleRole::DropList;
  facts.value = Text();
  facts.states.readOnly = locked_;
}

void ComboBox::tellEntryFacts(std::int32_t index, AccessibleFacts& facts) const {
  if (index >= ListCount()) return;
  facts.name = List(index);
  facts.action = AccessibleAction::Choose;
  facts.states.selectable = true;
  facts.states.selected = index == ListIndex();
}

bool ComboBox::accessibleEnter(std::string_view text) {
  for (std::int32_t index = 0; index < ListCount(); ++index) {
    if (List(index) != text) continue;
    userSelected(index);
    return true;
  }
  return false;
}

std::intptr_t ComboBox::windowStyle(std::intptr_t style) const {
  return upperCase_ ? style | style::ComboUpperCase : style & ~style::ComboUpperCase;
}

void ComboBox::windowStyleChanged(std::intptr_t style) { setUpperCase((style & style::ComboUpperCase) != 0); }

}  // namespace qrn::host
