#include "buttons/context_menu.h"

namespace qrn {

std::shared_ptr<host::MenuEntry> ContextMenu::add(std::string_view caption) {
  const int index = menu_.count();
  if (!menu_.load(index, caption)) return nullptr;
  const auto added = menu_.entry(index), model = menu_.entry(0);
  added->SetEnabled(model->Enabled());
  added->SetChecked(model->Checked());
  return added;
}

void ContextMenu::remove(int index) {
  if (index > 0) menu_.unload(index);
}

void ContextMenu::removeAll() {
  for (int index = menu_.count() - 1; index >= 1; --index) remove(index);
}

std::optional<int> ContextMenu::show(host::Platform& platform, Point screen) {
  if (menu_.count() < 2) return std::nullopt;
  menu_.entry(0)->SetVisible(false);
  return menu_.popUp(platform, screen);
}

}  // namespace qrn
