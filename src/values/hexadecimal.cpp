#include "values/hexadecimal.h"

#include <limits>

#include "base/text.h"
#include "runtime/errors.h"

namespace qrn {
namespace {

// -1 for anything but an upper-case hexadecimal digit.
int digitOf(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

// A digit's place decides at once whether the sum can still be a Long, so the digits are weighed one by one:
// an overflow on the left comes before a wrong character further right.
double placeValue(std::size_t digitsBehind) {
  double value = 1;
  for (; digitsBehind > 0 && value < 1e300; --digitsBehind) value *= 16;
  return value;
}

}  // namespace

std::int32_t HexToLong(std::string_view text) {
  const std::size_t length = text::length(text);
  double sum = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const int digit = digitOf(text[i]);
    if (digit < 0) return -1;
    if (digit > 0) sum += digit * placeValue(length - 1 - i);
    if (sum > std::numeric_limits<std::int32_t>::max()) raiseRunTimeError(kOverflow);
  }
  return static_cast<std::int32_t>(sum);
}

}  // namespace qrn
