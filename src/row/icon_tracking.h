#pragma once

#include "base/event.h"
#include "host/image.h"
#include "host/timer.h"

namespace qrn {

/// The icon in button mode that the mouse is over, watched until the cursor has left it.
struct IconTracking {
  host::Image* image = nullptr;
  host::Timer* timer = nullptr;
  Connection tick;
};

}  // namespace qrn
