#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>

#include "host/platform.h"

namespace qrn::headless {

/// Time that only moves when it is told to.
class ManualClock final : public host::Clock {
 public:
  TimerId start(std::chrono::milliseconds interval, std::function<void()> tick) override;
  void stop(TimerId timer) override { timers_.erase(timer); }

  /// Ticks what falls due on the way, in the order of time, then of starting.
  void advance(std::chrono::milliseconds by);
  int runningTimers() const { return static_cast<int>(timers_.size()); }

 private:
  struct Running {
    std::chrono::milliseconds interval;
    std::chrono::milliseconds due;
    std::function<void()> tick;
  };

  std::map<TimerId, Running> timers_;
  std::chrono::milliseconds now_{0};
  TimerId last_ = 0;
};

}  // namespace qrn::headless
