#include "host/picture_box.h"

#include "host/user_control.h"

namespace qrn::host {

void PictureBox::scrollTo(double offset) {
  if (offset == scrolledBy_) return;
  scrolledBy_ = offset;
  // An editor with a native widget moves along; it is never hidden, which would cost it the focus.
  input().tellInside(*this, Aspect::Place);
  invalidate();
}

void PictureBox::moved(const Rect& before, const Rect& now) {
  if (before.size() != now.size() && Parent()) Parent()->childChanged(*this);
}

}  // namespace qrn::host
