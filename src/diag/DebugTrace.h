#pragma once

#include <cstdint>
#include <string_view>

namespace qrn {

/// Sends a line to the trace viewer, if one is running: a top-level window titled "ZOLVEN Debug Tracer", and
/// an object "ZVDebugTrace.clsDebugTrace" whose ShowData takes the source, the level and the message. Costs
/// one window lookup when none is running, and never raises.
void DebugTrace(std::string_view Message, const std::int32_t& Level);

}  // namespace qrn
