#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "stack/QRNDisplayStack.h"
#include "support/panel_fixture.h"

namespace qrn::test {

/// The enabled pages from below, as in "..E": two disabled ones under an enabled one.
inline std::string enabledPages(QRNDisplayStack& stack) {
  std::string result;
  for (std::int32_t i = 1; i <= stack.Count(); ++i) result += stack.Pages(Variant(i)).Enabled() ? 'E' : '.';
  return result;
}

inline std::string activePages(QRNDisplayStack& stack) {
  std::string result;
  for (std::int32_t i = 1; i <= stack.Count(); ++i) result += stack.Pages(Variant(i)).Active() ? 'A' : '.';
  return result;
}

/// A stack on the headless platform: 400 by 300, indents of 10 and 20, characters 6 wide and 13 high.
class StackTest : public ::testing::Test {
 protected:
  StackTest() {
    registerControls();
    stack_ = host::create<QRNDisplayStack>(site);
    stack().Move(0, 0, 400, 300);
    listening_ = stack().ObjectEvent.connect([this](std::string_view name, host::EventArgs arguments) {
      if (isFocusEvent(name)) return;
      std::string line(name);
      for (std::size_t i = 0; i < arguments.size(); ++i) {
        const bool isFlag = (name == "ParameterEndEdit" && i == 2) || (name == "PageClose" && i == 1);
        line += (i ? ", " : "(") + (isFlag ? shown(arguments[i].as<bool>()) : shown(arguments[i].asLong()));
      }
      lines_.push_back(line + ")");
    });
    user = std::make_unique<headless::User>(platform, stack());
  }

  QRNDisplayStack& stack() { return *stack_; }
  /// Closes the form that the stack is on.
  void destroyStack() {
    user.reset();
    stack_.reset();
  }
  QRNDisplay& page(std::int32_t index) { return stack().Pages(Variant(index)); }
  QRNDisplay* add(bool modal = false) { return stack().AddPage("", "", modal); }
  /// Pages one on the other; 'm' is a modal one.
  void addPages(std::string_view kinds) {
    for (const char kind : kinds) add(kind == 'm');
    take();
  }
  QRNEdit& addRow(QRNDisplay& display, qrnValueType type = qrnTypeString) {
    const auto item = display.Items().AddParameter("", type);
    display.LayoutControls(false);
    return item->Control();
  }
  /// What was raised since the last call.
  Events take() { return std::exchange(lines_, {}); }

  /// Exactly one page is active, the top one, those below the uppermost modal one are disabled, and each
  /// begins where it belongs.
  void expectInOrder() {
    const std::int32_t count = stack().Count();
    EXPECT_EQ(activePages(stack()),
              std::string(static_cast<std::size_t>(std::max(count - 1, 0)), '.') + (count > 0 ? "A" : ""));
    std::int32_t dialog = 0;
    for (std::int32_t i = 1; i <= count; ++i) {
      EXPECT_EQ(page(i).ControlsContainer().Visible(), i == count || !stack().HideDisabledControls()) << i;
      if (page(i).TitleStyle() == qrnTitleDialog)
        dialog = i;
      else
        EXPECT_EQ(page(i).bounds().topLeft(), (Point{10.0 * (i - 1), 20.0 * (i - 1)})) << i;
    }
    for (std::int32_t i = 1; i <= count; ++i) EXPECT_EQ(page(i).Enabled(), i >= dialog) << i;
    if (count == 0) return;
    EXPECT_EQ(stack().contained().back(), &page(count)) << "the top page is in front";
  }

  /// Only the first time, so that what it does itself is left alone.
  static std::function<void()> once(std::function<void()> action) {
    return [action = std::move(action), done = std::make_shared<bool>(false)] {
      if (!std::exchange(*done, true)) action();
    };
  }

  headless::HeadlessPlatform platform;
  headless::HeadlessSite site{platform};
  host::Owned<QRNDisplayStack> stack_;
  std::unique_ptr<headless::User> user;
  Connection keep;  // of a listener of one test

 private:
  Connection listening_;
  Events lines_;
};

}  // namespace qrn::test
