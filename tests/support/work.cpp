#include "support/work.h"

namespace qrn::test {
namespace {

std::uint64_t steps = 0;

std::string repeated(std::string_view piece, std::size_t times) {
  std::string text;
  text.reserve(piece.size() * times);
  for (; times > 0; --times) text += piece;
  return text;
}

}  // namespace

std::uint64_t stepsTaken() { return steps; }

std::string brokenGrowth(std::string_view piece, std::size_t length,
                         const std::function<void(std::string_view)>& work) {
  if (piece.empty()) return {};
  // An even number of pieces, so that what is opened by one is closed by the next in both texts.
  const std::size_t times = (length / piece.size() / 2 + 1) * 2;
  const std::string text = repeated(piece, times);
  const std::string longer = repeated(piece, 2 * times);
  const std::uint64_t once = stepsOf([&] { work(text); });
  const std::uint64_t twice = stepsOf([&] { work(longer); });
  // Room for what a text of any length costs, and for containers that grow by doubling.
  const std::uint64_t most = once * 5 / 2 + 2000;
  if (twice <= most) return {};
  return std::to_string(text.size()) + " bytes take " + std::to_string(once) + " steps, twice as many take " +
         std::to_string(twice);
}

}  // namespace qrn::test

// The compiler puts a call of __sanitizer_cov_trace_pc into each stretch of the code that is counted, and the
// linker turns it into a call of this one: a fuzzer brings a function of the same name along.
extern "C" void __wrap___sanitizer_cov_trace_pc() { ++qrn::test::steps; }
