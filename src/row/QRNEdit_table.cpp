#include "host/class_table_entries.h"
#include "row/QRNEdit.h"
#include "runtime/errors.h"

namespace qrn {

using host::Default;
using host::field;
using host::Notify;
using host::picture;
using host::property;
using host::setter;

struct QRNEditTable {
  using C = QRNEdit;

  template <auto Set>
  static void restoreSetting(host::UserControl& control, const Variant& value) {
    (static_cast<C&>(control).settings_.*Set)(host::stringFrom(value));
  }
  static void restoreText(host::UserControl& control, const Variant& value);
  static void restoreFormat(host::UserControl& control, const Variant& value);
  static void emptyEditor(C& row);

  static std::vector<host::Property> rowProperties();
  static std::vector<host::Property> labelProperties();
  static std::vector<host::Property> iconProperties();
  static std::vector<host::Property> valueProperties();
  static std::vector<host::Property> unitProperties();
  static host::ClassTable make();
};

// A text was formatted before it was saved, so it is shown as it stands. One is not refused that needs the
// entries of a list, which are not saved. Where none was saved nothing is converted: an empty text is no
// number.
void QRNEditTable::restoreText(host::UserControl& control, const Variant& value) {
  auto& row = static_cast<C&>(control);
  const std::string shown = host::stringFrom(value);
  emptyEditor(row);
  if (shown.empty()) return;
  const std::string format = row.ValueFormat();
  row.settings_.setFormat("");
  ignoringErrors([&] { row.SetValueText(shown); });
  row.settings_.setFormat(format);
}

// A text is read like a typed one, with one separator, that of the decimals. Where digits are grouped its
// first separator may be another; that is known only now.
void QRNEditTable::restoreFormat(host::UserControl& control, const Variant& value) {
  restoreSetting<&ValueSettings::setFormat>(control, value);
  auto& row = static_cast<C&>(control);
  const auto* restored = row.storedValue_.get<std::string>();
  const bool groups = row.ValueFormat().find(',') != std::string::npos;
  if (row.valueType_ == qrnTypeDouble && restored && groups) row.showText(*restored);
}

// As the editor of a new row is.
void QRNEditTable::emptyEditor(C& row) {
  row.editor_.empty();
  row.forgetMeasure(&C::Measures::value);
  row.storedValue_ = row.displayBaseline_ = Variant();
}

std::vector<host::Property> QRNEditTable::rowProperties() {
  return {
      setter<&C::ScaleMode, &C::SetScaleMode>("ScaleMode", 1, 3).notifies(Notify::Always),
      setter<&C::BackColor, &C::SetBackColor>("BackColor", 3, host::kButtonFace)
          .startsAs(Default::ambientBackColor()),
      setter<&C::ForeColor, &C::SetForeColor>("ForeColor", 4, host::kButtonText)
          .startsAs(Default::ambientForeColor()),
      setter<&host::Control::Enabled, &C::SetEnabled>("Enabled", 5, true),
      setter<&C::Font, &C::SetFont>("Font", 6, Default::ambientFont()).notifies(Notify::Always),
      field<&C::HorizontalSpacing, &C::SetHorizontalSpacing, &C::horizontalSpacing_>("HorizontalSpacing", 7,
                                                                                     4),
      field<&C::Alignment, &C::SetAlignment, &C::alignment_>("Alignment", 8, 0),
      property<&C::Redraw, &C::SetRedraw>("Redraw", 46).startsAs(true).notifies(Notify::Never),
      host::readOnly<&host::Control::hwnd>("hwnd", 47),
  };
}

std::vector<host::Property> QRNEditTable::labelProperties() {
  return {
      setter<&C::LabelWidth, &C::SetLabelWidth>("LabelWidth", 9, 100),
      setter<&C::LabelAlignment, &C::SetLabelAlignment>("LabelAlignment", 10, 0),
      setter<&C::LabelToolTip, &C::SetLabelToolTip>("LabelToolTip", 11, ""),
      setter<&C::LabelText, &C::SetLabelText>("LabelText", 12, "Label:").startsAs("Label"),
      field<&C::LabelVisible, &C::SetLabelVisible, &C::labelVisible_>("LabelVisible", 13, true),
  };
}

std::vector<host::Property> QRNEditTable::iconProperties() {
  return {
      field<&C::Icon1Column, &C::SetIcon1Column, &C::icon1_, &RowIcon::column>("Icon1Column", 14, 1),
      setter<&C::Icon1ToolTip, &C::SetIcon1ToolTip>("Icon1ToolTip", 15, ""),
      picture<&C::Icon1Picture, &C::SetIcon1Picture>("Icon1Picture", 16),
      field<&C::Icon1Visible, &C::SetIcon1Visible, &C::icon1_, &RowIcon::visible>("Icon1Visible", 17, true),
      field<&C::Icon1Hidden, &C::SetIcon1Hidden, &C::icon1_, &RowIcon::hidden>("Icon1Hidden", 18, false),
      field<&C::Icon1ButtonMode, &C::SetIcon1ButtonMode, &C::icon1_, &RowIcon::mode>("Icon1ButtonMode", 19,
                                                                                     0),
      field<&C::Icon2Column, &C::SetIcon2Column, &C::icon2_, &RowIcon::column>("Icon2Column", 20, 4),
      setter<&C::Icon2ToolTip, &C::SetIcon2ToolTip>("Icon2ToolTip", 21, ""),
      picture<&C::Icon2Picture, &C::SetIcon2Picture>("Icon2Picture", 22),
      field<&C::Icon2Visible, &C::SetIcon2Visible, &C::icon2_, &RowIcon::visible>("Icon2Visible", 23, true),
      field<&C::Icon2Hidden, &C::SetIcon2Hidden, &C::icon2_, &RowIcon::hidden>("Icon2Hidden", 24, false),
      field<&C::Icon2ButtonMode, &C::SetIcon2ButtonMode, &C::icon2_, &RowIcon::mode>("Icon2ButtonMode", 25,
                                                                                     0),
  };
}

std::vector<host::Property> QRNEditTable::valueProperties() {
  return {
      setter<&C::ValueType, &C::SetValueType>("ValueType", 2, 0).notifies(Notify::Always),
      setter<&C::ValueWidth, &C::SetValueWidth>("ValueWidth", 26, 100).startsAs(0),
      setter<&C::ValueText, &C::SetValueText>("ValueText", 27, "")
          .notifies(Notify::Always)
          .restoredBy(restoreText),
      property<&C::Value, &C::SetValue>("Value", 28).startsAs("").notifies(Notify::Always),
      setter<&C::ValueToolTip, &C::SetValueToolTip>("ValueToolTip", 29, ""),
      setter<&C::ValueAlignment, &C::SetValueAlignment>("ValueAlignment", 30, 0),
      setter<&C::Locked, &C::SetLocked>("Locked", 31, false),
      field<&C::ValueVisible, &C::SetValueVisible, &C::valueVisible_>("ValueVisible", 32, true),
      setter<&C::ValueForeColor, &C::SetValueForeColor>("ValueForeColor", 33, host::kWindowText),
      setter<&C::ValueUpperCase, &C::SetValueUpperCase>("ValueUpperCase", 34, false),
      setter<&C::ValueMaxLength, &C::SetValueMaxLength>("ValueMaxLength", 35, 65535),
      setter<&C::Password, &C::SetPassword>("Password", 39, false),
      setter<&C::ValueRule, &C::SetValueRule>("ValueRule", 36, "")
          .restoredIntoField(restoreSetting<&ValueSettings::setRule>),
      setter<&C::ValueCharSet, &C::SetValueCharSet>("ValueCharSet", 37, "")
          .restoredIntoField(restoreSetting<&ValueSettings::setCharSet>),
      setter<&C::ValueFormat, &C::SetValueFormat>("ValueFormat", 38, "").restoredIntoField(restoreFormat),
  };
}

std::vector<host::Property> QRNEditTable::unitProperties() {
  return {
      setter<&C::UnitWidth, &C::SetUnitWidth>("UnitWidth", 40, 100),
      setter<&C::UnitText, &C::SetUnitText>("UnitText", 41, "Unit"),
      setter<&C::UnitToolTip, &C::SetUnitToolTip>("UnitToolTip", 42, ""),
      setter<&C::UnitAlignment, &C::SetUnitAlignment>("UnitAlignment", 43, 0),
      field<&C::UnitVisible, &C::SetUnitVisible, &C::unitVisible_>("UnitVisible", 44, true),
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
