#pragma once

#include "enums/enumerations.h"
#include "host/picture.h"

namespace qrn {

inline constexpr int kBuiltInPictureCount = 19;

/// The library's own picture of a number: 16 x 15 logical pixels at scale 1, 2 and 3, the same object every
/// time. Nothing for a number outside 0 to 18, as hosts may use any number for pictures of their own.
host::PicturePtr builtInPicture(qrnImageId id);

}  // namespace qrn
