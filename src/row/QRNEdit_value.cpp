#include <cmath>

#include "base/text.h"
#include "row/QRNEdit.h"
#include "runtime/conversions.h"
#include "runtime/errors.h"
#include "runtime/hex.h"
#include "runtime/locale.h"
#include "runtime/val.h"
#include "values/bit_string.h"
#include "values/hexadecimal.h"
#include "values/value_rules.h"

namespace qrn {
namespace {

constexpr std::string_view kNotANumber = "IEEE#: NOT A NUMBER";
constexpr std::string_view kMinusInfinite = "IEEE#: -INFINITE";
constexpr std::string_view kPlusInfinite = "IEEE#: +INFINITE";

bool isIeeeText(std::string_view text) {
  return text == kNotANumber || text == kMinusInfinite || text == kPlusInfinite;
}

// The fixed text of a number that is none, empty for all others.
std::string_view ieeeText(const Variant& value) {
  double number = 0;
  if (const auto* wide = value.get<double>())
    number = *wide;
  else if (const auto* narrow = value.get<float>())
    number = static_cast<double>(*narrow);
  if (std::isfinite(number)) return {};
  if (std::isnan(number)) return kNotANumber;
  return number < 0 ? kMinusInfinite : kPlusInfinite;
}

// A text that was handed in with one of the classic marks of such a number, such as "-1.#INF".
std::string_view ieeeText(std::string_view shown) {
  if (shown.find("1.#") == std::string_view::npos && shown.find("1,#") == std::string_view::npos) return {};
  if (text::lowered(shown).find("#inf") == std::string::npos) return kNotANumber;
  return shown.front() == '-' ? kMinusInfinite : kPlusInfinite;
}

std::int32_t findListIndex(const host::ListEditor& list, std::string_view name) {
  for (std::int32_t i = 0; i < list.ListCount(); ++i) {
    if (list.List(i) == name) return i;
  }
  return -1;
}

qrnErrorCode codeOf(const RunTimeError& error) {
  switch (error.number()) {
    case kOverflow: return qrnErrorRange;
    case kTypeMismatch: return qrnErrorTypeMismatch;
    default: return qrnErrorUnknown;
  }
}

// What the conversion answers, and failing that the number at the start of the text; Null for one that is too
// large for any number.
template <class Convert>
Variant convertedOrVal(std::string_view text, Convert convert) {
  Variant value = Null();
  if (!ignoringErrors([&] { value = convert(text); })) ignoringErrors([&] { value = Val(text); });
  return value;
}

std::string_view textOf(const Variant& value) {
  const auto* text = value.get<std::string>();
  return text ? std::string_view(*text) : std::string_view();
}

// A baseline in which nothing has been put yet stands for an editor that nobody has touched.
bool isUntouched(const Variant& content, qrnValueType type) {
  if (content.isString()) return textOf(content).empty();
  return CLng(content) == (type == qrnTypeList ? -1 : 0);
}

bool sameContent(const Variant& content, const Variant& baseline) {
  if (content.isString()) return baseline.isString() && textOf(content) == textOf(baseline);
  return isNumeric(baseline) && CDbl(content) == CDbl(baseline);
}

bool sameBits(std::string_view content, std::string_view baseline) {
  for (int i = 0; i < static_cast<int>(content.size()); ++i) {
    if (BitStringGet(content, i) != BitStringGet(baseline, i)) return false;
  }
  return true;
}

}  // namespace

// ---- to the editor ----

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
  if (const std::string_view fixed = ieeeText(std::string_view(shown)); !fixed.empty()) shown = fixed;
  return shown;
}

void QRNEdit::showText(std::string shown) {
  txtValue_->SetText(shown);
  displayBaseline_ = std::move(shown);
}

void QRNEdit::showCheck(bool ticked) {
  const std::int16_t state = ticked ? 1 : 0;
  chkValue_->Check().SetValue(state);
  displayBaseline_ = std::int32_t{state};
}

