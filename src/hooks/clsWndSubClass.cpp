#include "hooks/clsWndSubClass.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "host/platform.h"

namespace qrn {
namespace {

constexpr std::string_view kObjectPointer = "ObjectPointer";
constexpr std::string_view kOldWindowProc = "OldWindowProc";

}  // namespace

void clsWndSubClass::Add(clsSubClass& watcher, host::WindowHandle hwnd) {
  if (watchers_.empty()) hook(hwnd);
  watchers_.push_back(&watcher);
}

void clsWndSubClass::Remove(const clsSubClass& watcher) {
  std::erase(watchers_, &watcher);
  if (watchers_.empty()) unhook();
}

void clsWndSubClass::hook(host::WindowHandle window) {
  host::Windows* const table = host::Platform::currentWindows();
  if (!table) return;
  if (table->property(window, kOldWindowProc) == 0) {
    table->setProperty(window, kObjectPointer, reinterpret_cast<std::intptr_t>(this));
    table->setProperty(window, kOldWindowProc, table->getLong(window, host::kGwlWndProc));
    table->setLong(window, host::kGwlWndProc, reinterpret_cast<std::intptr_t>(&windowProcedure));
  }
  hwnd_ = window;
}

void clsWndSubClass::unhook() {
  host::Windows* const table = host::Platform::currentWindows();
  const host::WindowHandle window = std::exchange(hwnd_, 0);
  // Another object may have hooked the window since.
  if (!table || table->property(window, kObjectPointer) != reinterpret_cast<std::intptr_t>(this)) return;
  table->setLong(window, host::kGwlWndProc, table->property(window, kOldWindowProc));
  table->removeProperty(window, kOldWindowProc);
  table->removeProperty(window, kObjectPointer);
}

bool clsWndSubClass::watches(const clsSubClass* watcher) const {
  return std::find(watchers_.begin(), watchers_.end(), watcher) != watchers_.end();
}

std::intptr_t clsWndSubClass::WindowProc(host::WindowHandle hwnd, std::uint32_t msg, std::intptr_t wParam,
                                         std::intptr_t lParam) {
  // The last watcher may leave, and the window may go, while they are being told.
  const auto self = weak_from_this().lock();
  host::Windows& table = *host::Platform::currentWindows();
  const std::intptr_t ownProcedure = table.property(hwnd, kOldWindowProc);
  const auto orUnhook = [this](auto&& call) {
    try {
      call();
    } catch (...) {
      unhook();
    }
  };
  orUnhook([&] {
    const auto toTell = watchers_;
    for (clsSubClass* watcher : toTell) {
      if (watches(watcher)) watcher->WindowProc(hwnd, msg, wParam, lParam);
    }
  });
  std::intptr_t answer = 0;
  orUnhook([&] { answer = table.callProcedure(ownProcedure, hwnd, {msg, wParam, lParam}); });
  return answer;
}

std::intptr_t clsWndSubClass::windowProcedure(host::WindowHandle hwnd, std::uint32_t msg,
                                              std::intptr_t wParam, std::intptr_t lParam) {
  // A window keeps numbers only.
  const std::intptr_t kept = host::Platform::currentWindows()->property(hwnd, kObjectPointer);
  auto* const object = reinterpret_cast<clsWndSubClass*>(kept);  // NOLINT(performance-no-int-to-ptr)
  return object ? object->WindowProc(hwnd, msg, wParam, lParam) : 0;
}

}  // namespace qrn
