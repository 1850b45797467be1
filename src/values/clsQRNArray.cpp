#include "values/clsQRNArray.h"

#include "runtime/errors.h"

namespace qrn {

void clsQRNArray::SetSize(std::int32_t size) {
  size_ = size;
  if (size > 0) elements_.assign(static_cast<std::size_t>(size), Variant());
}

Variant clsQRNArray::Value(std::int32_t Index) const {
  if (!holds(Index)) return Null();
  return elements_[static_cast<std::size_t>(Index)];
}

void clsQRNArray::SetValue(std::int32_t Index, const Variant& value) {
  if (holds(Index)) elements_[static_cast<std::size_t>(Index)] = value;
}

const Variant& clsQRNArray::CurrentArrayValue() const {
  if (elements_.empty()) raiseRunTimeError(kSubscriptOutOfRange, typeName());
  return elements_[holds(current_) ? static_cast<std::size_t>(current_) : 0];
}

}  // namespace qrn
