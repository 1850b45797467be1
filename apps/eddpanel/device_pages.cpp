#include "device_pages.h"

#include <algorithm>

#include "item_help.h"

namespace qrn::eddpanel {

DevicePages::DevicePages(const edd::Description& description, QRNDisplayStack& stack,
                         ChangesQuestion& question)
    : description_(description),
      stack_(stack),
      question_(question),
      device_(description),
      roots_(description.rootMenus()) {
  for (const edd::Menu* root : roots_) collect(*root);
  listenToPages();
  listenToItems();
}

void DevicePages::collect(const edd::Menu& menu) {
  if (std::find(menus_.begin(), menus_.end(), &menu) != menus_.end()) return;
  menus_.push_back(&menu);
  for (const edd::MenuItem& item : menu.items) {
    if (item.kind == edd::ItemKind::Menu) collect(description_.menus()[item.index]);
  }
}

const edd::Menu* DevicePages::find(std::string_view nameOrLabel) const {
  for (const edd::Menu* menu : menus_) {
    if (menu->name == nameOrLabel || menu->label == nameOrLabel) return menu;
  }
  return nullptr;
}

void DevicePages::listenToPages() {
  const auto hear = [this](auto& event, auto listener) { connections_.push_back(event.connect(listener)); };
  hear(stack_.PageLayout, [this](std::int32_t index) { fill(index); });
  hear(stack_.PageActivate, [this](std::int32_t index) { activated(index); });
  hear(stack_.PageDeactivate, [this](std::int32_t index) { page(index).armRefresh(false); });
  hear(stack_.PageClose, [this](std::int32_t index, bool& cancel) { ask(index, cancel); });
  hear(stack_.ButtonClick, [this](std::int32_t& index, std::int32_t& button) { pressed(index, button); });
}

void DevicePages::listenToItems() {
  using Long = std::int32_t;
  using Integer = std::int16_t;
  const auto hear = [this](auto& event, auto listener) { connections_.push_back(event.connect(listener)); };
  hear(stack_.ParameterLayout, [this](Long& index, Long& item) { page(index).layOutRow(item); });
  hear(stack_.ActionLayout, [this](Long& index, Long& item) { page(index).layOutAction(item); });
  hear(stack_.ParameterStartEdit, [this](Long& index, Long& item) { page(index).editStarted(item); });
  hear(stack_.ParameterEndEdit, [this](Long& index, Long&, bool&) { page(index).editEnded(); });
  hear(stack_.ParameterIcon2Click, [this](Long& index, Long& item) { help(index, item); });
  hear(stack_.ActionClick, [this](Long& index, Long& item) { act(index, item); });
  hear(stack_.ItemKeyDown, [this](Long& index, Long& item, Integer& key, Integer& shift) {
    if (key == host::key::F1 && shift == host::shift::None) help(index, item);
  });
  hear(stack_.ItemMenuClick,
       [this](Long& index, Long& item, Integer& entry) { chosenInMenu(index, item, entry); });
}

// ---- pages ----

void DevicePages::open(const edd::Menu& menu) {
  for (std::int32_t index = 1; index <= stack_.Count(); ++index) {
    if (&page(index).menu() == &menu) return stack_.ActivatePage(index);
  }
  opening_ = &menu;
  // There is nothing below the first page to keep the user from.
  stack_.AddPage("", menu.label, menu.isDialog && stack_.Count() > 0);
}

void DevicePages::fill(std::int32_t index) {
  QRNDisplay& panel = stack_.Pages(Variant(index));
  panel.SetExtraData(std::make_shared<MenuPage>(description_, *opening_, device_, panel));
  page(index).build();
}

MenuPage& DevicePages::page(std::int32_t index) {
  const Variant& kept = stack_.Pages(Variant(index)).ExtraData();
  return static_cast<MenuPage&>(**kept.get<ObjectPtr>());
}

// Pages above it may have written what it shows.
void DevicePages::activated(std::int32_t index) {
  page(index).refresh(false);
  page(index).armRefresh();
  stack_.Pages(Variant(index)).SetItemFocus(Variant(0));
}

bool DevicePages::closeAll() {
  stack_.ActivatePage(0);
  return stack_.Count() == 0;
}

void DevicePages::close(std::int32_t index) {
  stack_.ActivatePage(index - 1);
  if (stack_.Count() == 0) LastPageClosed.raise();
}

void DevicePages::ask(std::int32_t index, bool& cancel) {
  const Edits edits = page(index).edits();
  if (edits.count == 0) return;
  switch (question_.ask(page(index).menu().label, edits)) {
    case ForChanges::Apply: cancel = !apply(index); break;
    case ForChanges::Discard: undo(index); break;
    case ForChanges::KeepOpen: cancel = true; break;
  }
}

// ---- the footer ----

void DevicePages::pressed(std::int32_t index, std::int32_t button) {
  switch (button) {
    case kOk:
      if (apply(index)) close(index);
      return;
    case kApply: apply(index); return;
    case kCancel: undo(index); return close(index);
    case kRefresh: page(index).refresh(true); return page(index).armRefresh();
  }
}

// Answers whether nothing is left to be corrected.
bool DevicePages::apply(std::int32_t index) {
  const Edits edits = page(index).apply();
  const std::string rest = edits.wrong == 0 ? "" : ", " + std::to_string(edits.wrong) + " to be corrected";
  Message.raise(counted(edits.count - edits.wrong, "written") + rest);
  return edits.wrong == 0;
}

void DevicePages::undo(std::int32_t index) { Message.raise(counted(page(index).undo(), "put back")); }

// ---- items ----

void DevicePages::act(std::int32_t index, std::int32_t item) {
  const edd::MenuItem& action = page(index).entry(item);
  if (action.kind == edd::ItemKind::Menu)
    open(description_.menus()[action.index]);
  else
    Message.raise(device_.run(description_.methods()[action.index]));
}

void DevicePages::chosenInMenu(std::int32_t index, std::int32_t item, std::int16_t entry) {
  if (entry == kHelp) help(index, item);
  if (entry == kDefault) page(index).restoreDefault(item);
}

void DevicePages::help(std::int32_t index, std::int32_t item) {
  MenuPage& about = page(index);
  if (QRNToolTip* tip = showHelp(about.panel(), item, helpOf(description_, about.entry(item))))
    HelpShown.raise(*tip);
}

}  // namespace qrn::eddpanel
