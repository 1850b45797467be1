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

bool contains(const Rect& outer, const Rect& inner) {
  return inner.left >= outer.left && inner.top >= outer.top && inner.right() <= outer.right() &&
         inner.bottom() <= outer.bottom();
}

Rect fromQt(const QRectF& area) { return {area.x(), area.y(), area.width(), area.height()}; }

}  // namespace

QtSurface::QtSurface(QtPlatform& platform, QPainter& painter, const Rect& visible, const QRegion& region)
    : platform_(platform),
      painter_(painter),
      // Asked of the painter: a widget may be painting into a picture of another scale.
      toDevice_(painter.deviceTransform()),
      scale_(toDevice_.m11()),
      wholeScale_(scale_ == std::floor(scale_)),
      areas_{{{0, 0}, visible, std::nullopt, 0, false}},
      clipped_{0, 0, -1, -1} {
  painter_.setRenderHint(QPainter::Antialiasing, false);
  painter_.setRenderHint(QPainter::SmoothPixmapTransform);
  for (const QRect& part : region) parts_.push_back(fromQt(part));
  if (parts_.empty()) parts_.push_back(visible);
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
  const Area& around = areas_.back();
  const Rect clip = around.clip.intersected(onSurface);
  const auto ground = drawnOn(clip) ? std::nullopt : around.ground;
  areas_.push_back({onSurface.topLeft(), clip, ground, drawn_.size(), false});
}

void QtSurface::leave() {
  const Area left = areas_.back();
  areas_.pop_back();
  drawn_.resize(left.firstDrawn);
  if (left.touched) touch(left.clip);
}

Rect QtSurface::visible() const { return areas_.back().clip.translated(Point{} - origin()); }

// ---- what is there already ----

bool QtSurface::drawnOn(const Rect& area) const {
  for (std::size_t i = areas_.back().firstDrawn; i < drawn_.size(); ++i) {
    if (drawn_[i].intersects(area)) return true;
  }
  return false;
}

void QtSurface::touch(const Rect& area) {
  constexpr std::size_t kMost = 100;  // looking through more would cost more than it saves
  Area& current = areas_.back();
  if (!area.intersects(current.clip)) return;
  current.touched = true;
  if (!current.ground) return;
  if (drawn_.size() - current.firstDrawn >= kMost) return touchAll();
  drawn_.push_back(area);
}

void QtSurface::touchAll() {
  Area& current = areas_.back();
  current.touched = true;
  current.ground.reset();
  drawn_.resize(current.firstDrawn);
}

// ---- the painter ----

void QtSurface::clipTo(const Rect& clip) {
  if (clip == clipped_) return;
  clipped_ = clip;
  painter_.setClipRect(aligned(clip));
}

QPainter& QtSurface::clippedPainter() {
  touchAll();
  clipTo(areas_.back().clip);
  return painter_;
}

bool QtSurface::isNeeded(const Rect& area) const {
  return std::any_of(parts_.begin(), parts_.end(), [&](const Rect& part) { return part.intersects(area); });
}

// Painting is fastest when the clip is one rectangle, which a small region is most likely to be.
const Rect& QtSurface::clipAround(const Rect& area) const {
  for (const Rect& part : parts_) {
    if (contains(part, area)) return part;
  }
  return areas_.back().clip;
}

// Most of what is drawn lies in its region: then any clip will do that leaves it whole.
QPainter& QtSurface::painterFor(const Rect& area) {
  touch(area);
  if (!wholeScale_ || !contains(areas_.back().clip, area))
    clipTo(areas_.back().clip);
  else if (!contains(clipped_, area))
    clipTo(clipAround(area));
  return painter_;
}

void QtSurface::usePen(const QColor& color) {
  if (pen_ == color) return;
  pen_ = color;
  painter_.setPen(color);
}

// ---- drawing ----

void QtSurface::fill(const Rect& area, host::Color color, host::DrawMode mode) {
  const Rect target = area.translated(origin()).intersected(areas_.back().clip);
  if (aligned(target).isEmpty()) return;
  const host::Color plain = platform_.resolve(color);
  if (mode != host::DrawMode::Copy) {
    QPainter& painter = painterFor(target);
    painter.setCompositionMode(compositionOf(mode));
    painter.fillRect(aligned(target), toQColor(plain));
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    return;
  }
  if (areas_.back().ground == plain && !drawnOn(target)) return;
  fillPixels(target, toQColor(plain));
  if (target != areas_.back().clip) return;
  touchAll();
  areas_.back().ground = plain;
}

