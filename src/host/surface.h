#pragma once

#include <cstdint>
#include <string_view>

#include "base/geometry.h"
#include "host/color.h"
#include "host/font.h"
#include "host/picture.h"

namespace qrn::host {

/// How a filled rectangle combines with what is there, bit by bit.
enum class DrawMode : std::uint8_t { Copy, MergePen, MaskPen };

/// What controls draw on. Coordinates are logical pixels of the current origin; system colours are resolved
/// by the platform.
class Surface {
 public:
  virtual ~Surface() = default;

  /// A region of the surface with its own origin, clipped; ended by `leave`.
  virtual void enter(const Rect& area) = 0;
  virtual void leave() = 0;
  /// What of the current region will be seen at all; outside it nothing needs to be drawn.
  virtual Rect visible() const = 0;

  virtual void fill(const Rect& area, Color color, DrawMode mode = DrawMode::Copy) = 0;
  /// A line one pixel wide, both ends included.
  virtual void line(Point from, Point to, Color color) = 0;
  virtual void text(Point topLeft, std::string_view text, const Font& font, Color color) = 0;
  virtual void picture(Point topLeft, const Picture& picture) = 0;
  virtual void focusRectangle(const Rect& area) = 0;

  /// The outline of a rectangle, one pixel wide, inside its edges. Outlines of depth 0, 1, 2 … lie one inside
  /// the other and touch, however many pixels the device has for one.
  virtual void frame(const Rect& area, Color topLeft, Color bottomRight, int depth = 0);
  void frame(const Rect& area, Color color) { frame(area, color, color); }
};

}  // namespace qrn::host
