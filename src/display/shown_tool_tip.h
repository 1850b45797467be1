#pragma once

#include "base/event.h"
#include "base/weak_ref.h"
#include "tooltip/QRNToolTip.h"

namespace qrn {

/// The tool tip of a panel, and what the panel hears of it.
struct ShownToolTip {
  WeakRef<QRNToolTip> tip;
  Connection closed;
  Connection left;
};

}  // namespace qrn
