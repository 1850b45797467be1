#pragma once

#include <span>
#include <string_view>

#include "host/controls.h"

namespace qrn::host {

/// How one class is made by its ProgID.
struct ProgId {
  std::string_view name;
  Owned<Control> (*create)();
};

/// Makes a control by its ProgID, whose case does not count. Errors: 429 for an unknown one.
Owned<Control> createByProgId(std::string_view progId);

/// Whether it would be made.
bool isControlClass(std::string_view progId);

/// The classes of the layer above, which it hands down once; a static library would drop self-registering
/// ones.
void setControlClasses(std::span<const ProgId> classes);
std::span<const ProgId> controlClasses();

}  // namespace qrn::host
