#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/headless/headless_platform.h"
#include "platform/headless/user.h"
#include "play/hands.h"
#include "support/headless_window.h"

namespace qrn::monkey {

/// Lets the audience hear of changed properties.
struct ListeningSite final : headless::HeadlessSite {
  ListeningSite(host::Platform& platform, const Hands& hands) : HeadlessSite(platform), hands_(hands) {}
  void propertyChanged(host::UserControl&, std::string_view key) override {
    if (hands_.siteHeard) hands_.siteHeard(key);
  }

 private:
  const Hands& hands_;
};

/// A machine without a display, and a simulated user.
class HeadlessHands : public Hands {
 public:
  host::Platform& platform() override { return machine_; }
  host::Site& site() override { return site_; }

  void show(host::UserControl& surface) override {
    if (window_.surface() == &surface && window_.isOpen()) return;
    user_ = std::make_unique<headless::User>(machine_, surface);
    window_.show(surface);
  }
  void close() override { window_.close(); }
  void resize(Size size) override {
    if (window_.surface()) surface().Move(0, 0, size.width, size.height);
  }
  void paint() override {
    window_.takeInvalidated();
    window_.paint();
  }

  void press(Point at, host::MouseButton button) override {
    if (shown()) user_->pressesAt(at, button);
  }
  void release(Point at, host::MouseButton button) override {
    if (shown()) user_->releasesAt(at, button);
  }
  void move(Point at) override {
    if (shown()) user_->movesTo(at);
  }
  void doubleClick(Point at) override {
    if (shown()) surface().input().doubleClick(at);
  }
  void turnWheel(Point at, double notches) override {
    if (shown()) user_->turnsWheel(at, notches);
  }
  void scroll(host::VScrollBar& bar, std::int32_t value) override {
    if (shown()) user_->scrollsTo(bar, value);
  }
  void pressKey(std::int16_t key, std::int16_t shift) override {
    if (shown()) user_->presses(key, shift);
  }
  void type(std::string_view text) override {
    if (shown()) user_->types(text);
  }
  void willChoose(std::optional<int> entry) override { machine_.willChoose(entry); }

  void surfaceGetsFocus() override {
    if (shown()) surface().input().surfaceGotFocus();
  }
  void surfaceLosesFocus() override {
    if (shown()) surface().input().surfaceLostFocus();
  }
  void applicationActivated(bool active) override { machine_.windows().applicationActivated(active); }
  void letTimePass(std::chrono::milliseconds time) override { machine_.clock().advance(time); }
  void runMessages() override { machine_.windows().deliverPosted(); }

  std::string leftBehind() override {
    if (machine_.peers() != 0) return std::to_string(machine_.peers()) + " peers";
    if (machine_.clock().runningTimers() != 0)
      return std::to_string(machine_.clock().runningTimers()) + " timers";
    return {};
  }

 protected:
  /// What was shown last, and whether a user still can see it.
  host::UserControl& surface() { return *window_.surface(); }
  bool shown() const { return window_.isOpen() && window_.surface()->Visible(); }

 private:
  headless::HeadlessPlatform machine_;
  ListeningSite site_{machine_, *this};
  test::HeadlessWindow window_{machine_};
  std::unique_ptr<headless::User> user_;
};

inline std::unique_ptr<Hands> makeHeadlessHands() { return std::make_unique<HeadlessHands>(); }

}  // namespace qrn::monkey
