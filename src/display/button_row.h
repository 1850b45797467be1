#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace qrn {

/// The widths that a button may have: never below the minimum, and the standard one where there is room.
struct ButtonWidths {
  std::int32_t minimum = 0;
  std::int32_t standard = 0;
};

struct ButtonPlace {
  double left = 0;
  double width = 0;
};

/// Places buttons in a row, with gaps of half a button's height. Where the row is too short for all standard
/// widths, the buttons fall to their minimum from the first one on, and the one at which it suffices gives up
/// the rest. Alignment is 0 left, 1 right, 2 centre; any other is left.
std::vector<ButtonPlace> placeButtons(std::span<const ButtonWidths> buttons, double height, double room,
                                      std::int32_t alignment);

/// Half of a height, as the row counts it: of the nearest whole number, cut off.
std::int32_t halfOf(double height);

}  // namespace qrn
