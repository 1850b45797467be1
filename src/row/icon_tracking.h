#pragma once

#include "buttons/hover_watch.h"
#include "host/image.h"

namespace qrn {

/// The icon in button mode that the mouse is over, watched until the cursor has left it.
struct IconTracking {
  host::Image* image = nullptr;
  HoverWatch watch;
};

}  // namespace qrn
