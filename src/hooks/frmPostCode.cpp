#include "hooks/frmPostCode.h"

#include <utility>

#include "host/input.h"

namespace qrn {

void frmPostCode::PostThisCode(host::CallTarget& Target, const Variant& Code) {
  target_.set(&Target);
  code_ = Code;
  load();
  // What the message says beside its key: the key was down before and is let go.
  constexpr std::intptr_t kLetGo = 0xC0000000u;
  host::Windows& windows = platform_.windows();
  windows.post(form_->window(), {host::wm::KeyDown, host::key::Cancel, 0});
  windows.post(form_->window(), {host::wm::KeyUp, host::key::Cancel, kLetGo});
}

void frmPostCode::CancelPostCode() {
  target_.set(nullptr);
  code_ = {};
  // Keys that are still on their way find no window.
  form_.reset();
}

void frmPostCode::load() {
  if (form_) return;
  form_ = std::make_unique<host::Form>(platform_);
  keys_ = form_->KeyUp.connect([this](std::int16_t& keyCode, std::int16_t& shift) { keyUp(keyCode, shift); });
}

void frmPostCode::keyUp(std::int16_t keyCode, std::int16_t shift) {
  if (keyCode != host::key::Cancel || shift > 0) return;
  host::CallTarget* const target = target_.get();
  if (!target) return;
  // Taken out before the call: of two keys one calls, even if a loop inside the call delivers the other, and
  // what the call itself posts is not lost.
  target_.set(nullptr);
  Variant code = std::exchange(code_, {});
  target->Callback(code);
}

}  // namespace qrn
