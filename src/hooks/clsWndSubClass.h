#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "hooks/clsSubClass.h"

namespace qrn {

/// A window whose messages go through its watchers first. It is hooked from its first watcher to the removal
/// of the last one, which puts the window's own procedure back. Watchers observe: the window gets every
/// message, the way they leave it.
class clsWndSubClass : public std::enable_shared_from_this<clsWndSubClass> {
 public:
  clsWndSubClass() = default;
  clsWndSubClass(const clsWndSubClass&) = delete;
  clsWndSubClass& operator=(const clsWndSubClass&) = delete;
  ~clsWndSubClass() { unhook(); }

  void Add(clsSubClass& watcher, host::WindowHandle hwnd);
  void Remove(const clsSubClass& watcher);
  std::int32_t Count() const { return static_cast<std::int32_t>(watchers_.size()); }
  /// 0 while no window is hooked.
  host::WindowHandle hwnd() const { return hwnd_; }

  /// A watcher that fails is the last one that hears anything: the window gets its own procedure back. So it
  /// does when that fails itself; nothing is thrown.
  std::intptr_t WindowProc(host::WindowHandle hwnd, std::uint32_t msg, std::intptr_t wParam,
                           std::intptr_t lParam);

 private:
  static std::intptr_t windowProcedure(host::WindowHandle hwnd, std::uint32_t msg, std::intptr_t wParam,
                                       std::intptr_t lParam);
  void hook(host::WindowHandle window);
  void unhook();
  bool watches(const clsSubClass* watcher) const;

  host::WindowHandle hwnd_ = 0;
  std::vector<clsSubClass*> watchers_;
};

}  // namespace qrn
