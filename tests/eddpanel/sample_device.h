#pragma once

#include <gtest/gtest.h>

#include <sstream>

#include "device_pages.h"
#include "edd/reader.h"
#include "event_printer.h"
#include "library/library.h"
#include "platform/headless/headless_platform.h"
#include "replay.h"

namespace qrn::eddpanel {

/// A small device whose first page has one item of each kind, played without a display.
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
      TYPE BIT_ENUMERATED(1) { DEFAULT_VALUE 2; { 1, "Hot", "Above 85 °C." }, { 2, "Service" } } }
    VARIABLE pressure { LABEL "Pressure"; CLASS DYNAMIC; HANDLING READ; CONSTANT_UNIT "bar";
      TYPE FLOAT { DEFAULT_VALUE 4; DISPLAY_FORMAT "6.3f"; } }
    VARIABLE limit { LABEL "Limit"; CLASS CONTAINED; HANDLING READ & WRITE; TYPE INTEGER(2) { DEFAULT_VALUE 7; } }
    METHOD self_test { LABEL "Self test"; HELP "Runs it."; DEFINITION { int x; x = 1; } }
    MENU trim { LABEL "Trim"; STYLE DIALOG; ITEMS { damping } }
    MENU more { LABEL "More"; HELP "Shows the rest."; ITEMS { pressure, limit, trim } }
    MENU main { LABEL "Main"; ITEMS { damping, mode, simulate, status, pressure, self_test, more, trim } }
  )";

  SampleDevice() { printer.watch(pages); }

  // Put on the stack again when it has been closed.
  MenuPage& main() {
    if (!pages.top()) pages.open(*description.menu("main"));
    return pages.page(1);
  }
  MenuPage& top() { return *pages.top(); }
  QRNEdit& row(std::string_view name) { return *main().row(main().itemOf(name)); }
  /// Plays actions on the page "Main" and answers what was printed meanwhile.
  std::string play(const std::string& script) {
    main();
    return playOn("page Main\n" + script);
  }
  /// The same on the page that is on top.
  std::string playOn(const std::string& script) {
    out.str({});
    replay.playText(script, "script");
    return out.str();
  }
  /// The titles of the pages from below.
  std::string titles() {
    std::string all;
    for (std::int32_t i = 1; i <= stack->Count(); ++i)
      all += (i == 1 ? "" : " > ") + stack->Pages(Variant(i)).Title();
    return all;
  }

  // Before the stack is made.
  struct Registration {
    Registration() { registerControls(); }
  } registration;
  edd::Description description = edd::readDescriptionText(kText, "sample.ddl");
  headless::HeadlessPlatform platform;
  headless::HeadlessSite site{platform};
  std::ostringstream out;
  host::Owned<QRNDisplayStack> stack = host::create<QRNDisplayStack>(site);
  EventPrinter printer{*stack, out};
  ScriptedAnswers answers{out};
  DevicePages pages{description, *stack, answers};
  Replay replay{platform, pages, answers, out};
};

/// The lines of a text that start in one way, one below the other.
inline std::string linesWith(const std::string& start, const std::string& text) {
  std::istringstream lines(text);
  std::string found;
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with(start)) found += (found.empty() ? "" : "\n") + line;
  }
  return found;
}

}  // namespace qrn::eddpanel
