#pragma once

#include <filesystem>
#include <iosfwd>
#include <stdexcept>
#include <string>
#include <vector>

#include "device_pages.h"
#include "platform/headless/user.h"

namespace qrn::eddpanel {

/// A script that can't be played; what() reads `file:line: what is wrong`.
class ReplayError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// What the user of a script answers, which is printed with the question. One answer is for the next
/// question; without any the page is kept open.
class ScriptedAnswers final : public ChangesQuestion {
 public:
  explicit ScriptedAnswers(std::ostream& out) : out_(out) {}
  void willAnswer(ForChanges answer) { next_ = answer; }
  ForChanges ask(const std::string& page, const Edits& edits) override;

 private:
  std::ostream& out_;
  ForChanges next_ = ForChanges::KeepOpen;
};

/// Plays user actions on the page on top, without a display. A script has one action a line; `#` starts a
/// comment, and texts with blanks stand in quotation marks:
///
///     page "Basic setup"         puts a menu's page on top by its label or name, or goes back to it; the
///                                first page is always the first menu
///     back 1                     clicks on the title of a page that is covered
///     close                      clicks on the close icon; maximize is the other one
///     answer apply | discard | cancel     the next question about values that are not written
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
///     wheel -3                   turns the wheel over the page, notches away from the user are positive
///     leave                      another application is activated
///     wait 500                   lets milliseconds pass
class Replay {
 public:
  Replay(headless::HeadlessPlatform& platform, DevicePages& pages, ScriptedAnswers& answers,
         std::ostream& out);

  /// Plays a whole script. Errors: ReplayError.
  void play(const std::filesystem::path& script);
  void playText(std::string_view text, const std::string& name);

 private:
  using Words = std::vector<std::string>;

  void act(const Words& words);
  bool actOnPages(const Words& words);
  void open(const std::string& menu);
  void goBack(const std::string& page);
  void clickTitleIcon(host::Control& icon);
  void answer(const std::string& answer);
  void click(const Words& words);
  void choose(const Words& words);
  void press(const std::string& key);
  void leave();
  void wait(const std::string& milliseconds);
  QRNEdit& row(const std::string& name);
  host::Control& item(const std::string& name);
  host::Control* footerButton(const std::string& caption);
  host::Control& part(const Words& words);
  MenuPage& top();
  headless::User user();

  headless::HeadlessPlatform& platform_;
  DevicePages& pages_;
  ScriptedAnswers& answers_;
  std::ostream& out_;
  long long sinceTick_ = 0;  // milliseconds
};

}  // namespace qrn::eddpanel
