#include "values/clsQRNArray.h"

#include "runtime/errors.h"

namespace qrn {

void clsQRNArray::SetSize(std::int32_t size) {
  size_ = size;
  if (size <= 0) return;
  elements_.clear();
  allocated_ = true;
}

const Variant& clsQRNArray::element(std::int32_t index) const {
  static const Variant empty;
  const auto stored = elements_.find(index);
  return stored == elements_.end() ? empty : stored->second;
}

Variant clsQRNArray::Value(std::int32_t Index) const { return holds(Index) ? element(Index) : Null(); }

void clsQRNArray::SetValue(std::int32_t Index, const Variant& value) {
  if (holds(Index)) elements_[Index] = value;
}

const Variant& clsQRNArray::CurrentArrayValue() const {
  if (!allocated_) raiseRunTimeError(kSubscriptOutOfRange, typeName());
  return element(holds(current_) ? current_ : 0);
}

}  // namespace qrn
