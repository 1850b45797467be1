#include "host/class_table.h"
#include "row/QRNEdit.h"
#include "runtime/errors.h"

namespace qrn {

using host::Default;
using host::Notify;
using host::property;

// Alignments, colours, widths and flags all look alike here; their meaning stands with the members.
struct QRNEditTable {
  using C = QRNEdit;

  static Default number(std::int32_t value) { return Variant(value); }
  static Default flag(bool value) { return Variant(value); }
  static Default text(const char* value) { return Variant(value); }
  static Default color(host::Color value) { return host::toVariant(value); }

  // A part's flags and spacing go straight into the field when a bag is read: without notification and
  // layout.
  template <auto Get, auto Set, auto Field>
  static host::Property field(std::string_view name, std::int32_t id, Default both) {
    return property<Get, Set>(name, id).stored(name, std::move(both)).template throughField<Field>();
  }

  template <auto Get, auto Set>
  static host::Property setter(std::string_view name, std::int32_t id, Default both) {
    return property<Get, Set>(name, id).stored(name, std::move(both));
  }

  template <auto Icon, auto Member>
  static void restoreIcon(host::UserControl& control, const Variant& value) {
    auto& member = static_cast<C&>(control).*Icon.*Member;
    member = host::fromVariant<std::remove_reference_t<decltype(member)>>(value);
  }

  template <auto Get, auto Set, auto Icon, auto Member>
  static host::Property iconField(std::string_view name, std::int32_t id, Default both) {
    host::Property result = setter<Get, Set>(name, id, std::move(both));
    result.restore = restoreIcon<Icon, Member>;
    return result;
  }

