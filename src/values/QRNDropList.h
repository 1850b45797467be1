#pragma once

#include "host/combo_box.h"
#include "values/composite_editor.h"

namespace qrn {

/// The editor of lists: a drop-down list as wide as the control.
class QRNDropList final : public CompositeEditor {
 public:
  std::string_view typeName() const override { return "QRNDropList"; }
  const host::ClassTable& classTable() const override;

  /// The drop-down list itself.
  host::ComboBox& Combo() { return cboValue_; }
  host::ComboBox& inner() override { return cboValue_; }

 protected:
  void initialize() override { contain(cboValue_, *this, "cboValue"); }
  void arrangeInside() override;

 private:
  host::ComboBox cboValue_;
};

}  // namespace qrn
