#pragma once

#include "host/control.h"

namespace qrn::host {

/// A vertical scroll bar. It never takes the focus.
class VScrollBar final : public Control {
 public:
  std::string_view typeName() const override { return "VScrollBar"; }

  std::int32_t Min() const { return min_; }
  std::int32_t Max() const { return max_; }
  void SetMax(std::int32_t max);
  std::int32_t Value() const { return value_; }
  /// Errors: 380 outside the range between Min and Max.
  void SetValue(std::int32_t value);
  std::int32_t LargeChange() const { return largeChange_; }
  void SetLargeChange(std::int32_t change) { this->change(largeChange_, change, Aspect::Range); }
  std::int32_t SmallChange() const { return smallChange_; }
  void SetSmallChange(std::int32_t change) { this->change(smallChange_, change, Aspect::Range); }

  PeerPolicy peerPolicy() const override { return PeerPolicy::WhenShown; }
  /// Makes the native widget where the surface has one and nothing lies in front of it, which it would show
  /// through.
  void realiseWithSurface();

  void userScrolled(std::int32_t value);

  void paint(Surface& surface, Size size) override;

 protected:
  void placed() override { realiseWithSurface(); }
  void visibilityChanged() override {
    if (Container()) realiseWithSurface();
  }
  void tellFacts(AccessibleFacts& facts) const override;
  bool accessibleEnter(std::string_view number) override;

 private:
  std::int32_t inRange(std::int32_t value) const;

  std::int32_t min_ = 0;
  std::int32_t max_ = 32767;
  std::int32_t value_ = 0;
  std::int32_t largeChange_ = 1;
  std::int32_t smallChange_ = 1;
};

}  // namespace qrn::host
