#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

#include "controls/raised.h"
#include "diag/QRNErrors.h"
#include "support/panel_fixture.h"

namespace qrn::test {

using Names = std::vector<std::string>;

/// A footer button of the fixture's panel is 23 high, a line of 13 and 10, and 72 wide: twelve characters.
class FooterTest : public PanelTest {
 protected:
  clsQRNButtons& buttons() { return panel().Buttons(); }
  clsQRNButton& button(std::int32_t position) { return *buttons().Item(Variant(position)); }
  host::CommandButton& control(std::int32_t position) { return button(position).Control(); }
  ButtonPtr add(const std::string& name, const std::string& caption = "Caption") {
    return buttons().AddButton(name, caption);
  }
  ButtonPtr addAt(const std::string& name, const Variant& position) {
    return buttons().AddButton(name, "Caption", position);
  }
  Names order() {
    Names names;
    for (const ButtonPtr& one : buttons()) names.push_back(one->Control().Name());
    return names;
  }
  host::Timer* timer() {
    return dynamic_cast<host::Timer*>(panel().ControlsCollection().find("tmrButtonFire"));
  }
  void pass(std::chrono::milliseconds time) { platform.clock().advance(time); }
  void deliver() { platform.processMessages(); }
};

}  // namespace qrn::test
