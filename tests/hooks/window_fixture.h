#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "hooks/clsSubClass.h"
#include "platform/headless/headless_platform.h"

namespace qrn::test {

using host::Message;
using host::WindowHandle;
using Heard = std::vector<std::string>;

/// A window that notes the numbers of the messages that reach it and answers each with 1000 + its number.
struct Window final : host::WindowOwner {
  Window(host::Windows& table, Heard& log, WindowHandle above = 0)
      : windows(table), heard(log), parent(above), handle(table.create(*this)) {}
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;
  ~Window() override { windows.destroy(handle); }

  std::intptr_t windowMessage(const Message& message) override {
    heard.push_back("window " + std::to_string(message.number) + " " + std::to_string(message.wParam));
    return 1000 + message.number;
  }
  bool windowEnabled() const override { return true; }
  WindowHandle parentWindow() const override { return parent; }
  std::string_view windowTitle() const override { return {}; }
  void windowInvalidated() override {}

  host::Windows& windows;
  Heard& heard;
  WindowHandle parent;
  WindowHandle handle;
};

class WindowTest : public ::testing::Test {
 protected:
  std::intptr_t procedureOf(WindowHandle window) {
    return platform.windows().getLong(window, host::kGwlWndProc);
  }
  std::intptr_t send(WindowHandle window, std::uint32_t number, std::intptr_t wParam = 0) {
    return platform.windows().send(window, {number, wParam, 0});
  }

  headless::HeadlessPlatform platform;
  Heard heard;
  Window top{platform.windows(), heard};
  Window child{platform.windows(), heard, top.handle};
};

}  // namespace qrn::test
