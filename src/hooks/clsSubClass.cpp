#include "hooks/clsSubClass.h"

#include <utility>

#include "hooks/window_registry.h"
#include "host/platform.h"

namespace qrn {

clsSubClass::~clsSubClass() { SetHwnd(0); }

void clsSubClass::SetHwnd(host::WindowHandle window) {
  if (hwnd_ != 0) unregisterWatcher(std::exchange(hwnd_, 0), *this);
  host::Windows* const windows = host::Platform::currentWindows();
  if (window == 0 || !windows) return;
  while (const host::WindowHandle parent = windows->parent(window)) window = parent;
  hwnd_ = window;
  registerWatcher(window, *this);
}

void clsSubClass::WindowProc(host::WindowHandle& hwnd, std::uint32_t& msg, std::intptr_t& wParam,
                             std::intptr_t& lParam) {
  const WeakRef<clsSubClass> self(this);
  if (reportEveryMessage_) MessageArrived.raise(hwnd, msg, wParam, lParam);
  if (!self) return;
  switch (msg) {
    case host::wm::Activate:
      if (reportWindowActivation_) (wParam != 0 ? WindowActivated : WindowDeactivated).raise();
      break;
    case host::wm::Close: AppLostFocus.raise(); break;
    case host::wm::ActivateApp: (wParam != 0 ? AppGotFocus : AppLostFocus).raise(); break;
    default: break;
  }
}

}  // namespace qrn
