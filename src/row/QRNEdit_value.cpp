#include "base/text.h"
#include "row/QRNEdit.h"
#include "runtime/conversions.h"
#include "runtime/hex.h"
#include "runtime/locale.h"
#include "values/bit_string.h"
#include "values/ieee_text.h"

// From a value to the editor.

namespace qrn {
namespace {

std::int32_t findListIndex(const host::ListEntries& list, std::string_view name) {
  for (std::int32_t i = 0; i < list.ListCount(); ++i) {
    if (list.List(i) == name) return i;
  }
  return -1;
}

// Only the first separator of the other kind, and the rest of the text as it is.
std::string withLocalSeparator(std::string text) {
  const std::string& local = currentLocale().decimalSeparator;
  const std::string_view other = local == "." ? "," : ".";
  if (const auto found = text.find(other); found != std::string::npos)
    text.replace(found, other.size(), local);
  return text;
}

}  // namespace

std::string QRNEdit::formatted(const Variant& value) const {
  const CompiledFormat* format = settings_.compiledFormat();
  return format ? format->apply(value) : CStr(value);
}

void QRNEdit::SetValue(const Variant& value) {
  showValue(value);
  if (propertyChanged("Value")) propertyChanged("ValueText");
}

// Whatever the conversions refuse leaves the row as it was: each form is complete before anything is kept.
void QRNEdit::showValue(const Variant& value) {
  if (!lacksEditor()) showInEditor(value);
  storedValue_ = value;
}

void QRNEdit::showInEditor(const Variant& value) {
  switch (valueType_) {
    case qrnTypeString: showText(CStr(value)); break;
    case qrnTypeInteger:
    case qrnTypeLong:
    case qrnTypeDouble:
    case qrnTypeDecimal:
    case qrnTypeDate:
    case qrnTypeCurrency: showText(numberText(value)); break;
    case qrnTypeBoolean: showCheck(CBool(value)); break;
    case qrnTypeList: showList(value); break;
    case qrnTypeBitfield: showBits(value); break;
    case qrnTypeArray:
      displayBaseline_ = formatted(value);
      SetCurrentArrayValue(displayBaseline_);
      break;
    case qrnTypeHexadecimal: showHexadecimal(value); break;
    default: break;
  }
}

std::string QRNEdit::numberText(const Variant& value) const {
  if (const std::string_view fixed = ieeeText(value); !fixed.empty()) return std::string(fixed);
  std::string shown = formatted(value);
  // A text that a program sets as it stands is read like a typed one.
  if (valueType_ == qrnTypeDouble && value.isString() && !settings_.compiledFormat())
    shown = withLocalSeparator(std::move(shown));
  if (const std::string_view fixed = ieeeText(std::string_view(shown)); !fixed.empty()) shown = fixed;
  return shown;
}

void QRNEdit::enterText(std::string_view text) {
  if (text == editor_.text()) return;
  editor_.setText(text);
  forgetMeasure(&Measures::value);
}

void QRNEdit::showText(std::string shown) {
  enterText(shown);
  displayBaseline_ = std::move(shown);
}

void QRNEdit::showCheck(bool ticked) {
  const std::int16_t state = ticked ? 1 : 0;
  editor_.setTicked(state);
  displayBaseline_ = std::int32_t{state};
}

void QRNEdit::showHexadecimal(const Variant& value) {
  Variant baseline = ValueFormat().empty() ? value : Variant(formatted(value));
  enterText(Hex(baseline));
  displayBaseline_ = std::move(baseline);
}

void QRNEdit::showList(const Variant& value) {
  host::ListEntries& list = *editor_.list();
  const std::int32_t index = isNumeric(value) ? CLng(value) : findListIndex(list, CStr(value));
  list.SetListIndex(index);
  displayBaseline_ = index;
}

void QRNEdit::showBits(const Variant& value) {
  host::ListBox& list = editor_.bitList()->List();
  std::string baseline = bitsOfEditor();
  const std::string bits = CStr(value);
  for (std::int32_t i = 0; i < list.ListCount(); ++i) {
    const bool bit = BitStringGet(bits, i);
    if (list.Selected(i) == bit) continue;
    BitStringSet(baseline, i, bit);
    list.SetSelected(i, bit);
  }
  displayBaseline_ = std::move(baseline);
  list.SetListIndex(-1);
}

std::string QRNEdit::bitsOfEditor() const {
  const host::ListBox& list = editor_.bitList()->List();
  std::string bits;
  for (std::int32_t i = 0; i < list.ListCount(); ++i) BitStringSet(bits, i, list.Selected(i));
  return bits;
}

void QRNEdit::correctDecimalSeparator() {
  host::TextBox& box = *editor_.textBox();
  const std::string corrected = withLocalSeparator(box.Text());
  if (corrected == box.Text()) return;
  const std::int32_t start = box.SelStart(), length = box.SelLength();
  box.SetText(corrected);
  box.select(start, length);
}

}  // namespace qrn
