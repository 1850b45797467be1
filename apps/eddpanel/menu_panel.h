#pragma once

#include <cstddef>
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
  /// The row or button of an item; no row for an item that is a button.
  host::Control& control(std::int32_t item);
  QRNEdit* row(std::int32_t item);
  /// A submenu's button was clicked.
  Event<const edd::Menu&> SubmenuChosen;
  /// Something to tell the user: a method's report, what became of the values.
  Event<const std::string&> Message;
  /// The user wants to know more about an item: what the description says of it.
  Event<std::int32_t, const std::string&> Help;

  /// Shows what the device has now; a row that is being edited is left alone.
  void refresh(bool dynamicOnly);

 private:
  void build();
  void buildFooter();
  bool hasDynamicValues() const;
  void layOutRow(std::int32_t item);
  void layOutAction(std::int32_t item);
  void pressed(std::int32_t button);
  void readAgain();
  void armRefresh();
  void apply();
  void undo();
  bool isEdited(std::int32_t item);
  void storeValue(std::int32_t item);
  void showStored(std::int32_t item);
  void act(std::int32_t item);
  void tell(const std::string& text);
  void chooseInMenu(std::int32_t item, std::int16_t entry);
  void restoreDefault(std::int32_t item);
  const std::string& helpOf(std::int32_t item) const;
  void showHelp(std::int32_t item);
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

}  // namespace qrn::eddpanel