void QRNEdit::showHexadecimal(const Variant& value) {
  Variant baseline = ValueFormat().empty() ? value : Variant(formatted(value));
  txtValue_->SetText(Hex(baseline));
  displayBaseline_ = std::move(baseline);
}

void QRNEdit::showList(const Variant& value) {
  host::ListEditor& list = *listEditor();
  const std::int32_t index = isNumeric(value) ? CLng(value) : findListIndex(list, CStr(value));
  list.SetListIndex(index);
  displayBaseline_ = index;
}

void QRNEdit::showBits(const Variant& value) {
  host::ListBox& list = lstValue_->List();
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
  const host::ListBox& list = lstValue_->List();
  std::string bits;
  for (std::int32_t i = 0; i < list.ListCount(); ++i) BitStringSet(bits, i, list.Selected(i));
  return bits;
}

// ---- from the editor ----

std::string QRNEdit::ValueText() const {
  std::string text;
  if (!lacksEditor()) ignoringErrors([&] { text = readText(); });
  return text;
}

std::string QRNEdit::readText() const {
  switch (valueType_) {
    case qrnTypeBoolean: return CStr(Variant(chkValue_->Check().Value() != 0));
    case qrnTypeList: return cboValue_->Combo().Text();
    case qrnTypeBitfield: return bitsOfEditor();
    case qrnTypeArray: return CStr(CurrentArrayValue());
    case qrnTypeHexadecimal: return CStr(Variant(HexToLong(txtValue_->Text())));
    default: return txtValue_ ? txtValue_->Text() : std::string();
  }
}

Variant QRNEdit::Value() const { return readValue().value; }

qrnErrorCode QRNEdit::ValueError() const {
  const ReadResult result = readValue();
  if (result.error != qrnErrorNone) return result.error;
  return result.value.isNull() ? qrnErrorUnknown : qrnErrorNone;
}

QRNEdit::ReadResult QRNEdit::checkedNumber(const Variant& value) const {
  const RuleResult check = CheckNumberRule(value, ValueRule());
  return {check.passed ? value : Variant(Null()), check.error};
}

QRNEdit::ReadResult QRNEdit::readValue() const {
  if (lacksEditor()) return {Variant(std::string())};
  try {
    return readTyped();
  } catch (const RunTimeError& error) {
    return {Null(), codeOf(error)};
  }
}

QRNEdit::ReadResult QRNEdit::readTyped() const {
  const std::string_view typed = txtValue_ ? std::string_view(txtValue_->Text()) : std::string_view();
  switch (valueType_) {
    case qrnTypeString: {
      const RuleResult check = CheckTextRule(Variant(typed), {ValueRule(), ValueCharSet(), valueMaxLength_});
      return {check.passed ? Variant(typed) : Variant(Null()), check.error};
    }
    case qrnTypeInteger:
      return checkedNumber(convertedOrVal(typed, [](auto t) { return Variant(CInt(Variant(t))); }));
    case qrnTypeLong:
      return checkedNumber(convertedOrVal(typed, [](auto t) { return Variant(CLng(Variant(t))); }));
    case qrnTypeDecimal:
      return checkedNumber(convertedOrVal(typed, [](auto t) { return Variant(CDec(Variant(t))); }));
    case qrnTypeHexadecimal:
      return checkedNumber(convertedOrVal(typed, [](auto t) { return Variant(HexToLong(t)); }));
    case qrnTypeDouble:
      if (isIeeeText(typed)) return {storedValue_};
      return checkedNumber(Variant(doubleFromText(typed)));
    case qrnTypeDate: {
      const Date date = CDate(Variant(typed));
      ReadResult result = checkedNumber(Variant(date.serial));
      if (!result.value.isNull()) result.value = date;
      return result;
    }
    case qrnTypeCurrency: return {Variant(CCur(Variant(typed)))};
    case qrnTypeBoolean: return {Variant(chkValue_->Check().Value() != 0)};
    case qrnTypeList: return {Variant(cboValue_->Combo().ListIndex())};
    case qrnTypeBitfield: return {Variant(bitsOfEditor())};
    case qrnTypeArray: return {CurrentArrayValue()};
    default: return {};
  }
}

