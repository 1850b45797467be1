#pragma once

#include <iosfwd>

#include "device_panels.h"

namespace qrn::eddpanel {

/// Prints a panel as text: a line for each item with caption, value, unit and what can be done with it.
void printPanel(std::ostream& out, MenuPanel& panel);

}  // namespace qrn::eddpanel
