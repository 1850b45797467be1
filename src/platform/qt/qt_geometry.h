#pragma once

#include <QPointF>
#include <QRect>
#include <cmath>

#include "base/geometry.h"

namespace qrn::qt {

/// The whole pixels of an area. Edges are rounded, not sizes, so that neighbours neither overlap nor gape.
inline QRect toPixels(const Rect& area) {
  const auto edge = [](double at) { return static_cast<int>(std::floor(at + 0.5)); };
  const int left = edge(area.left), top = edge(area.top);
  return {left, top, edge(area.right()) - left, edge(area.bottom()) - top};
}

inline Rect fromQt(const QRect& area) {
  return {static_cast<double>(area.x()), static_cast<double>(area.y()), static_cast<double>(area.width()),
          static_cast<double>(area.height())};
}

inline Point fromQt(const QPointF& at) { return {at.x(), at.y()}; }
inline QPointF toQt(Point at) { return {at.x, at.y}; }

}  // namespace qrn::qt
