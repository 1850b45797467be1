#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "support/panel_fixture.h"

namespace qrn::test {

inline constexpr const char* kWhite = "#ffffff";   // of what lies towards the light
inline constexpr const char* kShadow = "#a0a0a0";  // and of what lies away from it

/// A button of 90 by 30 in a panel, without icon; characters are 6 by 13.
class ActionButton : public PanelTest {
 protected:
  ActionButton() {
    item_ = items().AddAction("Button", ddtypeMenu);
    button().SetIcon(nullptr);
    button().Move(0, 0, 90, 30);
    events_ = button().ObjectEvent.connect([this](std::string_view name, host::EventArgs arguments) {
      std::string line(name);
      for (const auto& argument : arguments) line += " " + std::to_string(argument.asLong());
      heard.push_back(line);
    });
  }

  QRNMenuItem& button() { return item_->Control(); }
  Point place(Point inButton) { return button().onSurface().topLeft() + inButton; }
  headless::RecordingSurface painted() {
    const Size size = button().pixelSize();
    headless::RecordingSurface surface(platform, size);
    button().paint(surface, size);
    return surface;
  }
  // The colour of the left edge of the frame, or nothing.
  std::string frame() {
    const auto lines = painted().operations("line");
    if (lines.empty()) return "";
    EXPECT_EQ(lines.size(), 4u);
    return lines.front().substr(lines.front().rfind('#'));
  }
  Events texts() { return painted().operations("text"); }
  Events take() { return std::exchange(heard, {}); }
  int clicks() {
    const Events lines = take();
    return static_cast<int>(std::count(lines.begin(), lines.end(), "Click"));
  }

  std::vector<std::string> heard;

 private:
  std::shared_ptr<clsQRNAction> item_;
  Connection events_;
};

}  // namespace qrn::test
