#include "display/clsQRNAction.h"

#include <optional>

#include "display/QRNDisplay.h"
#include "images/QRNImageList.h"

namespace qrn {
namespace {

std::optional<qrnImageId> iconOf(ddtypeAction type) {
  switch (type) {
    case ddtypeMenu: return qrnImageFolder;
    case ddtypeMethod: return qrnImageMethod;
    case ddtypeEditBox: return qrnImageDialog;
    default: return std::nullopt;
  }
}

}  // namespace

void clsQRNAction::SetDefaultLayout(ddtypeAction ActionType) {
  QRNMenuItem& button = Control();
  QRNDisplay* owner = panel();
  if (const auto icon = iconOf(ActionType); icon && owner) button.SetIcon(owner->ImageList().Image(*icon));
  if (owner) owner->raiseItem(owner->ActionLayout, "ActionLayout", *this);
}

void clsQRNAction::controlEvent(std::string_view name, host::EventArgs arguments) {
  const PanelItemPtr self = keepAlive();
  QRNDisplay* owner = panel();
  if (!owner || commonEvent(*owner, name, arguments) || name != "Click") return;
  // A button without button behaviour is part of the background.
  if (Control().ButtonMode() == qrnbuttonNone)
    owner->passiveClick();
  else
    owner->raiseItem(owner->ActionClick, "ActionClick", *this);
}

}  // namespace qrn
