#include "hooks/window_registry.h"

#include <memory>
#include <unordered_map>

#include "hooks/clsWndSubClass.h"

namespace qrn {
namespace {

using Registry = std::unordered_map<host::WindowHandle, std::shared_ptr<clsWndSubClass>>;

Registry& registry() {
  thread_local Registry windows;
  return windows;
}

}  // namespace

void registerWatcher(host::WindowHandle window, clsSubClass& watcher) {
  auto& entry = registry()[window];
  if (!entry) entry = std::make_shared<clsWndSubClass>();
  entry->Add(watcher, window);
}

void unregisterWatcher(host::WindowHandle window, const clsSubClass& watcher) {
  const auto found = registry().find(window);
  if (found == registry().end()) return;
  found->second->Remove(watcher);
  if (found->second->Count() == 0) registry().erase(found);
}

int watchedWindows() { return static_cast<int>(registry().size()); }

}  // namespace qrn
