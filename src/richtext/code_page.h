#pragma once

namespace qrn::richtext {

inline constexpr int kWesternPage = 1252;
inline constexpr int kMacPage = 10000;
inline constexpr int kDosPage = 437;
inline constexpr int kDosWesternPage = 850;

/// The character of a byte. Known are the Windows pages of one byte a character, 874 and 1250 to 1258, the
/// DOS pages 437 and 850, and 10000 of the Macintosh; in any other page only ASCII can be read, and the rest
/// is U+FFFD.
char32_t characterOf(unsigned char byte, int page);

/// The page that a font's character set stands for; `usual` for one that says nothing, such as symbols.
int pageOfCharset(int charset, int usual);

}  // namespace qrn::richtext
