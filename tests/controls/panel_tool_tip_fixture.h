#pragma once

#include "support/panel_fixture.h"
#include "tooltip/QRNToolTip.h"

namespace qrn::test {

/// A panel of three rows, and its tool tip.
class ToolTipOfPanel : public PanelTest {
 protected:
  ToolTipOfPanel() {
    addParameter("A");
    addParameter("B");
    addParameter("C");
    panel().LayoutControls(false);
    startListening();
  }

  QRNToolTip& showTip(const Variant& related = "A", float lines = 2) {
    return *panel().DisplayToolTip(related, lines);
  }
  host::Control* tip() { return panel().ControlsCollection().find("ctlToolTip"); }
  // Nothing is heard of it, not even that the row has lost the focus.
  void showTipOverAnEditOf(std::int32_t position) {
    user->focuses(row(position));
    user->types("x");
    showTip(Variant(position));
    startListening();
  }
  static Rect placeOf(const host::Control& control) { return control.onSurface(); }
  Rect inside() { return placeOf(panel().ControlsContainer()); }
};

}  // namespace qrn::test
