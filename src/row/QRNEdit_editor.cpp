#include <utility>

#include "base/scoped_flag.h"
#include "diag/QRNErrors.h"
#include "row/QRNEdit.h"
#include "row/row_extras.h"
#include "runtime/errors.h"

namespace qrn {
namespace {

constexpr double kEditorWidth = 100;

}  // namespace

host::Editor* QRNEdit::CurrentEditor() const {
  const_cast<QRNEdit*>(this)->makeEditor();
  return editor_.inner();
}

void QRNEdit::SetValueType(qrnValueType type) {
  const WeakRef<QRNEdit> self(this);
  // Who hears of it may have given the row another editor, and that one the focus.
  const bool focused = takeFocusFromEditor(type) || (self && takeFocusFromEditor(type));
  if (!self) return;
  switchEditor(type);
  if (propertyChanged("ValueType")) layOut();
  if (self && focused) input().setFocus(focusTarget());
}

// The focus waits on the row while one editor takes the place of another, and the edit goes on. A row that
// will have no editor gives it up while the edit can still be ended, and nobody who hears of that can give it
// back.
bool QRNEdit::takeFocusFromEditor(qrnValueType nextType) {
  host::Editor* const editor = editor_.inner();
  const ValueEditor::Kind next = ValueEditor::kindFor(nextType);
  if (!editor || next == editor_.kind() || !editor->hasFocus()) return false;
  const bool goesOn = next != ValueEditor::Kind::None && next != ValueEditor::Kind::Array;
  const auto leaving = editor->leave();
  input().setFocus(goesOn ? this : nullptr);
  return goesOn;
}

void QRNEdit::switchEditor(qrnValueType type) {
  const ValueEditor::Kind kind = ValueEditor::kindFor(type);
  if (kind == editor_.kind()) {
    valueType_ = type;
    return;
  }
  const bool hadEditor = editor_.exists();
  const host::Color color = ValueForeColor();
  const std::string toolTip = ValueToolTip();
  if (hadEditor) removeEditor();
  valueType_ = type;
  editor_.begin(kind);
  if (!editor_.exists()) return;
  editorShown_ = valueVisible_;
  if (hadEditor) {
    editor_.setForeColor(color);
    applyValueToolTip(toolTip);
  } else {
    valueWidth_ = kEditorWidth / pixelsPerUnit().x;
    forgetMeasure(&Measures::value);
  }
  if (parts_ || kind == ValueEditor::Kind::BitList) makeEditor();
}

void QRNEdit::removeEditor() {
  // While the window still exists.
  if (extras_) extras_->editorHook.reset();
  const host::Owned<host::Control> gone = editor_.end();
  if (toolTips_) toolTips_->value.clear();
  forgetMeasure(&Measures::value);
}

// Looks as it would if it had been there all the time, and needs as much room as before.
void QRNEdit::makeEditor() {
  if (!editor_.exists() || editor_.frame()) return;
  const auto make = [&] {
    const ScopedFlag making(*this, &QRNEdit::makingEditor_);
    editor_.make(*this);
    applySettings();
  };
  const bool pending = !seen();
  if (!ignoringErrors(make)) removeEditor();
  // The repaint of one that was half made may have had the row arranged.
  if (pending) arrangeLater();
}

void QRNEdit::childWindowMade(host::Control& child) {
  if (&child != editor_.inner()) return;
  auto& hook = extras().editorHook;
  hook = std::make_unique<clsQRNEDitSubClass>();
  hook->SetHwnd(child.window());
}

void QRNEdit::applySettings() {
  if (auto* composite = editor_.composite()) composite->SetScaleMode(ScaleMode());
  applyAlignment();
  applyLocked();
  applyUpperCase();
  applyMaxLength();
  applyPassword();
  applyEnabled();
  passFont();
  if (editor_.check()) editor_.check()->Check().SetBackColor(BackColor());
  editor_.frame()->SetVisible(editorShown_);
  editor_.inner()->SetVisible(editorShown_);
  if (seen()) editor_.frame()->SetWidth(valueWidth_);
  if (toolTips_) applyValueToolTip(std::exchange(toolTips_->value, {}));
}

void QRNEdit::applyAlignment() {
  if (host::Editor* editor = editor_.inner()) editor->SetAlignment(valueAlignment_);
}

void QRNEdit::applyLocked() {
  const host::Color background = locked_ ? host::kButtonFace : host::kWindowBackground;
  if (auto* box = editor_.textBox()) {
    box->SetLocked(locked_);
    box->SetBackColor(background);
  } else if (auto* drop = editor_.dropList()) {
    drop->Combo().SetLocked(locked_);
    drop->Combo().SetBackColor(background);
  } else if (auto* bits = editor_.bitList()) {
    bits->List().SetBackColor(background);
  } else {
    applyEnabled();
  }
}

void QRNEdit::applyEnabled() {
  if (host::Editor* editor = editor_.inner()) editor->SetEnabled(Enabled() && !(editor_.check() && locked_));
}

void QRNEdit::applyUpperCase() {
  if (editor_.textBox()) editor_.textBox()->setUpperCase(valueUpperCase_);
  if (editor_.dropList()) editor_.dropList()->Combo().setUpperCase(valueUpperCase_);
}

void QRNEdit::applyMaxLength() {
  if (editor_.textBox()) editor_.textBox()->SetMaxLength(valueMaxLength_);
}

void QRNEdit::applyPassword() {
  if (editor_.textBox()) editor_.textBox()->SetPasswordChar(password_ ? "*" : "");
}

// Drops the measured widths as well, so it also serves a change of scale.
void QRNEdit::applyFont() {
  textHeight_ = Measures::kUnknown;
  minimum_ = {};
  tellMeasureChanged();
  if (parts_) {
    parts_->lblLabel.fontChanged();
    parts_->lblUnit.fontChanged();
  }
  passFont();
}

void QRNEdit::passFont() {
  if (editor_.textBox())
    editor_.textBox()->SetFont(font());
  else if (auto* composite = editor_.composite())
    composite->SetFont(font());
}

// A disabled check box shows no tool tip; what lies under it does.
void QRNEdit::applyValueToolTip(const std::string& text) {
  if (host::Editor* editor = editor_.inner()) {
    editor->SetToolTipText(text);
    if (editor_.check()) editor_.check()->SetToolTipText(text);
  } else if (toolTips_ || !text.empty()) {
    toolTips().value = text;
  }
}

// ---- the entries of the lists ----

// A bit list is as high as its entries were at the last layout, be it done or still to be.
host::ListEntries* QRNEdit::entriesToChange() {
  if (editor_.bitList()) settle();
  return editor_.list();
}

std::int16_t QRNEdit::ValueCount() const {
  if (!userMode()) RaiseError(kGetNotAtDesignTime, *this);
  const host::ListEntries* list = editor_.list();
  return list ? list->ListCount() : std::int16_t{0};
}

void QRNEdit::SetValueCount(std::int16_t count) {
  // The same number as when it is read, on purpose.
  if (!userMode()) RaiseError(kGetNotAtDesignTime, *this);
  host::ListEntries* list = entriesToChange();
  if (!list) return;
  if (count <= 0) list->Clear();
  while (list->ListCount() < count) list->AddItem("");
  while (count > 0 && list->ListCount() > count) list->RemoveItem(list->ListCount() - 1);
  forgetMeasure(&Measures::value);
}

std::string QRNEdit::ValueNames(std::int32_t i) const {
  if (!userMode()) RaiseError(kGetNotAtDesignTime, *this);
  const host::ListEntries* list = editor_.list();
  return list ? list->List(i) : std::string();
}

void QRNEdit::SetValueNames(std::int32_t i, const std::string& name) {
  if (!userMode()) RaiseError(kSetNotAtDesignTime, *this);
  host::ListEntries* list = entriesToChange();
  if (!list) return;
  if (i >= 0 && i < list->ListCount())
    list->SetList(i, name);
  else
    list->AddItem(name);
  forgetMeasure(&Measures::value);
}

std::int32_t QRNEdit::ValueItems(std::int32_t i) const {
  if (!userMode()) RaiseError(kGetNotAtDesignTime, *this);
  const host::ListEntries* list = editor_.list();
  return list ? list->ItemData(i) : 0;
}

void QRNEdit::SetValueItems(std::int32_t i, std::int32_t item) {
  if (!userMode()) RaiseError(kSetNotAtDesignTime, *this);
  if (host::ListEntries* list = editor_.list()) list->SetItemData(i, item);
}

}  // namespace qrn
