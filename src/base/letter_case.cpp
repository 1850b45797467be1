#include "base/letter_case.h"

#include <cstddef>
#include <cstdint>

#include "base/text.h"

namespace qrn {
namespace {

struct CaseRange {
  char32_t firstUpper;
  char32_t lastUpper;
  std::int32_t distance;     // from an upper-case letter to its lower-case one
  bool alternating = false;  // upper- and lower-case letters take turns in the range
};

// Latin, Greek, Cyrillic and Armenian.
constexpr CaseRange kRanges[] = {
    {0x41, 0x5a, 32},        {0xc0, 0xd6, 32},        {0xd8, 0xde, 32},          {0x100, 0x12e, 1, true},
    {0x132, 0x136, 1, true}, {0x139, 0x147, 1, true}, {0x14a, 0x176, 1, true},   {0x178, 0x178, -121},
    {0x179, 0x17d, 1, true}, {0x1cd, 0x1db, 1, true}, {0x1de, 0x1ee, 1, true},   {0x1f8, 0x21e, 1, true},
    {0x222, 0x232, 1, true}, {0x386, 0x386, 38},      {0x388, 0x38a, 37},        {0x38c, 0x38c, 64},
    {0x38e, 0x38f, 63},      {0x391, 0x3a1, 32},      {0x3a3, 0x3ab, 32},        {0x400, 0x40f, 80},
    {0x410, 0x42f, 32},      {0x460, 0x480, 1, true}, {0x48a, 0x4be, 1, true},   {0x4c1, 0x4cd, 1, true},
    {0x4d0, 0x52e, 1, true}, {0x531, 0x556, 48},      {0x1e00, 0x1e94, 1, true}, {0x1ea0, 0x1efe, 1, true},
};

char32_t moved(char32_t letter, std::int32_t distance) {
  return static_cast<char32_t>(static_cast<std::int32_t>(letter) + distance);
}

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
    const char32_t upper = moved(letter, -range.distance);
    if (isUpperIn(range, upper)) return upper;
  }
  return letter;
}

char32_t lowerCase(char32_t letter) {
  for (const CaseRange& range : kRanges) {
    if (isUpperIn(range, letter)) return moved(letter, range.distance);
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
