#include "platform/qt/qt_surface.h"

#include <QApplication>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <algorithm>
#include <cmath>

#include "platform/qt/qt_color.h"
#include "platform/qt/qt_font_metrics.h"
#include "platform/qt/qt_geometry.h"
#include "platform/qt/qt_platform.h"
#include "platform/qt/qt_text.h"

namespace qrn::qt {
namespace {

QPainter::CompositionMode compositionOf(host::DrawMode mode) {
  switch (mode) {
    case host::DrawMode::MergePen: return QPainter::RasterOp_SourceOrDestination;
    case host::DrawMode::MaskPen: return QPainter::RasterOp_SourceAndDestination;
    default: return QPainter::CompositionMode_SourceOver;
  }
}

}  // namespace

QtSurface::QtSurface(QtPlatform& platform, QPainter& painter, const Rect& visible)
    : platform_(platform),
      painter_(painter),
      // Asked of the painter: a widget may be painting into a picture of another scale.
      scale_(painter.deviceTransform().m11()),
      areas_{{{0, 0}, visible}},
      clipped_{0, 0, -1, -1} {
  painter_.setRenderHint(QPainter::Antialiasing, false);
  painter_.setRenderHint(QPainter::SmoothPixmapTransform);
}

// At a scale of 1.5 all lines are thin rather than some of them.
double QtSurface::lineWidth() const { return std::max(1.0, std::floor(scale_)) / scale_; }

double QtSurface::aligned(double at) const { return std::floor(at * scale_ + 0.5) / scale_; }

QRectF QtSurface::aligned(const Rect& area) const {
  return {QPointF(aligned(area.left), aligned(area.top)),
          QPointF(aligned(area.right()), aligned(area.bottom()))};
}

void QtSurface::enter(const Rect& area) {
  const Rect onSurface = area.translated(origin());
  areas_.push_back({onSurface.topLeft(), areas_.back().clip.intersected(onSurface)});
}

void QtSurface::leave() { areas_.pop_back(); }

Rect QtSurface::visible() const { return areas_.back().clip.translated(Point{} - origin()); }

// Set only when something is drawn that may reach over the edge: most regions hold nothing that does.
QPainter& QtSurface::clippedPainter() {
  if (const Rect& clip = areas_.back().clip; clip != clipped_) {
    clipped_ = clip;
    painter_.setClipRect(aligned(clip));
  }
  return painter_;
}

void QtSurface::fill(const Rect& area, host::Color color, host::DrawMode mode) {
  const QRectF target = aligned(area.translated(origin()).intersected(areas_.back().clip));
  if (target.isEmpty()) return;
  QPainter& painter = clippedPainter();
  painter.setCompositionMode(compositionOf(mode));
  painter.fillRect(target, toQColor(platform_.resolve(color)));
  painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

void QtSurface::line(Point from, Point to, host::Color color) {
  from = from + origin();
  to = to + origin();
  QPainter& painter = clippedPainter();
  const QColor pen = toQColor(platform_.resolve(color));
  if (from.x != to.x && from.y != to.y) {
    // A pen of one device pixel would be drawn in steps.
    constexpr double kSmooth = 1.05;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(pen, kSmooth));
    painter.drawLine(QPointF(from.x + 0.5, from.y + 0.5), QPointF(to.x + 0.5, to.y + 0.5));
    painter.setRenderHint(QPainter::Antialiasing, false);
    return;
  }
  const Rect pixels{std::min(from.x, to.x), std::min(from.y, to.y), std::abs(to.x - from.x) + 1,
                    std::abs(to.y - from.y) + 1};
  QRectF target = aligned(pixels);
  if (from.y == to.y) target.setHeight(lineWidth());
  if (from.x == to.x) target.setWidth(lineWidth());
  painter.fillRect(target, pen);
}

// The lower right lines end where the area does, which is not where their pixels begin at every scale.
void QtSurface::frame(const Rect& area, host::Color topLeft, host::Color bottomRight, int depth) {
  const double thick = lineWidth(), inset = depth * thick;
  const QRectF place = aligned(area.translated(origin())).adjusted(inset, inset, -inset, -inset);
  if (place.width() < thick || place.height() < thick) return;
  QPainter& painter = clippedPainter();
  const QColor upper = toQColor(platform_.resolve(topLeft)), lower = toQColor(platform_.resolve(bottomRight));
  painter.fillRect(QRectF(place.left(), place.top(), thick, place.height()), upper);
  painter.fillRect(QRectF(place.left(), place.top(), place.width(), thick), upper);
  painter.fillRect(QRectF(place.right() - thick, place.top(), thick, place.height()), lower);
  painter.fillRect(QRectF(place.left(), place.bottom() - thick, place.width(), thick), lower);
}

void QtSurface::text(Point topLeft, std::string_view text, const host::Font& font, host::Color color) {
  QtFontMetrics& metrics = platform_.metrics(font);
  const Point at = topLeft + origin();
  QPainter& painter = clippedPainter();
  painter.setPen(toQColor(platform_.resolve(color)));
  drawText(painter, QPointF(aligned(at.x), aligned(at.y) + metrics.ascent()), text, metrics);
}

void QtSurface::picture(Point topLeft, const host::Picture& picture) {
  if (picture.empty()) return;
  const Point at = topLeft + origin();
  const QPixmap& pixels = platform_.pictures().pixmap(picture, scale_);
  clippedPainter().drawPixmap(QPointF(aligned(at.x), aligned(at.y)), pixels);
}

void QtSurface::focusRectangle(const Rect& area) {
  const QRect place = toPixels(area.translated(origin()));
  QStyleOptionFocusRect option;
  option.rect = place;
  option.palette = QApplication::palette();
  option.state = QStyle::State_Enabled | QStyle::State_Active | QStyle::State_KeyboardFocusChange |
                 QStyle::State_HasFocus;
  QPainter& painter = clippedPainter();
  painter.save();
  QApplication::style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter);
  painter.restore();
}

}  // namespace qrn::qt
