#include "hooks/clsQRNEDitSubClass.h"

#include <utility>

#include "host/platform.h"

namespace qrn {
void clsQRNEDitSubClass::SetHwnd(host::WindowHandle window) {
  if (window == 0) return unhook();
  host::Windows* const table = host::Platform::currentWindows();
  if (previousProcedure_ != 0 || !table) return;
  previousProcedure_ =
      table->setLong(window, host::kGwlWndProc, reinterpret_cast<std::intptr_t>(&EditHookProc));
  hwnd_ = window;
  table->setLong(window, host::kGwlUserData, reinterpret_cast<std::intptr_t>(this));
}

void clsQRNEDitSubClass::unhook() {
  const std::intptr_t previous = std::exchange(previousProcedure_, 0);
  const host::WindowHandle window = std::exchange(hwnd_, 0);
  host::Windows* const table = host::Platform::currentWindows();
  if (previous == 0 || !table) return;
  table->setLong(window, host::kGwlWndProc, previous);
  // Whoever kept the hook's procedure finds nobody behind it rather than a dead object.
  table->setLong(window, host::kGwlUserData, 0);
}

std::intptr_t clsQRNEDitSubClass::WindowHookFunction(host::WindowHandle hwnd, std::uint32_t msg,
                                                     std::intptr_t wParam, std::intptr_t lParam) {
  // The message may end the editor, and this object with it.
  const std::intptr_t answer =
      host::Platform::currentWindows()->callProcedure(previousProcedure_, hwnd, {msg, wParam, lParam});
  return msg == host::wm::GetDlgCode ? answer | host::dlgc::WantAllKeys : answer;
}

std::intptr_t clsQRNEDitSubClass::EditHookProc(host::WindowHandle hwnd, std::uint32_t msg,
                                               std::intptr_t wParam, std::intptr_t lParam) {
  std::intptr_t answer = 0;
  // Nothing may cross the call of a window.
  try {
    // A window keeps numbers only.
    const std::intptr_t kept = host::Platform::currentWindows()->getLong(hwnd, host::kGwlUserData);
    auto* const object = reinterpret_cast<clsQRNEDitSubClass*>(kept);  // NOLINT(performance-no-int-to-ptr)
    if (object) answer = object->WindowHookFunction(hwnd, msg, wParam, lParam);
  } catch (...) {
  }
  return answer;
}

}  // namespace qrn
