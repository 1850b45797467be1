#pragma once

#include <cstdint>
#include <string>

#include "edd/description.h"
#include "edd/lexer.h"

namespace qrn::edd {

struct Number {
  std::string text;  ///< as written, the sign included
  double value = 0;
  bool negative = false;
  bool whole = false;           ///< written as an integer that 64 bits hold
  std::uint64_t magnitude = 0;  ///< without the sign, if whole
};

/// Decimal, hexadecimal (0x1F) and binary (0b101) integers, and decimal fractions with an optional exponent.
/// @throws DescriptionError if the token is no number or one that is too large
Number parseNumber(const Token& token, bool negative);

/// Whether a value of the type can be `number`; texts and times hold no numbers, so they do not limit them.
bool fits(const Number& number, const ValueType& type);

}  // namespace qrn::edd
