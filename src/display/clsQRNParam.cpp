#include "display/clsQRNParam.h"

#include "display/QRNDisplay.h"
#include "images/QRNImageList.h"
#include "runtime/errors.h"
#include "values/error_words.h"

namespace qrn {
namespace {

constexpr host::Color kRed = host::rgb(255, 0, 0);
constexpr host::Color kGreen = host::rgb(0, 127, 0);
constexpr host::Color kBlue = host::rgb(0, 0, 255);
constexpr host::Color kBlack = host::rgb(0, 0, 0);

struct StateLook {
  qrnParamState flags;
  qrnImageId picture;
  host::Color color;
  std::string_view words;
};

// The first line whose flags the state has any of counts.
constexpr StateLook kLooks[] = {
    {qrnStateRangeError, qrnImageRangeErr, kRed, "Out of range"},
    {qrnStateError, qrnImageInputErr, kRed, "Input error"},
    {qrnStateOtherError, qrnImageError, kRed, "Error"},
    {qrnStateNeeded, qrnImageNeeded, kGreen, "Value needed"},
    {qrnStateChanged | qrnStateDataDirty, qrnImageChanged, kBlue, "Changed"},
    {qrnStateDynOffline, qrnImageDynOffline, kGreen, "Dynamic value, offline"},
    {qrnStateDynamic, qrnImageDynamic1, kGreen, "Dynamic value"},
    {qrnStateInitValue, qrnImageInitValue, kBlack, "Initial value"},
    {qrnStateReadOnly, qrnImageLocked, kBlack, "Read-only"},
};

StateLook lookOf(qrnParamState state, int dynamicPhase) {
  for (StateLook look : kLooks) {
    if ((state & look.flags) == 0) continue;
    if (look.flags == qrnStateDynamic && dynamicPhase != 0) look.picture = qrnImageDynamic2;
    return look;
  }
  return {qrnStateNormal, qrnImageInfo, kBlack, "Information"};
}

// What an error code of the editor adds to the state.
qrnParamState flagsOf(qrnErrorCode error) {
  switch (error) {
    case qrnErrorUnknown:
    case qrnErrorTypeMismatch:
    case qrnErrorSyntax:
    case qrnErrorLength:
    case qrnErrorCharSet: return qrnStateError;
    case qrnErrorRange: return qrnStateError | qrnStateRangeError;
    default: return qrnStateNormal;
  }
}

}  // namespace

void clsQRNParam::SetControl(host::UserControl& control) {
  PanelItem::SetControl(control);
  ApplyStateLook(true);
}

void clsQRNParam::SetDefaultLayout(qrnValueType ParamType) {
  const PanelItemPtr self = keepAlive();
  // A type without an editor ends the edit of the row; who hears of it may remove the item.
  Control().SetValueType(ParamType);
  QRNEdit& row = Control();
  row.SetIcon1Column(0);
  row.SetIcon2Column(4);
  row.SetIcon2ButtonMode(qrnButtonFlat);
  if (QRNDisplay* owner = panel()) owner->raiseItem(owner->ParameterLayout, "ParameterLayout", *this);
}

void clsQRNParam::SetParamState(qrnParamState state) {
  if (state == state_) return;
  state_ = state;
  ApplyStateLook(true);
}

void clsQRNParam::SetParamValue(const Variant& value) {
  dynamicPhase_ ^= 1;
  Control().SetValue(value);
  tick();
}

void clsQRNParam::SetParamArrayValue(std::int32_t Index, const Variant& value) {
  dynamicPhase_ ^= 1;
  Control().SetArrayValue(Index, value);
  tick();
}

// A value that is refreshed again and again visibly ticks, without any event.
void clsQRNParam::tick() {
  if ((state_ & qrnStateDynamic) != 0) ApplyStateLook(false);
}

void clsQRNParam::ApplyStateLook(bool notify) {
  if (!control()) return;
  QRNEdit& row = Control();
  QRNDisplay* const owner = panel();
  const StateLook look = lookOf(state_, dynamicPhase_);
  host::PicturePtr picture;
  ignoringErrors([&] { picture = owner->ImageList().Image(look.picture); });
  ignoringErrors([&] { row.SetValueForeColor(look.color); });
  row.SetLocked((state_ & qrnStateReadOnly) != 0);
  if (picture) {
    row.SetIcon2Picture(std::move(picture));
    row.SetIcon2Hidden(false);
  } else {
    row.SetIcon2Hidden(true);
    row.SetIcon2Picture(nullptr);
  }
  if (notify && owner) owner->raiseItem(owner->ParameterStatusChange, "ParameterStatusChange", *this);
}

void clsQRNParam::UpdateStateFromEditor() {
  const qrnParamState oldState = state_;
  const qrnErrorCode oldError = error_;
  error_ = Control().ValueError();
  state_ = state_ & ~(qrnStateChanged | qrnStateError | qrnStateRangeError);
  if (Control().ValueChanged()) state_ = state_ | qrnStateChanged;
  state_ = state_ | flagsOf(error_);
  if (state_ != oldState || error_ != oldError) ApplyStateLook(true);
}

// The state is the host's to set, so the code of the last edit counts only while its flags stand.
std::string_view clsQRNParam::stateError() const {
  const qrnParamState flags = flagsOf(error_);
  if (flags != qrnStateNormal && (state_ & flags) == flags) return errorInWords(error_);
  if ((state_ & qrnStateRangeError) != 0) return errorInWords(qrnErrorRange);
  if ((state_ & (qrnStateError | qrnStateOtherError)) != 0) return errorInWords(qrnErrorUnknown);
  return {};
}

void clsQRNParam::tellFacts(const host::Control& inside, host::AccessibleFacts& facts) const {
  const QRNEdit& row = Control();
  if (row.isIcon2(inside)) {
    if (facts.name.empty()) facts.name = lookOf(state_, dynamicPhase_).words;
  } else if (row.isEditor(inside) || facts.role == host::AccessibleRole::Label) {
    facts.error = stateError();
  }
}

void clsQRNParam::controlEvent(std::string_view name, host::EventArgs arguments) {
  const PanelItemPtr self = keepAlive();
  QRNDisplay* owner = panel();
  if (!owner || commonEvent(*owner, name, arguments)) return;

  const bool updates = name == "StatusChange" || name == "Change" || name == "ItemCheck" || name == "Click" ||
                       name == "EndEdit";
  if (updates) {
    const WeakRef<host::Control> guard(owner);
    UpdateStateFromEditor();
    if (!guard || !control()) return;
  }
  if (name == "Change")
    owner->raiseItem(owner->ParameterChange, "ParameterChange", *this);
  else if (name == "Click")
    owner->raiseItem(owner->ParameterClick, "ParameterClick", *this);
  else if (name == "Icon1Click")
    owner->raiseItem(owner->ParameterIcon1Click, "ParameterIcon1Click", *this);
  else if (name == "Icon2Click")
    owner->raiseItem(owner->ParameterIcon2Click, "ParameterIcon2Click", *this);
  else if (name == "StartEdit")
    owner->startEditCycle(*this);
  else if (name == "EndEdit")
    owner->endEditCycle(*this, arguments[0].as<bool>());
  else if (name == "AppLostFocus")
    owner->applicationLeft();
  else if (name == "BackgroundClick" || name == "LabelClick" || name == "UnitClick")
    owner->passiveClick();
  else if (name == "ItemCheck") {
    std::int32_t index = position();
    owner->raise(owner->ParameterItemCheck, "ParameterItemCheck", index, arguments[0].as<std::int16_t>());
  }
}

}  // namespace qrn
