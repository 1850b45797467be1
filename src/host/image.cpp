#include "host/image.h"

#include "host/user_control.h"

namespace qrn::host {

void Image::SetPicture(PicturePtr picture) {
  if (picture == picture_) return;
  picture_ = std::move(picture);
  const Point scale = Container() ? Container()->pixelsPerUnit() : Point{1, 1};
  Move(Left(), Top(), picture_ ? picture_->width() / scale.x : 0,
       picture_ ? picture_->height() / scale.y : 0);
  invalidate();
}

void Image::tellFacts(AccessibleFacts& facts) const {
  facts.role = AccessibleRole::Picture;
  facts.name = ToolTipText();
}

void Image::accessibleAct(std::int32_t) { Parent()->childPressed(*this); }

void Image::paint(Surface& surface, Size) {
  if (picture_ && !picture_->empty()) surface.picture({0, 0}, *picture_);
}

}  // namespace qrn::host
