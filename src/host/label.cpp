#include "host/label.h"

#include <algorithm>

#include "host/user_control.h"

namespace qrn::host {

void Label::SetCaption(std::string_view caption) {
  if (caption == caption_) return;
  caption_ = caption;
  textWidth_ = kUnknown;
  invalidate();
}

double Label::textWidth() const {
  if (textWidth_ == kUnknown) textWidth_ = Parent()->TextWidth(caption_);
  return textWidth_;
}

void Label::fontChanged() {
  textWidth_ = kUnknown;
  invalidate();
}

void Label::paint(Surface& surface, Size size) {
  if (caption_.empty()) return;
  const UserControl& holder = *Parent();
  const double width = textWidth() * holder.pixelsPerUnit().x;
  // A text wider than its room starts at its beginning, however it is aligned.
  const double x = std::max(0.0, alignedStart(alignment_, size.width, width));
  const Color color = Enabled() && holder.Enabled() ? foreColor_.value_or(holder.foreColor()) : kGrayText;
  surface.text({x, 0}, caption_, *holder.font(), color);
}

}  // namespace qrn::host