  static std::vector<host::Property> rowProperties();
  static std::vector<host::Property> labelProperties();
  static std::vector<host::Property> iconProperties();
  static std::vector<host::Property> valueProperties();
  static std::vector<host::Property> unitProperties();
  static host::ClassTable make();
};

std::vector<host::Property> QRNEditTable::rowProperties() {
  return {
      setter<&C::ScaleMode, &C::SetScaleMode>("ScaleMode", 1, Variant(std::int16_t{3}))
          .notifies(Notify::Never),
      setter<&C::BackColor, &C::SetBackColor>("BackColor", 3, color(host::kButtonFace))
          .startsAs(Default::ambientBackColor()),
      setter<&C::ForeColor, &C::SetForeColor>("ForeColor", 4, color(host::kButtonText))
          .startsAs(Default::ambientForeColor()),
      setter<&host::Control::Enabled, &C::SetEnabled>("Enabled", 5, flag(true)),
      setter<&C::Font, &C::SetFont>("Font", 6, Default::ambientFont()).notifies(Notify::Always),
      field<&C::HorizontalSpacing, &C::SetHorizontalSpacing, &C::horizontalSpacing_>("HorizontalSpacing", 7,
                                                                                     number(4)),
      field<&C::Alignment, &C::SetAlignment, &C::alignment_>("Alignment", 8, number(0)),
      property<&C::Redraw, &C::SetRedraw>("Redraw", 46).startsAs(flag(true)).notifies(Notify::Never),
      host::readOnly<&host::Control::hwnd>("hwnd", 47),
  };
}

std::vector<host::Property> QRNEditTable::labelProperties() {
  return {
      setter<&C::LabelWidth, &C::SetLabelWidth>("LabelWidth", 9, number(100)),
      setter<&C::LabelAlignment, &C::SetLabelAlignment>("LabelAlignment", 10, number(0)),
      setter<&C::LabelToolTip, &C::SetLabelToolTip>("LabelToolTip", 11, text("")),
      setter<&C::LabelText, &C::SetLabelText>("LabelText", 12, text("Label:")).startsAs(text("Label")),
      field<&C::LabelVisible, &C::SetLabelVisible, &C::labelVisible_>("LabelVisible", 13, flag(true)),
  };
}

std::vector<host::Property> QRNEditTable::iconProperties() {
  using Icon = QRNEdit::Icon;
  return {
      iconField<&C::Icon1Column, &C::SetIcon1Column, &C::icon1_, &Icon::column>("Icon1Column", 14, number(1)),
      setter<&C::Icon1ToolTip, &C::SetIcon1ToolTip>("Icon1ToolTip", 15, text("")),
      setter<&C::Icon1Picture, &C::SetIcon1Picture>("Icon1Picture", 16, Variant()),
      iconField<&C::Icon1Visible, &C::SetIcon1Visible, &C::icon1_, &Icon::visible>("Icon1Visible", 17,
                                                                                   flag(true)),
      iconField<&C::Icon1Hidden, &C::SetIcon1Hidden, &C::icon1_, &Icon::hidden>("Icon1Hidden", 18,
                                                                                flag(false)),
      iconField<&C::Icon1ButtonMode, &C::SetIcon1ButtonMode, &C::icon1_, &Icon::mode>("Icon1ButtonMode", 19,
                                                                                      number(0)),
      iconField<&C::Icon2Column, &C::SetIcon2Column, &C::icon2_, &Icon::column>("Icon2Column", 20, number(4)),
      setter<&C::Icon2ToolTip, &C::SetIcon2ToolTip>("Icon2ToolTip", 21, text("")),
      setter<&C::Icon2Picture, &C::SetIcon2Picture>("Icon2Picture", 22, Variant()),
      iconField<&C::Icon2Visible, &C::SetIcon2Visible, &C::icon2_, &Icon::visible>("Icon2Visible", 23,
                                                                                   flag(true)),
      iconField<&C::Icon2Hidden, &C::SetIcon2Hidden, &C::icon2_, &Icon::hidden>("Icon2Hidden", 24,
                                                                                flag(false)),
      iconField<&C::Icon2ButtonMode, &C::SetIcon2ButtonMode, &C::icon2_, &Icon::mode>("Icon2ButtonMode", 25,
                                                                                      number(0)),
  };
}

std::vector<host::Property> QRNEditTable::valueProperties() {
  auto valueText =
      setter<&C::ValueText, &C::SetValueText>("ValueText", 27, text("")).notifies(Notify::Always);
  // Nothing was saved, so nothing is converted: an empty text is no number. Nor is a text refused that needs
  // the entries of a list, which are not saved.
  valueText.restore = [](host::UserControl& control, const Variant& value) {
    const std::string shown = host::stringFrom(value);
    if (!shown.empty()) ignoringErrors([&] { static_cast<C&>(control).SetValueText(shown); });
  };
  auto rule = setter<&C::ValueRule, &C::SetValueRule>("ValueRule", 36, text(""));
  rule.restore = [](host::UserControl& control, const Variant& value) {
    static_cast<C&>(control).settings_.setRule(host::stringFrom(value));
  };
  auto charSet = setter<&C::ValueCharSet, &C::SetValueCharSet>("ValueCharSet", 37, text(""));
  charSet.restore = [](host::UserControl& control, const Variant& value) {
    static_cast<C&>(control).settings_.setCharSet(host::stringFrom(value));
  };
  auto format = setter<&C::ValueFormat, &C::SetValueFormat>("ValueFormat", 38, text(""));
  format.restore = [](host::UserControl& control, const Variant& value) {
    static_cast<C&>(control).settings_.setFormat(host::stringFrom(value));
  };
  return {
      setter<&C::ValueType, &C::SetValueType>("ValueType", 2, number(0)).notifies(Notify::Always),
      setter<&C::ValueWidth, &C::SetValueWidth>("ValueWidth", 26, number(100)).startsAs(number(0)),
      valueText,
      property<&C::Value, &C::SetValue>("Value", 28)
          .startsAs(Variant(std::string()))
          .notifies(Notify::Always),
      setter<&C::ValueToolTip, &C::SetValueToolTip>("ValueToolTip", 29, text("")),
      setter<&C::ValueAlignment, &C::SetValueAlignment>("ValueAlignment", 30, number(0)),
      setter<&C::Locked, &C::SetLocked>("Locked", 31, flag(false)),
      field<&C::ValueVisible, &C::SetValueVisible, &C::valueVisible_>("ValueVisible", 32, flag(true)),
      setter<&C::ValueForeColor, &C::SetValueForeColor>("ValueForeColor", 33, color(host::kWindowText)),
      setter<&C::ValueUpperCase, &C::SetValueUpperCase>("ValueUpperCase", 34, flag(false)),
      setter<&C::ValueMaxLength, &C::SetValueMaxLength>("ValueMaxLength", 35, number(65535)),
      setter<&C::Password, &C::SetPassword>("Password", 39, flag(false)),
      rule,
      charSet,
      format,
  };
}

std::vector<host::Property> QRNEditTable::unitProperties() {
  return {
      setter<&C::UnitWidth, &C::SetUnitWidth>("UnitWidth", 40, number(100)),
      setter<&C::UnitText, &C::SetUnitText>("UnitText", 41, text("Unit")),
      setter<&C::UnitToolTip, &C::SetUnitToolTip>("UnitToolTip", 42, text("")),
      setter<&C::UnitAlignment, &C::SetUnitAlignment>("UnitAlignment", 43, number(0)),
      field<&C::UnitVisible, &C::SetUnitVisible, &C::unitVisible_>("UnitVisible", 44, flag(true)),
  };
}

host::ClassTable QRNEditTable::make() {
  host::ClassTable table;
  table.name = "QRNEdit";
  table.progId = "QRNV16Controls2.QRNEdit";
  for (const auto& part :
       {rowProperties(), labelProperties(), iconProperties(), valueProperties(), unitProperties()}) {
    table.properties.insert(table.properties.end(), part.begin(), part.end());
  }
  // The scale comes first, so that all widths that follow are in it, then the type, so that the editor exists
  // before its properties arrive.
  table.readingOrder = {
      "ScaleMode",    "ValueType",         "BackColor",      "ForeColor",       "Enabled",
      "Font",         "HorizontalSpacing", "Alignment",      "LabelWidth",      "LabelAlignment",
      "LabelToolTip", "LabelText",         "LabelVisible",   "Icon1Column",     "Icon1ToolTip",
      "Icon1Picture", "Icon1Visible",      "Icon1Hidden",    "Icon1ButtonMode", "Icon2Column",
      "Icon2ToolTip", "Icon2Picture",      "Icon2Visible",   "Icon2Hidden",     "Icon2ButtonMode",
      "ValueWidth",   "ValueText",         "ValueToolTip",   "ValueAlignment",  "Locked",
      "ValueVisible", "ValueForeColor",    "ValueUpperCase", "ValueMaxLength",  "Password",
      "ValueRule",    "ValueCharSet",      "ValueFormat",    "UnitWidth",       "UnitText",
      "UnitToolTip",  "UnitAlignment",     "UnitVisible"};
  table.writingOrder = {
      "ValueType",         "BackColor",      "ForeColor",       "Enabled",         "Font",
      "HorizontalSpacing", "Alignment",      "LabelWidth",      "LabelAlignment",  "LabelToolTip",
      "LabelText",         "LabelVisible",   "Icon1Column",     "Icon1ToolTip",    "Icon1Picture",
      "Icon1Visible",      "Icon1Hidden",    "Icon1ButtonMode", "Icon2Column",     "Icon2ToolTip",
      "Icon2Picture",      "Icon2Visible",   "Icon2Hidden",     "Icon2ButtonMode", "ValueWidth",
      "ValueText",         "ValueToolTip",   "ValueAlignment",  "Locked",          "ValueVisible",
      "ValueForeColor",    "ValueUpperCase", "ValueMaxLength",  "ValueRule",       "ValueCharSet",
      "UnitWidth",         "UnitText",       "UnitToolTip",     "UnitAlignment",   "UnitVisible",
      "ValueFormat",       "Password",       "ScaleMode"};
  table.methods = {"ValueCount",
                   "ValueNames",
                   "ValueItems",
                   "ArrayType",
                   "ArraySize",
                   "ArrayValue",
                   "CurrentArrayValueIndex",
                   "CurrentArrayValue",
                   "ValueChanged",
                   "ValueError",
                   "SetSelection",
                   "AddMenuItem",
                   "GetMenuItem",
                   "RemoveMenuItem",
                   "RemoveMenu",
                   "GetMinHeight",
                   "GetIcon1Width",
                   "GetIcon2Width",
                   "GetMinLabelWidth",
                   "GetMinValueWidth",
                   "GetMinUnitWidth",
                   "GetMinWidth",
                   "GetMinBruttoWidth"};
  table.events = {"Change",     "ItemCheck",  "BackgroundClick", "LabelClick", "UnitClick",
                  "Icon1Click", "Icon2Click", "MenuClick",       "Click",      "StartEdit",
                  "EndEdit",    "KeyDown",    "KeyPress",        "KeyUp",      "StatusChange"};
  return table;
}

const host::ClassTable& QRNEdit::classTable() const {
  static const host::ClassTable table = QRNEditTable::make();
  return table;
}

}  // namespace qrn
