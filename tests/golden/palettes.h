#pragma once

#include <QPalette>

namespace qrn::golden {

/// Complete palettes, so that a style or a desktop has nothing to add.
QPalette lightPalette();
QPalette darkPalette();

}  // namespace qrn::golden
