#include "rules.h"

#include <string>
#include <vector>

#include "host/container_control.h"
#include "runtime/errors.h"
#include "stage.h"

namespace qrn::monkey {
namespace {

std::string text(double number) { return std::to_string(number); }
std::string text(std::int32_t number) { return std::to_string(number); }

const host::Control* controlOf(const PanelItemPtr& item) {
  if (const auto parameter = std::dynamic_pointer_cast<clsQRNParam>(item)) return &parameter->Control();
  return &static_cast<clsQRNAction&>(*item).Control();
}
const host::Control* controlOf(const ButtonPtr& button) { return &button->Control(); }

// Object, key and position select the same one, and its control is where the panel keeps it.
template <class Collection>
void checkCollection(Stage& stage, QRNDisplay& panel, const Collection& all,
                     const host::ContainerControl& container) {
  const std::string rule = "object, key and position select the same";
  std::int32_t position = 0;
  for (const auto& one : all) {
    ++position;
    const host::Control& control = *controlOf(one);
    const Variant key(control.Name());
    const bool same = all.Item(Variant(position)) == one && all.Item(key) == one &&
                      all.GetIndexOf(Variant(one)) == position && all.GetIndexOf(key) == position;
    if (!same) stage.complain(rule, control.Name() + " at " + text(position));
    if (panel.ControlsCollection().find(control.Name()) != &control)
      stage.complain("a control bears the key of its item", control.Name() + " at " + text(position));
  }
  if (position != all.Count()) stage.complain(rule, text(position) + " of " + text(all.Count()));
  if (container.contained().size() != static_cast<std::size_t>(all.Count()))
    stage.complain(
        "there is one control for each item",
        text(all.Count()) + " items, " + std::to_string(container.contained().size()) + " controls");
}

PanelItemPtr focusedItem(QRNDisplay& panel) {
  if (!panel.hasFocus()) return nullptr;
  for (const PanelItemPtr& item : panel.Items()) {
    if (controlOf(item)->hasFocus()) return item;
  }
  return nullptr;
}

PanelItemPtr focusedItem(Stage& stage) {
  for (QRNDisplay* panel : stage.panels()) {
    if (PanelItemPtr item = focusedItem(*panel)) return item;
  }
  return nullptr;
}

void checkFocus(Stage& stage) {
  const host::Control* focus = stage.surface()->input().focus();
  for (const host::Control* one = focus; one && one != stage.surface(); one = one->Container()) {
    if (!one->Visible())
      stage.complain("nothing hidden has the focus", focus->Name() + ", for " + one->Name() + " is hidden");
  }
}

void checkActiveItem(Stage& stage, QRNDisplay& panel) {
  const PanelItemPtr item = focusedItem(panel);
  const std::int32_t expected = item ? panel.Items().GetIndexOf(Variant(item)) : 0;
  if (panel.GetActiveItem(false) != expected)
    stage.complain("the active item is the one with the focus",
                   text(panel.GetActiveItem(false)) + " instead of " + text(expected));
}

bool isThere(Stage& stage, const PanelItemPtr& item) {
  for (QRNDisplay* panel : stage.panels()) {
    if (ignoringErrors([&] { panel->Items().GetIndexOf(Variant(item)); })) return true;
  }
  return false;
}

// Unless a listener interfered, who loses the focus and who gets it is told.
void checkFocusEvents(Stage& stage) {
  const PanelItemPtr before = stage.itemBefore;
  const PanelItemPtr now = focusedItem(stage);
  const Audience& audience = stage.audience();
  if (now == before || audience.meddledInThisStep()) return;
  if (now && !audience.heardOfFocus(*now))
    stage.complain("an item that gets the focus says so", controlOf(now)->Name());
  if (before && isThere(stage, before) && !audience.heardOfLostFocus(*before))
    stage.complain("an item that loses the focus says so", controlOf(before)->Name());
}

void collectEditors(const host::ContainerControl& container, std::vector<const host::Control*>& realised) {
  // Without looking at rows that nobody has looked at.
  for (const host::Control* control : container.inside()) {
    if (control->peer() && control->peerPolicy() == host::PeerPolicy::WhenFocused)
      realised.push_back(control);
    if (const auto* inner = dynamic_cast<const host::ContainerControl*>(control))
      collectEditors(*inner, realised);
  }
}

// Only the focused editor is a native widget, and only on a panel that has a surface.
void checkRealisedEditors(Stage& stage) {
  std::vector<const host::Control*> realised;
  collectEditors(*stage.surface(), realised);
  const host::Control* focus = stage.surface()->input().focus();
  for (const host::Control* one : realised) {
    if (one != focus)
      stage.complain("only the focused editor is realised",
                     one->Name() + " is, and the focus is on " + (focus ? focus->Name() : "nothing"));
  }
}

void checkScrolling(Stage& stage, QRNDisplay& panel) {
  const host::VScrollBar& bar = panel.sbrVertical();
  if (bar.Value() < bar.Min() || bar.Value() > bar.Max())
    stage.complain("the scroll bar stays in its range", text(bar.Value()) + " of " + text(bar.Max()));
  if (panel.ControlsContainer().scrolledBy() != bar.Value())
    stage.complain("the items are scrolled as the bar says",
                   text(panel.ControlsContainer().scrolledBy()) + " instead of " + text(bar.Value()));
}

}  // namespace

void beforeStep(Stage& stage) {
  stage.stepBegins();
  stage.focusBefore = WeakRef<host::Control>(stage.surface()->input().focus());
  stage.itemBefore = focusedItem(stage);
}

void checkFocusIsOfUse(Stage& stage) {
  if (!stage.surface() || stage.audience().meddledInThisStep()) return;
  const host::Control* focus = stage.surface()->input().focus();
  if (focus == stage.focusBefore.get()) return;
  for (const host::Control* one = focus; one; one = one->Container()) {
    if (!one->Enabled())
      stage.complain("the focus goes to nothing that is disabled",
                     focus->Name() + ", for " + one->Name() + " is disabled");
  }
}

void checkRules(Stage& stage) {
  if (!stage.surface()) return;
  for (QRNDisplay* panel : stage.panels()) {
    checkCollection(stage, *panel, panel->Items(), panel->ControlsContainer());
    checkCollection(stage, *panel, panel->Buttons(), panel->ButtonsContainer());
    checkActiveItem(stage, *panel);
    checkScrolling(stage, *panel);
  }
  checkFocus(stage);
  checkFocusEvents(stage);
  checkRealisedEditors(stage);
  if (stage.stack()) checkStack(stage);
}

}  // namespace qrn::monkey
