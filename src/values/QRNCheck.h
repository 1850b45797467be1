#pragma once

#include "host/check_box.h"
#include "host/label.h"
#include "values/composite_editor.h"

namespace qrn {

/// The editor of Boolean values: a check box that fills the control, over a label that carries the tool tip,
/// which a disabled check box would not show.
class QRNCheck final : public CompositeEditor {
 public:
  std::string_view typeName() const override { return "QRNCheck"; }
  const host::ClassTable& classTable() const override;

  /// The check box itself.
  host::CheckBox& Check() { return chkValue_; }
  host::CheckBox& inner() override { return chkValue_; }

  void SetToolTipText(std::string_view text) override {
    CompositeEditor::SetToolTipText(text);
    if (lblBack_) lblBack_->SetToolTipText(text);
  }

 protected:
  void initialize() override { contain(chkValue_, *this, "chkValue"); }
  void arrangeInside() override {
    if (!lblBack_) makeBack();
    lblBack_->Move(0, 0, ScaleWidth(), ScaleHeight());
    CompositeEditor::arrangeInside();
  }

 private:
  void makeBack() {
    lblBack_ = std::make_unique<host::Label>();
    contain(*lblBack_, *this, "lblBack");
    lblBack_->SetToolTipText(ToolTipText());
    bringToFront(chkValue_);
  }

  std::unique_ptr<host::Label> lblBack_;  // made when somebody looks at the control
  host::CheckBox chkValue_;
};

}  // namespace qrn
