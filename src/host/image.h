#pragma once

#include "host/control.h"
#include "host/picture.h"

namespace qrn::host {

/// A picture at its own size, without a window of its own.
class Image final : public Control {
 public:
  std::string_view typeName() const override { return "Image"; }

  const PicturePtr& Picture() const { return picture_; }
  /// The image takes the size of its picture; an empty one has none.
  void SetPicture(PicturePtr picture);

  void paint(Surface& surface, Size size) override;

 protected:
  void tellFacts(AccessibleFacts& facts) const override;
  void accessibleAct(std::int32_t) override;

 private:
  PicturePtr picture_;
};

}  // namespace qrn::host
