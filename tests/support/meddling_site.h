#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/headless/headless_platform.h"

namespace qrn::test {

/// A site that does something to a control the first time that one of its properties has changed.
struct MeddlingSite final : headless::HeadlessSite {
  using HeadlessSite::HeadlessSite;
  using Deed = std::function<void(host::UserControl&)>;

  void on(std::string key, Deed deed) {
    key_ = std::move(key);
    deed_ = std::move(deed);
  }
  void propertyChanged(host::UserControl& control, std::string_view key) override {
    if (key != key_) return;
    if (const Deed once = std::exchange(deed_, nullptr)) once(control);
  }

 private:
  std::string key_;
  Deed deed_;
};

}  // namespace qrn::test
