#include "row/QRNEdit.h"
#include "row/row_extras.h"

// A row whose value is an element of an array, the current one.

namespace qrn {

clsQRNArray* QRNEdit::array() const { return extras_ ? extras_->array.get() : nullptr; }

clsQRNArray& QRNEdit::neededArray() {
  auto& array = extras().array;
  if (!array) array = std::make_unique<clsQRNArray>();
  return *array;
}

qrnValueType QRNEdit::ArrayType() const { return array() ? array()->ArrayType() : qrnTypeString; }

void QRNEdit::SetArrayType(qrnValueType type) {
  if (array()) array()->SetArrayType(type);
}

std::int32_t QRNEdit::ArraySize() const { return array() ? array()->Size() : 0; }

void QRNEdit::SetArraySize(std::int32_t size) { neededArray().SetSize(size); }

Variant QRNEdit::ArrayValue(std::int32_t Index) const { return array() ? array()->Value(Index) : Variant(); }

void QRNEdit::SetArrayValue(std::int32_t Index, const Variant& value) {
  if (!array()) return;
  array()->SetCurrentArrayValueIndex(Index);
  showValue(value);
  invalidate();
  if (propertyChanged("Value")) propertyChanged("ValueText");
}

std::int32_t QRNEdit::CurrentArrayValueIndex() const {
  return array() ? array()->CurrentArrayValueIndex() : -1;
}

void QRNEdit::SetCurrentArrayValueIndex(std::int32_t index) {
  neededArray().SetCurrentArrayValueIndex(index);
}

Variant QRNEdit::CurrentArrayValue() const { return array() ? array()->CurrentArrayValue() : Variant(); }

void QRNEdit::SetCurrentArrayValue(const Variant& value) {
  if (array()) array()->SetCurrentArrayValue(value);
}

}  // namespace qrn
