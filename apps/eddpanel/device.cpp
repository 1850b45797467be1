#include "device.h"

#include <cmath>

#include "runtime/conversions.h"
#include "value_mapping.h"

namespace qrn::eddpanel {

Device::Device(const edd::Description& description) : description_(description) {
  values_.resize(description.variables().size());
  bases_.resize(values_.size());
  for (std::size_t i = 0; i < values_.size(); ++i) write(i, defaultOf(description.variables()[i]));
}

void Device::write(std::size_t variable, const Variant& value) {
  values_[variable] = value;
  const double* number = value.get<double>();
  bases_[variable] = number ? *number : 0;
}

// A slow wave of a few per cent, each variable in its own rhythm.
double Device::moved(double base, std::size_t index) const {
  const double swing = base == 0 ? 0.05 : std::abs(base) * 0.03;
  return base + swing * std::sin(ticks_ * (0.11 + 0.017 * static_cast<double>(index % 7)));
}

void Device::tick() {
  ++ticks_;
  const auto& variables = description_.variables();
  for (std::size_t i = 0; i < variables.size(); ++i) {
    if (variables[i].isDynamic() && variables[i].type.isReal()) values_[i] = moved(bases_[i], i);
  }
}

std::string Device::run(const edd::Method& method) const { return method.label + ": done"; }

}  // namespace qrn::eddpanel
