#pragma once

#include "display/panel_item.h"
#include "enums/enumerations.h"
#include "row/QRNEdit.h"

namespace qrn {

/// A parameter of a panel: its row, and the state flags that choose the row's status icon, value colour and
/// lock.
class clsQRNParam final : public PanelItem {
 public:
  std::string_view typeName() const override { return "clsQRNParam"; }

  /// Errors: 0x80040001 once the item has been removed.
  QRNEdit& Control() const { return static_cast<QRNEdit&>(requireControl()); }

  void SetDefaultLayout(qrnValueType ParamType);

  qrnParamState ParamState() const { return state_; }
  void SetParamState(qrnParamState state);
  qrnErrorCode ParamError() const { return error_; }
  Variant ParamValue() const { return Control().Value(); }
  void SetParamValue(const Variant& value);
  Variant ParamArrayValue(std::int32_t Index) const { return Control().ArrayValue(Index); }
  void SetParamArrayValue(std::int32_t Index, const Variant& value);

 private:
  void SetControl(host::UserControl& control) override;
  void controlEvent(std::string_view name, host::EventArgs arguments) override;
  void tellFacts(const host::Control& inside, host::AccessibleFacts& facts) const override;

  void ApplyStateLook(bool notify);
  void UpdateStateFromEditor();
  std::string_view stateError() const;
  void tick();

  qrnParamState state_ = qrnStateNormal;
  qrnErrorCode error_ = qrnErrorNone;
  std::int8_t dynamicPhase_ = 0;
};

}  // namespace qrn
