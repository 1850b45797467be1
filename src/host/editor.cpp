#include "host/editor.h"

#include "host/user_control.h"

namespace qrn::host {

const FontPtr& Editor::Font() const { return font_ ? font_ : Parent()->font(); }

void Editor::SetFont(FontPtr font) {
  font_ = std::move(font);
  fontChanged();
  touched(Aspect::Look);
}

void Editor::paint(Surface& surface, Size) { platform().paintControl(surface, *this); }

}  // namespace qrn::host
