#pragma once

#include <cstdint>

#include "base/geometry.h"

namespace qrn {

/// What decides where a page of a stack lies; lengths are in pixels.
struct PagePlace {
  double leftIndent = 0;  // against the left edge of the stack, for all the pages below together
  double topIndent = 0;
  bool maximized = false;
  bool dialog = false;  // keeps away from the right and the lower edge too
  std::int32_t menuItemHeight = 0;
};

/// A page fills the stack from its indents on, or all of it while it is maximised. A dialog is indented on
/// all four sides, unless it would get smaller than ten by seven menu items: then it gives up the room on the
/// right and below first, and the indents only after that.
Rect placePage(const PagePlace& page, Size stack);

}  // namespace qrn
