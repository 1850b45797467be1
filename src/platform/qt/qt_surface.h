#pragma once

#include <QPainter>
#include <QRectF>
#include <vector>

#include "host/surface.h"

namespace qrn::qt {

class QtPlatform;

/// Draws with a QPainter. Edges lie on whole pixels of the device at every scale factor.
class QtSurface final : public host::Surface {
 public:
  /// `visible` is what of the device needs to be drawn, in logical pixels.
  QtSurface(QtPlatform& platform, QPainter& painter, const Rect& visible);

  void enter(const Rect& area) override;
  void leave() override;
  Rect visible() const override;

  void fill(const Rect& area, host::Color color, host::DrawMode mode = host::DrawMode::Copy) override;
  void line(Point from, Point to, host::Color color) override;
  void text(Point topLeft, std::string_view text, const host::Font& font, host::Color color) override;
  using Surface::frame;
  void frame(const Rect& area, host::Color topLeft, host::Color bottomRight, int depth) override;
  void picture(Point topLeft, const host::Picture& picture) override;
  void focusRectangle(const Rect& area) override;

  Point origin() const { return areas_.back().origin; }
  /// The painter, clipped to the current region; its coordinates are those of the whole surface.
  QPainter& clippedPainter();

 private:
  struct Area {
    Point origin;
    Rect clip;  // of the whole surface
  };

  /// Of a line that is one pixel wide: whole device pixels, as many for every line.
  double lineWidth() const;
  double aligned(double at) const;
  QRectF aligned(const Rect& area) const;

  QtPlatform& platform_;
  QPainter& painter_;
  double scale_;  // device pixels of a logical one
  std::vector<Area> areas_;
  Rect clipped_;  // what the painter's clip is now
};

}  // namespace qrn::qt
