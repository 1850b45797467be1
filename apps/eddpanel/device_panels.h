#pragma once

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "menu_panel.h"

namespace qrn::eddpanel {

/// All panels of a device, made when they are first opened.
class DevicePanels {
 public:
  /// Called once for every new panel, before anything is added to it.
  using Opened = std::function<void(MenuPanel&)>;

  DevicePanels(const edd::Description& description, host::Site& site);

  const edd::Description& description() const { return description_; }
  /// The menus in the order in which they are offered: each root, then what it leads to.
  const std::vector<const edd::Menu*>& menus() const { return menus_; }
  /// Made, or as it was left, with what the device has now.
  MenuPanel& open(const edd::Menu& menu);
  /// By its name or label; null if there is none.
  const edd::Menu* find(std::string_view nameOrLabel) const;
  void onOpened(Opened opened) { opened_ = std::move(opened); }
  /// The device's time goes on; the panels look at its dynamic values when they refresh themselves.
  void tick() { device_.tick(); }

 private:
  void collect(const edd::Menu& menu);

  const edd::Description& description_;
  host::Site& site_;
  Device device_;
  std::vector<const edd::Menu*> menus_;
  std::vector<std::unique_ptr<MenuPanel>> panels_;
  Opened opened_;
};

}  // namespace qrn::eddpanel
