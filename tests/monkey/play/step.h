#pragma once

#include <array>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "game.h"

namespace qrn::monkey {

/// One thing that the monkey does: which of its actions, and numbers that the action reads against whatever
/// it finds. It means something in any state, so that a sequence can be replayed with steps left out.
struct Step {
  std::uint16_t action = 0;
  std::array<std::uint32_t, 4> numbers{};

  friend bool operator==(const Step&, const Step&) = default;
};

using Steps = std::vector<Step>;

/// Draws what an action needs from the numbers of a step. Zeros draw the first of everything, which is the
/// plainest by convention: a shrunk step is an ordinary one.
class Numbers {
 public:
  explicit Numbers(const Step& step) : given_(step.numbers) {}

  std::uint32_t next() {
    const std::size_t turn = drawn_ / given_.size() + 1;
    const std::uint32_t number = given_[drawn_++ % given_.size()];
    return turn == 1 ? number : number * static_cast<std::uint32_t>(turn * 2654435761U) >> 3;
  }
  std::size_t below(std::size_t limit) { return limit == 0 ? 0 : next() % limit; }
  bool oneIn(std::size_t times) { return below(times) == times - 1; }

  template <class Options>
  const auto& oneOf(const Options& options) {
    return options[below(std::size(options))];
  }

 private:
  std::array<std::uint32_t, 4> given_;
  std::size_t drawn_ = 0;
};

/// The same seed makes the same steps, on every machine.
Steps randomSteps(Game game, std::uint64_t seed, std::size_t count);

}  // namespace qrn::monkey
