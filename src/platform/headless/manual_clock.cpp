#include "platform/headless/manual_clock.h"

#include <algorithm>

namespace qrn::headless {

host::Clock::TimerId ManualClock::start(std::chrono::milliseconds interval, std::function<void()> tick) {
  timers_.emplace(++last_, Running{interval, now_ + interval, std::move(tick)});
  return last_;
}

void ManualClock::advance(std::chrono::milliseconds by) {
  const auto end = now_ + by;
  while (!timers_.empty()) {
    const auto next = std::min_element(timers_.begin(), timers_.end(), [](const auto& a, const auto& b) {
      return a.second.due < b.second.due;
    });
    if (next->second.due > end) break;
    now_ = next->second.due;
    next->second.due += next->second.interval;
    // A copy, as the tick may stop its own timer.
    const auto tick = next->second.tick;
    tick();
  }
  // A tick may have advanced the time itself, and further.
  now_ = std::max(now_, end);
}

}  // namespace qrn::headless
