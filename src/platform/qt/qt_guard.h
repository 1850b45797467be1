#pragma once

#include <QObject>
#include <QtGlobal>
#include <cstdint>
#include <exception>
#include <utility>

namespace qrn::qt {

/// Counts what handles an event of Qt, from its beginning to its end. Several run one inside the other where
/// one has an event loop of its own, such as that of a dialog.
class Handling {
 public:
  Handling();
  Handling(const Handling&) = delete;
  Handling& operator=(const Handling&) = delete;
  ~Handling();

  /// How many have begun so far.
  static std::uint64_t begun();
};

/// Leaves an object to the event loop once nothing is running any more that has begun since there were
/// `begun`: an inner loop would delete it under the handlers that wait for the loop's end.
void deleteAfterHandlers(QObject& object, std::uint64_t begun);

/// Runs what an event of Qt leads to. Qt can't carry an exception through its event loop, so one that nobody
/// caught is reported and ends here.
template <class Call>
void guarded(Call&& call) noexcept {
  const Handling handling;
  try {
    std::forward<Call>(call)();
  } catch (const std::exception& error) {
    qWarning("Unhandled error: %s", error.what());
  } catch (...) {
    qWarning("Unhandled error of an unknown kind");
  }
}

}  // namespace qrn::qt
