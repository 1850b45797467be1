#pragma once

#include <optional>

#include "hands.h"

namespace qrn::monkey {

/// A run as long as one likes:
///
///     monkey_tests --steps N [--stack] [--seed S] [--trace]
///
/// plays N steps with panels, or with stacks of them, a new seed after every 5,000: S, S + 1, S + 2 … (1
/// unless said otherwise). `--trace` prints each step before it is made, so that the last line names the one
/// that a crash or a sanitizer stopped. Answers the exit code, or none when the arguments ask for nothing of
/// this.
std::optional<int> playFromCommandLine(int argc, char** argv, const MakeHands& makeHands);

}  // namespace qrn::monkey
