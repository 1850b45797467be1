#include "device.h"

#include <cmath>

#include "runtime/conversions.h"
#include "value_mapping.h"

namespace qrn::eddpanel {

Device::Device(const edd::Description& description) : description_(description) {
  for (const edd::Variable& variable : description.variables()) {
    values_.push_back(defaultOf(variable));
    const double* number = values_.back().get<double>();
    bases_.push_back(number ? *number : 0);
  }
}

// A slow wave of a few per cent, each variable in its own rhythm; counters just count.
double Device::moved(const edd::Variable& variable, double base, std::size_t index) const {
  if (!variable.type.isReal()) return base;
  const double swing = base == 0 ? 0.05 : std::abs(base) * 0.03;
  return base + swing * std::sin(ticks_ * (0.11 + 0.017 * static_cast<double>(index % 7)));
}

void Device::tick() {
  ++ticks_;
  const auto& variables = description_.variables();
  for (std::size_t i = 0; i < variables.size(); ++i) {
    if (!variables[i].isDynamic() || !values_[i].get<double>()) continue;
    values_[i] = moved(variables[i], bases_[i], i);
  }
}

std::string Device::run(const edd::Method& method) const { return method.label + ": done"; }

}  // namespace qrn::eddpanel
