#include "menu_panel.h"

#include <algorithm>

#include "base/text.h"
#include "runtime/errors.h"
#include "value_mapping.h"

namespace qrn::eddpanel {
namespace {

// The entries of the context menus, as they are numbered. Every item has the first one.
enum ItemMenu : std::int16_t { kHelp = 1, kDefault = 2 };

// The buttons of the footer in their order. A dot keeps their names apart from those in descriptions.
struct FooterButton {
  const char* name;
  const char* caption;
};
constexpr FooterButton kFooter[] = {
    {"footer.OK", "&OK"}, {"footer.Apply", "&Apply"}, {"footer.Cancel", "&Cancel"}};
constexpr FooterButton kRefreshButton = {"footer.Refresh", "&Refresh"};
enum Footer : std::int32_t { kOk = 1, kApply, kCancel, kRefresh };

constexpr std::int32_t kRefreshInterval = 1000;  // milliseconds

// A submenu that is a dialog looks like one; what both lead to is another panel.
ddtypeAction actionTypeOf(const edd::Menu& menu) { return menu.isDialog ? ddtypeEditBox : ddtypeMenu; }

template <class ItemControl>
void addHelpEntry(ItemControl& control, const std::string& help) {
  control.AddMenuItem("&Help")->SetEnabled(!help.empty());
}

std::string counted(int count, const std::string& what) {
  return std::to_string(count) + (count == 1 ? " value " : " values ") + what;
}

}  // namespace

// ---- making it ----

MenuPanel::MenuPanel(const edd::Description& description, const edd::Menu& menu, Device& device,
                     host::Site& site)
    : description_(description), menu_(menu), device_(device), display_(host::create<QRNDisplay>(site)) {
  QRNDisplay& panel = *display_;
  panel.SetTitle(menu.label);
  panel.SetIconCloseHidden(true);
  panel.SetIconMaxRstHidden(true);
  const auto hear = [this](auto& event, auto listener) {
    connections_.push_back(event.connect(std::move(listener)));
  };
  hear(panel.ParameterLayout, [this](std::int32_t& item) { layOutRow(item); });
  hear(panel.ActionLayout, [this](std::int32_t& item) { layOutAction(item); });
  hear(panel.ParameterStartEdit, [this](std::int32_t& item) { edited_ = item; });
  hear(panel.ParameterEndEdit, [this](std::int32_t&, bool&) { edited_ = 0; });
  hear(panel.ParameterIcon2Click, [this](std::int32_t& item) { showHelp(item); });
  hear(panel.ActionClick, [this](std::int32_t& item) { act(item); });
  hear(panel.ButtonClick, [this](std::int32_t& button) { pressed(button); });
  hear(panel.ItemMenuClick, [this](std::int32_t& item, std::int16_t& chosen) { chooseInMenu(item, chosen); });
  build();
}

void MenuPanel::build() {
  for (const edd::MenuItem& item : menu_.items) {
    // A variable may stand in a menu twice: the item's name is its place then.
    const bool again = itemOf(item.name) <= display_->Items().Count();
    const std::string name = again ? "" : item.name;
    switch (item.kind) {
      case edd::ItemKind::Variable:
        display_->Items().AddParameter(name, valueTypeOf(description_.variables()[item.index]));
        break;
      case edd::ItemKind::Menu:
        display_->Items().AddAction(name, actionTypeOf(description_.menus()[item.index]));
        break;
      case edd::ItemKind::Method: display_->Items().AddAction(name, ddtypeMethod); break;
    }
  }
  buildFooter();
  refresh(false);
  display_->SetColumnLayout(0, 0, 0, 10.2F);
}

void MenuPanel::buildFooter() {
  for (const FooterButton& button : kFooter) display_->Buttons().AddButton(button.name, button.caption);
  if (!hasDynamicValues()) return;
  display_->Buttons().AddButton(kRefreshButton.name, kRefreshButton.caption);
  armRefresh();
}

bool MenuPanel::hasDynamicValues() const {
  return std::any_of(menu_.items.begin(), menu_.items.end(), [this](const edd::MenuItem& item) {
    return item.kind == edd::ItemKind::Variable && description_.variables()[item.index].isDynamic();
  });
}

clsQRNParam& MenuPanel::parameter(std::int32_t item) {
  return static_cast<clsQRNParam&>(*display_->Items().Item(Variant(item)));
}

QRNEdit* MenuPanel::row(std::int32_t item) {
  const bool isRow =
      item >= 1 && item <= display_->Items().Count() && entry(item).kind == edd::ItemKind::Variable;
  return isRow ? &parameter(item).Control() : nullptr;
}

host::Control& MenuPanel::control(std::int32_t item) {
  if (QRNEdit* found = row(item)) return *found;
  return static_cast<clsQRNAction&>(*display_->Items().Item(Variant(item))).Control();
}

std::int32_t MenuPanel::itemOf(std::string_view name) const {
  const auto found =
      std::find_if(menu_.items.begin(), menu_.items.end(), [&](const auto& i) { return i.name == name; });
  return found == menu_.items.end() ? 0 : static_cast<std::int32_t>(found - menu_.items.begin()) + 1;
}

void MenuPanel::layOutRow(std::int32_t item) {
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
  addHelpEntry(row, variable.help);
  if (variable.defaultValue) row.AddMenuItem("Restore &default");
  qrnParamState state = qrnStateNormal;
  if (!variable.writable || entry(item).readOnly) state = state | qrnStateReadOnly;
  if (variable.isDynamic()) state = state | qrnStateDynamic;
  parameter(item).SetParamState(state);
}

void MenuPanel::layOutAction(std::int32_t item) {
  const edd::MenuItem& action = entry(item);
  auto& button = static_cast<QRNMenuItem&>(control(item));
  button.SetCaption(action.kind == edd::ItemKind::Menu ? description_.menus()[action.index].label
                                                       : description_.methods()[action.index].label);
  button.SetToolTipText(helpOf(item));
  addHelpEntry(button, helpOf(item));
}

void MenuPanel::refresh(bool dynamicOnly) {
  for (std::int32_t item = 1; item <= display_->Items().Count(); ++item) {
    if (entry(item).kind != edd::ItemKind::Variable || item == edited_) continue;
    const edd::Variable& variable = variableOf(item);
    if (dynamicOnly && !variable.isDynamic()) continue;
    // What the user has typed and not sent yet stays.
    if ((parameter(item).ParamState() & qrnStateChanged) != 0) continue;
    parameter(item).SetParamValue(toRow(variable, device_.read(entry(item).index)));
  }
  display_->LayoutControls(true);
}

// ---- the footer ----

void MenuPanel::pressed(std::int32_t button) {
  switch (button) {
    case kOk:
    case kApply: return apply();
    case kCancel: return undo();
    case kRefresh: return readAgain();
  }
}

void MenuPanel::readAgain() {
  refresh(true);
  armRefresh();
}

// The button fires once per arming, and a click of the user disarms it.
void MenuPanel::armRefresh() {
  display_->Buttons().Item(Variant(kRefreshButton.name))->SetAutoFireDelay(kRefreshInterval);
}

bool MenuPanel::isEdited(std::int32_t item) {
  return row(item) && (parameter(item).ParamState() & qrnStateChanged) != 0;
}

// Good values go to the device; a wrong one stays in its row to be corrected.
void MenuPanel::apply() {
  int written = 0, wrong = 0;
  for (std::int32_t item = 1; item <= display_->Items().Count(); ++item) {
    if (!isEdited(item)) continue;
    const bool good = parameter(item).ParamError() == qrnErrorNone;
    ++(good ? written : wrong);
    if (good) storeValue(item);
  }
  tell(wrong == 0 ? counted(written, "written")
                  : counted(written, "written, ") + std::to_string(wrong) + " to be corrected");
}

void MenuPanel::undo() {
  int undone = 0;
  for (std::int32_t item = 1; item <= display_->Items().Count(); ++item) {
    if (!isEdited(item)) continue;
    showStored(item);
    ++undone;
  }
  tell(counted(undone, "put back"));
}

void MenuPanel::storeValue(std::int32_t item) {
  device_.write(entry(item).index, fromRow(variableOf(item), row(item)->Value()));
  showStored(item);
}

// What the device has made of it.
void MenuPanel::showStored(std::int32_t item) {
  row(item)->SetValueChanged(false);
  parameter(item).SetParamValue(toRow(variableOf(item), device_.read(entry(item).index)));
}

void MenuPanel::act(std::int32_t item) {
  const edd::MenuItem& action = entry(item);
  if (action.kind == edd::ItemKind::Menu)
    SubmenuChosen.raise(description_.menus()[action.index]);
  else
    tell(device_.run(description_.methods()[action.index]));
}

void MenuPanel::chooseInMenu(std::int32_t item, std::int16_t chosen) {
  if (chosen == kHelp) showHelp(item);
  if (chosen == kDefault) restoreDefault(item);
}

void MenuPanel::restoreDefault(std::int32_t item) {
  if ((parameter(item).ParamState() & qrnStateReadOnly) != 0) return;
  device_.write(entry(item).index, defaultOf(variableOf(item)));
  showStored(item);
}

const std::string& MenuPanel::helpOf(std::int32_t item) const {
  const std::size_t index = entry(item).index;
  switch (entry(item).kind) {
    case edd::ItemKind::Menu: return description_.menus()[index].help;
    case edd::ItemKind::Method: return description_.methods()[index].help;
    default: return description_.variables()[index].help;
  }
}

void MenuPanel::showHelp(std::int32_t item) {
  if (!helpOf(item).empty()) Help.raise(item, helpOf(item));
}

void MenuPanel::tell(const std::string& text) {
  if (!text.empty()) Message.raise(text);
}

}  // namespace qrn::eddpanel
