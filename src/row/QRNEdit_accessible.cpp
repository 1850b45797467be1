#include "row/QRNEdit.h"
#include "values/error_words.h"

namespace qrn {

using host::AccessibleFacts;
using host::AccessibleNode;
using host::AccessibleRole;

// "Pressure (bar)". A hidden caption still says what the value is; a unit that is not shown does not count.
std::string QRNEdit::accessibleName() const {
  const std::string& unit = UnitText();
  if (!unitVisible_ || unit.empty()) return LabelText();
  return LabelText().empty() ? unit : LabelText() + " (" + unit + ")";
}

const std::string& QRNEdit::accessibleDescription() const {
  return ValueToolTip().empty() ? LabelToolTip() : ValueToolTip();
}

bool QRNEdit::isSeenByTools(const RowIcon& icon) const {
  const std::string& tip = toolTip(&icon == &icon1_ ? &RowToolTips::icon1 : &RowToolTips::icon2);
  const bool says = icon.mode != qrnbuttonNone || !tip.empty();
  return says && icon.shown() && icon.picture && !icon.picture->empty();
}

host::Control* QRNEdit::accessiblePart(std::int32_t index) {
  host::Control* const editor = valueVisible_ ? CurrentEditor() : nullptr;
  if (editor && index-- == 0) return editor;
  if (isSeenByTools(icon1_) && index-- == 0) return &imgIcon1();
  if (isSeenByTools(icon2_) && index-- == 0) return &imgIcon2();
  return nullptr;
}

std::int32_t QRNEdit::accessibleCount() const {
  const std::int32_t editor = valueVisible_ && editor_.exists() ? 1 : 0;
  return editor + (isSeenByTools(icon1_) ? 1 : 0) + (isSeenByTools(icon2_) ? 1 : 0);
}

AccessibleNode QRNEdit::accessibleChild(std::int32_t index) { return {accessiblePart(index)}; }

// The group around an editor has no name, or tools would say the caption twice. A row without an editor is
// all that there is to be read.
void QRNEdit::tellFacts(AccessibleFacts& facts) const {
  facts.role = AccessibleRole::Group;
  if (valueVisible_ && editor_.exists()) return;
  facts.role = AccessibleRole::Label;
  facts.name = accessibleName();
  facts.description = LabelToolTip();
  if (valueVisible_) facts.value = ValueText();
}

void QRNEdit::tellFactsOf(const host::Control& inside, AccessibleFacts& facts) const {
  if (&inside == editor_.inner()) {
    facts.name = accessibleName();
    facts.description = accessibleDescription();
    facts.states.readOnly = locked_;
    // Nothing is held against a value that nobody has touched.
    if (ValueChanged()) facts.error = errorInWords(ValueError());
  }
  if (const RowIcon* icon = iconOf(inside); icon && icon->mode != qrnbuttonNone) {
    facts.role = AccessibleRole::Button;
    facts.description = accessibleName();
    facts.action = host::AccessibleAction::Press;
  }
}

void QRNEdit::childPressed(host::Control& child) {
  if (Enabled()) clickOn(child);
}

}  // namespace qrn
