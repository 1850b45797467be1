#pragma once

#include <string_view>

#include "enums/enumerations.h"

namespace qrn {

/// What is wrong with a value, for a person to read or hear; empty when nothing is.
std::string_view errorInWords(qrnErrorCode error);

}  // namespace qrn
