#include "host/container_control.h"

#include <algorithm>
#include <functional>
#include <set>

#include "base/first_error.h"
#include "host/user_control.h"

namespace qrn::host {

const std::vector<Control*> ContainerControl::kNothing;

ContainerControl::~ContainerControl() {
  // What still lies inside can't be asked for its surface any more.
  if (Container()) input().forget(*this);
  for (Control* control : inside()) control->container_ = nullptr;
}

const std::string& ContainerControl::partName(std::string_view name) {
  thread_local std::set<std::string, std::less<>> names;
  const auto known = names.find(name);
  return known == names.end() ? *names.emplace(name).first : *known;
}

void ContainerControl::put(Control& control, UserControl& parent, const std::string& name) {
  control.setName(name);
  control.parent_ = &parent;
  control.container_ = this;
  if (!contents_) contents_ = std::make_unique<Contents>();
  contents_->controls.push_back(&control);
  forgetStrips();
  control.placed();
}

void ContainerControl::release(Control& control) {
  control.invalidate();
  // Searched from the end: what goes is mostly what came last.
  const auto found = std::find(inside().rbegin(), inside().rend(), &control);
  if (found == inside().rend()) return;
  forgetStrips();
  contents_->controls.erase(std::next(found).base());
  control.container_ = nullptr;
}

void ContainerControl::bringToFront(Control& control) {
  if (!contents_) return;
  auto& controls = contents_->controls;
  const auto found = std::find(controls.begin(), controls.end(), &control);
  if (found != controls.end()) std::rotate(found, found + 1, controls.end());
  forgetStrips();
  control.invalidate();
}

void ContainerControl::arrangeLater() {
  if (unarranged_) return;
  unarranged_ = true;
  // While that is still to be done around it, everybody has been told.
  const ContainerControl* around = Container();
  if (!around || (around->rearranging_ == 0 && !around->unarranged_)) tellArranged();
}

void ContainerControl::arrange() {
  unarranged_ = false;
  const WeakRef<Control> self(this);
  FirstError error;
  ++rearranging_;  // whoever has to know has been told already
  error.of([&] { arrangeInside(); });
  if (self) --rearranging_;
  error.raise();
}

// The native widgets inside ask for their place, if there are any.
void ContainerControl::tellArranged() {
  input().tellInside(*this, Aspect::Place);
  invalidate();
}

ContainerControl::Rearrangement::Rearrangement(ContainerControl& container) : container_(&container) {
  ++container.rearranging_;
}

ContainerControl::Rearrangement::~Rearrangement() {
  if (!container_) return;
  auto& container = static_cast<ContainerControl&>(*container_);
  if (--container.rearranging_ == 0) container.tellArranged();
}

Rect ContainerControl::toPixels(const Rect& inside) const {
  const Point scale = pixelsPerUnit(), offset = scrollOffset();
  return {inside.left * scale.x - offset.x, inside.top * scale.y - offset.y, inside.width * scale.x,
          inside.height * scale.y};
}

template <class Visit>
void ContainerControl::visit(double top, double bottom, bool topmostFirst, Visit&& visit) const {
  constexpr std::size_t kMany = 64;
  const auto& all = contained();
  if (all.size() < kMany) {
    for (std::size_t i = 0; i < all.size(); ++i) {
      if (visit(*all[topmostFirst ? all.size() - 1 - i : i])) return;
    }
    return;
  }
  if (!contents_->strips) {
    contents_->strips = std::make_unique<StripIndex>();
    contents_->strips->build(all);
  }
  const double scale = pixelsPerUnit().y, offset = scrollOffset().y;
  std::vector<std::uint32_t> there =
      contents_->strips->between((top + offset) / scale, (bottom + offset) / scale);
  if (topmostFirst) std::reverse(there.begin(), there.end());
  for (const std::uint32_t place : there) {
    if (visit(*all[place])) return;
  }
}

Control* ContainerControl::childAt(Point pixels) const {
  Control* hit = nullptr;
  visit(pixels.y, pixels.y, true, [&](Control& child) {
    if (child.Visible() && child.Enabled() && pixelBounds(child).contains(pixels)) hit = &child;
    return hit != nullptr;
  });
  return hit;
}

void ContainerControl::paintTree(Surface& surface) {
  paint(surface, pixelSize());
  const Rect seen = surface.visible();
  visit(seen.top, seen.top + seen.height, false, [&](Control& child) {
    if (!child.Visible() || child.peer()) return false;
    const Rect place = pixelBounds(child);
    if (!place.intersects(seen)) return false;
    surface.enter(place);
    if (auto* container = child.asContainer())
      container->paintTree(surface);
    else
      child.paint(surface, place.size());
    surface.leave();
    return false;
  });
}

}  // namespace qrn::host
