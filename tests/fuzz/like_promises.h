#pragma once

#include <string>
#include <string_view>

namespace qrn::fuzz {

/// What matching a text with a pattern breaks of its promises; empty when all of them hold. The first line is
/// the text, what is behind it the pattern.
std::string brokenLikePromise(std::string_view text);

}  // namespace qrn::fuzz
