#include "base/letter_case.h"

#include <cstddef>

#include "base/text.h"

namespace qrn {
namespace {

struct CaseRange {
  char32_t firstUpper;
  char32_t lastUpper;
  char32_t distance;  // from an upper-case letter to its lower-case one
  bool alternating;   // upper- and lower-case letters take turns in the range
};

constexpr CaseRange kRanges[] = {
    {U'A', U'Z', 32, false},           {U'\u00c0', U'\u00d6', 32, false}, {U'\u00d8', U'\u00de', 32, false},
    {U'\u0100', U'\u012e', 1, true},   {U'\u0132', U'\u0136', 1, true},   {U'\u0139', U'\u0147', 1, true},
    {U'\u014a', U'\u0176', 1, true},   {U'\u0179', U'\u017d', 1, true},   {U'\u0391', U'\u03a1', 32, false},
    {U'\u03a3', U'\u03ab', 32, false}, {U'\u0400', U'\u040f', 80, false}, {U'\u0410', U'\u042f', 32, false},
    {U'\u0460', U'\u0480', 1, true},
};

bool isUpperIn(const CaseRange& range, char32_t letter) {
  if (letter < range.firstUpper || letter > range.lastUpper) return false;
  return !range.alternating || (letter - range.firstUpper) % 2 == 0;
}

template <class Convert>
std::string converted(std::string_view utf8, Convert convert) {
  std::string result;
  result.reserve(utf8.size());
  for (std::size_t offset = 0; offset < utf8.size();) {
    const std::size_t start = offset;
    const char32_t letter = text::next(utf8, offset);
    const char32_t other = convert(letter);
    if (other == letter) {
      result += utf8.substr(start, offset - start);
    } else {
      text::append(result, other);
    }
  }
  return result;
}

}  // namespace

char32_t upperCase(char32_t letter) {
  for (const CaseRange& range : kRanges) {
    if (letter >= range.distance && isUpperIn(range, letter - range.distance)) return letter - range.distance;
  }
  return letter;
}

char32_t lowerCase(char32_t letter) {
  for (const CaseRange& range : kRanges) {
    if (isUpperIn(range, letter)) return letter + range.distance;
  }
  return letter;
}

std::string upperCase(std::string_view utf8) {
  return converted(utf8, [](char32_t letter) { return upperCase(letter); });
}

std::string lowerCase(std::string_view utf8) {
  return converted(utf8, [](char32_t letter) { return lowerCase(letter); });
}

bool sameLetters(std::string_view a, std::string_view b) {
  std::size_t inA = 0;
  std::size_t inB = 0;
  while (inA < a.size() && inB < b.size()) {
    if (lowerCase(text::next(a, inA)) != lowerCase(text::next(b, inB))) return false;
  }
  return inA == a.size() && inB == b.size();
}

}  // namespace qrn