// Part by part: a rectangle that is clipped to several is filled many times slower.
void QtSurface::fillPixels(const Rect& area, const QColor& color) {
  if (parts_.size() == 1 || !wholeScale_) {
    painterFor(area).fillRect(aligned(area), color);
    return;
  }
  for (const Rect& part : parts_) {
    if (const Rect both = part.intersected(area); !both.empty())
      painterFor(both).fillRect(aligned(both), color);
  }
}

void QtSurface::line(Point from, Point to, host::Color color) {
  from = from + origin();
  to = to + origin();
  const QColor pen = toQColor(platform_.resolve(color));
  const Rect pixels{std::min(from.x, to.x), std::min(from.y, to.y), std::abs(to.x - from.x) + 1,
                    std::abs(to.y - from.y) + 1};
  if (from.x != to.x && from.y != to.y) {
    // A pen of one device pixel would be drawn in steps.
    constexpr double kSmooth = 1.05;
    const Rect smooth{pixels.left - 1, pixels.top - 1, pixels.width + 2, pixels.height + 2};
    if (!smooth.intersects(areas_.back().clip) || !isNeeded(smooth)) return;
    QPainter& painter = painterFor(smooth);
    pen_.reset();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(pen, kSmooth));
    painter.drawLine(QPointF(from.x + 0.5, from.y + 0.5), QPointF(to.x + 0.5, to.y + 0.5));
    painter.setRenderHint(QPainter::Antialiasing, false);
    return;
  }
  QRectF target = aligned(pixels);
  if (from.y == to.y) target.setHeight(lineWidth());
  if (from.x == to.x) target.setWidth(lineWidth());
  if (isNeeded(pixels)) painterFor(pixels).fillRect(target, pen);
}

// The lower right lines end where the area does, which is not where their pixels begin at every scale.
void QtSurface::frame(const Rect& area, host::Color topLeft, host::Color bottomRight, int depth) {
  const double thick = lineWidth(), inset = depth * thick;
  const QRectF place = aligned(area.translated(origin())).adjusted(inset, inset, -inset, -inset);
  if (place.width() < thick || place.height() < thick) return;
  const QColor upper = toQColor(platform_.resolve(topLeft)), lower = toQColor(platform_.resolve(bottomRight));
  const auto side = [&](double x, double y, double width, double height, const QColor& color) {
    const QRectF pixels(x, y, width, height);
    if (isNeeded(fromQt(pixels))) painterFor(fromQt(pixels)).fillRect(pixels, color);
  };
  side(place.left(), place.top(), thick, place.height(), upper);
  side(place.left(), place.top(), place.width(), thick, upper);
  side(place.right() - thick, place.top(), thick, place.height(), lower);
  side(place.left(), place.bottom() - thick, place.width(), thick, lower);
}

void QtSurface::text(Point topLeft, std::string_view text, const host::Font& font, host::Color color) {
  QtFontMetrics& metrics = platform_.metrics(font);
  const Point at = topLeft + origin();
  this->text(QPointF(aligned(at.x), aligned(at.y) + metrics.ascent()), text, metrics,
             toQColor(platform_.resolve(color)));
}

void QtSurface::text(QPointF at, std::string_view text, QtFontMetrics& metrics, const QColor& color,
                     const std::optional<QRect>& within) {
  const QtGlyphs* const glyphs = wholeScale_ ? metrics.glyphs(text) : nullptr;
  if (glyphs) {
    // In letters of another scale than 1, and in bold or slanted ones that it makes up, a font puts the edges
    // elsewhere.
    const double besides = 2, above = 1;
    const Rect ink = fromQt(glyphs->ink.translated(at).adjusted(-besides, -above, besides, above));
    if (!isNeeded(ink)) return;
    if (!within || contains(fromQt(*within), ink)) {
      usePen(color);
      painterFor(ink).drawGlyphRun(at, glyphs->run);
      return;
    }
  }
  QPainter& painter = clippedPainter();
  usePen(color);
  if (within) {
    painter.save();
    painter.setClipRect(*within, Qt::IntersectClip);
  }
  if (glyphs) {
    painter.drawGlyphRun(at, glyphs->run);
  } else {
    painter.setFont(metrics.font());
    painter.drawText(at, toQString(text));
  }
  if (within) painter.restore();
}

void QtSurface::picture(Point topLeft, const host::Picture& picture) {
  if (picture.empty()) return;
  const Point at = topLeft + origin();
  // At a scale of 1.5 its last column may be one too many.
  const double over = wholeScale_ ? 0 : 1;
  const Rect place{at.x, at.y, picture.width() + over, picture.height() + over};
  if (!isNeeded(place)) return;
  painterFor(place).drawPixmap(QPointF(aligned(at.x), aligned(at.y)),
                               platform_.pictures().pixmap(picture, scale_));
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
