#pragma once

#include <cstddef>
#include <string>

#include "device.h"
#include "display/QRNDisplay.h"
#include "edd/description.h"

namespace qrn::eddpanel {

/// The buttons of a page's footer in their order; the last one is on pages with live values only.
enum FooterButton : std::int32_t { kOk = 1, kApply, kCancel, kRefresh };
/// The entries of the context menus. Every item has the first one.
enum ItemMenu : std::int16_t { kHelp = 1, kDefault = 2 };

/// How many values of a page a user has edited, and how many of them can't be written as they are.
struct Edits {
  int count = 0;
  int wrong = 0;
};

/// One menu of a description on a panel, made with the library's public interface only: variables are rows,
/// methods and submenus are action buttons. What the user edits stays in its row until it is applied.
/// A page is the extra data of its panel, and goes with it.
class MenuPage final : public Object {
 public:
  MenuPage(const edd::Description& description, const edd::Menu& menu, Device& device, QRNDisplay& panel)
      : description_(description), menu_(menu), device_(device), panel_(panel) {}
  std::string_view typeName() const override { return "MenuPage"; }

  const edd::Menu& menu() const { return menu_; }
  QRNDisplay& panel() { return panel_; }
  /// The description's entry behind an item, counted from 1.
  const edd::MenuItem& entry(std::int32_t item) const {
    return menu_.items[static_cast<std::size_t>(item) - 1];
  }
  /// 0 for a name that is not on this page.
  std::int32_t itemOf(std::string_view name) const;
  /// The row or button of an item; no row for an item that is a button.
  host::Control& control(std::int32_t item);
  QRNEdit* row(std::int32_t item);

  /// Adds the items and the footer. Each item is laid out when the panel asks for it.
  void build();
  void layOutRow(std::int32_t item);
  void layOutAction(std::int32_t item);

  void editStarted(std::int32_t item) { edited_ = item; }
  void editEnded() { edited_ = 0; }
  /// Shows what the device has now; what the user is editing or has not applied yet is left alone.
  void refresh(bool dynamicOnly);
  /// Has the button Refresh click itself a moment later.
  void armRefresh(bool armed = true);

  Edits edits();
  /// Writes the good values to the device; the wrong ones stay in their rows to be corrected. Answers what
  /// there was to write.
  Edits apply();
  /// Puts back what the device has, and answers how many values that were.
  int undo();
  void restoreDefault(std::int32_t item);

 private:
  void buildFooter();
  bool hasDynamicValues() const;
  bool isEdited(std::int32_t item);
  void showStored(std::int32_t item);
  const edd::Variable& variableOf(std::int32_t item) const {
    return description_.variables()[entry(item).index];
  }
  clsQRNParam& parameter(std::int32_t item);

  const edd::Description& description_;
  const edd::Menu& menu_;
  Device& device_;
  QRNDisplay& panel_;
  std::int32_t edited_ = 0;
};

}  // namespace qrn::eddpanel
