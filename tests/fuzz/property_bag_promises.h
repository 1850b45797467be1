#pragma once

#include <string>
#include <string_view>

namespace qrn::fuzz {

/// What reading a text as a property bag, and restoring the controls from it, breaks of its promises; empty
/// when all of them hold.
std::string brokenBagPromise(std::string_view text);

}  // namespace qrn::fuzz
