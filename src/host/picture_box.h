#pragma once

#include "host/container_control.h"

namespace qrn::host {

/// A plain area that other controls lie in; its inside can be scrolled.
class PictureBox final : public ContainerControl {
 public:
  std::string_view typeName() const override { return "PictureBox"; }

  // The inside is measured in pixels.
  double ScaleWidth() const { return pixelSize().width; }
  double ScaleHeight() const { return pixelSize().height; }

  /// Pixels by which the inside is moved up.
  double scrolledBy() const { return scrolledBy_; }
  void scrollTo(double offset);
  Point scrollOffset() const override { return {0, scrolledBy_}; }

  bool acceptsFocus() const override { return Enabled(); }

 protected:
  void moved(const Rect& before, const Rect& now) override;

 private:
  double scrolledBy_ = 0;
};

}  // namespace qrn::host
