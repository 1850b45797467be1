#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/check_box.h"
#include "host/class_table.h"
#include "host/combo_box.h"
#include "host/input.h"
#include "host/label.h"
#include "host/list_box.h"
#include "host/picture_box.h"
#include "host/platform.h"
#include "host/site.h"
#include "host/text_box.h"
#include "host/timer.h"
#include "host/user_control.h"
#include "host/v_scroll_bar.h"

/// What every platform has to do, as tests that run on each of them.
///
/// A platform's suite is one source file: it derives from ContractPlatform, includes contract_tests.inc, and
/// instantiates the tests with a function that makes its ContractPlatform:
///
///     INSTANTIATE_TEST_SUITE_P(Headless, Contract, testing::Values(&makeHeadless));
///
/// The tests never sleep and never loop without an end; they wait by `runUntil` and `letTimePass` only.
namespace qrn::contract {

/// A platform with a user in front of it. Each test has one of its own.
class ContractPlatform {
 public:
  virtual ~ContractPlatform() = default;

  virtual host::Platform& platform() = 0;

  // ---- the window ----

  /// Gives the control its native surface in a window of the control's size that has the keyboard, with no
  /// editor focused yet, and lets it be painted for the first time. One control at a time.
  virtual void show(host::UserControl& surface) = 0;
  /// The window goes, and the native surface with it, as when a host closes its form; the control stays.
  virtual void close() = 0;
  /// Paints what is waiting to be painted, and nothing else.
  virtual void paintPending() = 0;

  // ---- the user; by native input, as far as the platform lets itself be driven ----

  /// Presses and releases the left button in the middle of what can be seen of a control. Nothing happens
  /// where nothing can be seen.
  virtual void click(host::Control& control) = 0;
  /// Types printable characters into whatever has the keyboard.
  virtual void type(std::string_view text) = 0;
  /// A key of host::key with bits of host::shift, down and up.
  virtual void press(std::int16_t key, std::int16_t shift = host::shift::None) = 0;
  /// Picks an entry of a drop list that has the focus, by mouse or by keys: with one report in the end.
  virtual void choose(host::ComboBox& box, std::int32_t entry) = 0;
  /// Clicks the check mark of an entry of a list box that has the focus.
  virtual void tick(host::ListBox& list, std::int16_t entry) = 0;
  /// Drags a scroll bar to a value.
  virtual void scroll(host::VScrollBar& bar, std::int32_t value) = 0;
  /// Turns the wheel at a point of the surface; notches away from the user are positive.
  virtual void turnWheel(Point at, double notches) = 0;
  /// What the user will pick in the next menu that pops up; none closes it.
  virtual void willChoose(std::optional<int> entry) = 0;

  // ---- the message loop ----

  /// Runs the message loop until the condition holds; gives up after a bounded number of turns. Answers
  /// whether it holds.
  virtual bool runUntil(const std::function<bool()>& condition) = 0;
  /// Lets up to that much time pass, by a clock of its own where it has one; ends early when the condition
  /// holds. Answers whether it holds.
  virtual bool letTimePass(std::chrono::milliseconds upTo, const std::function<bool()>& condition) = 0;
};

using MakePlatform = std::unique_ptr<ContractPlatform> (*)();

using Heard = std::vector<std::string>;

/// A surface with an editor of each kind below each other, and a scroll bar at the right. It writes down what
/// it hears; a listener may do something at any of it.
class ContractSurface final : public host::UserControl {
 public:
  static constexpr double kWidth = 240, kHeight = 260, kRow = 26;

  std::string_view typeName() const override { return "ContractSurface"; }
  const host::ClassTable& classTable() const override {
    static const host::ClassTable table{"ContractSurface", "Contract.Surface", {}, {}, {}, {}, {}};
    return table;
  }

  template <class T>
  T& add(std::string_view name, const Rect& place, host::ContainerControl& container) {
    T& added = *new T;
    controls().add(host::Owned<host::Control>(&added), name, container);
    added.Move(place.left, place.top, place.width, place.height);
    return added;
  }

  Heard heard;
  std::function<void(const std::string&)> listener;
  /// Keys and characters are written down too.
  bool notesKeys = false;
  bool notesMouse = false;
  /// The key code or character that a listener clears.
  std::int16_t swallowed = -1;
  bool usesWheel = true;
  int paints = 0;

  host::TextBox* text = nullptr;
  host::TextBox* second = nullptr;
  host::CheckBox* check = nullptr;
  host::ComboBox* combo = nullptr;
  host::ListBox* list = nullptr;
  host::VScrollBar* bar = nullptr;

