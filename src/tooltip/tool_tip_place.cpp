#include "tooltip/tool_tip_place.h"

#include <algorithm>

namespace qrn {

Rect toolTipPlace(const Rect& related, const Rect& area, const ToolTipMeasures& measures) {
  // What has been scrolled out of the area counts as lying at its edge.
  const double top = std::clamp(related.top, area.top, area.bottom());
  const double bottom = std::clamp(related.bottom(), top, area.bottom());
  const double above = top - area.top, below = area.bottom() - bottom;
  const double width = std::min(measures.widest, area.width);
  const double left = std::max(area.left, std::min(related.left, area.right() - width));
  const double wished = measures.wishedHeight;
  if (std::max(above, below) < measures.leastHeight) {
    const double height = std::min(wished, area.height);
    return {left, area.bottom() - height, width, height};
  }
  if (wished <= below || below >= above) return {left, bottom, width, std::min(wished, below)};
  const double height = std::min(wished, above);
  return {left, top - height, width, height};
}

}  // namespace qrn
