#pragma once

#include <functional>

#include "step.h"

namespace qrn::monkey {

/// A sequence that still fails, though no step of it can be left out and no number of a step be made 0.
/// `fails` is asked of shorter and plainer sequences than the given one, which does fail.
Steps shrunk(Steps steps, const std::function<bool(const Steps&)>& fails);

}  // namespace qrn::monkey
