#include "actions.h"
#include "property_bags.h"
#include "stage.h"
#include "values.h"

namespace qrn::monkey {
namespace {

// What a step does to one row: tells it and does it.
template <class Call>
void toARow(Stage& stage, Numbers& numbers, const Call& call) {
  const auto parameter = stage.anyParameter(numbers);
  if (!parameter) return;
  const std::string before = "row(" + std::to_string(stage.items().GetIndexOf(Variant(parameter))) + ").";
  call(parameter->Control(), [&](const auto&... parts) { stage.note(before, parts...); });
}

void setRowText(Stage& stage, Numbers& numbers) {
  toARow(stage, numbers, [&](QRNEdit& row, const auto& note) {
    using Set = void (QRNEdit::*)(const std::string&);
    static const std::pair<const char*, Set> texts[] = {
        {"SetLabelText", &QRNEdit::SetLabelText},       {"SetUnitText", &QRNEdit::SetUnitText},
        {"SetLabelToolTip", &QRNEdit::SetLabelToolTip}, {"SetUnitToolTip", &QRNEdit::SetUnitToolTip},
        {"SetValueToolTip", &QRNEdit::SetValueToolTip}, {"SetIcon1ToolTip", &QRNEdit::SetIcon1ToolTip},
        {"SetIcon2ToolTip", &QRNEdit::SetIcon2ToolTip}};
    const auto& [name, set] = numbers.oneOf(texts);
    const std::string text = anyCaption(numbers);
    note(name, "(", quoted(text), ")");
    (row.*set)(text);
  });
}

void setRowFlag(Stage& stage, Numbers& numbers) {
  toARow(stage, numbers, [&](QRNEdit& row, const auto& note) {
    using Set = void (*)(QRNEdit&, bool);
    static const std::pair<const char*, Set> flags[] = {
        {"SetLocked", [](QRNEdit& one, bool on) { one.SetLocked(on); }},
        {"SetVisible", [](QRNEdit& one, bool on) { one.SetVisible(on); }},
        {"SetEnabled", [](QRNEdit& one, bool on) { one.SetEnabled(on); }},
        {"SetLabelVisible", [](QRNEdit& one, bool on) { one.SetLabelVisible(on); }},
        {"SetValueVisible", [](QRNEdit& one, bool on) { one.SetValueVisible(on); }},
        {"SetUnitVisible", [](QRNEdit& one, bool on) { one.SetUnitVisible(on); }},
        {"SetIcon1Visible", [](QRNEdit& one, bool on) { one.SetIcon1Visible(on); }},
        {"SetIcon2Visible", [](QRNEdit& one, bool on) { one.SetIcon2Visible(on); }},
        {"SetIcon1Hidden", [](QRNEdit& one, bool on) { one.SetIcon1Hidden(on); }},
        {"SetIcon2Hidden", [](QRNEdit& one, bool on) { one.SetIcon2Hidden(on); }},
        {"SetValueUpperCase", [](QRNEdit& one, bool on) { one.SetValueUpperCase(on); }},
        {"SetPassword", [](QRNEdit& one, bool on) { one.SetPassword(on); }},
        {"SetRedraw", [](QRNEdit& one, bool on) { one.SetRedraw(on); }}};
    const auto& [name, set] = numbers.oneOf(flags);
    const bool on = anyFlag(numbers);
    note(name, "(", shown(on), ")");
    set(row, on);
  });
}

void setRowNumber(Stage& stage, Numbers& numbers) {
  toARow(stage, numbers, [&](QRNEdit& row, const auto& note) {
    using Set = void (QRNEdit::*)(std::int32_t);
    static const std::pair<const char*, Set> lengths[] = {
        {"SetIcon1Column", &QRNEdit::SetIcon1Column},
        {"SetIcon2Column", &QRNEdit::SetIcon2Column},
        {"SetAlignment", &QRNEdit::SetAlignment},
        {"SetLabelAlignment", &QRNEdit::SetLabelAlignment},
        {"SetValueAlignment", &QRNEdit::SetValueAlignment},
        {"SetUnitAlignment", &QRNEdit::SetUnitAlignment},
        {"SetLabelWidth", &QRNEdit::SetLabelWidth},
        {"SetValueWidth", &QRNEdit::SetValueWidth},
        {"SetUnitWidth", &QRNEdit::SetUnitWidth},
        {"SetHorizontalSpacing", &QRNEdit::SetHorizontalSpacing},
        {"SetValueMaxLength", &QRNEdit::SetValueMaxLength}};
    const std::size_t which = numbers.below(std::size(lengths));
    const auto& [name, set] = lengths[which];
    // Columns and alignments are small numbers.
    const std::int32_t number = which < 6 ? static_cast<std::int32_t>(numbers.below(6)) : anyLength(numbers);
    note(name, "(", number, ")");
    (row.*set)(number);
  });
}

void setRowLook(Stage& stage, Numbers& numbers) {
  toARow(stage, numbers, [&](QRNEdit& row, const auto& note) {
    const auto mode = static_cast<qrnButtonMode>(numbers.below(3));
    switch (numbers.below(6)) {
      case 0: note("SetIcon1Picture(…)"), row.SetIcon1Picture(anyPicture(numbers)); break;
      case 1: note("SetIcon1ButtonMode(", mode, ")"), row.SetIcon1ButtonMode(mode); break;
      case 2: note("SetIcon2ButtonMode(", mode, ")"), row.SetIcon2ButtonMode(mode); break;
      case 3: note("SetFont(…)"), row.SetFont(anyFont(numbers)); break;
      case 4: note("SetBackColor(…)"), row.SetBackColor(host::rgb(200, 220, 240)); break;
      default: note("SetIcon2Picture(…)"), row.SetIcon2Picture(anyPicture(numbers)); break;
    }
  });
}

void changeRowMenu(Stage& stage, Numbers& numbers) {
  toARow(stage, numbers, [&](QRNEdit& row, const auto& note) {
    const auto index = static_cast<std::int32_t>(numbers.below(4));
    switch (numbers.below(5)) {
      case 0:
      case 1: note("AddMenuItem(\"Entry\")"), row.AddMenuItem("Entry"); break;
      case 2: note("RemoveMenuItem(", index, ")"), row.RemoveMenuItem(index); break;
      case 3: note("RemoveMenu()"), row.RemoveMenu(); break;
      default:
        note("GetMenuItem(", index, ")->SetEnabled(false)");
        if (const auto entry = row.GetMenuItem(index)) entry->SetEnabled(false);
    }
  });
}

void setActionProperty(Stage& stage, Numbers& numbers) {
  const auto action = stage.anyAction(numbers);
  if (!action) return;
  QRNMenuItem& button = action->Control();
  const auto mode = static_cast<qrnButtonMode>(numbers.below(3));
  const bool on = anyFlag(numbers);
  const std::string before = "action(" + std::to_string(stage.items().GetIndexOf(Variant(action))) + ").";
  const std::string caption = anyCaption(numbers);
  switch (numbers.below(9)) {
    case 0: stage.note(before, "SetCaption(", quoted(caption), ")"), button.SetCaption(caption); break;
    case 1: stage.note(before, "SetButtonMode(", mode, ")"), button.SetButtonMode(mode); break;
    case 2: stage.note(before, "SetEnabled(", shown(on), ")"), button.SetEnabled(on); break;
    case 3: stage.note(before, "SetVisible(", shown(on), ")"), button.SetVisible(on); break;
    case 4: stage.note(before, "SetIcon(…)"), button.SetIcon(anyPicture(numbers)); break;
    case 5: stage.note(before, "AddMenuItem(\"Entry\")"), button.AddMenuItem("Entry"); break;
    case 6: stage.note(before, "RemoveMenu()"), button.RemoveMenu(); break;
    case 7: stage.note(before, "SetFont(…)"), button.SetFont(anyFont(numbers)); break;
    default: stage.note(before, "SetShowFocusRect(", shown(on), ")"), button.SetShowFocusRect(on); break;
  }
}

void saveARow(Stage& stage, Numbers& numbers) {
  toARow(stage, numbers, [&](QRNEdit& row, const auto& note) {
    note("writeProperties(bag), and a new row from it");
    checkRestored<QRNEdit>(stage, row);
  });
}

}  // namespace

void addRowCalls(Actions& to) {
  to.push_back({"SetRowText", 15, Actor::Host, setRowText});
  to.push_back({"SetRowFlag", 45, Actor::Host, setRowFlag});
  to.push_back({"SetRowNumber", 15, Actor::Host, setRowNumber});
  to.push_back({"SetRowLook", 12, Actor::Host, setRowLook});
  to.push_back({"ChangeRowMenu", 12, Actor::Host, changeRowMenu});
  to.push_back({"SetActionProperty", 15, Actor::Host, setActionProperty});
  to.push_back({"SaveARow", 3, Actor::Host, saveARow});
}

}  // namespace qrn::monkey
