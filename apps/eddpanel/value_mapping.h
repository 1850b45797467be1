#pragma once

#include <string>

#include "edd/description.h"
#include "enums/enumerations.h"
#include "runtime/variant.h"

namespace qrn::eddpanel {

// A device keeps numbers and enumeration values as Double, texts as String, dates and times as Date.

/// The row's type for a variable: enumerations of off and on are check boxes, integers shown in hexadecimal
/// are hexadecimal rows.
qrnValueType valueTypeOf(const edd::Variable& variable);

/// The pattern for a display format such as "7.3f" or ".2e"; empty where the value is shown as it is.
std::string valueFormatOf(const edd::Variable& variable);

/// The ranges as a rule of the row, `lo..hi;lo..hi`; without any that of its type for a whole number, and
/// empty for what is none.
std::string valueRuleOf(const edd::Variable& variable);

/// The value that a new device has: the default, or what is nearest to nothing.
Variant defaultOf(const edd::Variable& variable);

/// Between what the device keeps and what the row shows: an entry's number, a string of bits, a Boolean. Bits
/// without a name are those of the value that is kept.
Variant toRow(const edd::Variable& variable, const Variant& kept);
Variant fromRow(const edd::Variable& variable, const Variant& shown, const Variant& kept);

}  // namespace qrn::eddpanel
