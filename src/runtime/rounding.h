#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

namespace qrn {

/// Independent of the rounding mode of the process.
inline double roundHalfEven(double value) {
  const double below = std::floor(value);
  const double rest = value - below;
  if (rest < 0.5) return below;
  if (rest > 0.5) return below + 1;
  return std::fmod(below, 2.0) == 0 ? below : below + 1;
}

/// A whole number as a Long; one that no Long can hold becomes the nearest that is one.
inline std::int32_t nearestLong(double whole) {
  constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
  constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
  if (!(whole > kLeast)) return kLeast;
  return whole < kMost ? static_cast<std::int32_t>(whole) : kMost;
}

/// The divisor must be positive and even.
inline std::int64_t divideHalfEven(std::int64_t value, std::int64_t divisor) {
  const std::int64_t quotient = value / divisor;
  const std::int64_t rest = value % divisor;
  const std::int64_t twice = 2 * (rest < 0 ? -rest : rest);
  const bool away = twice > divisor || (twice == divisor && quotient % 2 != 0);
  if (!away) return quotient;
  return value < 0 ? quotient - 1 : quotient + 1;
}

}  // namespace qrn
