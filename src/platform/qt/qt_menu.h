#pragma once

#include <optional>

#include "base/geometry.h"

namespace qrn::host {
class PopupMenu;
}

namespace qrn::qt {

/// Not every entry is hidden.
bool offersAnything(const host::PopupMenu& menu);

/// Shows a menu at a place of the screen until it is closed; the index of the chosen entry.
std::optional<int> chooseFrom(const host::PopupMenu& menu, Point screen);

}  // namespace qrn::qt
