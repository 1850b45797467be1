#include "host/check_box.h"

#include "host/user_control.h"

namespace qrn::host {

void CheckBox::userToggled() {
  if (!enabledUpToSurface()) return;
  value_ = value_ == 0 ? 1 : 0;
  touchedByUser(Aspect::Content);
  Parent()->childClicked(*this);
}

void CheckBox::tellFacts(AccessibleFacts& facts) const {
  facts.role = AccessibleRole::CheckBox;
  facts.action = AccessibleAction::Toggle;
  facts.states.checkable = true;
  facts.states.checked = value_ != 0;
}

std::intptr_t CheckBox::windowMessage(const Message& message) {
  return message.number == wm::GetDlgCode ? dlgc::Button : Editor::windowMessage(message);
}

}  // namespace qrn::host
