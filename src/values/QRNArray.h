#pragma once

#include "host/user_control.h"

namespace qrn {

/// Holds the place of an editor for arrays: hosts may create it, but it has no parts and does nothing.
class QRNArray final : public host::UserControl {
 public:
  std::string_view typeName() const override { return "QRNArray"; }
  const host::ClassTable& classTable() const override;

  /// Null.
  ObjectPtr FlexGrid() const { return nullptr; }
  /// Null.
  ObjectPtr TextBox() const { return nullptr; }
};

}  // namespace qrn
