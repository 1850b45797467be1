#pragma once

#include <string>
#include <string_view>

namespace qrn::fuzz {

/// What reading a text as a date breaks of its promises; empty when all of them hold.
std::string brokenDateTextPromise(std::string_view text);

}  // namespace qrn::fuzz
