#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace qrn::test {

/// The stretches of code without a branch that the run-time functions went through so far. Only what is
/// compiled for counting counts (qrn_counted_runtime): not the standard library, where it is not compiled
/// along.
std::uint64_t stepsTaken();

template <class Action>
std::uint64_t stepsOf(Action&& action) {
  const std::uint64_t before = stepsTaken();
  action();
  return stepsTaken() - before;
}

/// Empty if the work grows no faster than the text: a piece is repeated to at least so many bytes, and for
/// twice as many the work may take little more than twice the steps.
std::string brokenGrowth(std::string_view piece, std::size_t length,
                         const std::function<void(std::string_view)>& work);

}  // namespace qrn::test
