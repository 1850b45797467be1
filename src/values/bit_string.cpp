#include "values/bit_string.h"

namespace qrn {

bool BitStringGet(std::string_view s, int i) {
  const auto bit = static_cast<std::size_t>(i);
  return bit < s.size() && s[s.size() - 1 - bit] == '1';
}

void BitStringSet(std::string& s, int i, bool bit) {
  const auto position = static_cast<std::size_t>(i);
  if (s.size() <= position) s.insert(0, position + 1 - s.size(), '0');
  s[s.size() - 1 - position] = bit ? '1' : '0';
}

}  // namespace qrn
