#include "host/label.h"

#include <algorithm>

#include "base/text.h"
#include "host/user_control.h"

namespace qrn::host {
namespace {

// The longest beginning that has room with an ellipsis behind it. Where there is not even room for that one,
// the text itself says more.
std::string shortened(std::string_view text, double room, FontMetrics& metrics) {
  constexpr std::string_view kEllipsis = "…";
  const double left = room - metrics.advance(kEllipsis);
  if (left <= 0) return std::string(text);
  std::size_t fits = 0;
  for (std::size_t end = 0; end < text.size();) {
    const char32_t last = text::next(text, end);
    if (metrics.advance(text.substr(0, end)) > left) break;
    if (last != U' ') fits = end;
  }
  return std::string(text.substr(0, fits)).append(kEllipsis);
}

}  // namespace

void Label::SetCaption(std::string_view caption) {
  if (caption == caption_) return;
  caption_ = caption;
  forgetMeasure();
}

double Label::textWidth() const {
  if (textWidth_ == kUnknown) textWidth_ = Parent()->TextWidth(caption_);
  return textWidth_;
}

void Label::forgetMeasure() {
  textWidth_ = kUnknown;
  if (Parent()) Parent()->childMeasureChanged(*this);
  invalidate();
}

void Label::paint(Surface& surface, Size size) {
  if (caption_.empty()) return;
  const UserControl& holder = *Parent();
  const double width = textWidth() * holder.pixelsPerUnit().x;
  // A text wider than its room starts at its beginning, however it is aligned.
  const double x = std::max(0.0, alignedStart(alignment_, size.width, width));
  const Color color = Enabled() && holder.Enabled() ? foreColor_.value_or(holder.foreColor()) : kGrayText;
  constexpr double kNoise = 1e-3;  // what the conversion of scales leaves
  const bool whole = width <= size.width + kNoise;
  surface.text({x, 0}, whole ? caption_ : shortened(caption_, size.width, holder.fontMetrics()),
               *holder.font(), color);
}

}  // namespace qrn::host
