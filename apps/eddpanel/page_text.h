#pragma once

#include <iosfwd>

#include "device_pages.h"

namespace qrn::eddpanel {

/// Prints a page as text: a line for each item with caption, value, unit and what can be done with it.
void printPage(std::ostream& out, MenuPage& page);

}  // namespace qrn::eddpanel
