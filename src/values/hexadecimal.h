#pragma once

#include <cstdint>
#include <string_view>

namespace qrn {

/// The number of a text of upper-case hexadecimal digits; 0 for an empty one, and -1 as soon as any other
/// character comes, a lower-case letter included. Errors: 6 beyond 7FFFFFFF.
std::int32_t HexToLong(std::string_view text);

}  // namespace qrn
