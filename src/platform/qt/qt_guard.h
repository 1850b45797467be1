#pragma once

#include <QtGlobal>
#include <exception>
#include <utility>

namespace qrn::qt {

/// Runs what an event of Qt leads to. Qt can't carry an exception through its event loop, so one that nobody
/// caught is reported and ends here.
template <class Call>
void guarded(Call&& call) noexcept {
  try {
    std::forward<Call>(call)();
  } catch (const std::exception& error) {
    qWarning("Unhandled error: %s", error.what());
  }
}

}  // namespace qrn::qt
