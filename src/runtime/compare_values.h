#pragma once

#include <compare>

#include "runtime/variant.h"

namespace qrn {

/// The order of two values: numbers, dates and Booleans by amount (beside a Decimal or a Currency to 15
/// digits of a double), texts by code point, every number before every text, Empty as 0 beside a number and
/// as "" beside a text. Null and NaN are unordered. Error 13 for objects and errors.
std::partial_ordering compareValues(const Variant& left, const Variant& right);

}  // namespace qrn
