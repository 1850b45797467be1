#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "enums/enumerations.h"
#include "host/image.h"
#include "host/label.h"

namespace qrn {

/// A text of a row, the caption or the unit, as the row knows it.
struct RowText {
  std::string text;
  std::int32_t alignment = host::kAlignLeft;
};

/// A status icon of a row, as the row knows it.
struct RowIcon {
  host::PicturePtr picture;
  std::int32_t column;
  qrnButtonMode mode = qrnbuttonNone;
  bool visible = true;
  bool hidden = false;

  /// Drawn, and not only given room.
  bool shown() const { return column >= 1 && visible && !hidden; }
};

/// The controls that show the texts and the icons. They are made when somebody looks at the row for the first
/// time: most rows of a large panel are never seen.
struct RowParts {
  host::Label lblLabel;
  host::Label lblUnit;
  host::Image imgIcon1;
  host::Image imgIcon2;
};

/// The tool tips of those four, and of an editor that is no control yet.
struct RowToolTips {
  std::string label;
  std::string unit;
  std::string icon1;
  std::string icon2;
  std::string value;
};

}  // namespace qrn
