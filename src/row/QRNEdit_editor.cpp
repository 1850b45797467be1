#include <array>

#include "diag/QRNErrors.h"
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
    case EditorKind::TextBox: return txtValue_;
    case EditorKind::Check: return chkValue_ ? &chkValue_->Check() : nullptr;
    case EditorKind::DropList: return cboValue_ ? &cboValue_->Combo() : nullptr;
    case EditorKind::BitList: return lstValue_ ? &lstValue_->List() : nullptr;
    default: return nullptr;
  }
}

host::Control* QRNEdit::editorFrame() const {
  for (host::Control* frame : std::array<host::Control*, 4>{txtValue_, chkValue_, cboValue_, lstValue_}) {
    if (frame) return frame;
  }
  return nullptr;
}

host::ListEditor* QRNEdit::listEditor() const {
  if (cboValue_) return &cboValue_->Combo();
  return lstValue_ ? &lstValue_->List() : nullptr;
}

void QRNEdit::SetValueType(qrnValueType type) {
  switchEditor(type);
  propertyChanged("ValueType");
  layOut();
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
    double width;
  };
  std::optional<Saved> saved;
  if (const host::Editor* old = CurrentEditor()) {
    saved = Saved{old->ForeColor(), old->ToolTipText(), editorFrame()->Width()};
  }
  removeEditor();
  valueType_ = type;
  createEditor(kind);
  host::Editor* editor = CurrentEditor();
  if (!editor) return;
  applySettings();
  if (!saved) return;
  editor->SetForeColor(saved->foreColor);
  editor->SetToolTipText(saved->toolTip);
  if (chkValue_) chkValue_->SetToolTipText(saved->toolTip);
  editorFrame()->SetWidth(saved->width);
}

void QRNEdit::removeEditor() {
  host::Control* frame = editorFrame();
  const bool textBox = txtValue_ != nullptr;
  editorKind_ = EditorKind::None;
  txtValue_ = nullptr;
  chkValue_ = nullptr;
  cboValue_ = nullptr;
  lstValue_ = nullptr;
  if (frame) controls().remove(textBox ? "txtValue" : std::string(frame->Name()));
}

void QRNEdit::createEditor(EditorKind kind) {
  const auto add = [this](std::string_view progId, std::string_view name) -> host::Control& {
    host::Control& added = controls().add(progId, name, *this);
    if (auto* composite = dynamic_cast<CompositeEditor*>(&added)) composite->SetScaleMode(ScaleMode());
    added.SetWidth(kEditorWidth);
    return added;
  };
  switch (kind) {
    case EditorKind::TextBox: txtValue_ = static_cast<host::TextBox*>(&add("VB.TextBox", "txtValue")); break;
    case EditorKind::Check:
      chkValue_ = static_cast<QRNCheck*>(&add("QRNV16Controls2.QRNCheck", "chkValue"));
      break;
    case EditorKind::DropList:
      cboValue_ = static_cast<QRNDropList*>(&add("QRNV16Controls2.QRNDropList", "cboValue"));
      break;
    case EditorKind::BitList:
      lstValue_ = static_cast<QRNBitList*>(&add("QRNV16Controls2.QRNBitList", "lstValue"));
      break;
    default: break;
  }
  editorKind_ = kind;
}

void QRNEdit::applySettings() {
  host::Editor& editor = *CurrentEditor();
  editor.SetAlignment(valueAlignment_);
  applyLocked();
  applyUpperCase();
  if (txtValue_) {
    txtValue_->SetMaxLength(valueMaxLength_);
    txtValue_->SetPasswordChar(password_ ? "*" : "");
  }
  applyEnabled();
  if (chkValue_) chkValue_->Check().SetBackColor(BackColor());
  editorFrame()->SetVisible(valueVisible_);
}

void QRNEdit::applyLocked() {
  const host::Color background = locked_ ? host::kButtonFace : host::kWindowBackground;
  if (txtValue_) {
    txtValue_->SetLocked(locked_);
    txtValue_->SetBackColor(background);
  } else if (cboValue_) {
    cboValue_->Combo().SetLocked(locked_);
    cboValue_->Combo().SetBackColor(background);
  } else if (lstValue_) {
    lstValue_->List().SetBackColor(background);
  } else if (chkValue_) {
    chkValue_->Check().SetEnabled(Enabled() && !locked_);
  }
}

void QRNEdit::applyEnabled() {
  if (host::Editor* editor = CurrentEditor()) editor->SetEnabled(Enabled() && !(chkValue_ && locked_));
}

void QRNEdit::applyUpperCase() {
  if (txtValue_) txtValue_->setUpperCase(valueUpperCase_);
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
