#pragma once

#include "host/accessible.h"
#include "row_fixture.h"

namespace qrn::host {

inline void PrintTo(const AccessibleStates& states, std::ostream* out) {
  const auto say = [out](bool is, std::string_view name) {
    if (is) *out << name << " ";
  };
  say(states.unavailable, "unavailable");
  say(states.invisible, "invisible");
  say(states.offscreen, "offscreen");
  say(states.focusable, "focusable");
  say(states.focused, "focused");
  say(states.readOnly, "readOnly");
  say(states.secret, "secret");
  say(states.checkable, "checkable");
  say(states.checked, "checked");
  say(states.selectable, "selectable");
  say(states.selected, "selected");
  say(states.modal, "modal");
}

}  // namespace qrn::host

namespace qrn::test {

using host::AccessibleAction;
using host::AccessibleFacts;
using host::AccessibleNode;
using host::AccessibleRole;
using host::AccessibleStates;

/// What tools see of a panel with one row, "Pressure (bar)".
class AccessibleTest : public PanelTest {
 protected:
  AccessibleTest() {
    setCurrentLocale(enUS());
    useType(qrnTypeDouble);
  }

  /// In the place of the row so far.
  void useType(qrnValueType type) {
    items().RemoveAll();
    item = addParameter("pressure", type);
    item->Control().SetLabelText("Pressure");
    item->Control().SetUnitText("bar");
    panel().LayoutControls(false);
    startListening();
  }
  QRNEdit& pressure() { return item->Control(); }
  AccessibleNode panelNode() { return {&panel()}; }
  AccessibleNode rowNode() { return {&pressure()}; }
  AccessibleNode editor() { return rowNode().child(0); }
  AccessibleFacts facts() { return editor().facts(); }
  AccessibleStates states() { return facts().states; }
  /// A native surface, as on a screen; then the editor with the focus has a widget too.
  void showOnScreen() { panel().realise(); }

  std::shared_ptr<clsQRNParam> item;
};

}  // namespace qrn::test
