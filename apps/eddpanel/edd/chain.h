#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace qrn::edd {

/// "a -> b -> a" for a message; a long one loses its middle.
std::string chain(const std::vector<std::string_view>& names);

}  // namespace qrn::edd