  void childChanged(host::Control& child) override { note(child.Name() + " Change"); }
  void childClicked(host::Control& child) override { note(child.Name() + " Click"); }
  void childItemChecked(host::Control& child, std::int16_t item) override {
    note(child.Name() + " ItemCheck " + std::to_string(item));
  }
  void childMouseDown(host::Control& child, host::MouseButton button, std::int16_t, Point at) override {
    noteMouse(child, "MouseDown", button, at);
  }
  void childMouseUp(host::Control& child, host::MouseButton button, std::int16_t, Point at) override {
    noteMouse(child, "MouseUp", button, at);
  }
  void childGotFocus(host::Control& child) override { note(child.Name() + " GotFocus"); }
  void childLostFocus(host::Control& child) override { note(child.Name() + " LostFocus"); }
  void childKeyDown(host::Control&, std::int16_t& keyCode, std::int16_t& shift) override {
    noteKey("KeyDown", keyCode, shift);
  }
  void childKeyPress(host::Control&, std::int16_t& character) override { noteKey("KeyPress", character, 0); }
  void childKeyUp(host::Control&, std::int16_t& keyCode, std::int16_t& shift) override {
    noteKey("KeyUp", keyCode, shift);
  }
  bool wheel(double notches) override {
    const bool used = usesWheel;
    note("Wheel " + std::to_string(static_cast<int>(notches)));
    return used;
  }
  host::Control* nextTabStop(host::Control* from, bool forward) override {
    std::vector<host::Control*> stops{text, second, check, combo, list};
    if (!forward) stops = {stops.rbegin(), stops.rend()};
    std::size_t next = 0;
    for (std::size_t i = 0; from && i < stops.size(); ++i) {
      if (stops[i] == from) next = i + 1;
    }
    return next < stops.size() ? stops[next] : nullptr;
  }

  void paint(host::Surface& surface, Size size) override {
    ++paints;
    surface.fill({0, 0, size.width, size.height}, backColor());
  }

 protected:
  void initialize() override {
    Move(0, 0, kWidth, kHeight);
    text = &add<host::TextBox>("text", rowPlace(0), *this);
    second = &add<host::TextBox>("second", rowPlace(1), *this);
    check = &add<host::CheckBox>("check", rowPlace(2), *this);
    combo = &add<host::ComboBox>("combo", rowPlace(3), *this);
    list = &add<host::ListBox>("list", {10, 10 + 4 * (kRow + 4), 150, 80}, *this);
    bar = &add<host::VScrollBar>("bar", {kWidth - 20, 0, 20, kHeight}, *this);
    bar->SetMax(100);
    for (const char* entry : {"slow", "medium", "fast"}) {
      combo->AddItem(entry);
      list->AddItem(entry);
    }
  }

 private:
  static Rect rowPlace(int row) { return {10, 10 + row * (kRow + 4), 150, kRow}; }

  void note(std::string what) {
    heard.push_back(what);
    // A copy: the surface itself may go inside.
    if (const auto call = listener) call(what);
  }
  void noteMouse(const host::Control& child, const char* what, host::MouseButton button, Point at) {
    if (!notesMouse) return;
    const Rect inside{0, 0, child.Width(), child.Height()};
    note(child.Name() + " " + what + " " + std::to_string(static_cast<int>(button)) +
         (inside.contains(at) ? "" : " outside"));
  }
  void noteKey(const char* what, std::int16_t& key, std::int16_t shift) {
    const std::int16_t given = key;
    if (key == swallowed) key = 0;
    if (notesKeys) note(std::string(what) + " " + std::to_string(given) + (shift ? "+" : ""));
  }
};

/// The fixture of all the tests: a shown surface with nothing focused.
class Contract : public testing::TestWithParam<MakePlatform> {
 protected:
  Contract() {
    machine = GetParam()();
    site = std::make_unique<PlainSite>(machine->platform());
    surface = host::create<ContractSurface>(*site);
    machine->show(*surface);
    surface->heard.clear();
  }
  ~Contract() override {
    machine->close();
    surface.reset();
  }

  /// What was heard since the last call.
  Heard heard() { return std::exchange(surface->heard, {}); }
  bool hasFocus(const host::Control& control) const { return surface->input().focus() == &control; }
  /// Runs the loop until there is nothing more to come, as far as that can be known.
  void settle() {
    machine->runUntil([] { return false; });
  }
  /// Does something the first time that something is heard.
  void when(const std::string& what, std::function<void()> then) {
    surface->listener = [this, what, then = std::move(then)](const std::string& line) {
      if (line != what) return;
      const auto once = then;
      surface->listener = nullptr;
      once();
    };
  }

  struct PlainSite final : host::Site {
    explicit PlainSite(host::Platform& platform) : machine(platform) {}
    host::Platform& platform() const override { return machine; }
    host::Ambient ambient() const override { return {}; }
    host::Platform& machine;
  };

  std::unique_ptr<ContractPlatform> machine;
  std::unique_ptr<PlainSite> site;
  host::Owned<ContractSurface> surface;
};

}  // namespace qrn::contract
