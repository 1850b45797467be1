#include "buttons/QRNMenuItem.h"
#include "host/class_table.h"

namespace qrn {

using host::Default;
using host::Notify;
using host::property;

struct QRNMenuItemTable {
  static host::ClassTable make() {
    using C = QRNMenuItem;
    const auto none = Default(Variant());
    const auto emptyPicture = std::make_shared<host::Picture>(std::vector<host::Picture::Bitmap>());
    host::ClassTable table;
    table.name = "QRNMenuItem";
    table.progId = "QRNV16Controls2.QRNMenuItem";
    table.properties = {
        property<&C::Caption, &C::SetCaption>("Caption", 1).stored("Caption", Variant("Menu")),
        // A button-face background is always written, and one of &H000080FF is not and comes back as button
        // face: the two defaults differ on purpose.
        property<&C::BackColor, &C::SetBackColor>("BackColor", 2)
            .stored("BackColor", host::toVariant(host::kButtonFace), Variant(std::int32_t{0x000080FF}))
            .startsAs(Default::ambientBackColor()),
        property<&C::Font, &C::SetFont>("Font", 3)
            .stored("Font", Default::ambientFont())
            .notifies(Notify::Always),
        property<&C::ForeColor, &C::SetForeColor>("ForeColor", 4)
            .stored("ForeColor", host::toVariant(host::kButtonText))
            .startsAs(Default::ambientForeColor()),
        property<&C::Alignment, &C::SetAlignment>("Alignment", 5)
            .stored("Alignment", Variant(std::int32_t{0})),
        property<&C::ShowFocusRect, &C::SetShowFocusRect>("ShowFocusRect", 6)
            .stored("ShowFocusRect", Variant(false)),
        property<&C::Margin, &C::SetMargin>("Margin", 7).stored("Margin", Variant(std::int32_t{6})),
        property<&C::BorderStyle, &C::SetBorderStyle>("BorderStyle", 8)
            .stored("BorderStyle", Variant(std::int16_t{0})),
        property<&host::Control::Enabled, &C::SetEnabled>("Enabled", 9).stored("Enabled", Variant(true)),
        property<&C::ButtonMode, &C::SetButtonMode>("ButtonMode", 10)
            .stored("ButtonMode", Variant(static_cast<std::int32_t>(qrnButtonFlat))),
        property<&C::Icon, &C::SetIcon>("Icon", 11)
            .stored("Icon", none)
            .startsAs(Variant(emptyPicture))
            .notifies(Notify::Always),
        property<&C::IconDisabled, &C::SetIconDisabled>("IconDisabled", 12)
            .stored("IconDisabled", none)
            .notifies(Notify::Always),
        property<&C::IconAlignment, &C::SetIconAlignment>("IconAlignment", 13)
            .stored("IconAlignment", Variant(std::int32_t{0})),
        property<&C::AutoShadeIcon, &C::SetAutoShadeIcon>("AutoShadeIcon", 14)
            .stored("AutoShadeIcon", Variant(false)),
        property<&C::Redraw, &C::SetRedraw>("Redraw", 15).startsAs(Variant(true)).notifies(Notify::Never),
        host::readOnly<&host::Control::hwnd>("hwnd", 16),
    };
    table.methods = {"AddMenuItem", "GetMenuItem", "RemoveMenuItem", "RemoveMenu"};
    table.events = {"Click", "MenuClick", "KeyDown", "KeyPress", "KeyUp"};
    return table;
  }
};

const host::ClassTable& QRNMenuItem::classTable() const {
  static const host::ClassTable table = QRNMenuItemTable::make();
  return table;
}

}  // namespace qrn
