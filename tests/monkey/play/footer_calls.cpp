#include "actions.h"
#include "rules.h"
#include "stage.h"
#include "values.h"

namespace qrn::monkey {
namespace {

constexpr std::int32_t kMostButtons = 6;

std::int32_t positionOf(Stage& stage, const ButtonPtr& button) {
  return stage.panel()->Buttons().GetIndexOf(Variant(button));
}

void addButton(Stage& stage, Numbers& numbers) {
  clsQRNButtons& buttons = stage.panel()->Buttons();
  if (buttons.Count() >= kMostButtons) return;
  static const std::string names[] = {"", "", "OK", "Button2", "lblTitle"};
  const std::string caption = anyCaption(numbers), name = numbers.oneOf(names);
  const bool atEnd = !numbers.oneIn(3);
  const auto place = static_cast<std::int32_t>(numbers.below(5));
  stage.note("Buttons().AddButton(", quoted(name), ", ", quoted(caption),
             atEnd ? std::string() : ", " + std::to_string(place), ")");
  buttons.AddButton(name, caption, atEnd ? std::nullopt : std::optional<Variant>(Variant(place)));
}

void removeButton(Stage& stage, Numbers& numbers) {
  const ButtonPtr button = stage.anyButton(numbers);
  if (!button) return;
  const bool byObject = numbers.oneIn(2);
  stage.note("Buttons().Remove(", positionOf(stage, button), byObject ? " by object)" : ")");
  stage.panel()->Buttons().Remove(byObject ? Variant(button) : Variant(positionOf(stage, button)));
}

void removeAllButtons(Stage& stage, Numbers&) {
  stage.note("Buttons().RemoveAll()");
  stage.panel()->Buttons().RemoveAll();
}

void setButton(Stage& stage, Numbers& numbers) {
  const ButtonPtr button = stage.anyButton(numbers);
  if (!button) return;
  static const std::int32_t delays[] = {0, 150, -1, 100, 5000};
  const std::int32_t delay = numbers.oneOf(delays);
  const std::int32_t length = anyLength(numbers);
  const bool on = anyFlag(numbers);
  const std::string before = "button(" + std::to_string(positionOf(stage, button)) + ").";
  switch (numbers.below(6)) {
    case 0: stage.note(before, "SetAutoFireDelay(", delay, ")"), button->SetAutoFireDelay(delay); break;
    case 1: stage.note(before, "SetMinWidth(", length, ")"), button->SetMinWidth(length); break;
    case 2: stage.note(before, "SetStdWidth(", length, ")"), button->SetStdWidth(length); break;
    case 3:
      stage.note(before, "Control().SetEnabled(", shown(on), ")"), button->Control().SetEnabled(on);
      break;
    case 4:
      stage.note(before, "Control().SetVisible(", shown(on), ")"), button->Control().SetVisible(on);
      break;
    default: stage.note(before, "Control().SetFocus()"), button->Control().SetFocus(); break;
  }
}

void setButtonsAlignment(Stage& stage, Numbers& numbers) {
  const auto alignment = static_cast<std::int32_t>(numbers.below(4));
  stage.note("SetButtonsAlignment(", alignment, ")");
  stage.panel()->SetButtonsAlignment(alignment);
}

void layOutButtons(Stage& stage, Numbers&) {
  stage.note("LayoutButtons()");
  stage.panel()->LayoutButtons();
  checkButtonsLieWhereTheyBelong(stage);
}

}  // namespace

void addFooterCalls(Actions& to) {
  to.push_back({"AddButton", 12, Actor::Host, addButton});
  to.push_back({"RemoveButton", 6, Actor::Host, removeButton});
  to.push_back({"RemoveAllButtons", 1, Actor::Host, removeAllButtons});
  to.push_back({"SetButton", 20, Actor::Host, setButton});
  to.push_back({"SetButtonsAlignment", 3, Actor::Host, setButtonsAlignment});
  to.push_back({"LayoutButtons", 8, Actor::Host, layOutButtons});
}

}  // namespace qrn::monkey
