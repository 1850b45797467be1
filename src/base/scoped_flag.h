#pragma once

#include "base/weak_ref.h"

namespace qrn {

/// Sets a flag of an object for as long as this lives. The object may be gone before.
template <class Owner>
class ScopedFlag {
 public:
  ScopedFlag(Owner& owner, bool Owner::*flag) : owner_(&owner), flag_(flag) { owner.*flag = true; }
  ScopedFlag(const ScopedFlag&) = delete;
  ScopedFlag& operator=(const ScopedFlag&) = delete;
  ~ScopedFlag() {
    if (owner_) (*owner_).*flag_ = false;
  }

 private:
  const WeakRef<Owner> owner_;
  bool Owner::*const flag_;
};

}  // namespace qrn
