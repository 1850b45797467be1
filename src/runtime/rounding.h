#pragma once

#include <cmath>
#include <cstdint>

namespace qrn {

/// Independent of the rounding mode of the process.
inline double roundHalfEven(double value) {
  const double below = std::floor(value);
  const double rest = value - below;
  if (rest < 0.5) return below;
  if (rest > 0.5) return below + 1;
  return std::fmod(below, 2.0) == 0 ? below : below + 1;
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
