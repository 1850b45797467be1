#include "buttons/context_menu.h"

#include <cmath>
#include <cstdint>

namespace qrn {

std::shared_ptr<host::MenuEntry> ContextMenu::add(std::string_view caption) {
  const int index = menu_.count();
  if (!menu_.load(index, caption)) return nullptr;
  auto added = menu_.entry(index), model = menu_.entry(0);
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

Point menuPositionForKeyboard(const host::UserControl& control) {
  const auto third = [](double length) {
    const std::int32_t whole = static_cast<std::int32_t>(std::nearbyint(length)) / 3;
    return static_cast<double>(whole);
  };
  const Point unit = control.pixelsPerUnit();
  return control.platform().screenPosition(control.root()) + control.onSurface().topLeft() +
         Point{third(control.ScaleWidth()) * unit.x, third(2 * control.ScaleHeight()) * unit.y};
}

}  // namespace qrn
