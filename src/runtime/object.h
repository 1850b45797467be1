#pragma once

#include <memory>
#include <string_view>

namespace qrn {

/// What a Variant can refer to: wrappers, controls (through a weak handle), fonts, pictures.
class Object {
 public:
  virtual ~Object() = default;
  /// The class name as callers know it, for instance "clsQRNParam".
  virtual std::string_view typeName() const = 0;
};

using ObjectPtr = std::shared_ptr<Object>;

}  // namespace qrn
