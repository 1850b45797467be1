#pragma once

#include <QTimer>
#include <memory>
#include <unordered_map>

#include "host/platform.h"

namespace qrn::qt {

/// Timers of the event loop.
class QtClock final : public host::Clock {
 public:
  TimerId start(std::chrono::milliseconds interval, std::function<void()> tick) override;
  void stop(TimerId timer) override;

 private:
  // Deleted later, as a tick may stop its own timer.
  struct Later {
    void operator()(QTimer* timer) const;
  };

  std::unordered_map<TimerId, std::unique_ptr<QTimer, Later>> timers_;
  TimerId last_ = 0;
};

}  // namespace qrn::qt
