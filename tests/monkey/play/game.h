#pragma once

#include <cstdint>

namespace qrn::monkey {

/// What the monkey plays with: one panel, or a stack, whose pages are panels to it as well.
enum class Game : std::uint8_t { Panel, Stack };

}  // namespace qrn::monkey
