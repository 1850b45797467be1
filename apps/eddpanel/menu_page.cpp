#include "menu_page.h"

#include <algorithm>

#include "item_help.h"
#include "value_mapping.h"

namespace qrn::eddpanel {
namespace {

// The buttons of the footer. A dot keeps their names apart from those in descriptions.
struct NamedButton {
  const char* name;
  const char* caption;
};
constexpr NamedButton kFooter[] = {
    {"footer.OK", "&OK"}, {"footer.Apply", "&Apply"}, {"footer.Cancel", "&Cancel"}};
constexpr NamedButton kRefreshButton = {"footer.Refresh", "&Refresh"};

constexpr std::int32_t kRefreshInterval = 1000;  // milliseconds
constexpr std::int32_t kUnarmed = -1;

// A submenu that is a dialog looks like one; what both lead to is another page.
ddtypeAction actionTypeOf(const edd::Menu& menu) { return menu.isDialog ? ddtypeEditBox : ddtypeMenu; }

template <class ItemControl>
void addHelpEntry(ItemControl& control, const ItemHelp& help) {
  control.AddMenuItem("&Help")->SetEnabled(!help.empty());
}

}  // namespace

// ---- making it ----

void MenuPage::build() {
  // A menu may be longer than a scroll bar of 16 bits reaches.
  panel_.SetTallContent(true);
  for (const edd::MenuItem& item : menu_.items) {
    // With its place, as a name may stand in a menu twice, or be that of one of the panel's own parts.
    const std::string name = item.name + '.' + std::to_string(panel_.Items().Count() + 1);
    switch (item.kind) {
      case edd::ItemKind::Variable:
        panel_.Items().AddParameter(name, valueTypeOf(description_.variables()[item.index]));
        break;
      case edd::ItemKind::Menu:
        panel_.Items().AddAction(name, actionTypeOf(description_.menus()[item.index]));
        break;
      case edd::ItemKind::Method: panel_.Items().AddAction(name, ddtypeMethod); break;
    }
  }
  buildFooter();
  panel_.SetColumnLayout(0, 0, 0, 10.2F);
}

void MenuPage::buildFooter() {
  for (const NamedButton& button : kFooter) panel_.Buttons().AddButton(button.name, button.caption);
  if (hasDynamicValues()) panel_.Buttons().AddButton(kRefreshButton.name, kRefreshButton.caption);
}

bool MenuPage::hasDynamicValues() const {
  return std::any_of(menu_.items.begin(), menu_.items.end(), [this](const edd::MenuItem& item) {
    return item.kind == edd::ItemKind::Variable && description_.variables()[item.index].isDynamic();
  });
}

clsQRNParam& MenuPage::parameter(std::int32_t item) {
  return static_cast<clsQRNParam&>(*panel_.Items().Item(Variant(item)));
}

QRNEdit* MenuPage::row(std::int32_t item) {
  const bool isRow =
      item >= 1 && item <= panel_.Items().Count() && entry(item).kind == edd::ItemKind::Variable;
  return isRow ? &parameter(item).Control() : nullptr;
}

host::Control& MenuPage::control(std::int32_t item) {
  if (QRNEdit* found = row(item)) return *found;
  return static_cast<clsQRNAction&>(*panel_.Items().Item(Variant(item))).Control();
}

std::int32_t MenuPage::itemOf(std::string_view name) const {
  const auto found =
      std::find_if(menu_.items.begin(), menu_.items.end(), [&](const auto& i) { return i.name == name; });
  return found == menu_.items.end() ? 0 : static_cast<std::int32_t>(found - menu_.items.begin()) + 1;
}

void MenuPage::layOutRow(std::int32_t item) {
  const edd::Variable& variable = variableOf(item);
  QRNEdit& row = parameter(item).Control();
  row.SetLabelText(variable.label);
  row.SetLabelToolTip(variable.help);
  row.SetUnitText(variable.unit);
  row.SetValueToolTip(variable.help);
  row.SetIcon2ToolTip(variable.help);
  row.SetValueRule(valueRuleOf(variable));
  row.SetValueFormat(valueFormatOf(variable));
  if (row.ValueType() == qrnTypeString && variable.type.size > 0) {
    row.SetValueMaxLength(static_cast<std::int32_t>(variable.type.size));
  }
  row.SetPassword(variable.type.kind == edd::ValueKind::Password);
  for (std::size_t i = 0; i < variable.enumerators.size(); ++i) {
    row.SetValueNames(static_cast<std::int32_t>(i), variable.enumerators[i].text);
    row.SetValueItems(static_cast<std::int32_t>(i), static_cast<std::int32_t>(variable.enumerators[i].value));
  }
  addHelpEntry(row, helpOf(description_, entry(item)));
  if (variable.defaultValue) row.AddMenuItem("Restore &default");
  qrnParamState state = qrnStateNormal;
  if (!variable.writable || entry(item).readOnly) state = state | qrnStateReadOnly;
  if (variable.isDynamic()) state = state | qrnStateDynamic;
  parameter(item).SetParamState(state);
}

void MenuPage::layOutAction(std::int32_t item) {
  auto& button = static_cast<QRNMenuItem&>(control(item));
  const ItemHelp help = helpOf(description_, entry(item));
  button.SetCaption(help.caption);
  button.SetToolTipText(help.text);
  addHelpEntry(button, help);
}

void MenuPage::refresh(bool dynamicOnly) {
  for (std::int32_t item = 1; item <= panel_.Items().Count(); ++item) {
    if (entry(item).kind != edd::ItemKind::Variable || item == edited_) continue;
    const edd::Variable& variable = variableOf(item);
    if (dynamicOnly && !variable.isDynamic()) continue;
    // What the user has typed and not sent yet stays.
    if ((parameter(item).ParamState() & qrnStateChanged) != 0) continue;
    parameter(item).SetParamValue(toRow(variable, device_.read(entry(item).index)));
  }
  panel_.LayoutControls(true);
}

// The button fires once per arming, and a click of the user disarms it.
void MenuPage::armRefresh(bool armed) {
  if (hasDynamicValues())
    panel_.Buttons()
        .Item(Variant(kRefreshButton.name))
        ->SetAutoFireDelay(armed ? kRefreshInterval : kUnarmed);
}

// ---- what the user has edited ----

bool MenuPage::isEdited(std::int32_t item) {
  return row(item) && (parameter(item).ParamState() & qrnStateChanged) != 0;
}

Edits MenuPage::edits() {
  Edits edits;
  for (std::int32_t item = 1; item <= panel_.Items().Count(); ++item) {
    if (!isEdited(item)) continue;
    ++edits.count;
    if (parameter(item).ParamError() != qrnErrorNone) ++edits.wrong;
  }
  return edits;
}

Edits MenuPage::apply() {
  const Edits all = edits();
  for (std::int32_t item = 1; item <= panel_.Items().Count(); ++item) {
    if (!isEdited(item) || parameter(item).ParamError() != qrnErrorNone) continue;
    const std::size_t variable = entry(item).index;
    device_.write(variable, fromRow(variableOf(item), row(item)->Value(), device_.read(variable)));
    showStored(item);
  }
  return all;
}

int MenuPage::undo() {
  int undone = 0;
  for (std::int32_t item = 1; item <= panel_.Items().Count(); ++item) {
    if (!isEdited(item)) continue;
    showStored(item);
    ++undone;
  }
  return undone;
}

void MenuPage::restoreDefault(std::int32_t item) {
  if ((parameter(item).ParamState() & qrnStateReadOnly) != 0) return;
  device_.write(entry(item).index, defaultOf(variableOf(item)));
  showStored(item);
}

// What the device has made of it, in every row of it that has not been edited itself.
void MenuPage::showStored(std::int32_t item) {
  row(item)->SetValueChanged(false);
  const std::size_t variable = entry(item).index;
  const Variant stored = toRow(variableOf(item), device_.read(variable));
  parameter(item).SetParamValue(stored);
  for (std::int32_t other = 1; other <= panel_.Items().Count(); ++other) {
    if (other != item && other != edited_ && row(other) && entry(other).index == variable && !isEdited(other))
      parameter(other).SetParamValue(stored);
  }
}

}  // namespace qrn::eddpanel
