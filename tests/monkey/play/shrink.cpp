#include "shrink.h"

#include <algorithm>
#include <utility>

namespace qrn::monkey {
namespace {

using Fails = std::function<bool(const Steps&)>;

Steps without(const Steps& steps, std::size_t from, std::size_t count) {
  Steps rest(steps.begin(), steps.begin() + static_cast<std::ptrdiff_t>(from));
  rest.insert(rest.end(), steps.begin() + static_cast<std::ptrdiff_t>(std::min(from + count, steps.size())),
              steps.end());
  return rest;
}

// Leaves out stretches of one length wherever they are not needed, from the end: what led to a failure is
// mostly near it. Answers whether any was.
bool leaveOut(Steps& steps, std::size_t length, const Fails& fails) {
  bool any = false;
  for (std::size_t end = steps.size(); end > 0;) {
    const std::size_t from = end > length ? end - length : 0;
    Steps fewer = without(steps, from, end - from);
    if (fewer.size() < steps.size() && fails(fewer)) {
      steps = std::move(fewer);
      any = true;
    }
    end = from;
  }
  return any;
}

bool makePlain(Steps& steps, const Fails& fails) {
  bool any = false;
  for (std::size_t i = 0; i < steps.size(); ++i) {
    for (std::size_t n = 0; n < steps[i].numbers.size(); ++n) {
      const std::uint32_t number = std::exchange(steps[i].numbers[n], 0);
      if (number == 0) continue;
      if (fails(steps))
        any = true;
      else
        steps[i].numbers[n] = number;
    }
  }
  return any;
}

}  // namespace

Steps shrunk(Steps steps, const Fails& fails) {
  for (std::size_t length = steps.size() / 2; length > 1; length /= 2) leaveOut(steps, length, fails);
  while (leaveOut(steps, 1, fails) || makePlain(steps, fails)) continue;
  return steps;
}

}  // namespace qrn::monkey
