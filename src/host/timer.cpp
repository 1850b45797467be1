#include "host/timer.h"

#include "host/container_control.h"

namespace qrn::host {

void Timer::SetInterval(std::int32_t milliseconds) {
  if (milliseconds == interval_) return;
  interval_ = milliseconds;
  stop();
  start();
}

void Timer::SetEnabled(bool enabled) {
  if (enabled == Enabled()) return;
  Control::SetEnabled(enabled);
  stop();
  start();
}

void Timer::start() {
  if (clock_ || !Enabled() || interval_ <= 0 || !Container()) return;
  clock_ = &platform().clock();
  id_ = clock_->start(std::chrono::milliseconds(interval_), [this] { raise(Tick, "Timer"); });
}

void Timer::stop() {
  if (clock_) clock_->stop(id_);
  clock_ = nullptr;
}

}  // namespace qrn::host
