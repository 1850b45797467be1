#include "values/composite_editor.h"

namespace qrn {

void CompositeEditor::SetScaleMode(std::int16_t mode) {
  setScaleMode(mode);
  resize();
}

void CompositeEditor::SetFont(host::FontPtr font) {
  setFont(font);
  inner().SetFont(std::move(font));
  resize();
}

}  // namespace qrn
