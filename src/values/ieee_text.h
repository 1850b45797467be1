#pragma once

#include <string_view>

#include "runtime/variant.h"

namespace qrn {

/// The fixed text of a number that is none; empty for every other value.
std::string_view ieeeText(const Variant& value);
/// The same for a text that bears one of the classic marks of such a number, like "-1.#INF".
std::string_view ieeeText(std::string_view shown);
/// Whether it is one of the fixed texts.
bool isIeeeText(std::string_view text);

}  // namespace qrn
