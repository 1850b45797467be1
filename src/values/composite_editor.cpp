#include "values/composite_editor.h"

namespace qrn {

void CompositeEditor::SetScaleMode(std::int16_t mode) {
  setScaleMode(mode);
  resize();
}

}  // namespace qrn
