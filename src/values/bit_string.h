#pragma once

#include <string>
#include <string_view>

namespace qrn {

/// Bit i of a string of "0" and "1", bit 0 rightmost; a bit beyond the string reads as 0.
bool BitStringGet(std::string_view s, int i);
/// Sets it, padding the string with "0" on the left as far as needed.
void BitStringSet(std::string& s, int i, bool bit);

}  // namespace qrn
