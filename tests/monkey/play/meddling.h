#pragma once

#include <cstdint>

#include "audience.h"

namespace qrn::monkey {

/// The error that a meddling listener raises.
inline constexpr std::int32_t kListenersError = 1000;
inline constexpr const char* kListenersText = "raised on purpose";

/// Does what a listener should not do, in an event of a panel with this item's position (0 for an event
/// without one), or, with null, of the stack that holds it.
void doDeed(Stage& stage, const Deed& deed, QRNDisplay* panel, std::int32_t index);

}  // namespace qrn::monkey
