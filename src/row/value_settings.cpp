#include "row/value_settings.h"

#include <algorithm>
#include <array>

namespace qrn {

const ValueSettings::Texts& ValueSettings::texts() const {
  static const Texts none;
  return texts_ ? *texts_ : none;
}

void ValueSettings::change(std::string Texts::*text, const std::string& value) {
  Texts wanted{texts().rule, texts().charSet, texts().format, {}};
  wanted.*text = value;
  const auto alike = [&](const std::shared_ptr<const Texts>& one) {
    return one && one->rule == wanted.rule && one->charSet == wanted.charSet && one->format == wanted.format;
  };
  // The last few: the rows of a panel are made one after the other.
  thread_local std::array<std::shared_ptr<const Texts>, 8> recent;
  thread_local std::size_t oldest = 0;
  const auto known = std::find_if(recent.begin(), recent.end(), alike);
  if (known != recent.end()) {
    texts_ = *known;
    return;
  }
  if (!wanted.format.empty()) wanted.compiled.emplace(wanted.format);
  texts_ = recent[oldest] = std::make_shared<const Texts>(std::move(wanted));
  oldest = (oldest + 1) % recent.size();
}

}  // namespace qrn
