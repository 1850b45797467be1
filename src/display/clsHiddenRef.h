#pragma once

#include "base/weak_ref.h"
#include "host/control.h"

namespace qrn {

/// Refers to an object without keeping it alive, so that a panel and its collections keep each other in no
/// circle; null once the object has gone.
class clsHiddenRef {
 public:
  void set(host::Control* object) { object_ = WeakRef<host::Control>(object); }
  host::Control* get() const { return object_.get(); }

 private:
  WeakRef<host::Control> object_;
};

}  // namespace qrn
