#include <array>

#include "diag/QRNErrors.h"
#include "host/prog_ids.h"
#include "row/QRNEdit.h"
#include "runtime/errors.h"

namespace qrn {
namespace {

constexpr double kEditorWidth = 100;

}  // namespace

QRNEdit::EditorKind QRNEdit::editorKind(qrnValueType type) {
  switch (type) {
    case qrnTypeString:
    case qrnTypeInteger:
    case qrnTypeLong:
    case qrnTypeDouble:
    case qrnTypeDecimal:
    case qrnTypeDate:
    case qrnTypeCurrency:
    case qrnTypeHexadecimal: return EditorKind::TextBox;
    case qrnTypeBoolean: return EditorKind::Check;
    case qrnTypeList: return EditorKind::DropList;
    case qrnTypeBitfield: return EditorKind::BitList;
    case qrnTypeArray: return EditorKind::Array;
    default: return EditorKind::None;
  }
}

host::Editor* QRNEdit::CurrentEditor() const {
  switch (editorKind_) {
    case EditorKind::TextBox: return txtValue();
    case EditorKind::Check: return chkValue() ? &chkValue()->Check() : nullptr;
    case EditorKind::DropList: return cboValue() ? &cboValue()->Combo() : nullptr;
    case EditorKind::BitList: return lstValue() ? &lstValue()->List() : nullptr;
    default: return nullptr;
  }
}

host::ListEditor* QRNEdit::listEditor() const {
  if (cboValue()) return &cboValue()->Combo();
  return lstValue() ? &lstValue()->List() : nullptr;
}

CompositeEditor* QRNEdit::compositeEditor() const {
  return txtValue() ? nullptr : static_cast<CompositeEditor*>(editor_.get());
}

void QRNEdit::SetValueType(qrnValueType type) {
  const WeakRef<QRNEdit> self(this);
  const bool focused = takeFocusFromEditor(type);
  if (!self) return;
  switchEditor(type);
  if (propertyChanged("ValueType")) layOut();
  if (self && focused) input().setFocus(focusTarget());
}

// The focus waits on the row while one editor takes the place of another, and the edit goes on. A row that
// will have no editor gives it up while the edit can still be ended.
bool QRNEdit::takeFocusFromEditor(qrnValueType nextType) {
  const host::Editor* editor = CurrentEditor();
  const EditorKind next = editorKind(nextType);
  if (!editor || next == editorKind_ || !editor->hasFocus()) return false;
  const bool goesOn = next != EditorKind::None && next != EditorKind::Array;
  input().setFocus(goesOn ? this : nullptr);
  return goesOn;
}

void QRNEdit::switchEditor(qrnValueType type) {
  const EditorKind kind = editorKind(type);
  if (kind == editorKind_) {
    valueType_ = type;
    return;
  }
  struct Saved {
    host::Color foreColor;
    std::string toolTip;
  };
  std::optional<Saved> saved;
  if (const host::Editor* old = CurrentEditor()) {
    saved = Saved{old->ForeColor(), old->ToolTipText()};
  }
  removeEditor();
  valueType_ = type;
  ignoringErrors([&] { createEditor(kind); });
  host::Editor* editor = CurrentEditor();
  if (!editor) return;
  applySettings();
  if (!saved) {
    valueWidth_ = kEditorWidth / pixelsPerUnit().x;
    return;
  }
  editor->SetForeColor(saved->foreColor);
  editor->SetToolTipText(saved->toolTip);
  if (chkValue()) chkValue()->SetToolTipText(saved->toolTip);
}

void QRNEdit::removeEditor() {
  // While the window still exists.
  editorHook_.reset();
  editorKind_ = EditorKind::None;
  const host::Owned<host::Control> gone = std::move(editor_);
  forgetMeasure(&Measures::value);
}

void QRNEdit::childWindowMade(host::Control& child) {
  if (&child != CurrentEditor()) return;
  editorHook_ = std::make_unique<clsQRNEDitSubClass>();
  editorHook_->SetHwnd(child.window());
}

// One of the row's own parts, so it is in no collection.
void QRNEdit::addEditor(std::string_view progId, std::string_view name) {
  host::Owned<host::Control> added = host::createByProgId(progId);
  host::LifeCycle::startChild(*added, *this, partName(name), *this);
  editor_ = std::move(added);
  editorShown_ = true;  // as a control is born
  forgetMeasure(&Measures::value);
}

void QRNEdit::createEditor(EditorKind kind) {
  switch (kind) {
    case EditorKind::TextBox: addEditor("VB.TextBox", "txtValue"); break;
    case EditorKind::Check: addEditor("QRNV16Controls2.QRNCheck", "chkValue"); break;
    case EditorKind::DropList: addEditor("QRNV16Controls2.QRNDropList", "cboValue"); break;
    case EditorKind::BitList: addEditor("QRNV16Controls2.QRNBitList", "lstValue"); break;
    default: break;
  }
  editorKind_ = kind;
}

void QRNEdit::applySettings() {
  if (auto* composite = compositeEditor()) composite->SetScaleMode(ScaleMode());
  applyAlignment();
  applyLocked();
  applyUpperCase();
  applyMaxLength();
  applyPassword();
  applyEnabled();
  applyFont();
  if (chkValue()) chkValue()->Check().SetBackColor(BackColor());
  editorFrame()->SetVisible(valueVisible_);
}

void QRNEdit::applyAlignment() {
  if (host::Editor* editor = CurrentEditor()) editor->SetAlignment(valueAlignment_);
}

void QRNEdit::applyLocked() {
  const host::Color background = locked_ ? host::kButtonFace : host::kWindowBackground;
  if (txtValue()) {
    txtValue()->SetLocked(locked_);
    txtValue()->SetBackColor(background);
  } else if (cboValue()) {
    cboValue()->Combo().SetLocked(locked_);
    cboValue()->Combo().SetBackColor(background);
  } else if (lstValue()) {
    lstValue()->List().SetBackColor(background);
  } else {
    applyEnabled();
  }
}

void QRNEdit::applyEnabled() {
  if (host::Editor* editor = CurrentEditor()) editor->SetEnabled(Enabled() && !(chkValue() && locked_));
}

void QRNEdit::applyUpperCase() {
  if (txtValue()) txtValue()->setUpperCase(valueUpperCase_);
  if (cboValue()) cboValue()->Combo().setUpperCase(valueUpperCase_);
}

void QRNEdit::applyMaxLength() {
  if (txtValue()) txtValue()->SetMaxLength(valueMaxLength_);
}

void QRNEdit::applyPassword() {
  if (txtValue()) txtValue()->SetPasswordChar(password_ ? "*" : "");
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
  if (txtValue())
    txtValue()->SetFont(font());
  else if (auto* composite = compositeEditor())
    composite->SetFont(font());
}

// ---- the entries of the lists ----

std::int16_t QRNEdit::ValueCount() const {
  if (!userMode()) RaiseError(kGetNotAtDesignTime, *this);
  const host::ListEditor* list = listEditor();
  return list ? list->ListCount() : std::int16_t{0};
}

void QRNEdit::SetValueCount(std::int16_t count) {
  // The same number as when it is read, on purpose.
  if (!userMode()) RaiseError(kGetNotAtDesignTime, *this);
  host::ListEditor* list = listEditor();
  if (!list) return;
  if (count <= 0) list->Clear();
  while (list->ListCount() < count) list->AddItem("");
  while (count > 0 && list->ListCount() > count) list->RemoveItem(list->ListCount() - 1);
}

std::string QRNEdit::ValueNames(std::int32_t i) const {
  if (!userMode()) RaiseError(kGetNotAtDesignTime, *this);
  const host::ListEditor* list = listEditor();
  return list ? list->List(i) : std::string();
}

void QRNEdit::SetValueNames(std::int32_t i, const std::string& name) {
  if (!userMode()) RaiseError(kSetNotAtDesignTime, *this);
  host::ListEditor* list = listEditor();
  if (!list) return;
  if (i >= 0 && i < list->ListCount())
    list->SetList(i, name);
  else
    list->AddItem(name);
}

std::int32_t QRNEdit::ValueItems(std::int32_t i) const {
  if (!userMode()) RaiseError(kGetNotAtDesignTime, *this);
  const host::ListEditor* list = listEditor();
  return list ? list->ItemData(i) : 0;
}

void QRNEdit::SetValueItems(std::int32_t i, std::int32_t item) {
  if (!userMode()) RaiseError(kSetNotAtDesignTime, *this);
  if (host::ListEditor* list = listEditor()) list->SetItemData(i, item);
}

}  // namespace qrn
