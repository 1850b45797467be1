#pragma once

#include <exception>

namespace qrn {

/// Keeps the first error of several calls until the last one is through.
class FirstError {
 public:
  /// Answers whether the call went through.
  template <class Call>
  bool of(Call&& call) {
    try {
      call();
      return true;
    } catch (...) {
      if (!first_) first_ = std::current_exception();
      return false;
    }
  }
  void raise() const {
    if (first_) std::rethrow_exception(first_);
  }

 private:
  std::exception_ptr first_;
};

}  // namespace qrn
