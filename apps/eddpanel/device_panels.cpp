#include "device_panels.h"

#include <algorithm>

namespace qrn::eddpanel {

DevicePanels::DevicePanels(const edd::Description& description, host::Site& site)
    : description_(description), site_(site), device_(description) {
  for (const edd::Menu* root : description.rootMenus()) collect(*root);
}

void DevicePanels::collect(const edd::Menu& menu) {
  if (std::find(menus_.begin(), menus_.end(), &menu) != menus_.end()) return;
  menus_.push_back(&menu);
  for (const edd::MenuItem& item : menu.items) {
    if (item.kind == edd::ItemKind::Menu) collect(description_.menus()[item.index]);
  }
}

MenuPanel& DevicePanels::open(const edd::Menu& menu) {
  for (const auto& panel : panels_) {
    if (&panel->menu() != &menu) continue;
    panel->refresh(false);
    return *panel;
  }
  panels_.push_back(std::make_unique<MenuPanel>(description_, menu, device_, site_));
  MenuPanel& added = *panels_.back();
  if (opened_) opened_(added);
  return added;
}

const edd::Menu* DevicePanels::find(std::string_view nameOrLabel) const {
  for (const edd::Menu* menu : menus_) {
    if (menu->name == nameOrLabel || menu->label == nameOrLabel) return menu;
  }
  return nullptr;
}

}  // namespace qrn::eddpanel
