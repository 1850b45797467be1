#include "display/QRNDisplay.h"
#include "host/class_table_entries.h"

namespace qrn {

using host::Default;
using host::field;
using host::Notify;
using host::property;
using host::setter;

struct QRNDisplayTable {
  static host::ClassTable make();
};

host::ClassTable QRNDisplayTable::make() {
  using C = QRNDisplay;
  constexpr auto kShort = host::PropertyType::Integer;
  host::ClassTable table;
  table.name = "QRNDisplay";
  table.progId = "QRNV16Controls2.QRNDisplay";
  table.properties = {
      property<&C::ExtraData, &C::SetExtraData>("ExtraData", 1).notifies(Notify::Never),
      setter<&C::Title, &C::SetTitle>("Title", 7, ""),
      setter<&C::BackColor, &C::SetBackColor>("BackColor", 8, host::kButtonFace),
      setter<&C::ForeColor, &C::SetForeColor>("ForeColor", 9, host::kButtonText),
      setter<&C::Font, &C::SetFont>("Font", 10, Default::ambientFont()),
      field<&C::BorderStyle, &C::SetBorderStyle, &C::borderStyle_>("BorderStyle", 11, qrnEdgeEngraved),
      setter<&host::Control::Enabled, &C::SetEnabled>("Enabled", 12, true),
      setter<&C::Maximized, &C::SetMaximized>("Maximized", 13, false),
      setter<&C::IconCloseHidden, &C::SetIconCloseHidden>("IconCloseHidden", 14, false),
      setter<&C::IconMaxRstHidden, &C::SetIconMaxRstHidden>("IconMaxRstHidden", 15, false),
      setter<&C::TitleStyle, &C::SetTitleStyle>("TitleStyle", 16, qrnTitleStandard),
      property<&C::Redraw, &C::SetRedraw>("Redraw", 17).startsAs(true).notifies(Notify::Never),
      host::readOnly<&host::Control::hwnd>("hwnd", 18),
      setter<&C::MaxButtonToolTip, &C::SetMaxButtonToolTip>("MaxButtonToolTip", 19, ""),
      setter<&C::RstButtonToolTip, &C::SetRstButtonToolTip>("RstButtonToolTip", 20, ""),
      setter<&C::CloseButtonToolTip, &C::SetCloseButtonToolTip>("CloseButtonToolTip", 21, ""),
      field<&C::LeftMargin, &C::SetLeftMargin, &C::leftMargin_>("LeftMargin", 22, 5),
      field<&C::TopMargin, &C::SetTopMargin, &C::topMargin_>("TopMargin", 23, 5),
      field<&C::RightMargin, &C::SetRightMargin, &C::rightMargin_>("RightMargin", 24, 5),
      field<&C::BottomMargin, &C::SetBottomMargin, &C::bottomMargin_>("BottomMargin", 25, 5),
      field<&C::VerticalSpacing, &C::SetVerticalSpacing, &C::verticalSpacing_>("VerticalSpacing", 26, -1)
          .storedAs(kShort),
      field<&C::HorizontalSpacing, &C::SetHorizontalSpacing, &C::horizontalSpacing_>("HorizontalSpacing", 27,
                                                                                     -1)
          .storedAs(kShort),
      field<&C::MenuItemHeight, &C::SetMenuItemHeight, &C::menuItemHeight_>("MenuItemHeight", 28, -1)
          .storedAs(kShort),
      setter<&C::Active, &C::SetActive>("Active", 29, true),
      field<&C::ButtonsAlignment, &C::SetButtonsAlignment, &C::buttonsAlignment_>("ButtonsAlignment", 31, 1),
  };
  table.readingOrder = {"MenuItemHeight",
                        "VerticalSpacing",
                        "HorizontalSpacing",
                        "LeftMargin",
                        "TopMargin",
                        "RightMargin",
                        "BottomMargin",
                        "Title",
                        "BackColor",
                        "ForeColor",
                        "Font",
                        "BorderStyle",
                        "Enabled",
                        "Maximized",
                        "IconMaxRstHidden",
                        "IconCloseHidden",
                        "TitleStyle",
                        "MaxButtonToolTip",
                        "RstButtonToolTip",
                        "CloseButtonToolTip",
                        "Active",
                        "ButtonsAlignment"};
  table.methods = {"Items",
                   "ControlsCollection",
                   "ControlsContainer",
                   "ButtonsContainer",
                   "ImageList",
                   "Buttons",
                   "RemoveControls",
                   "LayoutControls",
                   "LayoutButtons",
                   "SetColumnLayout",
                   "GetHorizontalSpacing",
                   "GetVerticalSpacing",
                   "GetMenuItemHeight",
                   "SetItemFocus",
                   "GetActiveItem",
                   "DisplayToolTip",
                   "RemoveToolTip"};
  table.events = {"ItemGotFocus",
                  "ItemLostFocus",
                  "ItemMenuClick",
                  "ItemKeyDown",
                  "ItemKeyPress",
                  "ItemKeyUp",
                  "ActionLayout",
                  "ActionClick",
                  "ParameterLayout",
                  "ParameterChange",
                  "ParameterItemCheck",
                  "ParameterIcon1Click",
                  "ParameterIcon2Click",
                  "ParameterClick",
                  "ParameterStartEdit",
                  "ParameterEndEdit",
                  "ParameterStatusChange",
                  "ButtonLayout",
                  "ButtonClick",
                  "KeyDown",
                  "KeyPress",
                  "KeyUp",
                  "Click",
                  "DisplayClose",
                  "DisplayRestore",
                  "DisplayMaximize"};
  return table;
}

const host::ClassTable& QRNDisplay::classTable() const {
  static const host::ClassTable table = QRNDisplayTable::make();
  return table;
}

}  // namespace qrn
