#include "runtime/hex.h"

#include <array>
#include <charconv>

#include "runtime/conversions.h"

namespace qrn {

std::string Hex(const Variant& value) {
  const auto bits = static_cast<std::uint32_t>(CLng(value));
  std::array<char, 8> digits;
  const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), bits, 16);
  std::string text(digits.data(), written.ptr);
  for (char& digit : text) {
    if (digit >= 'a') digit = static_cast<char>(digit - 'a' + 'A');
  }
  return text;
}

}  // namespace qrn
