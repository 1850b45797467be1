#pragma once

#include <optional>

#include "host/control.h"

namespace qrn::host {

/// Ticks while it is enabled and its interval is above 0. It can't be seen.
class Timer final : public Control {
 public:
  Timer() { SetVisible(false); }
  ~Timer() override { stop(); }
  std::string_view typeName() const override { return "Timer"; }

  /// In milliseconds.
  std::int32_t Interval() const { return interval_; }
  void SetInterval(std::int32_t milliseconds);
  void SetEnabled(bool enabled) override;

  Event<> Tick;

 protected:
  void placed() override { start(); }

 private:
  void start();
  void stop();

  Clock* clock_ = nullptr;  // while it runs
  Clock::TimerId id_ = 0;
  std::int32_t interval_ = 0;
};

}  // namespace qrn::host
