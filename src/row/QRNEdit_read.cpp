#include <optional>

#include "row/QRNEdit.h"
#include "runtime/conversions.h"
#include "runtime/errors.h"
#include "runtime/hex.h"
#include "runtime/val.h"
#include "values/bit_string.h"
#include "values/hexadecimal.h"
#include "values/ieee_text.h"
#include "values/value_rules.h"

// From the editor to a value, and whether the editor shows another one than the row put there.

namespace qrn {
namespace {

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
  const bool isNumber = isNumeric(baseline) || baseline.type() == Variant::Type::Date;
  return isNumber && CDbl(content) == CDbl(baseline);
}

// The number of the digits, or the text itself where no Long holds that.
Variant hexadecimalContent(const std::string& text) {
  Variant content(text);
  ignoringErrors([&] { content = HexToLong(text); });
  return content;
}

// Such a text is one that was accepted, or the one that the row has shown of a negative number.
bool sameDigits(const Variant& text, const Variant& baseline) {
  if (sameContent(text, baseline)) return true;
  std::string shown;
  ignoringErrors([&] { shown = Hex(baseline); });
  return textOf(text) == shown;
}

bool sameBits(std::string_view content, std::string_view baseline) {
  for (int i = 0; i < static_cast<int>(content.size()); ++i) {
    if (BitStringGet(content, i) != BitStringGet(baseline, i)) return false;
  }
  return true;
}

}  // namespace

std::string QRNEdit::ValueText() const {
  std::string text;
  if (!lacksEditor()) ignoringErrors([&] { text = readText(); });
  return text;
}

std::string QRNEdit::readText() const {
  switch (valueType_) {
    case qrnTypeBoolean: return CStr(Variant(editor_.ticked() != 0));
    case qrnTypeList: return editor_.list()->Text();
    case qrnTypeBitfield: return bitsOfEditor();
    case qrnTypeArray: return CStr(CurrentArrayValue());
    case qrnTypeHexadecimal: return CStr(Variant(HexToLong(editor_.text())));
    default: return editor_.text();
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
  const std::string_view typed = editor_.text();
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
    case qrnTypeBoolean: return {Variant(editor_.ticked() != 0)};
    case qrnTypeList: return {Variant(editor_.list()->ListIndex())};
    case qrnTypeBitfield: return {Variant(bitsOfEditor())};
    case qrnTypeArray: return {CurrentArrayValue()};
    default: return {};
  }
}

// ---- changed or not ----

// In the form of the baseline; none for a type whose content is not compared.
std::optional<Variant> QRNEdit::editorContent() const {
  switch (valueType_) {
    case qrnTypeList: return Variant(editor_.list()->ListIndex());
    case qrnTypeBoolean: return Variant(std::int32_t{editor_.ticked()});
    case qrnTypeBitfield: return Variant(bitsOfEditor());
    case qrnTypeHexadecimal: return hexadecimalContent(editor_.text());
    default:
      return editor_.kind() == ValueEditor::Kind::TextBox ? std::optional(Variant(editor_.text()))
                                                          : std::nullopt;
  }
}

bool QRNEdit::differs(const Variant& content) const {
  if (valueType_ == qrnTypeBitfield) return !sameBits(textOf(content), textOf(displayBaseline_));
  if (displayBaseline_.isEmpty()) return !isUntouched(content, valueType_);
  if (valueType_ == qrnTypeHexadecimal && content.isString()) return !sameDigits(content, displayBaseline_);
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
  if (taken) raise(&RowEvents::StatusChange, "StatusChange");
}

}  // namespace qrn
