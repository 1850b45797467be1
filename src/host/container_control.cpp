#include "host/container_control.h"

#include <algorithm>

#include "host/user_control.h"

namespace qrn::host {

ContainerControl::~ContainerControl() {
  // What still lies inside can't be asked for its surface any more.
  if (Container()) input().forget(*this);
  for (Control* control : contained_) control->container_ = nullptr;
}

void ContainerControl::contain(Control& control, UserControl& parent, std::string_view name) {
  control.name_ = name;
  control.parent_ = &parent;
  control.container_ = this;
  contained_.push_back(&control);
  control.placed();
}

void ContainerControl::release(Control& control) {
  // Searched from the end: what goes is mostly what came last.
  const auto found = std::find(contained_.rbegin(), contained_.rend(), &control);
  if (found == contained_.rend()) return;
  control.invalidate();
  contained_.erase(std::next(found).base());
  control.container_ = nullptr;
}

void ContainerControl::bringToFront(Control& control) {
  const auto found = std::find(contained_.begin(), contained_.end(), &control);
  if (found != contained_.end()) std::rotate(found, found + 1, contained_.end());
  control.invalidate();
}

Rect ContainerControl::pixelBounds(const Control& child) const {
  const Point scale = pixelsPerUnit(), offset = scrollOffset();
  const Rect& b = child.bounds();
  return {b.left * scale.x - offset.x, b.top * scale.y - offset.y, b.width * scale.x, b.height * scale.y};
}

Control* ContainerControl::childAt(Point pixels) const {
  for (auto child = contained_.rbegin(); child != contained_.rend(); ++child) {
    if ((*child)->Visible() && (*child)->Enabled() && pixelBounds(**child).contains(pixels)) return *child;
  }
  return nullptr;
}

void ContainerControl::paintTree(Surface& surface) {
  paint(surface, pixelSize());
  const Rect seen = surface.visible();
  for (Control* child : contained_) {
    if (!child->Visible() || child->peer()) continue;
    const Rect place = pixelBounds(*child);
    if (!place.intersects(seen)) continue;
    surface.enter(place);
    if (auto* container = dynamic_cast<ContainerControl*>(child))
      container->paintTree(surface);
    else
      child->paint(surface, place.size());
    surface.leave();
  }
}

}  // namespace qrn::host
