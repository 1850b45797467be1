#pragma once

#include "base/event.h"
#include "base/weak_ref.h"
#include "host/control.h"
#include "tooltip/QRNToolTip.h"

namespace qrn {

/// The tool tip of a panel, and what the panel hears of it.
struct ShownToolTip {
  explicit ShownToolTip(QRNToolTip& shown) : control(&shown), tip(&shown) {}

  WeakRef<host::Control> control;
  QRNToolTip* tip;  // while the control is there
  Connection closed;
  Connection left;
};

}  // namespace qrn
