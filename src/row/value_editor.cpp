#include "row/value_editor.h"

#include <utility>

#include "host/prog_ids.h"

namespace qrn {
namespace {

using Kind = ValueEditor::Kind;

struct EditorClass {
  std::string_view progId;
  std::string_view part;
};

EditorClass classOf(Kind kind) {
  switch (kind) {
    case Kind::TextBox: return {"VB.TextBox", "txtValue"};
    case Kind::Check: return {"QRNV16Controls2.QRNCheck", "chkValue"};
    case Kind::DropList: return {"QRNV16Controls2.QRNDropList", "cboValue"};
    case Kind::BitList: return {"QRNV16Controls2.QRNBitList", "lstValue"};
    default: return {};
  }
}

}  // namespace

Kind ValueEditor::kindFor(qrnValueType type) {
  switch (type) {
    case qrnTypeString:
    case qrnTypeInteger:
    case qrnTypeLong:
    case qrnTypeDouble:
    case qrnTypeDecimal:
    case qrnTypeDate:
    case qrnTypeCurrency:
    case qrnTypeHexadecimal: return Kind::TextBox;
    case qrnTypeBoolean: return Kind::Check;
    case qrnTypeList: return Kind::DropList;
    case qrnTypeBitfield: return Kind::BitList;
    case qrnTypeArray: return Kind::Array;
    default: return Kind::None;
  }
}

void ValueEditor::begin(Kind kind) {
  const std::string_view progId = classOf(kind).progId;
  kind_ = progId.empty() || host::isControlClass(progId) ? kind : Kind::None;
  if (kind_ == Kind::DropList) entries_ = std::make_unique<Entries>();
}

host::Owned<host::Control> ValueEditor::end() {
  host::Owned<host::Control> gone = std::move(control_);
  *this = {};
  return gone;
}

void ValueEditor::make(host::UserControl& row) {
  const EditorClass its = classOf(kind_);
  host::Owned<host::Control> added = host::createByProgId(its.progId);
  // One of the row's own parts, so it is in no collection.
  host::LifeCycle::startChild(*added, row, host::ContainerControl::partName(its.part), row);
  control_ = std::move(added);
  inner()->SetForeColor(foreColor_);
  if (textBox()) textBox()->SetText(std::exchange(text_, {}));
  if (check()) check()->Check().SetValue(ticked_);
  if (dropList()) dropList()->Combo().take(std::move(*std::exchange(entries_, {})));
}

host::Editor* ValueEditor::inner() const {
  if (textBox()) return textBox();
  return control_ ? &composite()->inner() : nullptr;
}

void ValueEditor::setText(std::string_view text) {
  if (textBox())
    textBox()->SetText(text);
  else
    text_ = text;
}

void ValueEditor::setTicked(std::int16_t ticked) {
  if (check())
    check()->Check().SetValue(ticked);
  else
    ticked_ = ticked;
}

host::ListEntries* ValueEditor::list() const {
  if (dropList()) return &dropList()->Combo();
  if (bitList()) return &bitList()->List();
  return entries_.get();
}

void ValueEditor::empty() {
  setText({});
  setTicked(0);
  if (list()) list()->SetListIndex(-1);
  if (!bitList()) return;
  host::ListBox& bits = bitList()->List();
  for (std::int16_t i = 0; i < bits.ListCount(); ++i) bits.SetSelected(i, false);
}

void ValueEditor::setForeColor(host::Color color) {
  if (inner())
    inner()->SetForeColor(color);
  else
    foreColor_ = color;
}

}  // namespace qrn
