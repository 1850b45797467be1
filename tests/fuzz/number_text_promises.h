#pragma once

#include <string>
#include <string_view>

namespace qrn::fuzz {

/// What reading a text as a number breaks of its promises; empty when all of them hold.
std::string brokenNumberTextPromise(std::string_view text);

}  // namespace qrn::fuzz
