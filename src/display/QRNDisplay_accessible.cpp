#include "display/QRNDisplay.h"

namespace qrn {

using host::AccessibleFacts;
using host::AccessibleNode;

// From top to bottom: the buttons of the title bar, the items, the scroll bar, the buttons of the footer, and
// the tool tip.

std::int32_t QRNDisplay::accessibleCount() const {
  const std::int32_t title = (imgMaxRst_.Visible() ? 1 : 0) + (imgClose_.Visible() ? 1 : 0);
  const std::int32_t bar = sbrVertical_.Visible() ? 1 : 0;
  return title + items_->Count() + bar + footerButtons() + (shownHelp() ? 1 : 0);
}

AccessibleNode QRNDisplay::accessibleChild(std::int32_t index) {
  for (host::Image* image : {&imgMaxRst_, &imgClose_}) {
    if (image->Visible() && index-- == 0) return {image};
  }
  if (index < items_->Count()) return {items_->Item(Variant(index + 1))->control()};
  index -= items_->Count();
  if (sbrVertical_.Visible() && index-- == 0) return {&sbrVertical_};
  if (index < footerButtons()) return {buttons_->Item(Variant(index + 1))->control()};
  return {shownHelp()};
}

// Of an item that costs the same however many there are.
std::int32_t QRNDisplay::accessibleIndexOf(const AccessibleNode& child) {
  if (!child || child.entry != AccessibleNode::kWhole) return -1;
  if (const PanelItem* item = itemOf(*child.control)) {
    const std::int32_t title = (imgMaxRst_.Visible() ? 1 : 0) + (imgClose_.Visible() ? 1 : 0);
    return title + item->position() - 1;
  }
  // A part of a row is no child, nor is anything else in the item container.
  for (const host::Control* outer = child.control; outer; outer = outer->Container()) {
    if (outer == &pbxContainer_) return -1;
  }
  return UserControl::accessibleIndexOf(child);
}

const PanelItem* QRNDisplay::itemOf(const host::Control& control) const {
  if (control.Container() != &pbxContainer_) return nullptr;
  const std::int32_t position = items_->items_.positionOf(Variant(control.Name()));
  const PanelItem* item = position == 0 ? nullptr : items_->items_.at(position).get();
  return item && item->control() == &control ? item : nullptr;
}

void QRNDisplay::tellFacts(AccessibleFacts& facts) const {
  facts.role = host::AccessibleRole::Panel;
  facts.name = Title();
  facts.description = ToolTipText();
}

void QRNDisplay::tellFactsOf(const host::Control& inside, AccessibleFacts& facts) const {
  if (&inside == &imgClose_ || &inside == &imgMaxRst_) {
    facts.role = host::AccessibleRole::Button;
    facts.action = host::AccessibleAction::Press;
    if (!facts.name.empty()) return;
    facts.name = &inside == &imgClose_ ? "Close" : maximized_ ? "Restore" : "Maximize";
    return;
  }
  const host::Control* top = &inside;
  while (top->Container() && top->Container() != &pbxContainer_) top = top->Container();
  if (const PanelItem* item = itemOf(*top)) item->tellFacts(inside, facts);
}

void QRNDisplay::childPressed(host::Control& child) {
  if (Enabled()) clickOn(child);
}

}  // namespace qrn
