#pragma once

#include <string>
#include <string_view>

namespace qrn::edd {

/// Text of a string literal as written between its quotes, such as `|en|Pressure|de|Druck`: escapes replaced,
/// in the wanted language. If that is missing or empty: English, for which text before the first language
/// code counts, then the first language that has a text.
std::string textOfLiteral(std::string_view written, std::string_view language);

}  // namespace qrn::edd
