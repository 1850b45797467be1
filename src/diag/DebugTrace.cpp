#include "diag/DebugTrace.h"

#include <string>

#include "host/platform.h"

namespace qrn {

void DebugTrace(std::string_view Message, const std::int32_t& Level) {
  host::Platform* platform = host::Platform::current();
  if (!platform || platform->windows().findByTitle("ZOLVEN Debug Tracer") == 0) return;
  // Whatever goes wrong in another program's viewer is no business of those who trace.
  try {
    const auto viewer = platform->createObject("ZVDebugTrace.clsDebugTrace");
    if (!viewer) return;
    const Variant arguments[] = {platform->applicationName() + ": ", Level, Message};
    viewer->call("ShowData", arguments);
  } catch (...) {  // NOLINT(bugprone-empty-catch)
  }
}

}  // namespace qrn
