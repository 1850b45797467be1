#pragma once

#include <memory>
#include <string_view>

#include "host/control.h"
#include "runtime/variant.h"

namespace qrn::host {

/// A control in a Variant, which does not keep it alive.
class ControlRef final : public Object {
 public:
  explicit ControlRef(Control& control) : control_(&control) {}
  std::string_view typeName() const override { return control_ ? control_->typeName() : "Nothing"; }
  Control* control() const { return control_.get(); }

 private:
  WeakRef<Control> control_;
};

inline Variant referenceTo(Control& control) { return std::make_shared<ControlRef>(control); }

/// Null once the control has gone, and for a Variant that holds anything else.
inline Control* controlIn(const Variant& value) {
  const auto* object = value.get<ObjectPtr>();
  const auto* reference = object ? dynamic_cast<const ControlRef*>(object->get()) : nullptr;
  return reference ? reference->control() : nullptr;
}

}  // namespace qrn::host
