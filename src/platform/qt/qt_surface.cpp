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
    painter.setPen(QPen(pen, 1));
    painter.drawLine(QPointF(from.x + 0.5, from.y + 0.5), QPointF(to.x + 0.5, to.y + 0.5));
    return;
  }
  // Whole device pixels, as many for every line: at a scale of 1.5 all are thin rather than some of them.
  const double thick = std::max(1.0, std::floor(scale_)) / scale_;
  const Rect pixels{std::min(from.x, to.x), std::min(from.y, to.y), std::abs(to.x - from.x) + 1,
                    std::abs(to.y - from.y) + 1};
  QRectF target = aligned(pixels);
  if (from.y == to.y) target.setHeight(thick);
  if (from.x == to.x) target.setWidth(thick);
  painter.fillRect(target, pen);
}

void QtSurface::text(Point topLeft, std::string_view text, const host::Font& font, host::Color color) {
  const QtFontMetrics& metrics = platform_.metrics(font);
  const Point at = topLeft + origin();
  QPainter& painter = clippedPainter();
  painter.setFont(metrics.font());
  painter.setPen(toQColor(platform_.resolve(color)));
  painter.drawText(QPointF(aligned(at.x), aligned(at.y) + metrics.ascent()), toQString(text));
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
