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

  /// The row itself. Errors: 0x80040001 once the item has been removed.
  QRNEdit& Control() const { return static_cast<QRNEdit&>(requireControl()); }

  /// Gives the row the editor of a type, the first icon no place and the second one the last, and tells the
  /// host with ParameterLayout. AddParameter has done so already.
  void SetDefaultLayout(qrnValueType ParamType);

  /// Any of the flags together. The row tells changes and errors of its editor by itself; the other flags are
  /// the host's.
  qrnParamState ParamState() const { return state_; }
  void SetParamState(qrnParamState state);
  /// Why what was entered last is no value.
  qrnErrorCode ParamError() const { return error_; }
  /// The row's Value. Written while the state is dynamic, it has the status icon tick.
  Variant ParamValue() const { return Control().Value(); }
  void SetParamValue(const Variant& value);
  /// The row's ArrayValue, which does so too.
  Variant ParamArrayValue(std::int32_t Index) const { return Control().ArrayValue(Index); }
  void SetParamArrayValue(std::int32_t Index, const Variant& value);

 private:
  void SetControl(host::UserControl& control) override;
  QRNEdit* row() const override { return static_cast<QRNEdit*>(control()); }
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
