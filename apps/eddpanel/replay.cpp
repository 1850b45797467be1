#include "replay.h"

#include <charconv>
#include <fstream>
#include <ostream>
#include <sstream>

#include "base/text.h"
#include "runtime/errors.h"

namespace qrn::eddpanel {
namespace {

constexpr long long kTickInterval = 100;  // milliseconds between two values of the device
constexpr double kWidth = 800;            // of the stack, in pixels
constexpr double kHeight = 600;

constexpr std::pair<std::string_view, ForChanges> kAnswers[] = {
    {"apply", ForChanges::Apply}, {"discard", ForChanges::Discard}, {"cancel", ForChanges::KeepOpen}};

struct NamedKey {
  std::string_view name;
  std::int16_t code;
};

constexpr NamedKey kKeys[] = {
    {"Tab", host::key::Tab},       {"Enter", host::key::Enter},       {"Escape", host::key::Escape},
    {"Space", host::key::Space},   {"Back", host::key::Back},         {"Delete", host::key::Delete},
    {"Up", host::key::Up},         {"Down", host::key::Down},         {"Left", host::key::Left},
    {"Right", host::key::Right},   {"Home", host::key::Home},         {"End", host::key::End},
    {"PageUp", host::key::PageUp}, {"PageDown", host::key::PageDown}, {"F1", host::key::F1},
    {"F4", host::key::F4},         {"F10", host::key::F10},
};

[[noreturn]] void refuse(const std::string& what) { throw ReplayError(what); }

// The words of a line; those in quotation marks may hold blanks.
std::vector<std::string> wordsOf(std::string_view line) {
  std::vector<std::string> words;
  while (true) {
    line = text::trimmed(line);
    if (line.empty() || line.front() == '#') return words;
    if (line.front() == '"') {
      const auto end = line.find('"', 1);
      if (end == std::string_view::npos) refuse("the text has no closing quotation mark");
      words.emplace_back(line.substr(1, end - 1));
      line.remove_prefix(end + 1);
    } else {
      const auto end = std::min(line.find_first_of(" \t"), line.size());
      words.emplace_back(line.substr(0, end));
      line.remove_prefix(end);
    }
  }
}

template <class Number>
Number numberOf(const std::string& text) {
  Number value{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) refuse("\"" + text + "\" is no number");
  return value;
}

}  // namespace

ForChanges ScriptedAnswers::ask(const std::string& page, const Edits& edits) {
  const ForChanges given = std::exchange(next_, ForChanges::KeepOpen);
  out_ << "question: " << questionText(page, edits) << '\n';
  for (const auto& [name, answer] : kAnswers) {
    if (answer == given) out_ << "answer: " << name << std::endl;
  }
  return given;
}

Replay::Replay(headless::HeadlessPlatform& platform, DevicePages& pages, ScriptedAnswers& answers,
               std::ostream& out)
    : platform_(platform), pages_(pages), answers_(answers), out_(out) {
  pages_.stack().Move(0, 0, kWidth, kHeight);
  pages_.stack().realise();
}

void Replay::play(const std::filesystem::path& script) {
  std::error_code ignored;
  std::ifstream in(script, std::ios::binary);
  if (!in || std::filesystem::is_directory(script, ignored)) refuse(script.string() + ":1: can't be read");
  std::ostringstream text;
  text << in.rdbuf();
  playText(text.str(), script.string());
}

void Replay::playText(std::string_view text, const std::string& name) {
  for (int line = 1; !text.empty(); ++line) {
    const auto end = std::min(text.find('\n'), text.size());
    try {
      const Words words = wordsOf(text.substr(0, end));
      if (!words.empty()) act(words);
      platform_.processMessages();
    } catch (const std::runtime_error& error) {
      refuse(name + ":" + std::to_string(line) + ": " + error.what());
    }
    text.remove_prefix(std::min(end + 1, text.size()));
  }
}

MenuPage& Replay::top() {
  if (!pages_.top()) open(pages_.menus().empty() ? std::string() : pages_.menus().front()->name);
  return *pages_.top();
}

headless::User Replay::user() { return {platform_, pages_.stack()}; }

void Replay::open(const std::string& name) {
  const edd::Menu* menu = pages_.find(name);
  if (!menu) refuse("there is no page \"" + name + '"');
  out_ << "-- " << menu->label << '\n';
  if (!pages_.top()) pages_.open(*pages_.menus().front());
  pages_.open(*menu);
}

void Replay::goBack(const std::string& page) {
  const auto index = numberOf<std::int32_t>(page);
  if (index < 1 || index >= pages_.stack().Count()) refuse("no page " + page + " is covered");
  user().clicks(pages_.page(index).panel().lblTitle());
}

void Replay::clickTitleIcon(host::Control& icon) {
  if (!icon.shown()) refuse("the page on top has no such icon");
  user().clicks(icon);
}

void Replay::answer(const std::string& answer) {
  for (const auto& [name, meant] : kAnswers) {
    if (name == answer) return answers_.willAnswer(meant);
  }
  refuse("unknown answer \"" + answer + '"');
}

host::Control& Replay::item(const std::string& name) {
  const std::int32_t position = top().itemOf(name);
  if (host::Control* button = position == 0 ? footerButton(name) : nullptr) return *button;
  if (position == 0) refuse("page \"" + top().menu().label + "\" has no item \"" + name + '"');
  return top().control(position);
}

host::Control* Replay::footerButton(const std::string& caption) {
  for (const ButtonPtr& button : top().panel().Buttons()) {
    if (text::replaced(button->Control().Caption(), "&", "") == caption) return &button->Control();
  }
  return nullptr;
}

QRNEdit& Replay::row(const std::string& name) {
  auto* found = dynamic_cast<QRNEdit*>(&item(name));
  if (!found) refuse("\"" + name + "\" has no value");
  return *found;
}

host::Control& Replay::part(const Words& words) {
  if (words.size() < 3) {
    host::Control& whole = item(words.at(1));
    auto* asRow = dynamic_cast<QRNEdit*>(&whole);
    return asRow && asRow->CurrentEditor() ? *asRow->CurrentEditor() : whole;
  }
  QRNEdit& found = row(words[1]);
  if (words[2] == "label") return found.lblLabel();
  if (words[2] == "unit") return found.lblUnit();
  if (words[2] == "icon1") return found.imgIcon1();
  if (words[2] == "icon2") return found.imgIcon2();
  if (words[2] == "value" && found.CurrentEditor()) return *found.CurrentEditor();
  refuse("a row has no part \"" + words[2] + '"');
}

void Replay::act(const Words& words) {
  const std::string& verb = words.front();
  const bool alone = verb == "page" || verb == "back" || verb == "answer" || verb == "focus" ||
                     verb == "type" || verb == "enter" || verb == "key" || verb == "menu" ||
                     verb == "wheel" || verb == "wait";
  if (alone && words.size() != 2) refuse("\"" + verb + "\" takes one word, or a text in quotation marks");
  if (actOnPages(words)) return;
  if (verb == "wait") return wait(words[1]);
  if (verb == "menu") return platform_.willChoose(numberOf<int>(words[1]));
  if (verb == "click" || verb == "doubleclick" || verb == "rightclick") return click(words);
  if (verb == "choose" || verb == "tick") return choose(words);
  if (verb == "leave") return leave();
  headless::User user = this->user();
  if (verb == "focus")
    user.focuses(item(words[1]));
  else if (verb == "type")
    user.types(words[1]);
  else if (verb == "enter")
    user.enters(words[1]);
  else if (verb == "key")
    press(words[1]);
  else if (verb == "wheel")
    user.turnsWheel(headless::User::middleOf(top().panel()), numberOf<double>(words[1]));
  else
    refuse("unknown action \"" + verb + '"');
}

// Answers whether that was all there is to do.
bool Replay::actOnPages(const Words& words) {
  const std::string& verb = words.front();
  if (verb == "page")
    open(words[1]);
  else if (verb == "back")
    goBack(words[1]);
  else if (verb == "answer")
    answer(words[1]);
  else if (verb == "close")
    clickTitleIcon(top().panel().imgClose());
  else if (verb == "maximize")
    clickTitleIcon(top().panel().imgMaxRst());
  else
    return false;
  return true;
}

// The user comes back at once, to no part of the window in particular.
void Replay::leave() {
  user().switchesAway();
  user().comesBack();
}

void Replay::click(const Words& words) {
  if (words.size() < 2 || words.size() > 3)
    refuse("\"" + words[0] + "\" takes an item, and one of its parts");
  host::Control& target = part(words);
  if (!target.shown() || target.visibleOnSurface().empty())
    refuse("\"" + words[1] + "\" can't be seen there");
  headless::User user = this->user();
  if (words[0] == "doubleclick")
    user.doubleClicks(target);
  else
    user.clicks(target, words[0] == "click" ? host::MouseButton::Left : host::MouseButton::Right);
}

void Replay::choose(const Words& words) {
  if (words.size() != 3) refuse("\"" + words[0] + "\" takes an item and an entry");
  headless::User user = this->user();
  auto* list = dynamic_cast<host::ListEditor*>(row(words[1]).CurrentEditor());
  if (!list) refuse("\"" + words[1] + "\" has no list");
  if (words[0] == "tick") return user.ticks(*list, numberOf<std::int16_t>(words[2]));
  for (std::int32_t i = 0; i < list->ListCount(); ++i) {
    if (list->List(i) == words[2]) return user.chooses(*list, i);
  }
  refuse("\"" + words[1] + "\" has no entry \"" + words[2] + '"');
}

void Replay::press(const std::string& key) {
  std::string_view name = key;
  std::int16_t shift = host::shift::None;
  for (const auto& [prefix, bit] : {std::pair<std::string_view, std::int16_t>{"Shift+", host::shift::Shift},
                                    {"Ctrl+", host::shift::Control},
                                    {"Alt+", host::shift::Alt}}) {
    if (!name.starts_with(prefix)) continue;
    name.remove_prefix(prefix.size());
    shift = static_cast<std::int16_t>(shift | bit);
  }
  headless::User user = this->user();
  for (const NamedKey& known : kKeys) {
    if (known.name == name) return user.presses(known.code, shift);
  }
  const bool letter =
      name.size() == 1 && ((name[0] >= 'A' && name[0] <= 'Z') || (name[0] >= '0' && name[0] <= '9'));
  if (!letter) refuse("unknown key \"" + key + '"');
  user.presses(name[0], shift);
}

void Replay::wait(const std::string& milliseconds) {
  for (auto left = numberOf<long long>(milliseconds); left > 0; --left) {
    platform_.clock().advance(std::chrono::milliseconds(1));
    platform_.processMessages();
    if (++sinceTick_ % kTickInterval == 0) pages_.tick();
  }
}

}  // namespace qrn::eddpanel
