#include "platform/qt/qt_clock.h"

#include <utility>

#include "platform/qt/qt_guard.h"

namespace qrn::qt {

void QtClock::Later::operator()(QTimer* timer) const {
  timer->stop();
  timer->disconnect();
  timer->deleteLater();
}

host::Clock::TimerId QtClock::start(std::chrono::milliseconds interval, std::function<void()> tick) {
  std::unique_ptr<QTimer, Later> timer(new QTimer);
  timer->setTimerType(Qt::PreciseTimer);
  QObject::connect(timer.get(), &QTimer::timeout, [call = std::move(tick)] { guarded(call); });
  timer->start(interval);
  timers_.emplace(++last_, std::move(timer));
  return last_;
}

void QtClock::stop(TimerId timer) { timers_.erase(timer); }

}  // namespace qrn::qt
