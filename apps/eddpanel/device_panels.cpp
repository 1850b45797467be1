#include "device_panels.h"

#include <algorithm>

#include "base/text.h"
#include "runtime/errors.h"
#include "value_mapping.h"

namespace qrn::eddpanel {
namespace {

// The entries of a row's context menu, as they are numbered.
enum RowMenu : std::int16_t { kHelp = 1, kDefault = 2 };

// The buttons of the footer in their order. A dot keeps their names apart from those in descriptions.
struct FooterButton {
  const char* name;
  const char* caption;
};
constexpr FooterButton kFooter[] = {
    {"footer.OK", "&OK"}, {"footer.Apply", "&Apply"}, {"footer.Cancel", "&Cancel"}};
constexpr std::int32_t kCancel = 3;

std::string counted(int count, const std::string& what) {
  return std::to_string(count) + (count == 1 ? " value " : " values ") + what;
}

}  // namespace

// ---- one panel ----

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
  hear(panel.ParameterIcon2Click, [this](std::int32_t& item) { tell(variableOf(item).help); });
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
      case edd::ItemKind::Menu: display_->Items().AddAction(name, ddtypeMenu); break;
      case edd::ItemKind::Method: display_->Items().AddAction(name, ddtypeMethod); break;
    }
  }
  buildFooter();
  refresh(false);
  display_->SetColumnLayout(0, 0, 0, 10.2F);
}

void MenuPanel::buildFooter() {
  for (const FooterButton& button : kFooter) display_->Buttons().AddButton(button.name, button.caption);
}

clsQRNParam& MenuPanel::parameter(std::int32_t item) {
  return static_cast<clsQRNParam&>(*display_->Items().Item(Variant(item)));
}

QRNEdit* MenuPanel::row(std::int32_t item) {
  const bool isRow =
      item >= 1 && item <= display_->Items().Count() && entry(item).kind == edd::ItemKind::Variable;
  return isRow ? &parameter(item).Control() : nullptr;
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
  row.AddMenuItem("&Help");
  if (variable.defaultValue) row.AddMenuItem("Restore &default");
  qrnParamState state = qrnStateNormal;
  if (!variable.writable || entry(item).readOnly) state = state | qrnStateReadOnly;
  if (variable.isDynamic()) state = state | qrnStateDynamic;
  parameter(item).SetParamState(state);
}

void MenuPanel::layOutAction(std::int32_t item) {
  const edd::MenuItem& action = entry(item);
  auto& button = static_cast<clsQRNAction&>(*display_->Items().Item(Variant(item))).Control();
  const auto show = [&](const auto& described) {
    button.SetCaption(described.label);
    button.SetToolTipText(described.help);
  };
  if (action.kind == edd::ItemKind::Menu)
    show(description_.menus()[action.index]);
  else
    show(description_.methods()[action.index]);
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
  if (button == kCancel)
    undo();
  else
    apply();
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
  if (entry(item).kind != edd::ItemKind::Variable) return;
  const edd::Variable& variable = variableOf(item);
  if (chosen == kHelp) tell(variable.help);
  if (chosen != kDefault || (parameter(item).ParamState() & qrnStateReadOnly) != 0) return;
  device_.write(entry(item).index, defaultOf(variable));
  showStored(item);
}

void MenuPanel::tell(const std::string& text) {
  if (!text.empty()) Message.raise(text);
}

// ---- all panels ----

DevicePanels::DevicePanels(const edd::Description& description, host::Site& site)
    : description_(description), site_(site), device_(description) {
  for (const edd::Menu* root : description.rootMenus()) collect(*root);
}

void DevicePanels::collect(const edd::Menu& menu) {
  if (std::find(menus_.begin(), menus_.end(), &menu) != menus_.end()) return;
  menus_.push_back(&menu);
  for (const edd::MenuItem& item : menu.items) {
    if (item.kind == edd::ItemKind::Menu) collect(description_.menus()[item.index]);
  }
}

MenuPanel& DevicePanels::open(const edd::Menu& menu) {
  for (const auto& panel : panels_) {
    if (&panel->menu() == &menu) return *panel;
  }
  panels_.push_back(std::make_unique<MenuPanel>(description_, menu, device_, site_));
  MenuPanel& added = *panels_.back();
  if (opened_) opened_(added);
  return added;
}

const edd::Menu* DevicePanels::find(std::string_view nameOrLabel) const {
  for (const edd::Menu* menu : menus_) {
    if (menu->name == nameOrLabel || menu->label == nameOrLabel) return menu;
  }
  return nullptr;
}

void DevicePanels::tick() {
  device_.tick();
  for (const auto& panel : panels_) panel->refresh(true);
}

}  // namespace qrn::eddpanel
