#pragma once

#include <string>
#include <string_view>

namespace qrn {

/// One code point to one code point, for the Latin, Greek and Cyrillic letters that have such a partner;
/// others stay.
char32_t upperCase(char32_t letter);
char32_t lowerCase(char32_t letter);

/// UTF-8 in, UTF-8 out; bytes that are no UTF-8 pass unchanged.
std::string upperCase(std::string_view utf8);
std::string lowerCase(std::string_view utf8);

/// Whether two texts differ in nothing but case.
bool sameLetters(std::string_view a, std::string_view b);

}  // namespace qrn
