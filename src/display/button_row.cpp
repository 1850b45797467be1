#include "display/button_row.h"

#include <algorithm>

#include "runtime/rounding.h"

namespace qrn {
namespace {

// The width of one button; takes what that saves from what is still to be saved.
double shrunk(const ButtonWidths& button, double& excess) {
  const double spare = static_cast<double>(button.standard) - button.minimum;
  if (spare <= 0) return button.minimum;
  const double given = excess < 1 ? 0 : std::min(excess, spare);
  excess -= given;
  return button.standard - given;
}

double startOf(std::int32_t alignment, double free) {
  switch (alignment) {
    case 1: return roundHalfEven(free);
    case 2: return roundHalfEven(free / 2);
    default: return 0;
  }
}

}  // namespace

std::int32_t halfOf(double height) { return static_cast<std::int32_t>(roundHalfEven(height)) / 2; }

std::vector<ButtonPlace> placeButtons(std::span<const ButtonWidths> buttons, double height, double room,
                                      std::int32_t alignment) {
  const std::int32_t gap = halfOf(height);
  double narrowest = -gap, widest = -gap;
  for (const ButtonWidths& one : buttons) {
    narrowest += gap + one.minimum;
    widest += gap + std::max(one.minimum, one.standard);
  }
  double excess = 0;
  if (room < narrowest)
    excess = widest - narrowest;
  else if (room < widest)
    excess = roundHalfEven(widest - room);

  std::vector<ButtonPlace> places;
  double x = startOf(alignment, room - (widest - excess));
  for (const ButtonWidths& one : buttons) {
    const double width = shrunk(one, excess);
    places.push_back({x, width});
    x += width + gap;
  }
  return places;
}

}  // namespace qrn
