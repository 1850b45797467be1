#include "stack_fixture.h"

namespace qrn::test {
namespace {

using Relay = StackTest;

TEST_F(Relay, PutsThePageInFrontOfWhatHappensOnIt) {
  add();
  QRNEdit& row = addRow(*add());
  take();
  user->focuses(row);
  user->types("x");
  user->switchesAway();
  EXPECT_EQ(take(), (Events{"ParameterStartEdit(2, 1)", "ItemGotFocus(2, 1)", "ItemKeyDown(2, 1, 88, 0)",
                            "ItemKeyPress(2, 1, 120)", "ParameterStatusChange(2, 1)", "ParameterChange(2, 1)",
                            "ItemKeyUp(2, 1, 88, 0)", "ParameterEndEdit(2, 1, True)"}));
}

TEST_F(Relay, RaisesEveryEventOfAPanel) {
  addPages("..");
  std::int32_t item = 7;
  std::int16_t first = 8, second = 9;
  bool changed = true;
  // By name, as a container hears them.
  const auto hears = [&](std::string_view name, std::initializer_list<host::EventArg> arguments) {
    page(2).ObjectEvent.raise(name, host::EventArgs(arguments.begin(), arguments.size()));
    const Events heard = take();
    return heard.empty() ? std::string("nothing") : heard.front();
  };
  for (const std::string name :
       {"ItemGotFocus", "ItemLostFocus", "ActionLayout", "ActionClick", "ParameterLayout", "ParameterChange",
        "ParameterIcon1Click", "ParameterIcon2Click", "ParameterClick", "ParameterStartEdit",
        "ParameterStatusChange", "ButtonLayout", "ButtonClick"}) {
    EXPECT_EQ(hears(name, {item}), name + "(2, 7)");
  }
  for (const std::string name : {"ItemMenuClick", "ItemKeyPress", "ParameterItemCheck"})
    EXPECT_EQ(hears(name, {item, first}), name + "(2, 7, 8)");
  for (const std::string name : {"ItemKeyDown", "ItemKeyUp"})
    EXPECT_EQ(hears(name, {item, first, second}), name + "(2, 7, 8, 9)");
  for (const std::string name : {"KeyDown", "KeyUp"})
    EXPECT_EQ(hears(name, {first, second}), name + "(2, 8, 9)");
  EXPECT_EQ(hears("KeyPress", {first}), "KeyPress(2, 8)");
  EXPECT_EQ(hears("ParameterEndEdit", {item, changed}), "ParameterEndEdit(2, 7, True)");
  EXPECT_EQ(hears("SomethingElse", {item}), "nothing");
}

TEST_F(Relay, HandsAKeyOfThePanelBackAsItsListenerLeavesIt) {
  addPages("..");
  keep = stack().KeyPress.connect([](std::int32_t& index, std::int16_t& key) {
    if (index == 2) key = 0;
  });
  std::int16_t key = 65;
  page(2).keyPress(key);
  EXPECT_EQ(key, 0);
  key = 65;
  page(1).keyPress(key);
  EXPECT_EQ(key, 65);
}

TEST_F(Relay, HandsTheCodeAndTheShiftStateBack) {
  addPages(".");
  keep = stack().KeyDown.connect([](std::int32_t&, std::int16_t& key, std::int16_t& shift) {
    key = 66;
    shift = 3;
  });
  const auto up = stack().KeyUp.connect([](std::int32_t&, std::int16_t& key, std::int16_t& shift) {
    key = 67;
    shift = 4;
  });
  std::int16_t key = 65, shift = 0;
  page(1).keyDown(key, shift);
  EXPECT_EQ(key, 66);
  EXPECT_EQ(shift, 3);
  page(1).keyUp(key, shift);
  EXPECT_EQ(key, 67);
  EXPECT_EQ(shift, 4);
}

TEST_F(Relay, TakesNoChangeBackFromTheKeysOfAnItem) {
  QRNEdit& row = addRow(*add());
  user->focuses(row);
  keep = stack().ItemKeyPress.connect([](std::int32_t&, std::int32_t&, std::int16_t& key) { key = 0; });
  user->types("x");
  EXPECT_EQ(row.ValueText(), "x");
}

TEST_F(Relay, TakesNoChangeBackFromTheEndOfAnEdit) {
  QRNEdit& row = addRow(*add());
  bool panelSaw = true;
  const auto after = page(1).ObjectEvent.connect([&](std::string_view name, host::EventArgs arguments) {
    if (name == "ParameterEndEdit") panelSaw = arguments[1].as<bool>();
  });
  keep =
      stack().ParameterEndEdit.connect([](std::int32_t&, std::int32_t&, bool& changed) { changed = true; });
  user->focuses(row);
  user->switchesAway();
  EXPECT_FALSE(panelSaw);
}

TEST_F(Relay, NumbersEventsByThePagesPlaceInTheStack) {
  addPages("...");
  addRow(page(2));
  take();
  page(2).Items().AddAction("", ddtypeMethod);
  EXPECT_EQ(take(), Events{"ActionLayout(2, 2)"});
}

}  // namespace
}  // namespace qrn::test
