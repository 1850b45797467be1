#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "runtime/locale.h"
#include "runtime/number_section.h"
#include "runtime/variant.h"

namespace qrn {

/// A number pattern, read once: up to four sections for positive, negative, zero and no value at all. A
/// missing section is the first one; a negative number in the first one carries its sign in front.
class NumberFormat {
 public:
  explicit NumberFormat(std::string_view pattern);

  /// Doubles show no more than 15 significant digits; the last one shown is rounded with ties away from zero.
  std::string apply(double value, const Locale& locale) const;
  std::string apply(const Decimal& value, const Locale& locale) const;
  std::string apply(Currency value, const Locale& locale) const;
  /// For Null and Empty: the fourth section, if there is one.
  std::string applyNothing(const Locale& locale) const;

 private:
  template <class Magnitude>
  std::string write(int sign, const Magnitude& magnitude, const Locale& locale) const;
  const NumberSection* ownSection(std::size_t index) const;

  std::vector<NumberSection> sections_;
};

}  // namespace qrn
