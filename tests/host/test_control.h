#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "host/class_table.h"
#include "host/user_control.h"
#include "platform/headless/headless_platform.h"
#include "platform/headless/user.h"
#include "runtime/errors.h"
#include "support/error_of.h"

namespace qrn::test {

using Heard = std::vector<std::string>;

/// The description of the run-time error that an action raises.
template <class Action>
std::string refusal(Action&& action) {
  try {
    action();
  } catch (const RunTimeError& error) {
    return error.description();
  }
  return "nothing was refused";
}

/// What the controls of one test hear, in one list; a listener may do something at any of it.
struct Diary {
  void note(std::string what) {
    lines.push_back(what);
    // A copy, as a listener may put another in its own place.
    if (const auto call = listener) call(what);
  }
  Heard take() { return std::exchange(lines, {}); }

  Heard lines;
  std::function<void(std::string)> listener;
};

/// A user control that writes down what happens to it and what its parts report.
class TestControl : public host::UserControl {
 public:
  explicit TestControl(Diary& diary, std::string label = "control")
      : diary_(diary), label_(std::move(label)) {}

  std::string_view typeName() const override { return "TestControl"; }
  const host::ClassTable& classTable() const override {
    static const host::ClassTable table{"TestControl", "Test.Control", {}, {}, {}, {}, {}};
    return table;
  }

  /// Makes a standard control inside this one.
  template <class T>
  T& add(std::string_view name, const Rect& place = {0, 0, 100, 20}) {
    return add<T>(name, place, *this);
  }
  template <class T>
  T& add(std::string_view name, const Rect& place, host::ContainerControl& container) {
    T& added = *new T;
    controls().add(host::Owned<host::Control>(&added), name, container);
    added.Move(place.left, place.top, place.width, place.height);
    return added;
  }
  /// Makes another one of these inside this one.
  TestControl& addControl(std::string_view name, const Rect& place = {0, 0, 100, 20}) {
    auto* added = new TestControl(diary_, std::string(name));
    controls().add(host::Owned<host::Control>(added), name, *this);
    added->Move(place.left, place.top, place.width, place.height);
    return *added;
  }

  using UserControl::propertyChanged;
  using UserControl::raise;
  using UserControl::setBackColor;
  using UserControl::setFont;
  using UserControl::setForeColor;
  using UserControl::setScaleMode;

  // What it writes down beside its focus and the reports of its parts.
  bool notesFocus = true;
  bool notesMouse = false;
  bool notesKeys = false;
  bool usesWheel = false;
  /// Keys and characters that it keeps to itself.
  std::int16_t swallowedKey = -1;
  std::vector<host::Control*> tabStops;

  Event<std::int16_t&, bool&> Asked;

  void mouseDown(host::MouseButton button, std::int16_t, Point at) override {
    noteMouse(label_ + " MouseDown " + std::to_string(static_cast<int>(button)), at);
  }
  void mouseMove(std::int16_t, std::int16_t, Point at) override { noteMouse(label_ + " MouseMove", at); }
  void mouseUp(host::MouseButton button, std::int16_t, Point at) override {
    noteMouse(label_ + " MouseUp " + std::to_string(static_cast<int>(button)), at);
  }
  void doubleClick(Point at) override { noteMouse(label_ + " DblClick", at); }
  bool wheel(double notches) override {
    const bool used = usesWheel;
    if (notesMouse) diary_.note(label_ + " Wheel " + std::to_string(static_cast<int>(notches)));
    return used;
  }
  void keyDown(std::int16_t& keyCode, std::int16_t& shift) override {
    noteKey(label_ + " KeyDown ", keyCode, shift);
  }
  void keyPress(std::int16_t& keyAscii) override { noteKey(label_ + " KeyPress ", keyAscii, 0); }
  void keyUp(std::int16_t& keyCode, std::int16_t& shift) override {
    noteKey(label_ + " KeyUp ", keyCode, shift);
  }

