#include "host/list_editor.h"

#include "base/letter_case.h"
#include "base/text.h"
#include "host/user_control.h"

namespace qrn::host {

void ListEditor::entriesChanged() {
  forgetMeasures();
  touched(Aspect::Entries);
}

std::int32_t ListEditor::indexTypedTo(char32_t character) const {
  std::string wanted;
  text::append(wanted, character);
  wanted = upperCase(std::string_view(wanted));
  const std::int32_t count = ListCount();
  for (std::int32_t step = 1; step <= count; ++step) {
    const std::int32_t index = (listIndex_ + step) % count;
    if (upperCase(std::string_view(List(index))).starts_with(wanted)) return index;
  }
  return listIndex_;
}

std::intptr_t ListEditor::windowMessage(const Message& message) {
  if (message.number == wm::GetDlgCode) return dlgc::WantChars | dlgc::WantArrows;
  return Editor::windowMessage(message);
}

}  // namespace qrn::host
