#pragma once

#include <string>
#include <string_view>

#include "base/event.h"
#include "host/platform.h"

namespace qrn::host {

/// A hidden top-level window: what posted keys are sent to.
class Form : public WindowOwner {
 public:
  explicit Form(Platform& platform, std::string_view title = {})
      : windows_(platform.windows()), title_(title), handle_(windows_.create(*this)) {}
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;
  ~Form() override { windows_.destroy(handle_); }

  WindowHandle window() const { return handle_; }

  Event<std::int16_t&, std::int16_t&> KeyDown;
  Event<std::int16_t&, std::int16_t&> KeyUp;

  std::intptr_t windowMessage(const Message& message) override {
    auto keyCode = static_cast<std::int16_t>(message.wParam);
    std::int16_t shiftState = 0;
    if (message.number == wm::KeyDown)
      KeyDown.raise(keyCode, shiftState);
    else if (message.number == wm::KeyUp)
      KeyUp.raise(keyCode, shiftState);
    return 0;
  }
  bool windowEnabled() const override { return true; }
  WindowHandle parentWindow() const override { return 0; }
  std::string_view windowTitle() const override { return title_; }
  void windowInvalidated() override {}

 private:
  Windows& windows_;
  std::string title_;
  WindowHandle handle_;
};

}  // namespace qrn::host
