#pragma once

#include "edd/cursor.h"
#include "edd/written_variable.h"

namespace qrn::edd {

/// What follows the keyword TYPE: `ENUMERATED(1) { {0, "Off"}, {1, "On"} }`.
void parseType(Cursor& cursor, WrittenVariable& into);

/// Formats, limits and default values, which stand in the braces of the type or beside it; false if
/// `attribute` is none of them.
bool parseValueAttribute(Cursor& cursor, const Token& attribute, WrittenVariable& into);

}  // namespace qrn::edd
