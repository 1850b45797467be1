#pragma once

#include <string>

#include "runtime/variant.h"

namespace qrn {

/// Upper-case hexadecimal digits of the value as a Long, without prefix or padding; a negative number shows
/// its 32-bit two's complement. Rounds half to even; error 6 beyond a Long, otherwise as CLng.
std::string Hex(const Variant& value);

}  // namespace qrn
