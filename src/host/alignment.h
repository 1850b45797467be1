#pragma once

#include <cstdint>

namespace qrn::host {

/// How something lies in its room. Stored as given, so every user says what an unlisted number does.
enum Alignment : std::int32_t { kAlignLeft = 0, kAlignRight = 1, kAlignCentre = 2 };

/// The start of something `extent` wide in `room`; any alignment but left and right centres.
constexpr double alignedStart(std::int32_t alignment, double room, double extent) {
  if (alignment == kAlignLeft) return 0;
  return alignment == kAlignRight ? room - extent : (room - extent) / 2;
}

}  // namespace qrn::host
