#pragma once

#include <string>
#include <string_view>

namespace qrn::fuzz {

/// What formatting values by a pattern breaks of its promises; empty when all of them hold. The first line of
/// the text is a value, what is behind it the pattern.
std::string brokenFormatPromise(std::string_view text);

}  // namespace qrn::fuzz
