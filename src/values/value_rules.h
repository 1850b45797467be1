#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "enums/enumerations.h"
#include "runtime/variant.h"

namespace qrn {

/// What a text has to keep to.
struct TextRule {
  std::string_view rule;       // a Like pattern; empty allows everything
  std::string_view charSet;    // the inside of a Like bracket class; empty allows everything
  std::int32_t maxLength = 0;  // below 1: no limit
};

/// Whether a value passes, and if not, why: a Null value fails without a code.
struct RuleResult {
  bool passed = false;
  qrnErrorCode error = qrnErrorNone;
};

/// Length first, then characters, then the pattern.
RuleResult CheckTextRule(const Variant& value, const TextRule& rule);

/// A list of ranges `lo..hi` between semicolons, either bound optional. A rule without ".." restricts
/// nothing.
RuleResult CheckNumberRule(const Variant& value, std::string_view rule);

}  // namespace qrn
