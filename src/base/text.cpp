#include "base/text.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "base/letter_case.h"

namespace qrn::text {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool isContinuation(unsigned char byte) { return (byte & 0xC0) == 0x80; }

unsigned char lower(unsigned char c) { return c >= 'A' && c <= 'Z' ? static_cast<unsigned char>(c + 32) : c; }

// How many bytes the sequence of a first byte has; 0 for a byte that starts none.
int sequenceLength(unsigned char first) {
  if (first < 0x80) return 1;
  if (first >= 0xC2 && first < 0xE0) return 2;
  if (first >= 0xE0 && first < 0xF0) return 3;
  if (first >= 0xF0 && first < 0xF5) return 4;
  return 0;
}

bool isOverlongOrSurrogate(char32_t c, int bytes) {
  return (bytes == 3 && c < 0x800) || (bytes == 4 && (c < 0x10000 || c > 0x10FFFF)) ||
         (c >= 0xD800 && c < 0xE000);
}

constexpr std::uint64_t kEach = 0x0101010101010101;
constexpr std::uint64_t kTopBits = kEach * 0x80;

// Eight letters at once: the top bit of each byte tells whether that is one from A to Z.
std::uint64_t loweredBytes(std::uint64_t bytes) {
  const std::uint64_t low = bytes & kEach * 0x7F;
  const std::uint64_t fromA = low + kEach * (0x80 - 'A'), behindZ = low + kEach * (0x7F - 'Z');
  const std::uint64_t letters = (fromA & ~behindZ) & ~bytes & kTopBits;
  return bytes | (letters >> 2);
}

std::uint64_t hashOf(std::string_view name, std::uint64_t& allBytes) {
  std::uint64_t hash = name.size();
  for (; !name.empty(); name.remove_prefix(std::min<std::size_t>(name.size(), 8))) {
    std::uint64_t bytes = 0;
    std::memcpy(&bytes, name.data(), std::min<std::size_t>(name.size(), 8));
    allBytes |= bytes;
    hash = (hash ^ loweredBytes(bytes)) * 0x9E3779B97F4A7C15;
    hash ^= hash >> 32;
  }
  return hash;
}

}  // namespace

char32_t next(std::string_view utf8, std::size_t& offset) {
  const auto first = static_cast<unsigned char>(utf8[offset++]);
  const int bytes = sequenceLength(first);
  if (bytes == 1) return first;
  if (bytes == 0 || offset + static_cast<std::size_t>(bytes) - 1 > utf8.size()) return kReplacement;
  char32_t c = first & (0xFFu >> (bytes + 1));
  for (int i = 0; i < bytes - 1; ++i) {
    const auto byte = static_cast<unsigned char>(utf8[offset + static_cast<std::size_t>(i)]);
    if (!isContinuation(byte)) return kReplacement;
    c = (c << 6) | (byte & 0x3F);
  }
  if (isOverlongOrSurrogate(c, bytes)) return kReplacement;
  offset += static_cast<std::size_t>(bytes) - 1;
  return c;
}

void append(std::string& utf8, char32_t c) {
  const auto put = [&](char32_t byte) { utf8.push_back(static_cast<char>(byte)); };
  if (c < 0x80) {
    put(c);
  } else if (c < 0x800) {
    put(0xC0 | (c >> 6));
    put(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    put(0xE0 | (c >> 12));
    put(0x80 | ((c >> 6) & 0x3F));
    put(0x80 | (c & 0x3F));
  } else {
    put(0xF0 | (c >> 18));
    put(0x80 | ((c >> 12) & 0x3F));
    put(0x80 | ((c >> 6) & 0x3F));
    put(0x80 | (c & 0x3F));
  }
}

std::size_t length(std::string_view utf8) {
  std::size_t count = 0;
  for (std::size_t offset = 0; offset < utf8.size(); ++count) next(utf8, offset);
  return count;
}

std::size_t byteOffset(std::string_view utf8, std::size_t position) {
  std::size_t offset = 0;
  for (; position > 0 && offset < utf8.size(); --position) next(utf8, offset);
  return offset;
}

std::string_view slice(std::string_view utf8, std::size_t position, std::size_t count) {
  utf8.remove_prefix(byteOffset(utf8, position));
  return count == std::string_view::npos ? utf8 : utf8.substr(0, byteOffset(utf8, count));
}

// A letter and its partner have the same number of bytes.
bool sameLetters(std::string_view a, std::string_view b) {
  if (a == b) return true;
  // From the end: names that are much alike mostly begin alike.
  for (std::size_t i = a.size(); i-- > 0;) {
    const auto one = static_cast<unsigned char>(a[i]), other = static_cast<unsigned char>(b[i]);
    if (lower(one) == lower(other)) continue;
    return one >= 0x80 && other >= 0x80 && lowerCase(a) == lowerCase(b);
  }
  return true;
}

std::size_t nameHash(std::string_view name) {
  std::uint64_t allBytes = 0;
  const std::uint64_t hash = hashOf(name, allBytes);
  // What is not ASCII is seldom in a name.
  return static_cast<std::size_t>((allBytes & kTopBits) == 0 ? hash : hashOf(lowerCase(name), allBytes));
}

std::string lowered(std::string_view ascii) {
  std::string result(ascii);
  for (char& c : result) c = static_cast<char>(lower(static_cast<unsigned char>(c)));
  return result;
}

std::string_view trimmed(std::string_view text, std::string_view blanks) {
  const auto first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string replaced(std::string_view text, std::string_view what, std::string_view by) {
  std::string result;
  for (std::size_t from = 0;;) {
    const auto found = what.empty() ? std::string_view::npos : text.find(what, from);
    result += text.substr(from, found - from);
    if (found == std::string_view::npos) return result;
    result += by;
    from = found + what.size();
  }
}

}  // namespace qrn::text
