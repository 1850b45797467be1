#pragma once

#include <gtest/gtest.h>

#include <sstream>

#include "device_panels.h"
#include "library/library.h"
#include "edd/reader.h"
#include "event_printer.h"
#include "platform/headless/headless_platform.h"
#include "replay.h"

namespace qrn::eddpanel {

/// A small device with one panel of each kind of item, played without a display.
class SampleDevice : public ::testing::Test {
 protected:
  static constexpr std::string_view kText = R"(
    MANUFACTURER 1, DEVICE_TYPE 1, DEVICE_REVISION 1, DD_REVISION 1
    VARIABLE damping { LABEL "Damping"; HELP "Filters the value."; CLASS CONTAINED; HANDLING READ & WRITE;
      CONSTANT_UNIT "s"; TYPE FLOAT { DEFAULT_VALUE 1.5; MIN_VALUE 0; MAX_VALUE 60; DISPLAY_FORMAT "5.2f"; } }
    VARIABLE mode { LABEL "Mode"; CLASS CONTAINED; HANDLING READ & WRITE;
      TYPE ENUMERATED(1) { DEFAULT_VALUE 5; { 4, "Manual" }, { 5, "Automatic" } } }
    VARIABLE simulate { LABEL "Simulation"; CLASS CONTAINED; HANDLING READ & WRITE;
      TYPE ENUMERATED(1) { DEFAULT_VALUE 0; { 0, "Off" }, { 1, "On" } } }
    VARIABLE status { LABEL "Status"; CLASS CONTAINED; HANDLING READ & WRITE;
      TYPE BIT_ENUMERATED(1) { DEFAULT_VALUE 2; { 1, "Hot" }, { 2, "Service" } } }
    VARIABLE pressure { LABEL "Pressure"; CLASS DYNAMIC; HANDLING READ; CONSTANT_UNIT "bar";
      TYPE FLOAT { DEFAULT_VALUE 4; DISPLAY_FORMAT "6.3f"; } }
    METHOD self_test { LABEL "Self test"; HELP "Runs it."; DEFINITION { int x; x = 1; } }
    MENU more { LABEL "More"; HELP "Shows the rest."; ITEMS { pressure } }
    MENU trim { LABEL "Trim"; STYLE DIALOG; ITEMS { damping } }
    MENU main { LABEL "Main"; ITEMS { damping, mode, simulate, status, pressure, self_test, more, trim } }
  )";

  SampleDevice() {
    registerControls();
    panels.onOpened([this](MenuPanel& panel) { printer.watch(panel); });
  }

  // Opened once, as opening a panel again shows what the device has by then.
  MenuPanel& main() {
    if (!main_) main_ = &panels.open(*description.menu("main"));
    return *main_;
  }
  QRNEdit& row(std::string_view name) { return *main().row(main().itemOf(name)); }
  /// Plays actions on the panel "Main" and answers what was printed meanwhile.
  std::string play(const std::string& script) { return playOn("panel Main\n" + script); }
  /// The same on the panel that is open, as it is.
  std::string playOn(const std::string& script) {
    out.str({});
    replay.playText(script, "script");
    return out.str();
  }

  edd::Description description = edd::readDescriptionText(kText, "sample.ddl");
  headless::HeadlessPlatform platform;
  headless::HeadlessSite site{platform};
  std::ostringstream out;
  DevicePanels panels{description, site};
  EventPrinter printer{out};
  Replay replay{platform, panels, out};

 private:
  MenuPanel* main_ = nullptr;
};

}  // namespace qrn::eddpanel
