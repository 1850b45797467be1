#include "buttons/context_menu.h"

#include <limits>

#include "runtime/rounding.h"

namespace qrn {
namespace {

Point keyboardPosition(const host::UserControl& control) {
  const auto third = [](double length) {
    return static_cast<double>(static_cast<std::int32_t>(roundHalfEven(length)) / 3);
  };
  const Point unit = control.pixelsPerUnit();
  return control.platform().screenPosition(control.root()) + control.onSurface().topLeft() +
         Point{third(control.ScaleWidth()) * unit.x, third(2 * control.ScaleHeight()) * unit.y};
}

}  // namespace

host::PopupMenu& ContextMenu::menu() {
  if (!menu_) {
    menu_ = std::make_unique<host::PopupMenu>();
    menu_->load(0, "&Help");
  }
  return *menu_;
}

std::shared_ptr<host::MenuEntry> ContextMenu::add(std::string_view caption) {
  // An event tells the index as an Integer.
  const int index = menu().count();
  if (index > std::numeric_limits<std::int16_t>::max() || !menu().load(index, caption)) return nullptr;
  auto added = entry(index), model = entry(0);
  added->SetEnabled(model->Enabled());
  added->SetChecked(model->Checked());
  return added;
}

void ContextMenu::remove(int index) {
  if (menu_ && index > 0) menu_->unload(index);
}

void ContextMenu::removeAll() {
  for (int index = menu_ ? menu_->count() - 1 : 0; index >= 1; --index) remove(index);
}

std::optional<std::int16_t> ContextMenu::show(host::UserControl& control, bool atKeyboard) {
  if (!menu_ || menu_->count() < 2) return std::nullopt;
  menu_->entry(0)->SetVisible(false);
  const WeakRef<host::Control> guard(&control);
  host::Platform& platform = control.platform();
  const auto chosen = menu_->popUp(platform, atKeyboard ? keyboardPosition(control) : platform.cursor());
  if (!chosen || !guard) return std::nullopt;
  return static_cast<std::int16_t>(*chosen);
}

}  // namespace qrn
