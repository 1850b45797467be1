#pragma once

#include <memory>

#include "base/clsHiddenRef.h"
#include "host/form.h"
#include "host/posted_call.h"

namespace qrn {

/// A hidden window that posts a key to itself and calls back when the key arrives. It may be destroyed inside
/// the call that it makes, and so may the target; a target that has gone by then is not called.
class frmPostCode final : public host::CallPoster {
 public:
  explicit frmPostCode(host::Platform& platform) : platform_(platform) {}

  void PostThisCode(host::CallTarget& Target, const Variant& Code) override;
  void CancelPostCode() override;

 private:
  void load();
  void keyUp(std::int16_t keyCode, std::int16_t shift);

  host::Platform& platform_;
  clsHiddenRef<host::CallTarget> target_;
  Variant code_;
  Connection keys_;
  std::unique_ptr<host::Form> form_;  // while something may be waiting
};

}  // namespace qrn
