#include "platform/headless/recording_surface.h"

#include <cmath>
#include <cstdio>

namespace qrn::headless {
namespace {

std::string number(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%.6g", value);
  return text;
}

std::string at(Point p) { return number(p.x) + "," + number(p.y); }

std::string at(const Rect& r) { return at(r.topLeft()) + " " + number(r.width) + "x" + number(r.height); }

}  // namespace

std::vector<std::string> RecordingSurface::operations(std::string_view kind) const {
  std::vector<std::string> result;
  for (const std::string& one : operations_) {
    if (one.starts_with(std::string(kind) + " ")) result.push_back(one);
  }
  return result;
}

void RecordingSurface::record(std::string_view kind, const Rect& area, std::string_view details) {
  std::string line = std::string(kind) + " " + at(area.translated(areas_.back().origin));
  if (!details.empty()) line += " " + std::string(details);
  operations_.push_back(std::move(line));
}

std::string RecordingSurface::colorText(host::Color color) const {
  const host::Color plain = platform_.resolve(color);
  char text[16];
  std::snprintf(text, sizeof text, "#%02x%02x%02x", host::redOf(plain), host::greenOf(plain),
                host::blueOf(plain));
  return text;
}

void RecordingSurface::enter(const Rect& area) {
  const Point origin = place(area.topLeft());
  const Rect onSurface{origin.x, origin.y, area.width, area.height};
  areas_.push_back({origin, areas_.back().clip.intersected(onSurface)});
}

void RecordingSurface::leave() { areas_.pop_back(); }

Rect RecordingSurface::visible() const {
  return areas_.back().clip.translated(Point{} - areas_.back().origin);
}

void RecordingSurface::fill(const Rect& area, host::Color color, host::DrawMode mode) {
  const char* const kind = mode == host::DrawMode::MergePen  ? "merge"
                           : mode == host::DrawMode::MaskPen ? "mask"
                                                             : "fill";
  record(kind, area, colorText(color));
}

void RecordingSurface::line(Point from, Point to, host::Color color) {
  operations_.push_back("line " + at(place(from)) + " " + at(place(to)) + " " + colorText(color));
}

void RecordingSurface::text(Point topLeft, std::string_view text, const host::Font&, host::Color color) {
  operations_.push_back("text " + at(place(topLeft)) + " \"" + std::string(text) + "\" " + colorText(color));
}

void RecordingSurface::picture(Point topLeft, const host::Picture& picture) {
  record("picture", {topLeft.x, topLeft.y, picture.width(), picture.height()});
}

void RecordingSurface::focusRectangle(const Rect& area) { record("focus", area); }

}  // namespace qrn::headless
