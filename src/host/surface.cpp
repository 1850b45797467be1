#include "host/surface.h"

namespace qrn::host {

void Surface::frame(const Rect& area, Color topLeft, Color bottomRight, int depth) {
  if (area.width < 2 * depth + 1 || area.height < 2 * depth + 1) return;
  const double left = area.left + depth, top = area.top + depth;
  const double right = area.right() - depth - 1, bottom = area.bottom() - depth - 1;
  line({left, bottom}, {left, top}, topLeft);
  line({left, top}, {right, top}, topLeft);
  line({right, top}, {right, bottom}, bottomRight);
  line({left, bottom}, {right, bottom}, bottomRight);
}

}  // namespace qrn::host
