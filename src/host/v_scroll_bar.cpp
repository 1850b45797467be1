#include "host/v_scroll_bar.h"

#include <algorithm>

#include "host/user_control.h"
#include "runtime/errors.h"

namespace qrn::host {

void VScrollBar::SetMax(std::int32_t max) {
  if (max == max_) return;
  max_ = max;
  value_ = std::clamp(value_, std::min(min_, max_), std::max(min_, max_));
  touched(Aspect::Range);
}

void VScrollBar::SetValue(std::int32_t value) {
  if (value == value_) return;
  if (value < min_ || value > max_) raiseRunTimeError(kInvalidPropertyValue, typeName());
  value_ = value;
  touched(Aspect::Content);
}

void VScrollBar::realiseWithSurface() {
  if (Visible() && root().peer())
    realise();
  else if (!Visible())
    dropPeer();
}

void VScrollBar::userScrolled(std::int32_t value) {
  value = std::clamp(value, min_, max_);
  if (value == value_) return;
  value_ = value;
  if (!peer()) invalidate();
  Parent()->childChanged(*this);
}

void VScrollBar::paint(Surface& surface, Size) { platform().paintControl(surface, *this); }

}  // namespace qrn::host
