#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "edd/description.h"
#include "runtime/variant.h"

namespace qrn::eddpanel {

/// A device in memory: keeps what was written, lets its dynamic values move, and runs methods.
class Device {
 public:
  explicit Device(const edd::Description& description);

  const Variant& read(std::size_t variable) const { return values_[variable]; }
  void write(std::size_t variable, const Variant& value);
  /// Lets a moment pass for the dynamic values.
  void tick();
  /// What a method reports when it has run.
  std::string run(const edd::Method& method) const;

 private:
  double moved(double base, std::size_t index) const;

  const edd::Description& description_;
  std::vector<Variant> values_;
  std::vector<double> bases_;  // around which the dynamic numbers move
  int ticks_ = 0;
};

}  // namespace qrn::eddpanel
