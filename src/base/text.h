#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace qrn::text {

/// Lengths and positions that a user can see count code points; a byte that is no UTF-8 counts as one.
std::size_t length(std::string_view utf8);
/// The byte offset of a code point position; the end of the text for a position beyond it.
std::size_t byteOffset(std::string_view utf8, std::size_t position);
/// The part of `count` code points from a position.
std::string_view slice(std::string_view utf8, std::size_t position,
                       std::size_t count = std::string_view::npos);
/// One code point at a byte offset, which moves behind it. Broken bytes come back as U+FFFD, one each.
char32_t next(std::string_view utf8, std::size_t& offset);
void append(std::string& utf8, char32_t codePoint);

/// Of two names of the same length.
bool sameLetters(std::string_view a, std::string_view b);
/// Compares names and keys: the case of letters does not count.
inline bool sameName(std::string_view a, std::string_view b) {
  return a.size() == b.size() && sameLetters(a, b);
}
std::size_t nameHash(std::string_view name);

std::string lowered(std::string_view ascii);
std::string_view trimmed(std::string_view text, std::string_view blanks = " \t\r\n");
std::string replaced(std::string_view text, std::string_view what, std::string_view by);

}  // namespace qrn::text
