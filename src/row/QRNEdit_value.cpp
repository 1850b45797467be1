#include <cmath>
#include <limits>

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

// What the conversion answers, and failing that the number at the start of the text.
template <class Convert>
Variant convertedOrVal(std::string_view text, Convert convert) {
  Variant value = Null();
  if (!ignoringErrors([&] { value = convert(text); })) value = Val(text);
  return value;
}

bool sameContent(const Variant& content, const Variant& baseline) {
  if (const auto* text = content.get<std::string>()) {
    const auto* before = baseline.get<std::string>();
    return before && *text == *before;
  }
  return !baseline.isEmpty() && isNumeric(baseline) && CDbl(content) == CDbl(baseline);
}

}  // namespace

// ---- to the editor ----

std::string QRNEdit::formatted(const Variant& value) const {
  const CompiledFormat* format = settings_.compiledFormat();
  return format ? format->apply(value) : CStr(value);
}

void QRNEdit::SetValue(const Variant& value) {
  showValue(value);
  propertyChanged("Value");
  propertyChanged("ValueText");
}

void QRNEdit::showValue(const Variant& value) {
  storedValue_ = value;
  switch (valueType_) {
    case qrnTypeString:
      displayBaseline_ = CStr(value);
      txtValue_->SetText(*displayBaseline_.get<std::string>());
      break;
    case qrnTypeInteger:
    case qrnTypeLong:
    case qrnTypeDouble:
    case qrnTypeDecimal:
    case qrnTypeDate:
    case qrnTypeCurrency: showText(value); break;
    case qrnTypeBoolean:
      displayBaseline_ = static_cast<std::int32_t>(CBool(value) ? 1 : 0);
      chkValue_->Check().SetValue(*displayBaseline_.get<std::int32_t>() != 0 ? 1 : 0);
      break;
    case qrnTypeList: showList(value); break;
    case qrnTypeBitfield: showBits(value); break;
    case qrnTypeArray:
      displayBaseline_ = formatted(value);
      SetCurrentArrayValue(displayBaseline_);
      break;
    case qrnTypeHexadecimal:
      displayBaseline_ = ValueFormat().empty() ? value : Variant(formatted(value));
      txtValue_->SetText(Hex(displayBaseline_));
      break;
    default: break;
  }
}

void QRNEdit::showText(const Variant& value) {
  std::string shown(ieeeText(value));
  if (shown.empty()) {
    shown = formatted(value);
    if (const std::string_view fixed = ieeeText(std::string_view(shown)); !fixed.empty()) shown = fixed;
  }
  txtValue_->SetText(shown);
  displayBaseline_ = std::move(shown);
}

void QRNEdit::showList(const Variant& value) {
  host::ListEditor& list = *listEditor();
  const std::int32_t index = isNumeric(value) ? CLng(value) : findListIndex(list, CStr(value));
  displayBaseline_ = index;
  list.SetListIndex(index);
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

std::string QRNEdit::ValueText() {
  switch (valueType_) {
    case qrnTypeBoolean: return CStr(Variant(chkValue_->Check().Value() != 0));
    case qrnTypeList: return cboValue_->Combo().Text();
    case qrnTypeBitfield: return bitsOfEditor();
    case qrnTypeArray: return CStr(CurrentArrayValue());
    case qrnTypeHexadecimal: return CStr(Variant(HexToLong(txtValue_->Text())));
    default: return txtValue_ ? txtValue_->Text() : std::string();
  }
}

Variant QRNEdit::Value() { return readValue().value; }

qrnErrorCode QRNEdit::ValueError() {
  const ReadResult result = readValue();
  if (result.error != qrnErrorNone) return result.error;
  return result.value.isNull() ? qrnErrorUnknown : qrnErrorNone;
}

QRNEdit::ReadResult QRNEdit::checkedNumber(const Variant& value) const {
  const RuleResult check = CheckNumberRule(value, ValueRule());
  return {check.passed ? value : Variant(Null()), check.error};
}

QRNEdit::ReadResult QRNEdit::readValue() {
  // Those that fall back to the number at the start of the text leave errors of their rules to the caller.
  const bool guarded = valueType_ == qrnTypeString || valueType_ == qrnTypeDouble ||
                       valueType_ == qrnTypeDate || valueType_ == qrnTypeCurrency;
  if (!guarded) return readTyped();
  try {
    return readTyped();
  } catch (const RunTimeError& error) {
    return {Null(), codeOf(error)};
  }
}

QRNEdit::ReadResult QRNEdit::readTyped() {
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
      return checkedNumber(Variant(CDbl(Variant(typed))));
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
    case qrnTypeBoolean: return Variant(static_cast<std::int32_t>(chkValue_->Check().Value()));
    case qrnTypeBitfield: return Variant(bitsOfEditor());
    case qrnTypeHexadecimal: return Variant(HexToLong(txtValue_->Text()));
    case qrnTypeArray: return std::nullopt;
    default: return txtValue_ ? std::optional(Variant(txtValue_->Text())) : std::nullopt;
  }
}

bool QRNEdit::ValueChanged() {
  // A row that shows an array, or nothing, counts as changed.
  bool changed = true;
  const bool compared = ignoringErrors([&] {
    const auto content = editorContent();
    if (!content) return;
    if (valueType_ == qrnTypeBitfield) {
      const auto* baseline = displayBaseline_.get<std::string>();
      const std::string bits = *content->get<std::string>();
      changed = false;
      for (int i = 0; i < static_cast<int>(bits.size()); ++i) {
        changed |= BitStringGet(bits, i) != BitStringGet(baseline ? std::string_view(*baseline) : "", i);
      }
      return;
    }
    const bool nothingShown =
        displayBaseline_.isEmpty() && content->isString() && content->get<std::string>()->empty();
    changed = !nothingShown && !sameContent(*content, displayBaseline_);
  });
  return compared && changed;
}

void QRNEdit::SetValueChanged(bool changed) {
  if (changed) return;
  bool taken = false;
  ignoringErrors([&] {
    const auto content = editorContent();
    if (!content || !ValueChanged()) return;
    displayBaseline_ = *content;
    taken = true;
  });
  if (taken) raise(StatusChange, "StatusChange");
}

void QRNEdit::correctDecimalSeparator() {
  const char local =
      currentLocale().decimalSeparator.empty() ? '.' : currentLocale().decimalSeparator.front();
  const char other = local == '.' ? ',' : '.';
  const std::string& typed = txtValue_->Text();
  const auto found = typed.find(other);
  if (found == std::string::npos) return;
  std::string corrected = typed;
  corrected[found] = local;
  const std::int32_t caret = txtValue_->SelStart();
  txtValue_->SetText(corrected);
  txtValue_->select(caret, 0);
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
  array_->SetCurrentArrayValueIndex(Index);
  SetValue(value);
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
