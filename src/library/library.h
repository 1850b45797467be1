#pragma once

namespace qrn {

/// Makes the library's control classes known by their ProgIDs. Call it once before the first panel is
/// created.
void registerControls();

}  // namespace qrn
