#pragma once

#include <functional>

#include "base/event.h"
#include "base/weak_ref.h"
#include "host/timer.h"

namespace qrn {

/// Looks again and again whether the mouse is still over what it has gone over, by a timer named "tmrHit"
/// among the controls of the one that watches. The host may remove that like any other; then nothing is
/// watched any more.
class HoverWatch {
 public:
  /// `look` is called every 70 milliseconds, and may stop the watch.
  void start(host::UserControl& watching, std::function<void()> look);
  void stop();
  bool active() const { return static_cast<bool>(timer_); }

 private:
  WeakRef<host::Timer> timer_;
  Connection tick_;
};

}  // namespace qrn
