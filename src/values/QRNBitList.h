#pragma once

#include "host/list_box.h"
#include "values/composite_editor.h"

namespace qrn {

/// The editor of bit fields: a list of check marks that fills the control.
class QRNBitList final : public CompositeEditor {
 public:
  std::string_view typeName() const override { return "QRNBitList"; }
  const host::ClassTable& classTable() const override;

  /// The list of check marks itself.
  host::ListBox& List() { return lstBits_; }
  host::ListBox& inner() override { return lstBits_; }

 protected:
  void initialize() override { contain(lstBits_, *this, "lstBits"); }

 private:
  host::ListBox lstBits_;
};

}  // namespace qrn
