#include "actions.h"
#include "rules.h"
#include "stage.h"
#include "values.h"

namespace qrn::monkey {
namespace {

namespace key = host::key;

void walk(Stage& stage, Numbers& numbers) {
  const bool back = numbers.oneIn(3);
  stage.note("user.presses(key::Tab", back ? ", shift::Shift)" : ")");
  stage.hands().pressKey(key::Tab, back ? host::shift::Shift : host::shift::None);
  checkFocusIsOfUse(stage);
  checkKeyboardStaysOnTop(stage);
}

void pressKey(Stage& stage, Numbers& numbers) {
  static const std::int16_t keys[] = {key::Enter,  key::Escape,   key::Space, key::Up,  key::Down,
                                      key::Left,   key::Right,    key::Home,  key::End, key::Back,
                                      key::Delete, key::PageDown, key::F1,    key::F4};
  const std::int16_t code = numbers.oneOf(keys);
  const std::int16_t shift = numbers.oneIn(8) ? host::shift::Shift : host::shift::None;
  stage.note("user.presses(", code, ", ", shift, ")");
  stage.hands().pressKey(code, shift);
}

void pressMnemonic(Stage& stage, Numbers&) {
  stage.note("user.presses('A', shift::Alt)");
  stage.hands().pressKey('A', host::shift::Alt);
}

void openMenuByKey(Stage& stage, Numbers& numbers) {
  const auto entry = static_cast<int>(numbers.below(3)) + 1;
  stage.note("user.presses(key::F10, shift::Shift), and chooses ", entry);
  stage.hands().willChoose(entry);
  stage.hands().pressKey(key::F10, host::shift::Shift);
}

void type(Stage& stage, Numbers& numbers) {
  const std::string text = anyTypedText(numbers);
  stage.note("user.types(", quoted(text), ")");
  stage.hands().type(text);
}

void switchApplication(Stage& stage, Numbers& numbers) {
  const bool back = anyFlag(numbers);
  stage.note(back ? "user.comesBack()" : "user.switchesAway()");
  stage.hands().applicationActivated(back);
}

void switchSurface(Stage& stage, Numbers& numbers) {
  const bool gets = !numbers.oneIn(3);
  stage.note(gets ? "input().surfaceGotFocus()" : "input().surfaceLostFocus()");
  if (gets)
    stage.hands().surfaceGetsFocus();
  else
    stage.hands().surfaceLosesFocus();
  checkFocusIsOfUse(stage);
}

void letTimePass(Stage& stage, Numbers& numbers) {
  static const std::chrono::milliseconds times[] = {
      std::chrono::milliseconds(100), std::chrono::milliseconds(70), std::chrono::milliseconds(1),
      std::chrono::milliseconds(300)};
  const auto time = numbers.oneOf(times);
  stage.note("clock.advance(", time.count(), "ms)");
  stage.hands().letTimePass(time);
}

void runMessages(Stage& stage, Numbers&) {
  stage.note("platform.processMessages()");
  stage.hands().runMessages();
}

}  // namespace

void addKeyActions(Actions& to) {
  to.push_back({"Walk", 40, Actor::User, walk});
  to.push_back({"PressKey", 40, Actor::User, pressKey});
  to.push_back({"PressMnemonic", 4, Actor::User, pressMnemonic});
  to.push_back({"OpenMenuByKey", 5, Actor::User, openMenuByKey});
  to.push_back({"Type", 50, Actor::User, type});
  to.push_back({"SwitchApplication", 10, Actor::User, switchApplication});
  to.push_back({"SwitchSurface", 10, Actor::User, switchSurface});
  to.push_back({"LetTimePass", 20, Actor::User, letTimePass});
  to.push_back({"RunMessages", 25, Actor::User, runMessages});
}

}  // namespace qrn::monkey
