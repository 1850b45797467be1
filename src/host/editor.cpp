#include "host/editor.h"

#include "host/user_control.h"

namespace qrn::host {

const FontPtr& Editor::Font() const { return font_ ? font_ : Parent()->font(); }

void Editor::SetFont(FontPtr font) {
  font_ = std::move(font);
  forgetMeasures();
  touched(Aspect::Look);
}

void Editor::fontChanged() {
  if (font_) return;
  forgetMeasures();
  touched(Aspect::Look);
}

void Editor::forgetMeasures() {
  if (Parent()) Parent()->childMeasureChanged(*this);
}

void Editor::paint(Surface& surface, Size) { platform().paintControl(surface, *this); }

}  // namespace qrn::host
