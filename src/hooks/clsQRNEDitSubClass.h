#pragma once

#include "host/windows.h"

namespace qrn {

/// Makes the window of an editor ask for all keys, so that a dialog around it does not take Enter, Escape,
/// Tab or the arrows for its own navigation.
class clsQRNEDitSubClass {
 public:
  clsQRNEDitSubClass() = default;
  clsQRNEDitSubClass(const clsQRNEDitSubClass&) = delete;
  clsQRNEDitSubClass& operator=(const clsQRNEDitSubClass&) = delete;
  ~clsQRNEDitSubClass() { unhook(); }

  host::WindowHandle hwnd() const { return hwnd_; }
  /// Hooks a window, or with 0 gives the hooked one its own procedure back. While one is hooked, another is
  /// not taken.
  void SetHwnd(host::WindowHandle window);

  std::intptr_t WindowHookFunction(host::WindowHandle hwnd, std::uint32_t msg, std::intptr_t wParam,
                                   std::intptr_t lParam);
  /// The procedure of the hooked windows: finds the window's object and asks that.
  static std::intptr_t EditHookProc(host::WindowHandle hwnd, std::uint32_t msg, std::intptr_t wParam,
                                    std::intptr_t lParam);

 private:
  void unhook();

  host::WindowHandle hwnd_ = 0;
  std::intptr_t previousProcedure_ = 0;
};

}  // namespace qrn
