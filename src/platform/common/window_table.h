#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <utility>
#include <vector>

#include "host/windows.h"

namespace qrn {

/// The windows of a platform that has none of the Win32 kind: a table of slots with procedures, longs,
/// properties and a message queue. A handle names its slot and the slot's generation, so that a stale one is
/// recognised. One per thread.
class WindowTable : public host::Windows {
 public:
  WindowTable();
  WindowTable(const WindowTable&) = delete;
  WindowTable& operator=(const WindowTable&) = delete;
  ~WindowTable() override;

  host::WindowHandle create(host::WindowOwner& owner) override;
  void destroy(host::WindowHandle window) override;
  std::intptr_t getLong(host::WindowHandle window, int index) override;
  std::intptr_t setLong(host::WindowHandle window, int index, std::intptr_t value) override;
  std::intptr_t callProcedure(std::intptr_t procedure, host::WindowHandle window,
                              const host::Message& message) override;
  std::intptr_t property(host::WindowHandle window, std::string_view name) override;
  void setProperty(host::WindowHandle window, std::string_view name, std::intptr_t value) override;
  std::intptr_t removeProperty(host::WindowHandle window, std::string_view name) override;
  host::WindowHandle parent(host::WindowHandle window) override;
  host::WindowHandle findByTitle(std::string_view title) override;
  bool isEnabled(host::WindowHandle window) override;
  void invalidate(host::WindowHandle window) override;
  std::intptr_t send(host::WindowHandle window, const host::Message& message) override;
  void post(host::WindowHandle window, const host::Message& message) override;

  /// To every window without a parent.
  void sendToAll(const host::Message& message);
  /// The application as a whole has been activated, or left for another one.
  void applicationActivated(bool active) { sendToAll({host::wm::ActivateApp, active ? 1 : 0, 0}); }

  /// Delivers what was posted before the call; what is posted meanwhile waits for the next one.
  void deliverPosted();
  bool hasPosted() const { return !posted_.empty(); }
  int windowCount() const { return static_cast<int>(slots_.size() - free_.size()); }

 protected:
  /// The queue has something in it now; the message loop has to call deliverPosted.
  virtual void wake() {}

 private:
  struct Slot {
    host::WindowOwner* owner = nullptr;  // null: free
    std::uint32_t generation = 0;
    std::intptr_t procedure = 0;
    std::intptr_t style = 0;
    std::intptr_t userData = 0;
    std::vector<std::pair<std::string, std::intptr_t>> properties;
  };

  static std::intptr_t ownProcedure(host::WindowHandle window, std::uint32_t number, std::intptr_t wParam,
                                    std::intptr_t lParam);
  Slot* find(host::WindowHandle window);
  host::WindowHandle handleOf(std::uint32_t index) const;
  std::intptr_t* longOf(Slot& slot, int index);

  std::vector<Slot> slots_;
  std::vector<std::uint32_t> free_;
  std::deque<std::pair<host::WindowHandle, host::Message>> posted_;
};

}  // namespace qrn
