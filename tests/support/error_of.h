#pragma once

#include <cstdint>

#include "runtime/errors.h"

namespace qrn::test {

/// The number of the run-time error that an action raises, 0 for none. Anything else that is thrown fails the
/// test.
template <class Action>
std::int32_t errorOf(Action&& action) {
  try {
    static_cast<void>(action());
    return 0;
  } catch (const RunTimeError& error) {
    return error.number();
  }
}

}  // namespace qrn::test
