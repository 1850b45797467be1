#include "stack/QRNDisplayStack.h"

namespace qrn {

using host::AccessibleFacts;
using host::AccessibleNode;

void QRNDisplayStack::tellFacts(AccessibleFacts& facts) const {
  facts.role = host::AccessibleRole::Panel;
  facts.description = ToolTipText();
}

AccessibleNode QRNDisplayStack::accessibleChild(std::int32_t index) { return {page(index + 1)->Control()}; }

// A page has its title from itself.
void QRNDisplayStack::tellFactsOf(const host::Control& inside, AccessibleFacts& facts) const {
  for (const Page& page : pages_) {
    if (page->Control() != &inside) continue;
    facts.role = host::AccessibleRole::Group;
    facts.states.modal = page->Control()->TitleStyle() == qrnTitleDialog;
  }
}

}  // namespace qrn
