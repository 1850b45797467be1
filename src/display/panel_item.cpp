#include "display/panel_item.h"

#include "diag/QRNErrors.h"
#include "display/QRNDisplay.h"

namespace qrn {

PanelItem::~PanelItem() {
  if (control_) control_->follow(nullptr);
}

const Variant& PanelItem::Tag() const {
  static const Variant none;
  return tag_ ? *tag_ : none;
}

void PanelItem::SetTag(const Variant& tag) { tag_ = std::make_unique<Variant>(tag); }

void PanelItem::SetControl(host::UserControl& control) {
  control_ = &control;
  control.follow(this);
}

host::UserControl& PanelItem::requireControl() const {
  if (!control_) RaiseError(kObjectNotInitialized, *this);
  return *control_;
}

QRNDisplay* PanelItem::panel() const {
  return control_ ? static_cast<QRNDisplay*>(control_->Parent()) : nullptr;
}

bool PanelItem::commonEvent(QRNDisplay& panel, std::string_view name, host::EventArgs arguments) {
  std::int32_t index = position();
  const auto word = [&](std::size_t i) -> std::int16_t& { return arguments[i].as<std::int16_t>(); };
  if (name == "KeyDown")
    panel.raise(panel.ItemKeyDown, "ItemKeyDown", index, word(0), word(1));
  else if (name == "KeyPress")
    panel.raise(panel.ItemKeyPress, "ItemKeyPress", index, word(0));
  else if (name == "KeyUp")
    panel.raise(panel.ItemKeyUp, "ItemKeyUp", index, word(0), word(1));
  else if (name == "MenuClick")
    panel.raise(panel.ItemMenuClick, "ItemMenuClick", index, word(0));
  else if (name == "GotFocus")
    panel.itemGotFocus(*this);
  else if (name == "LostFocus")
    panel.raise(panel.ItemLostFocus, "ItemLostFocus", index);
  else
    return false;
  return true;
}

}  // namespace qrn
