#include "host/combo_box.h"

#include "host/user_control.h"

namespace qrn::host {

void ComboBox::userSelected(std::int32_t index) {
  if (index == listIndex_) return;
  if (locked_ || !Enabled() || index < -1 || index >= ListCount()) {
    if (peer()) peer()->changed(Aspect::Content);
    return;
  }
  listIndex_ = index;
  if (!peer()) invalidate();
  const WeakRef<Control> self(this);
  Parent()->childChanged(*this);
  if (self) Parent()->childClicked(*this);
}

std::intptr_t ComboBox::windowStyle(std::intptr_t style) const {
  return upperCase_ ? style | style::ComboUpperCase : style & ~style::ComboUpperCase;
}

void ComboBox::windowStyleChanged(std::intptr_t style) { setUpperCase((style & style::ComboUpperCase) != 0); }

}  // namespace qrn::host
