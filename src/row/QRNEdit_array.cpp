#include "row/QRNEdit.h"

// A row whose value is an element of an array, the current one.

namespace qrn {

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
  showValue(value);
  invalidate();
  if (propertyChanged("Value")) propertyChanged("ValueText");
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
