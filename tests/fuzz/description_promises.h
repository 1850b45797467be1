#pragma once

#include <string>
#include <string_view>

namespace qrn::fuzz {

/// What reading a text as a device description breaks of its promises; empty when all of them hold. Behind a
/// line `//---` the text holds the file that the description can include.
std::string brokenDescriptionPromise(std::string_view text);

}  // namespace qrn::fuzz
