#pragma once

#include "base/weak_ref.h"

namespace qrn {

/// Refers to an object without keeping it alive, so that a panel and its collections keep each other in no
/// circle; null once the object has gone.
template <class T>
class clsHiddenRef {
 public:
  void set(T* object) { object_ = WeakRef<T>(object); }
  T* get() const { return object_.get(); }

 private:
  WeakRef<T> object_;
};

}  // namespace qrn
