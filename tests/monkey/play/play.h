#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "hands.h"
#include "stage.h"
#include "step.h"

namespace qrn::monkey {

/// A step after which a promise was broken.
struct Failure {
  std::size_t step = 0;  // counted from 0
  Complaint complaint;
};

/// Makes the steps of a game with fresh hands on a fresh platform, and stops at the first broken promise.
/// With notes, each step is told before it is made.
std::optional<Failure> play(const MakeHands& makeHands, Game game, const Steps& steps,
                            const Stage::Notes& notes = {});

/// Random steps of a seed. What breaks is cut down to the steps that are needed for it, and told with its
/// seed; empty when nothing does.
std::string playSeed(const MakeHands& makeHands, Game game, std::uint64_t seed, std::size_t count);

}  // namespace qrn::monkey
