#include "contract/contract.h"
#include "contract/contract_tests.inc"
#include "platform/headless/headless_platform.h"
#include "platform/headless/user.h"
#include "support/headless_window.h"

namespace qrn::contract {
namespace {

class HeadlessContract final : public ContractPlatform {
 public:
  host::Platform& platform() override { return machine_; }

  void show(host::UserControl& surface) override {
    user_ = std::make_unique<headless::User>(machine_, surface);
    window_.show(surface);
    realiseScrollBars(surface);
    surface.invalidate();
    paintPending();
  }

  void close() override { window_.close(); }

  void paintPending() override {
    if (window_.takeInvalidated()) window_.paint();
  }

  void click(host::Control& control) override { user_->clicks(control); }
  void type(std::string_view text) override { user_->types(text); }
  void press(std::int16_t key, std::int16_t shift) override { user_->presses(key, shift); }
  void choose(host::ComboBox& box, std::int32_t entry) override { box.userSelected(entry); }
  void tick(host::ListBox& list, std::int16_t entry) override { user_->ticks(list, entry); }
  void scroll(host::VScrollBar& bar, std::int32_t value) override { user_->scrollsTo(bar, value); }
  void turnWheel(Point at, double notches) override { user_->turnsWheel(at, notches); }
  void willChoose(std::optional<int> entry) override { machine_.willChoose(entry); }

  bool runUntil(const std::function<bool()>& condition) override {
    for (int turn = 0; turn < 20 && !condition(); ++turn) machine_.windows().deliverPosted();
    return condition();
  }

  bool letTimePass(std::chrono::milliseconds upTo, const std::function<bool()>& condition) override {
    for (auto left = upTo; left.count() > 0 && !condition(); --left)
      machine_.clock().advance(std::chrono::milliseconds(1));
    return condition();
  }

 private:
  static void realiseScrollBars(host::ContainerControl& container) {
    for (host::Control* control : container.contained()) {
      if (control->peerPolicy() == host::PeerPolicy::WhenShown && control->Visible()) control->realise();
      if (auto* inner = dynamic_cast<host::ContainerControl*>(control)) realiseScrollBars(*inner);
    }
  }

  headless::HeadlessPlatform machine_;
  test::HeadlessWindow window_{machine_};
  std::unique_ptr<headless::User> user_;
};

std::unique_ptr<ContractPlatform> makeHeadless() { return std::make_unique<HeadlessContract>(); }

INSTANTIATE_TEST_SUITE_P(Headless, Contract, testing::Values(&makeHeadless));

}  // namespace
}  // namespace qrn::contract
