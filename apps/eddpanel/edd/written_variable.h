#pragma once

#include <map>
#include <optional>
#include <string>

#include "edd/number.h"
#include "edd/warnings.h"

namespace qrn::edd {

/// A constant and where it stands. A text has no number.
struct WrittenValue {
  Token at;
  std::string text;
  std::optional<Number> number;
};

struct WrittenRange {
  std::optional<WrittenValue> minimum;
  std::optional<WrittenValue> maximum;
};

/// A variable whose values are not yet held against its type, which may follow them.
struct WrittenVariable {
  Token name;
  Variable variable;
  std::map<unsigned, WrittenRange> ranges;  ///< by the n of MIN_VALUEn, 0 without one
  std::optional<WrittenValue> defaultValue;
  std::optional<WrittenValue> initialValue;
};

/// The type as it is written: "UNSIGNED_INTEGER(2)".
std::string shown(const ValueType& type);

/// Puts limits and default values into the variable.
/// @throws DescriptionError if one of them does not fit the type, or a minimum is greater than its maximum
Variable settled(WrittenVariable written, Warnings& warnings);

}  // namespace qrn::edd
