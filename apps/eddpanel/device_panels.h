#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "base/event.h"
#include "device.h"
#include "display/QRNDisplay.h"
#include "edd/description.h"

namespace qrn::eddpanel {

/// One menu of a description as a panel, made with the library's public interface only: variables are rows,
/// methods and submenus are action buttons. What the user has edited goes to the device with OK or Apply.
class MenuPanel {
 public:
  MenuPanel(const edd::Description& description, const edd::Menu& menu, Device& device, host::Site& site);

  const edd::Menu& menu() const { return menu_; }
  QRNDisplay& display() { return *display_; }
  /// The description's entry behind an item, counted from 1.
  const edd::MenuItem& entry(std::int32_t item) const {
    return menu_.items[static_cast<std::size_t>(item) - 1];
  }
  /// 0 for a name that is not on this panel.
  std::int32_t itemOf(std::string_view name) const;
  QRNEdit* row(std::int32_t item);
  /// A submenu's button was clicked.
  Event<const edd::Menu&> SubmenuChosen;
  /// Something to tell the user: a method's report, a variable's help.
  Event<const std::string&> Message;

  /// Shows what the device has now; a row that is being edited is left alone.
  void refresh(bool dynamicOnly);

 private:
  void build();
  void buildFooter();
  void layOutRow(std::int32_t item);
  void layOutAction(std::int32_t item);
  void pressed(std::int32_t button);
  void apply();
  void undo();
  bool isEdited(std::int32_t item);
  void storeValue(std::int32_t item);
  void showStored(std::int32_t item);
  void act(std::int32_t item);
  void tell(const std::string& text);
  void chooseInMenu(std::int32_t item, std::int16_t entry);
  const edd::Variable& variableOf(std::int32_t item) const {
    return description_.variables()[entry(item).index];
  }
  clsQRNParam& parameter(std::int32_t item);

  const edd::Description& description_;
  const edd::Menu& menu_;
  Device& device_;
  host::Owned<QRNDisplay> display_;
  std::vector<Connection> connections_;
  std::int32_t edited_ = 0;
};

/// All panels of a device, made when they are first opened.
class DevicePanels {
 public:
  /// Called once for every new panel, before anything is added to it.
  using Opened = std::function<void(MenuPanel&)>;

  DevicePanels(const edd::Description& description, host::Site& site);

  const edd::Description& description() const { return description_; }
  /// The menus in the order in which they are offered: each root, then what it leads to.
  const std::vector<const edd::Menu*>& menus() const { return menus_; }
  MenuPanel& open(const edd::Menu& menu);
  /// By its name or label; null if there is none.
  const edd::Menu* find(std::string_view nameOrLabel) const;
  void onOpened(Opened opened) { opened_ = std::move(opened); }
  /// The device's time goes on, and the panels that are open show it.
  void tick();

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
