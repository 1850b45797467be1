#include "buttons/hover_watch.h"

#include <utility>

#include "host/user_control.h"

namespace qrn {
namespace {

constexpr const char* kTimer = "tmrHit";
constexpr std::int32_t kInterval = 70;  // milliseconds

}  // namespace

void HoverWatch::start(host::UserControl& watching, std::function<void()> look) {
  auto& timer = static_cast<host::Timer&>(watching.controls().add("VB.Timer", kTimer, watching));
  timer_ = WeakRef<host::Timer>(&timer);
  tick_ = timer.Tick.connect(std::move(look));
  timer.SetInterval(kInterval);
}

void HoverWatch::stop() {
  tick_.disconnect();
  if (timer_) timer_->Parent()->controls().remove(kTimer);
}

}  // namespace qrn
