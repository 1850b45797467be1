#include <CLI/CLI.hpp>
#include <iostream>
#include <optional>

#include "base/text.h"
#include "device_pages.h"
#include "edd/reader.h"
#include "event_printer.h"
#include "library/library.h"
#include "page_text.h"
#include "platform/headless/headless_platform.h"
#include "replay.h"
#include "runtime/errors.h"
#include "runtime/locale.h"
#include "shown_on_screen.h"

namespace {

using namespace qrn;

struct Options {
  std::string file;
  std::string language = "en";
  bool list = false;
  std::string replay;
  eddpanel::ScreenOptions screen;
};

// Without a display: the pages as text, or a script of user actions with the events that it raises.
int runHeadless(const edd::Description& description, const Options& options) {
  headless::HeadlessPlatform platform;
  headless::HeadlessSite site(platform);
  const auto stack = host::create<QRNDisplayStack>(site);
  std::optional<eddpanel::EventPrinter> printer;
  if (!options.replay.empty()) printer.emplace(*stack, std::cout);
  eddpanel::ScriptedAnswers answers(std::cout);
  eddpanel::DevicePages pages(description, *stack, answers);
  if (printer) {
    printer->watch(pages);
    eddpanel::Replay(platform, pages, answers, std::cout).play(options.replay);
    return 0;
  }
  for (const edd::Menu* menu : pages.menus()) {
    pages.closeAll();
    pages.open(*menu);
    eddpanel::printPage(std::cout, *pages.top());
  }
  return 0;
}

int run(const Options& options, int argc, char** argv) {
  edd::ReadOptions reading;
  reading.language = options.language;
  const edd::Description description = edd::readDescription(options.file, reading);
  for (const edd::Diagnostic& warning : description.warnings) {
    std::cerr << "eddpanel: " << warning.file << ':' << warning.line << ": warning: " << warning.text << '\n';
  }
  if (description.menus().empty()) throw edd::DescriptionError({options.file, 1}, "there is no MENU to show");
  registerControls();
  // Numbers and dates are written, and read, as in the country of the language.
  if (text::lowered(options.language).starts_with("de")) setCurrentLocale(deDE());
  if (options.list || !options.replay.empty()) return runHeadless(description, options);
  return eddpanel::runOnScreen(description, options.screen, argc, argv);
}

}  // namespace

int main(int argc, char** argv) {
  Options options;
  CLI::App app("Shows the menus of a device description (EDD text, IEC 61804-3).");
  app.add_option("FILE", options.file, "the device description")->required();
  app.add_option("--language", options.language,
                 "language of labels and help texts, en or de; numbers and dates follow it");
  app.add_flag("--list", options.list, "print the pages as text");
  app.add_option("--replay", options.replay,
                 "play a script of user actions without a display and print the events");
  app.add_option("--pictures", options.screen.pictures, "write a PNG of each page into this folder");
  app.add_flag("--dark", options.screen.dark, "use a dark palette");
  app.add_flag("--events", options.screen.printEvents, "print the events of the window's pages");
  CLI11_PARSE(app, argc, argv);
  try {
    return run(options, argc, argv);
  } catch (const RunTimeError& error) {
    std::cerr << "eddpanel: " << error.source() << ": error " << error.number() << ": " << error.what()
              << '\n';
  } catch (const std::exception& error) {
    std::cerr << "eddpanel: " << error.what() << '\n';
  }
  return 1;
}