  void childChanged(host::Control& child) override { diary_.note(child.Name() + " Change"); }
  void childClicked(host::Control& child) override { diary_.note(child.Name() + " Click"); }
  void childItemChecked(host::Control& child, std::int16_t item) override {
    diary_.note(child.Name() + " ItemCheck " + std::to_string(item));
  }
  void childGotFocus(host::Control& child) override { diary_.note(child.Name() + " GotFocus"); }
  void childLostFocus(host::Control& child) override { diary_.note(child.Name() + " LostFocus"); }
  void childMouseDown(host::Control& child, host::MouseButton button, std::int16_t, Point at) override {
    noteMouse(child.Name() + " MouseDown " + std::to_string(static_cast<int>(button)), at);
  }
  void childMouseMove(host::Control& child, std::int16_t, std::int16_t, Point at) override {
    noteMouse(child.Name() + " MouseMove", at);
  }
  void childMouseUp(host::Control& child, host::MouseButton button, std::int16_t, Point at) override {
    noteMouse(child.Name() + " MouseUp " + std::to_string(static_cast<int>(button)), at);
  }
  void childDoubleClick(host::Control& child, Point at) override {
    noteMouse(child.Name() + " DblClick", at);
  }
  void childKeyDown(host::Control& child, std::int16_t& keyCode, std::int16_t& shift) override {
    noteKey(child.Name() + " KeyDown ", keyCode, shift);
  }
  void childKeyPress(host::Control& child, std::int16_t& keyAscii) override {
    noteKey(child.Name() + " KeyPress ", keyAscii, 0);
  }
  void childKeyUp(host::Control& child, std::int16_t& keyCode, std::int16_t& shift) override {
    noteKey(child.Name() + " KeyUp ", keyCode, shift);
  }

  host::Control* nextTabStop(host::Control* from, bool forward) override {
    std::vector<host::Control*> stops = tabStops;
    if (!forward) stops = {stops.rbegin(), stops.rend()};
    std::size_t next = 0;
    for (std::size_t i = 0; from && i < stops.size(); ++i) {
      if (stops[i] == from) next = i + 1;
    }
    return next < stops.size() ? stops[next] : nullptr;
  }

  void paint(host::Surface& surface, Size size) override {
    surface.fill({0, 0, size.width, size.height}, backColor());
  }

 protected:
  void gotFocus() override {
    const WeakRef<host::Control> self(this);
    if (notesFocus) diary_.note(label_ + " GotFocus");
    if (self) UserControl::gotFocus();
  }
  void lostFocus() override {
    const WeakRef<host::Control> self(this);
    if (notesFocus) diary_.note(label_ + " LostFocus");
    if (self) UserControl::lostFocus();
  }

  Diary& diary() const { return diary_; }
  const std::string& label() const { return label_; }

 private:
  void noteMouse(const std::string& what, Point at) {
    if (!notesMouse) return;
    diary_.note(what + " " + std::to_string(static_cast<int>(at.x)) + "," +
                std::to_string(static_cast<int>(at.y)));
  }
  void noteKey(const std::string& what, std::int16_t& key, std::int16_t shift) {
    // The control may not live any more once that is noted.
    const std::int16_t given = key;
    if (key == swallowedKey) key = 0;
    if (notesKeys)
      diary_.note(what + std::to_string(given) + (shift != 0 ? "+" + std::to_string(shift) : ""));
  }

  Diary& diary_;
  std::string label_;
};

/// Makes a control of its own arguments on a site.
template <class T, class... Args>
host::Owned<T> made(host::Site& site, Args&&... args) {
  host::Owned<T> control(new T(std::forward<Args>(args)...));
  host::LifeCycle::start(*control, site, nullptr);
  return control;
}

/// A surface of 200 by 150 on the headless platform: characters 6 wide and 13 high.
class SurfaceTest : public testing::Test {
 protected:
  SurfaceTest() {
    surface().Move(0, 0, 200, 150);
    surface().notesFocus = false;
    diary.take();
  }

  TestControl& surface() { return *owned; }
  host::Input& input() { return surface().input(); }
  Heard heard() { return diary.take(); }

  headless::HeadlessPlatform platform;
  headless::HeadlessSite site{platform};
  Diary diary;
  host::Owned<TestControl> owned = made<TestControl>(site, diary, "surface");
  headless::User user{platform, *owned};
};

}  // namespace qrn::test
