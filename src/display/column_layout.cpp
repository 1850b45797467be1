#include "display/column_layout.h"

#include <algorithm>
#include <cmath>

#include "runtime/conversions.h"

namespace qrn {

ColumnWeights ColumnWeights::of(std::int32_t label, std::int32_t value, std::int32_t unit, float tolerance) {
  ColumnWeights result;
  float sum = 0;
  const std::array<std::int32_t, kColumns> given{label, value, unit};
  for (std::size_t i = 0; i < kColumns; ++i) {
    result.weight[i] = static_cast<float>(given[i]);
    if (given[i] >= 1) sum += result.weight[i];
  }
  for (float& weight : result.weight) {
    if (weight > 0) weight /= sum;
  }
  result.tolerance = tolerance > 0 ? tolerance : 0;
  return result;
}

ColumnFit::ColumnFit(const ColumnWeights& weights)
    : weights_(weights), slack_(std::floor(weights.tolerance)) {
  const double relative = static_cast<double>(weights.tolerance) - slack_;
  grow_ = 1 + relative;
  shrink_ = (1 - relative) / (1 + relative);
}

void ColumnFit::add(const ColumnWidths& minimum) {
  for (std::size_t i = 0; i < kColumns; ++i) {
    if (weights_.isAutomatic(static_cast<int>(i))) widest_[i] = std::max(widest_[i], minimum[i]);
  }
}

void ColumnFit::add(const ColumnWidths& minimum, const ColumnWidths& current) {
  add(minimum);
  for (std::size_t i = 0; i < kColumns; ++i) {
    if (!weights_.isAutomatic(static_cast<int>(i))) continue;
    ++counted_[i];
    if (minimum[i] > current[i])
      tooSmall_ = true;
    else if ((current[i] - slack_) * shrink_ - slack_ > minimum[i])
      ++oversized_[i];
  }
}

bool ColumnFit::mustRefit() const {
  if (tooSmall_) return true;
  for (std::size_t i = 0; i < kColumns; ++i) {
    if (counted_[i] > 0 && oversized_[i] >= counted_[i]) return true;
  }
  return false;
}

ColumnWidths ColumnFit::widths() const {
  ColumnWidths result{};
  for (std::size_t i = 0; i < kColumns; ++i) {
    if (weights_.isAutomatic(static_cast<int>(i))) result[i] = CLng(Variant(grow_ * widest_[i] + slack_));
  }
  return result;
}

}  // namespace qrn
