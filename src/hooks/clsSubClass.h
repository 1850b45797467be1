#pragma once

#include "base/event.h"
#include "base/weak_ref.h"
#include "host/windows.h"

namespace qrn {

/// Watches the top-level window that a control lies in, to hear when the application as a whole is activated
/// or left. Any number of watchers share one window; see clsWndSubClass.
class clsSubClass {
 public:
  clsSubClass() = default;
  clsSubClass(const clsSubClass&) = delete;
  clsSubClass& operator=(const clsSubClass&) = delete;
  virtual ~clsSubClass();

  /// The watched window; 0 for none.
  host::WindowHandle hwnd() const { return hwnd_; }
  /// Watches the top-level ancestor of a window, and no longer the one before; 0 watches none.
  void SetHwnd(host::WindowHandle window);

  /// Hears every message of the window before the window does, and may change it.
  virtual void WindowProc(host::WindowHandle& hwnd, std::uint32_t& msg, std::intptr_t& wParam,
                          std::intptr_t& lParam);

  Event<> AppGotFocus;
  /// Also raised when the window is about to close.
  Event<> AppLostFocus;
  Event<> WindowActivated;
  Event<> WindowDeactivated;
  Event<host::WindowHandle&, std::uint32_t&, std::intptr_t&, std::intptr_t&> MessageArrived;

  Anchor& anchor() { return anchor_; }

 protected:
  /// Most watchers want to hear of the application only; a derived one turns on what else it wants.
  bool reportWindowActivation_ = false;
  bool reportEveryMessage_ = false;

 private:
  Anchor anchor_;
  host::WindowHandle hwnd_ = 0;
};

}  // namespace qrn
