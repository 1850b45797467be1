#pragma once

#include <cstdint>
#include <map>

#include "enums/enumerations.h"
#include "runtime/variant.h"

namespace qrn {

/// The elements of an array value, of which one is current. Indexes count from 0.
class clsQRNArray final : public Object {
 public:
  std::string_view typeName() const override { return "clsQRNArray"; }

  /// Kept for the caller; nothing is converted by it.
  qrnValueType ArrayType() const { return arrayType_; }
  void SetArrayType(qrnValueType type) { arrayType_ = type; }

  /// The number of elements.
  std::int32_t Size() const { return size_; }
  /// Setting it above 0, the elements so far are gone and all are Empty; otherwise only the number is kept.
  void SetSize(std::int32_t size);

  /// An element; Null outside the array.
  Variant Value(std::int32_t Index) const;
  /// Setting one outside is ignored.
  void SetValue(std::int32_t Index, const Variant& value);

  /// Which element is current: −1 for none, and not checked.
  std::int32_t CurrentArrayValueIndex() const { return current_; }
  void SetCurrentArrayValueIndex(std::int32_t index) { current_ = index; }
  /// The first element when the current index lies outside. Errors: 9 while there are no elements at all.
  const Variant& CurrentArrayValue() const;
  /// Setting it is ignored where the index lies outside.
  void SetCurrentArrayValue(const Variant& value) { SetValue(current_, value); }

 private:
  bool holds(std::int32_t index) const { return index >= 0 && index < size_; }
  const Variant& element(std::int32_t index) const;

  // Only what was stored takes room, as a caller may ask for any size.
  std::map<std::int32_t, Variant> elements_;
  std::int32_t size_ = 0;
  std::int32_t current_ = -1;
  qrnValueType arrayType_ = qrnTypeString;
  bool allocated_ = false;
};

}  // namespace qrn
