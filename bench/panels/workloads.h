#pragma once

#include <string>

#include "panels/form.h"

namespace qrn::bench {

struct Wish {
  int rows = 100;
  /// Some of "W1 W2 W3 W4 W5 ticks".
  std::string workloads = "W1 W2 W3 W4";
  int samples = 5;
  double seconds = 3;  // of ticks
};

/// Arguments are ROWS [WORKLOADS [SAMPLES [SECONDS]]], from the given one on.
Wish wishOf(int argc, char** argv, int from);

/// Measures, and prints each sample as a line: contender, display, workload, rows, value, unit. Ends the
/// process where a form does not do what is measured.
void measure(const Contender& contender, const Wish& wish);

[[noreturn]] void fail(const std::string& why);

}  // namespace qrn::bench
