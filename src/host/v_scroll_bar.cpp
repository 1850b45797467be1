#include "host/v_scroll_bar.h"

#include <algorithm>
#include <charconv>
#include <string>

#include "host/user_control.h"
#include "runtime/errors.h"

namespace qrn::host {

// The maximum may lie below the minimum.
std::int32_t VScrollBar::inRange(std::int32_t value) const {
  return std::clamp(value, std::min(min_, max_), std::max(min_, max_));
}

void VScrollBar::SetMax(std::int32_t max) {
  if (max == max_) return;
  max_ = max;
  value_ = inRange(value_);
  touched(Aspect::Range);
}

void VScrollBar::SetValue(std::int32_t value) {
  if (value == value_) return;
  if (value != inRange(value)) raiseRunTimeError(kInvalidPropertyValue, typeName());
  value_ = value;
  touched(Aspect::Content);
}

void VScrollBar::realiseWithSurface() {
  if (!Visible() || covered())
    dropPeer();
  else if (root().peer())
    realise();
}

void VScrollBar::userScrolled(std::int32_t value) {
  value = inRange(value);
  if (value == value_) return;
  value_ = value;
  if (!peer()) invalidate();
  Parent()->childChanged(*this);
}

void VScrollBar::tellFacts(AccessibleFacts& facts) const {
  facts.role = AccessibleRole::ScrollBar;
  facts.value = std::to_string(value_);
}

bool VScrollBar::accessibleEnter(std::string_view number) {
  std::int32_t value = 0;
  if (std::from_chars(number.data(), number.data() + number.size(), value).ec != std::errc()) return false;
  userScrolled(value);
  return true;
}

void VScrollBar::paint(Surface& surface, Size) { platform().paintControl(surface, *this); }

}  // namespace qrn::host
