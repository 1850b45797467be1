#include <vector>

#include "actions.h"
#include "stage.h"

namespace qrn::monkey {
namespace {

host::MouseButton anyMouseButton(Numbers& numbers) {
  static const host::MouseButton buttons[] = {host::MouseButton::Left, host::MouseButton::Left,
                                              host::MouseButton::Right, host::MouseButton::Middle};
  return numbers.oneOf(buttons);
}

// The parts of an item that can be worked on with the mouse.
std::vector<host::Control*> partsOf(const PanelItemPtr& item) {
  if (const auto action = std::dynamic_pointer_cast<clsQRNAction>(item)) return {&action->Control()};
  QRNEdit& row = static_cast<clsQRNParam&>(*item).Control();
  std::vector<host::Control*> parts{&row.lblLabel(), &row.imgIcon2(), &row.imgIcon1(), &row.lblUnit(), &row};
  if (host::Editor* editor = row.CurrentEditor()) parts.insert(parts.begin(), 2, editor);
  return parts;
}

host::Control* anyPart(Stage& stage, Numbers& numbers) {
  QRNDisplay& panel = *stage.panel();
  const std::size_t kind = numbers.below(8);
  if (kind == 7) {
    const std::vector<host::Control*> parts{&panel.imgClose(), &panel.imgMaxRst(), &panel.lblTitle(),
                                            &panel.ControlsContainer(), &panel.sbrVertical()};
    return numbers.oneOf(parts);
  }
  if (kind == 6) {
    const ButtonPtr button = stage.anyButton(numbers);
    return button ? &button->Control() : nullptr;
  }
  const PanelItemPtr item = stage.anyItem(numbers);
  return item ? numbers.oneOf(partsOf(item)) : nullptr;
}

// Mostly in the middle of something that can be seen, at times anywhere, even beside the panel.
Point somewhere(Stage& stage, Numbers& numbers) {
  const host::Control* part = numbers.oneIn(8) ? nullptr : anyPart(stage, numbers);
  const Rect seen = part && part->shown() ? part->visibleOnSurface() : Rect{};
  if (!seen.empty()) return {seen.left + seen.width / 2, seen.top + seen.height / 2};
  return {static_cast<double>(numbers.below(420)) - 10, static_cast<double>(numbers.below(320)) - 10};
}

std::string shown(Point at) { return "{" + std::to_string(at.x) + ", " + std::to_string(at.y) + "}"; }

void click(Stage& stage, Numbers& numbers) {
  const Point at = somewhere(stage, numbers);
  const auto button = anyMouseButton(numbers);
  stage.note("user.clicksAt(", shown(at), ", ", static_cast<int>(button), ")");
  stage.hands().press(at, button);
  if (stage.surface()) stage.hands().release(at, button);
}

void press(Stage& stage, Numbers& numbers) {
  const Point at = somewhere(stage, numbers);
  const auto button = anyMouseButton(numbers);
  stage.note("user.pressesAt(", shown(at), ", ", static_cast<int>(button), ")");
  stage.hands().press(at, button);
}

void release(Stage& stage, Numbers& numbers) {
  const Point at = somewhere(stage, numbers);
  const auto button = anyMouseButton(numbers);
  stage.note("user.releasesAt(", shown(at), ", ", static_cast<int>(button), ")");
  stage.hands().release(at, button);
}

void move(Stage& stage, Numbers& numbers) {
  const Point at = somewhere(stage, numbers);
  stage.note("user.movesTo(", shown(at), ")");
  stage.hands().move(at);
}

void doubleClick(Stage& stage, Numbers& numbers) {
  const Point at = somewhere(stage, numbers);
  stage.note("user.doubleClicksAt(", shown(at), ")");
  stage.hands().press(at, host::MouseButton::Left);
  if (stage.surface()) stage.hands().release(at, host::MouseButton::Left);
  if (stage.surface()) stage.hands().doubleClick(at);
}

void turnWheel(Stage& stage, Numbers& numbers) {
  static const double turns[] = {-1, 1, -3, 0.5, 40, -40};
  const double notches = numbers.oneOf(turns);
  const Point at = somewhere(stage, numbers);
  stage.note("user.turnsWheel(", shown(at), ", ", notches, ")");
  stage.hands().turnWheel(at, notches);
}

void scroll(Stage& stage, Numbers& numbers) {
  const auto room = static_cast<std::size_t>(stage.panel()->sbrVertical().Max()) + 1;
  const auto value = static_cast<std::int32_t>(numbers.below(room));
  stage.note("user.scrollsTo(panel.sbrVertical(), ", value, ")");
  stage.hands().scroll(stage.panel()->sbrVertical(), value);
}

void openMenu(Stage& stage, Numbers& numbers) {
  const Point at = somewhere(stage, numbers);
  const bool none = numbers.oneIn(4);
  const auto entry = static_cast<int>(numbers.below(3)) + 1;
  stage.note("user right-clicks at ", shown(at), " and chooses ", none ? "nothing" : std::to_string(entry));
  stage.hands().willChoose(none ? std::nullopt : std::optional<int>(entry));
  stage.hands().press(at, host::MouseButton::Right);
  if (stage.surface()) stage.hands().release(at, host::MouseButton::Right);
}

}  // namespace

void addMouseActions(Actions& to) {
  to.push_back({"Click", 80, Actor::User, click});
  to.push_back({"Press", 15, Actor::User, press});
  to.push_back({"Release", 15, Actor::User, release});
  to.push_back({"Move", 20, Actor::User, move});
  to.push_back({"DoubleClick", 8, Actor::User, doubleClick});
  to.push_back({"TurnWheel", 12, Actor::User, turnWheel});
  to.push_back({"Scroll", 8, Actor::User, scroll});
  to.push_back({"OpenMenu", 12, Actor::User, openMenu});
}

}  // namespace qrn::monkey
