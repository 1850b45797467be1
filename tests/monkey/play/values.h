#pragma once

#include <string>
#include <string_view>

#include "enums/enumerations.h"
#include "host/font.h"
#include "host/picture.h"
#include "runtime/variant.h"
#include "step.h"

namespace qrn::monkey {

// What the monkey passes to setters: plain things first, then those at the edges.

std::string anyCaption(Numbers& numbers);
std::string anyTypedText(Numbers& numbers);
std::string anyRule(Numbers& numbers);
std::string anyCharSet(Numbers& numbers);
std::string anyFormat(Numbers& numbers);
Variant anyValue(Numbers& numbers);
/// Every type, and a number that is none.
qrnValueType anyValueType(Numbers& numbers);
std::int32_t anyLength(Numbers& numbers);
host::FontPtr anyFont(Numbers& numbers);
/// Null at times.
host::PicturePtr anyPicture(Numbers& numbers);
bool anyFlag(Numbers& numbers);

/// As a test would write it.
std::string quoted(std::string_view text);
std::string shown(const Variant& value);
std::string shown(bool flag);

}  // namespace qrn::monkey
