#pragma once

#include <cstdint>

#include "audience.h"

namespace qrn::monkey {

/// The error that a meddling listener raises.
inline constexpr std::int32_t kListenersError = 1000;
inline constexpr const char* kListenersText = "raised on purpose";

/// Does what a listener of an event with this item's position (0 for an event without one) should not do.
void doDeed(Stage& stage, const Deed& deed, std::int32_t index);

}  // namespace qrn::monkey
