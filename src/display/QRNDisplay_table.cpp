#include "display/QRNDisplay.h"
#include "host/class_table.h"

namespace qrn {

using host::Default;
using host::Notify;
using host::property;

struct QRNDisplayTable {
  using C = QRNDisplay;

  static Default number(std::int32_t value) { return Variant(value); }
  static Default flag(bool value) { return Variant(value); }
  static Default text(const char* value) { return Variant(value); }

  template <auto Get, auto Set, auto Field>
  static host::Property field(std::string_view name, std::int32_t id, Default both) {
    return property<Get, Set>(name, id).stored(name, std::move(both)).template throughField<Field>();
  }

  template <auto Get, auto Set>
  static host::Property setter(std::string_view name, std::int32_t id, Default both) {
    return property<Get, Set>(name, id).stored(name, std::move(both));
  }

  static host::ClassTable make();
};

host::ClassTable QRNDisplayTable::make() {
  host::ClassTable table;
  table.name = "QRNDisplay";
  table.progId = "QRNV16Controls2.QRNDisplay";
  table.properties = {
      property<&C::ExtraData, &C::SetExtraData>("ExtraData", 1).notifies(Notify::Never),
      setter<&C::Title, &C::SetTitle>("Title", 7, text("")),
      setter<&C::BackColor, &C::SetBackColor>("BackColor", 8, host::toVariant(host::kButtonFace)),
      setter<&C::ForeColor, &C::SetForeColor>("ForeColor", 9, host::toVariant(host::kButtonText)),
      setter<&C::Font, &C::SetFont>("Font", 10, Default::ambientFont()),
      field<&C::BorderStyle, &C::SetBorderStyle, &C::borderStyle_>("BorderStyle", 11,
                                                                   number(qrnEdgeEngraved)),
      setter<&host::Control::Enabled, &C::SetEnabled>("Enabled", 12, flag(true)),
      setter<&C::Maximized, &C::SetMaximized>("Maximized", 13, flag(false)),
      setter<&C::IconCloseHidden, &C::SetIconCloseHidden>("IconCloseHidden", 14, flag(false)),
      setter<&C::IconMaxRstHidden, &C::SetIconMaxRstHidden>("IconMaxRstHidden", 15, flag(false)),
      setter<&C::TitleStyle, &C::SetTitleStyle>("TitleStyle", 16, number(qrnTitleStandard)),
      property<&C::Redraw, &C::SetRedraw>("Redraw", 17).startsAs(flag(true)).notifies(Notify::Never),
      host::readOnly<&host::Control::hwnd>("hwnd", 18),
      setter<&C::MaxButtonToolTip, &C::SetMaxButtonToolTip>("MaxButtonToolTip", 19, text("")),
      setter<&C::RstButtonToolTip, &C::SetRstButtonToolTip>("RstButtonToolTip", 20, text("")),
      setter<&C::CloseButtonToolTip, &C::SetCloseButtonToolTip>("CloseButtonToolTip", 21, text("")),
      field<&C::LeftMargin, &C::SetLeftMargin, &C::leftMargin_>("LeftMargin", 22, number(5)),
      field<&C::TopMargin, &C::SetTopMargin, &C::topMargin_>("TopMargin", 23, number(5)),
      field<&C::RightMargin, &C::SetRightMargin, &C::rightMargin_>("RightMargin", 24, number(5)),
      field<&C::BottomMargin, &C::SetBottomMargin, &C::bottomMargin_>("BottomMargin", 25, number(5)),
      field<&C::VerticalSpacing, &C::SetVerticalSpacing, &C::verticalSpacing_>("VerticalSpacing", 26,
                                                                               number(-1)),
      field<&C::HorizontalSpacing, &C::SetHorizontalSpacing, &C::horizontalSpacing_>("HorizontalSpacing", 27,
                                                                                     number(-1)),
      field<&C::MenuItemHeight, &C::SetMenuItemHeight, &C::menuItemHeight_>("MenuItemHeight", 28, number(-1)),
      setter<&C::Active, &C::SetActive>("Active", 29, flag(true)),
      field<&C::ButtonsAlignment, &C::SetButtonsAlignment, &C::buttonsAlignment_>("ButtonsAlignment", 31,
                                                                                  number(1)),
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
                   "ImageList",
                   "RemoveControls",
                   "LayoutControls",
                   "SetColumnLayout",
                   "GetHorizontalSpacing",
                   "GetVerticalSpacing",
                   "GetMenuItemHeight",
                   "SetItemFocus",
                   "GetActiveItem"};
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
