#pragma once

#include "base/geometry.h"

namespace qrn {

/// How large a tool tip may become, and how small, in the units of where it lies.
struct ToolTipMeasures {
  double widest;
  double wishedHeight;
  double leastHeight;
};

/// The place of a tool tip inside an area: below what it belongs to, above it where there is not enough room
/// below but more above, and no taller than that room. Where neither has room for the least height it covers
/// what it belongs to, from the lower edge of the area up.
Rect toolTipPlace(const Rect& related, const Rect& area, const ToolTipMeasures& measures);

}  // namespace qrn
