#pragma once

#include "base/event.h"
#include "hooks/clsSubClass.h"

namespace qrn {

/// What a row keeps while it has the focus: it hears when the user leaves the application and comes back.
struct FocusWatch {
  clsSubClass application;
  Connection left;
  Connection back;
};

}  // namespace qrn
