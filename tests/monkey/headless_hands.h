#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/headless/headless_platform.h"
#include "platform/headless/recording_surface.h"
#include "platform/headless/user.h"
#include "play/hands.h"

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
    if (surface_.get() == &surface && surface.peer()) return;
    surface_ = WeakRef<host::Control>(&surface);
    user_ = std::make_unique<headless::User>(machine_, surface);
    surface.realise();
  }

  void close() override {
    if (!surface_ || !surface_->peer()) return;
    surface().input().surfaceLostFocus();
    if (surface_) dropPeers(surface());
  }

  void resize(Size size) override {
    if (surface_) surface_->Move(0, 0, size.width, size.height);
  }

  void paint() override {
    if (!surface_ || !surface_->peer()) return;
    static_cast<headless::HeadlessPeer&>(*surface_->peer()).invalidated.clear();
    headless::RecordingSurface paper(machine_, surface_->pixelSize());
    surface().paintTree(paper);
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
  host::UserControl& surface() { return static_cast<host::UserControl&>(*surface_); }
  bool shown() const { return surface_ && surface_->peer() && surface_->Visible(); }

 private:
  static void dropPeers(host::ContainerControl& container) {
    for (host::Control* control : container.contained()) {
      control->dropPeer();
      if (auto* inner = dynamic_cast<host::ContainerControl*>(control)) dropPeers(*inner);
    }
    container.dropPeer();
  }

  headless::HeadlessPlatform machine_;
  ListeningSite site_{machine_, *this};
  WeakRef<host::Control> surface_;
  std::unique_ptr<headless::User> user_;
};

inline std::unique_ptr<Hands> makeHeadlessHands() { return std::make_unique<HeadlessHands>(); }

}  // namespace qrn::monkey
