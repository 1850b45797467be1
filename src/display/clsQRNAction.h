#pragma once

#include "buttons/QRNMenuItem.h"
#include "display/panel_item.h"
#include "enums/enumerations.h"

namespace qrn {

/// An action of a panel: its button, with the icon of its kind.
class clsQRNAction final : public PanelItem {
 public:
  std::string_view typeName() const override { return "clsQRNAction"; }

  /// The button itself. Errors: 0x80040001 once the item has been removed.
  QRNMenuItem& Control() const { return static_cast<QRNMenuItem&>(requireControl()); }

  /// Gives the button the icon of a kind of action, and tells the host with ActionLayout. AddAction has done
  /// so already.
  void SetDefaultLayout(ddtypeAction ActionType);

 private:
  void controlEvent(std::string_view name, host::EventArgs arguments) override;
};

}  // namespace qrn
