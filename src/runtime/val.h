#pragma once

#include <string_view>

namespace qrn {

/// The number at the start of a text, 0 if there is none. Blanks, tabs and line ends are skipped wherever
/// they stand; '.' is the point in every locale; the exponent follows an E or a D. &H and &O read bits: up to
/// 16 of them as an Integer would, up to 32 as a Long, unless an & behind them marks them as a Long. Error 6
/// for a number that is too large.
double Val(std::string_view text);

}  // namespace qrn
