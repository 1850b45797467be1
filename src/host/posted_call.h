#pragma once

#include "base/weak_ref.h"
#include "runtime/variant.h"

namespace qrn::host {

/// Whom a posted call reaches.
class CallTarget {
 public:
  virtual void Callback(Variant& Code) = 0;
  virtual Anchor& anchor() = 0;

 protected:
  ~CallTarget() = default;
};

/// Puts off one call until the code that is running now has returned to the message loop.
class CallPoster {
 public:
  virtual ~CallPoster() = default;

  /// A call that has not arrived yet is replaced.
  virtual void PostThisCode(CallTarget& Target, const Variant& Code) = 0;
  virtual void CancelPostCode() = 0;
};

}  // namespace qrn::host
