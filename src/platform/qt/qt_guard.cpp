#include "platform/qt/qt_guard.h"

#include <QPointer>
#include <algorithm>
#include <vector>

namespace qrn::qt {
namespace {

struct Waiting {
  QPointer<QObject> object;
  std::uint64_t begun;
};

// Of one thread: its event loops are its own.
struct Handlers {
  std::uint64_t begun = 0;
  std::vector<std::uint64_t> running;  // by their numbers, the innermost last
  std::vector<Waiting> waiting;

  bool anySince(std::uint64_t number) const { return !running.empty() && running.back() > number; }
};

Handlers& handlers() {
  thread_local Handlers ofThread;
  return ofThread;
}

}  // namespace

Handling::Handling() { handlers().running.push_back(++handlers().begun); }

Handling::~Handling() {
  Handlers& all = handlers();
  all.running.pop_back();
  std::erase_if(all.waiting, [&](const Waiting& one) {
    if (one.object && all.anySince(one.begun)) return false;
    if (one.object) one.object->deleteLater();
    return true;
  });
}

std::uint64_t Handling::begun() { return handlers().begun; }

void deleteAfterHandlers(QObject& object, std::uint64_t begun) {
  if (handlers().anySince(begun))
    handlers().waiting.push_back({&object, begun});
  else
    object.deleteLater();
}

}  // namespace qrn::qt
