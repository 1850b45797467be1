#include <stdexcept>

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

TEST_F(Relay, SwallowsAKeyThatItsListenerClears) {
  addPages("..");
  keep = stack().KeyPress.connect([](std::int32_t&, std::int16_t& key) {
    if (key == 'x') key = 0;
  });
  page(2).ControlsContainer().SetFocus();
  EXPECT_EQ(stack().input().keyPress('x'), 0);
  EXPECT_EQ(stack().input().keyPress('y'), 'y');
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

TEST_F(Relay, TakesNoChangeBackFromWhatElseHappensToAnItem) {
  addPages(".");
  std::int32_t item = 7;
  std::int16_t first = 8, second = 9;
  const auto changes = [](std::int32_t&, std::int32_t& index, std::int16_t& one, std::int16_t& other) {
    index = one = other = 1;
  };
  const auto down = stack().ItemKeyDown.connect(changes), up = stack().ItemKeyUp.connect(changes);
  const auto changesOne = [](std::int32_t&, std::int32_t& index, std::int16_t& one) { index = one = 1; };
  const auto checked = stack().ParameterItemCheck.connect(changesOne),
             pressed = stack().ItemKeyPress.connect(changesOne),
             chosen = stack().ItemMenuClick.connect(changesOne);
  const host::EventArg arguments[] = {item, first, second};
  for (const char* name : {"ItemKeyDown", "ItemKeyUp", "ItemKeyPress", "ParameterItemCheck", "ItemMenuClick"})
    page(1).ObjectEvent.raise(name, arguments);
  EXPECT_EQ(take().size(), 5U);
  EXPECT_EQ(item, 7);
  EXPECT_EQ(first, 8);
  EXPECT_EQ(second, 9);
}

// ---- arguments as others raise them ----

class ForeignArguments : public StackTest {
 protected:
  ForeignArguments() { addPages(".."); }
  Events heardOf(std::string_view name, std::initializer_list<host::EventArg> arguments) {
    page(2).ObjectEvent.raise(name, host::EventArgs(arguments.begin(), arguments.size()));
    return take();
  }
  std::int32_t number = 66;
  std::int16_t word = 7;
  bool flag = true;
};

TEST_F(ForeignArguments, AreConverted) {
  EXPECT_EQ(heardOf("ItemGotFocus", {word}), Events{"ItemGotFocus(2, 7)"});
  EXPECT_EQ(heardOf("KeyPress", {number}), Events{"KeyPress(2, 66)"});
  EXPECT_EQ(heardOf("KeyDown", {flag, number}), Events{"KeyDown(2, -1, 66)"});
  EXPECT_EQ(heardOf("ParameterEndEdit", {word, number}), Events{"ParameterEndEdit(2, 7, True)"});
}

TEST_F(ForeignArguments, GetTheKeyBackAsWhatTheyAre) {
  keep =
      stack().KeyDown.connect([](std::int32_t&, std::int16_t& key, std::int16_t& shift) { key = shift = 0; });
  heardOf("KeyDown", {number, flag});
  EXPECT_EQ(number, 0);
  EXPECT_FALSE(flag);
}

TEST_F(ForeignArguments, ThatAreMissingEndTheEvent) {
  EXPECT_EQ(heardOf("ItemKeyDown", {}), Events{});
  EXPECT_EQ(heardOf("ItemKeyDown", {number, word}), Events{});
  EXPECT_EQ(heardOf("KeyPress", {}), Events{});
  EXPECT_EQ(heardOf("ParameterEndEdit", {number}), Events{});
}

TEST_F(ForeignArguments, ThatAreTooLargeEndTheEvent) {
  number = 100000;
  EXPECT_EQ(heardOf("KeyPress", {number}), Events{});
  EXPECT_EQ(heardOf("ItemKeyPress", {word, number}), Events{});
  EXPECT_EQ(heardOf("ItemGotFocus", {number}), Events{"ItemGotFocus(2, 100000)"});
}

TEST_F(ForeignArguments, BeyondThoseOfTheEventDoNotCount) {
  EXPECT_EQ(heardOf("ButtonClick", {word, flag, flag}), Events{"ButtonClick(2, 7)"});
  EXPECT_EQ(heardOf("DisplayClose", {flag}), (Events{"PageClose(2, False)", "PageActivate(1)"}));
}

TEST_F(Relay, LeavesTheErrorOfAListenerToWhoeverHasRaisedTheEvent) {
  addPages(".");
  keep = stack().KeyPress.connect([](std::int32_t&, std::int16_t&) { throw std::runtime_error("no"); });
  std::int16_t key = 65;
  EXPECT_THROW(page(1).keyPress(key), std::runtime_error);
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
