#pragma once

#include <algorithm>

namespace qrn {

/// Lengths and positions are in the scale of the container they are used in; pixels are logical pixels.
struct Point {
  double x = 0;
  double y = 0;
  friend bool operator==(const Point&, const Point&) = default;
  friend Point operator+(Point a, Point b) { return {a.x + b.x, a.y + b.y}; }
  friend Point operator-(Point a, Point b) { return {a.x - b.x, a.y - b.y}; }
};

struct Size {
  double width = 0;
  double height = 0;
  friend bool operator==(const Size&, const Size&) = default;
};

struct Rect {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;

  double right() const { return left + width; }
  double bottom() const { return top + height; }
  Point topLeft() const { return {left, top}; }
  Size size() const { return {width, height}; }
  bool empty() const { return width <= 0 || height <= 0; }
  /// The right and bottom edges lie outside, as for pixels.
  bool contains(Point p) const { return p.x >= left && p.x < right() && p.y >= top && p.y < bottom(); }
  bool intersects(const Rect& other) const {
    return left < other.right() && other.left < right() && top < other.bottom() && other.top < bottom();
  }
  Rect intersected(const Rect& other) const {
    const double l = std::max(left, other.left), t = std::max(top, other.top);
    return {l, t, std::max(0.0, std::min(right(), other.right()) - l),
            std::max(0.0, std::min(bottom(), other.bottom()) - t)};
  }
  Rect translated(Point by) const { return {left + by.x, top + by.y, width, height}; }
  friend bool operator==(const Rect&, const Rect&) = default;
};

}  // namespace qrn
