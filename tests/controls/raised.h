#pragma once

#include <cstdint>
#include <string>

#include "runtime/errors.h"

namespace qrn::test {

/// The run-time error that an action raised; number 0 for none.
struct Raised {
  std::int32_t number = 0;
  std::string source;
  std::string description;
};

template <class Action>
Raised raisedBy(Action&& action) {
  try {
    action();
  } catch (const RunTimeError& error) {
    return {error.number(), error.source(), error.description()};
  }
  return {};
}

}  // namespace qrn::test
