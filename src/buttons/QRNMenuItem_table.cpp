#include "buttons/QRNMenuItem.h"
#include "host/class_table_entries.h"

namespace qrn {

using host::Default;
using host::Notify;
using host::picture;
using host::property;
using host::setter;

struct QRNMenuItemTable {
  static host::ClassTable make() {
    using C = QRNMenuItem;
    constexpr std::int32_t kNeverWritten = 0x000080FF;
    const auto noPixels = std::make_shared<host::Picture>(std::vector<host::Picture::Bitmap>());
    host::ClassTable table;
    table.name = "QRNMenuItem";
    table.progId = "QRNV16Controls2.QRNMenuItem";
    table.properties = {
        setter<&C::Caption, &C::SetCaption>("Caption", 1, "Menu"),
        // A button-face background is always written, and one of &H000080FF is not and comes back as button
        // face: the two defaults differ on purpose.
        property<&C::BackColor, &C::SetBackColor>("BackColor", 2)
            .stored("BackColor", host::kButtonFace, kNeverWritten)
            .startsAs(Default::ambientBackColor()),
        setter<&C::Font, &C::SetFont>("Font", 3, Default::ambientFont()).notifies(Notify::Always),
        setter<&C::ForeColor, &C::SetForeColor>("ForeColor", 4, host::kButtonText)
            .startsAs(Default::ambientForeColor()),
        setter<&C::Alignment, &C::SetAlignment>("Alignment", 5, 0),
        setter<&C::ShowFocusRect, &C::SetShowFocusRect>("ShowFocusRect", 6, false),
        setter<&C::Margin, &C::SetMargin>("Margin", 7, 6),
        setter<&C::BorderStyle, &C::SetBorderStyle>("BorderStyle", 8, 0),
        setter<&host::Control::Enabled, &C::SetEnabled>("Enabled", 9, true),
        setter<&C::ButtonMode, &C::SetButtonMode>("ButtonMode", 10, qrnButtonFlat),
        picture<&C::Icon, &C::SetIcon>("Icon", 11).startsAs(Variant(noPixels)).notifies(Notify::Always),
        // Not kept like the icon: a disabled button shows none at all when this one has no pixels, and its
        // icon when there is none.
        setter<&C::IconDisabled, &C::SetIconDisabled>("IconDisabled", 12, Variant()).notifies(Notify::Always),
        setter<&C::IconAlignment, &C::SetIconAlignment>("IconAlignment", 13, 0),
        setter<&C::AutoShadeIcon, &C::SetAutoShadeIcon>("AutoShadeIcon", 14, false),
        property<&C::Redraw, &C::SetRedraw>("Redraw", 15).startsAs(true).notifies(Notify::Never),
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
