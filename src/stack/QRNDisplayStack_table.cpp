#include "host/class_table_entries.h"
#include "stack/QRNDisplayStack.h"

namespace qrn {

using host::field;
using host::Notify;
using host::property;
using host::setter;

struct QRNDisplayStackTable {
  static host::ClassTable make();
};

host::ClassTable QRNDisplayStackTable::make() {
  using C = QRNDisplayStack;
  host::ClassTable table;
  table.name = "QRNDisplayStack";
  table.progId = "QRNV16Controls2.QRNDisplayStack";
  table.properties = {
      host::readOnly<&C::Count>("Count", 2),
      field<&C::LeftIndent, &C::SetLeftIndent, &C::leftIndent_>("LeftIndent", 3, 10),
      field<&C::TopIndent, &C::SetTopIndent, &C::topIndent_>("TopIndent", 4, 20),
      field<&C::HideDisabledControls, &C::SetHideDisabledControls, &C::hideDisabledControls_>(
          "HideDisabledControls", 5, true),
      setter<&host::Control::Enabled, &C::SetEnabled>("Enabled", 8, true),
      property<&C::Font, &C::SetFont>("Font", 9)
          .startsAs(host::Default::ambientFont())
          .notifies(Notify::Never),
      property<&C::BackColor, &C::SetBackColor>("BackColor", 10)
          .startsAs(host::Default::ambientBackColor())
          .notifies(Notify::Never),
      property<&C::ExtraData, &C::SetExtraData>("ExtraData", 11).notifies(Notify::Never),
  };
  table.methods = {"Pages", "ActivatePage", "AddPage"};
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
                  "PageLayout",
                  "PageActivate",
                  "PageDeactivate",
                  "PageClose"};
  return table;
}

const host::ClassTable& QRNDisplayStack::classTable() const {
  static const host::ClassTable table = QRNDisplayStackTable::make();
  return table;
}

}  // namespace qrn