// ---- changed or not ----

// In the form of the baseline; none for a type whose content is not compared.
std::optional<Variant> QRNEdit::editorContent() const {
  switch (valueType_) {
    case qrnTypeList: return Variant(cboValue_->Combo().ListIndex());
    case qrnTypeBoolean: return Variant(std::int32_t{chkValue_->Check().Value()});
    case qrnTypeBitfield: return Variant(bitsOfEditor());
    case qrnTypeHexadecimal: return Variant(HexToLong(txtValue_->Text()));
    default: return txtValue_ ? std::optional(Variant(txtValue_->Text())) : std::nullopt;
  }
}

bool QRNEdit::differs(const Variant& content) const {
  if (valueType_ == qrnTypeBitfield) return !sameBits(textOf(content), textOf(displayBaseline_));
  if (displayBaseline_.isEmpty()) return !isUntouched(content, valueType_);
  return !sameContent(content, displayBaseline_);
}

bool QRNEdit::ValueChanged() const {
  bool changed = false;
  ignoringErrors([&] {
    if (lacksEditor()) return;
    const auto content = editorContent();
    // A row that shows an array, or nothing, counts as changed.
    changed = !content || differs(*content);
  });
  return changed;
}

void QRNEdit::SetValueChanged(bool changed) {
  if (changed || lacksEditor()) return;
  bool taken = false;
  ignoringErrors([&] {
    auto content = editorContent();
    taken = content && differs(*content);
    if (taken) displayBaseline_ = *std::move(content);
  });
  if (taken) raise(StatusChange, "StatusChange");
}

void QRNEdit::correctDecimalSeparator() {
  const std::string& local = currentLocale().decimalSeparator;
  const std::string_view other = local == "." ? "," : ".";
  const std::string& typed = txtValue_->Text();
  const auto found = typed.find(other);
  if (found == std::string::npos) return;
  std::string corrected = typed;
  corrected.replace(found, other.size(), local);
  const std::int32_t start = txtValue_->SelStart(), length = txtValue_->SelLength();
  txtValue_->SetText(corrected);
  txtValue_->select(start, length);
}

// ---- arrays ----

qrnValueType QRNEdit::ArrayType() const { return array_ ? array_->ArrayType() : qrnTypeString; }

void QRNEdit::SetArrayType(qrnValueType type) {
  if (array_) array_->SetArrayType(type);
}

std::int32_t QRNEdit::ArraySize() const { return array_ ? array_->Size() : 0; }

void QRNEdit::SetArraySize(std::int32_t size) {
  if (!array_) array_ = std::make_unique<clsQRNArray>();
  array_->SetSize(size);
}

Variant QRNEdit::ArrayValue(std::int32_t Index) const { return array_ ? array_->Value(Index) : Variant(); }

void QRNEdit::SetArrayValue(std::int32_t Index, const Variant& value) {
  if (!array_) return;
  const std::int32_t before = array_->CurrentArrayValueIndex();
  array_->SetCurrentArrayValueIndex(Index);
  try {
    SetValue(value);
  } catch (const RunTimeError&) {
    array_->SetCurrentArrayValueIndex(before);
    throw;
  }
  invalidate();
}

std::int32_t QRNEdit::CurrentArrayValueIndex() const {
  return array_ ? array_->CurrentArrayValueIndex() : -1;
}

void QRNEdit::SetCurrentArrayValueIndex(std::int32_t index) {
  if (!array_) array_ = std::make_unique<clsQRNArray>();
  array_->SetCurrentArrayValueIndex(index);
}

Variant QRNEdit::CurrentArrayValue() const { return array_ ? array_->CurrentArrayValue() : Variant(); }

void QRNEdit::SetCurrentArrayValue(const Variant& value) {
  if (array_) array_->SetCurrentArrayValue(value);
}

}  // namespace qrn
