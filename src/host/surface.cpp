#include "host/surface.h"

namespace qrn::host {

void Surface::frame(const Rect& area, Color topLeft, Color bottomRight) {
  if (area.width < 1 || area.height < 1) return;
  const double right = area.right() - 1, bottom = area.bottom() - 1;
  line({area.left, bottom}, {area.left, area.top}, topLeft);
  line({area.left, area.top}, {right, area.top}, topLeft);
  line({right, area.top}, {right, bottom}, bottomRight);
  line({area.left, bottom}, {right, bottom}, bottomRight);
}

}  // namespace qrn::host
