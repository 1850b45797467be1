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

  void show(QRNDisplay& panel) override {
    if (panel_.get() == &panel && panel.peer()) return;
    panel_ = WeakRef<host::Control>(&panel);
    user_ = std::make_unique<headless::User>(machine_, panel);
    panel.realise();
  }

  void close() override {
    if (!panel_ || !panel_->peer()) return;
    panel().input().surfaceLostFocus();
    if (panel_) dropPeers(panel());
  }

  void resize(Size size) override {
    if (panel_) panel_->Move(0, 0, size.width, size.height);
  }

  void paint() override {
    if (!panel_ || !panel_->peer()) return;
    static_cast<headless::HeadlessPeer&>(*panel_->peer()).invalidated.clear();
    headless::RecordingSurface surface(machine_, panel_->pixelSize());
    panel().paintTree(surface);
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
    if (shown()) panel().input().doubleClick(at);
  }
  void turnWheel(Point at, double notches) override {
    if (shown()) user_->turnsWheel(at, notches);
  }
  void scroll(std::int32_t value) override {
    if (shown()) user_->scrollsTo(panel().sbrVertical(), value);
  }
  void pressKey(std::int16_t key, std::int16_t shift) override {
    if (shown()) user_->presses(key, shift);
  }
  void type(std::string_view text) override {
    if (shown()) user_->types(text);
  }
  void willChoose(std::optional<int> entry) override { machine_.willChoose(entry); }

  void surfaceGetsFocus() override {
    if (shown()) panel().input().surfaceGotFocus();
  }
  void surfaceLosesFocus() override {
    if (shown()) panel().input().surfaceLostFocus();
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
  /// The panel that was shown last, and whether there still is a surface that a user can see.
  QRNDisplay& panel() { return static_cast<QRNDisplay&>(*panel_); }
  bool shown() const { return panel_ && panel_->peer() && panel_->Visible(); }

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
  WeakRef<host::Control> panel_;
  std::unique_ptr<headless::User> user_;
};

inline std::unique_ptr<Hands> makeHeadlessHands() { return std::make_unique<HeadlessHands>(); }

}  // namespace qrn::monkey
