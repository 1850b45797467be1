#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace qrn::edd {

/// Well-formed by RFC 3629: no overlong forms, no surrogates, nothing above U+10FFFF.
bool isUtf8(std::string_view text);

std::string utf8FromLatin1(std::string_view text);

void appendUtf8(std::string& text, char32_t codePoint);

/// Number of code points of well-formed text.
std::size_t codePointCount(std::string_view text);

}  // namespace qrn::edd
