#include "host/strip_index.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "host/control.h"

namespace qrn::host {
namespace {

constexpr float kInfinite = std::numeric_limits<float>::infinity();

// Away from the inside of a strip, so that none is missed for being rounded.
float notBelow(double height) { return std::nextafter(static_cast<float>(height), -kInfinite); }
float notAbove(double height) { return std::nextafter(static_cast<float>(height), kInfinite); }

}  // namespace

void StripIndex::build(const std::vector<Control*>& controls) {
  strips_.resize(controls.size());
  for (std::size_t i = 0; i < controls.size(); ++i) {
    const Rect& bounds = controls[i]->bounds();
    strips_[i] = {notBelow(bounds.top), notAbove(bounds.top + bounds.height), static_cast<std::uint32_t>(i)};
  }
  const auto higher = [](const Strip& a, const Strip& b) { return a.top < b.top; };
  // As a rule they were stacked in their order.
  if (!std::is_sorted(strips_.begin(), strips_.end(), higher))
    std::sort(strips_.begin(), strips_.end(), higher);
  float lowest = -kInfinite;
  for (Strip& strip : strips_) lowest = strip.lowest = std::max(lowest, strip.lowest);
}

std::vector<std::uint32_t> StripIndex::between(double top, double bottom) const {
  const auto first = std::partition_point(strips_.begin(), strips_.end(),
                                          [&](const Strip& strip) { return strip.lowest < notBelow(top); });
  const auto last = std::partition_point(first, strips_.end(),
                                         [&](const Strip& strip) { return strip.top <= notAbove(bottom); });
  std::vector<std::uint32_t> found;
  for (auto strip = first; strip != last; ++strip) found.push_back(strip->place);
  std::sort(found.begin(), found.end());
  return found;
}

}  // namespace qrn::host
