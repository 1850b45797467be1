#pragma once

#include <QPainter>
#include <QRectF>
#include <QRegion>
#include <optional>
#include <vector>

#include "host/surface.h"

namespace qrn::qt {

class QtFontMetrics;
class QtPlatform;

/// Draws with a QPainter. Edges lie on whole pixels of the device at every scale factor. What would change no
/// pixel is left out: fills of what has that colour already, and clips of what reaches over no edge.
class QtSurface final : public host::Surface {
 public:
  /// `visible` is what of the device needs to be drawn, in logical pixels. The painter may be clipped to a
  /// region of it.
  QtSurface(QtPlatform& platform, QPainter& painter, const Rect& visible, const QRegion& region = {});

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
  double scale() const { return scale_; }
  const QTransform& toDevice() const { return toDevice_; }
  /// Between two scales Qt rounds the places of letters and pictures in its own way.
  bool wholeScale() const { return wholeScale_; }

  /// Some of an area of the surface is in a part that needs to be drawn.
  bool isNeeded(const Rect& area) const;

  // The painter's coordinates are those of the whole surface. What is changed of it is to be restored.

  /// Clipped to the current region, all of which may be drawn on.
  QPainter& clippedPainter();
  /// To draw inside an area of the surface: only what reaches over the current region is sure to be clipped.
  QPainter& painterFor(const Rect& area);
  /// A text with its base line at a point, cut off outside some pixels, both of the surface.
  void text(QPointF at, std::string_view text, QtFontMetrics& metrics, const QColor& color,
            const std::optional<QRect>& within = std::nullopt);

 private:
  struct Area {
    Point origin;
    Rect clip;                          // of the whole surface
    std::optional<host::Color> ground;  // the colour of all of it but what has been drawn on since
    std::size_t firstDrawn;             // from here on `drawn_` is about this region
    bool touched;
  };

  /// Of a line that is one pixel wide: whole device pixels, as many for every line.
  double lineWidth() const;
  double aligned(double at) const;
  QRectF aligned(const Rect& area) const;

  bool drawnOn(const Rect& area) const;
  void touch(const Rect& area);
  void touchAll();
  void clipTo(const Rect& clip);
  const Rect& clipAround(const Rect& area) const;
  void fillPixels(const Rect& area, const QColor& color);
  void usePen(const QColor& color);

  QtPlatform& platform_;
  QPainter& painter_;
  QTransform toDevice_;
  double scale_;  // device pixels of a logical one
  bool wholeScale_;
  std::vector<Rect> parts_;  // what needs to be drawn, as rectangles
  std::vector<Area> areas_;
  std::vector<Rect> drawn_;  // what was drawn on since the ground was filled, region by region
  Rect clipped_;             // what the painter's clip is now
  std::optional<QColor> pen_;
};

}  // namespace qrn::qt
