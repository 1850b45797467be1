#pragma once

#include <string>
#include <string_view>

#include "host/property_bag.h"

namespace qrn::host {

/// Points. No font of another size can be read, so none is written.
constexpr bool isFontSize(double points) { return points > 0 && points <= 10'000; }

/// The line of a property, without its end. Errors: 380 naming the key, for a value that no line can hold.
std::string writtenLine(const PropertyBag::Item& item);

/// Reads what writtenLine wrote. Errors: 321 with `file:number: what`, naming the key where it is known.
PropertyBag::Item readLine(std::string_view line, std::string_view file, int number);

/// Raises 321 with `file:number: what`.
[[noreturn]] void refuseLine(std::string_view file, int number, const std::string& what);

/// A part of a foreign text for a message: no more than its start, without anything that can't be shown.
std::string shownPart(std::string_view text);

}  // namespace qrn::host
