#pragma once

#include <filesystem>
#include <iosfwd>
#include <stdexcept>
#include <string>
#include <vector>

#include "device_panels.h"
#include "platform/headless/headless_platform.h"

namespace qrn::eddpanel {

/// A script that can't be played; what() reads `file:line: what is wrong`.
class ReplayError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Plays user actions on panels without a display. A script has one action a line; `#` starts a comment, and
/// texts with blanks stand in quotation marks:
///
///     panel "Basic setup"        opens a panel by its label or name
///     focus damping              gives an item the focus
///     click damping [label | unit | icon1 | icon2 | value]
///     click Apply                a button of the footer, by its caption
///     doubleclick | rightclick   the same with the other clicks
///     type 3.5                   types letter by letter
///     enter 3.5                  replaces the whole text
///     key Tab | Shift+F10 | …    presses a key
///     choose characteristic "Square root"     picks an entry of a drop list
///     tick device_status 2       clicks a check mark, counted from 0
///     menu 1                     what will be chosen in the next menu that pops up
///     wheel -3                   turns the wheel over the panel, notches away from the user are positive
///     wait 500                   lets milliseconds pass
class Replay {
 public:
  Replay(headless::HeadlessPlatform& platform, DevicePanels& panels, std::ostream& out);

  /// Plays a whole script. Errors: ReplayError.
  void play(const std::filesystem::path& script);
  void playText(std::string_view text, const std::string& name);

 private:
  using Words = std::vector<std::string>;

  void act(const Words& words);
  void open(const std::string& panel);
  void click(const Words& words);
  void choose(const Words& words);
  void press(const std::string& key);
  void wait(const std::string& milliseconds);
  QRNEdit& row(const std::string& name);
  host::Control& item(const std::string& name);
  host::Control* footerButton(const std::string& caption);
  host::Control& part(const Words& words);
  MenuPanel& panel();

  headless::HeadlessPlatform& platform_;
  DevicePanels& panels_;
  std::ostream& out_;
  MenuPanel* panel_ = nullptr;
  long long sinceTick_ = 0;  // milliseconds
};

}  // namespace qrn::eddpanel
