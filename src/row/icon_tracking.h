#pragma once

#include "base/event.h"
#include "base/weak_ref.h"
#include "host/image.h"
#include "host/timer.h"

namespace qrn {

/// The icon in button mode that the mouse is over, watched until the cursor has left it.
struct IconTracking {
  host::Image* image = nullptr;
  WeakRef<host::Timer> timer;  // the host may remove it like any control
  Connection tick;
};

}  // namespace qrn
