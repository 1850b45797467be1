#include "edd/utf8.h"

#include <algorithm>

namespace qrn::edd {

namespace {

bool isContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

// Length of the sequence at the start of `text`, or 0 if it is malformed.
std::size_t sequenceLength(std::string_view text) {
  const auto first = static_cast<unsigned char>(text[0]);
  if (first < 0x80) return 1;
  const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
  if (first < 0xC2 || first > 0xF4 || text.size() < length) return 0;
  if (!std::all_of(text.begin() + 1, text.begin() + static_cast<std::ptrdiff_t>(length), isContinuation))
    return 0;
  // The second byte rules out overlong forms, surrogates and values above U+10FFFF.
  const auto second = static_cast<unsigned char>(text[1]);
  if (first == 0xE0 && second < 0xA0) return 0;
  if (first == 0xED && second > 0x9F) return 0;
  if (first == 0xF0 && second < 0x90) return 0;
  if (first == 0xF4 && second > 0x8F) return 0;
  return length;
}

}  // namespace

bool isUtf8(std::string_view text) {
  while (!text.empty()) {
    const std::size_t length = sequenceLength(text);
    if (length == 0) return false;
    text.remove_prefix(length);
  }
  return true;
}

void appendUtf8(std::string& text, char32_t codePoint) {
  const auto byte = [&text](char32_t value) { text += static_cast<char>(static_cast<unsigned char>(value)); };
  if (codePoint < 0x80) {
    byte(codePoint);
  } else if (codePoint < 0x800) {
    byte(0xC0 | (codePoint >> 6));
    byte(0x80 | (codePoint & 0x3F));
  } else {
    byte(0xE0 | (codePoint >> 12));
    byte(0x80 | ((codePoint >> 6) & 0x3F));
    byte(0x80 | (codePoint & 0x3F));
  }
}

std::string utf8FromLatin1(std::string_view text) {
  std::string converted;
  converted.reserve(text.size() + text.size() / 8);
  for (const char c : text) appendUtf8(converted, static_cast<unsigned char>(c));
  return converted;
}

std::size_t codePointCount(std::string_view text) {
  return text.size() - static_cast<std::size_t>(std::count_if(text.begin(), text.end(), isContinuation));
}

}  // namespace qrn::edd
