#pragma once

#include <cstdint>
#include <vector>

namespace qrn::host {

class Control;

/// Finds those of many controls that lie at some height, so that a page of a long form costs the same however
/// long the form is. It has to be built again after one has moved, come or gone.
class StripIndex {
 public:
  void build(const std::vector<Control*>& controls);
  /// The places in the vector of those that may reach into what lies between two heights, in the order of the
  /// vector.
  std::vector<std::uint32_t> between(double top, double bottom) const;

 private:
  struct Strip {
    float top;
    float lowest;  // the lowest edge of this one and of all above it
    std::uint32_t place;
  };

  std::vector<Strip> strips_;  // by their upper edges
};

}  // namespace qrn::host
