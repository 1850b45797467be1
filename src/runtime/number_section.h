#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/decimal_digits.h"
#include "runtime/locale.h"
#include "runtime/pattern_reader.h"

namespace qrn {

/// One section of a number pattern, read once: what stands between two semicolons.
class NumberSection {
 public:
  /// Reads up to the next semicolon that is no literal, and that one too.
  explicit NumberSection(PatternReader& reader);

  bool isEmpty() const { return tokens_.empty(); }
  /// Writes the magnitude; the sign is up to the caller.
  void write(std::string& out, double magnitude, const Locale& locale) const;
  void write(std::string& out, DecimalDigits magnitude, const Locale& locale) const;

  /// Whether the character at the start of the rest is something only a number can fill in.
  static bool startsWithNumberPart(const PatternReader& reader);

 private:
  enum class Part : std::uint8_t { Literal, Zero, Optional, Point, Exponent };
  struct Token {
    Part part;
    std::size_t length;  // of a literal; the literals stand one behind the other in literals_
  };
  struct ExponentForm {
    char letter = 0;  // 'E' or 'e'; 0 when there is none
    bool plus = false;
    std::size_t digits = 0;
  };
  class Writer;

  void readCharacter(PatternReader& reader, std::string_view character);
  bool readExponent(PatternReader& reader, char letter);
  void addPlaceholder(Part part);
  void addPoint();
  void addComma();
  void addLiteral(std::string_view text);
  void countScalingCommas();
  void writeDigits(std::string& out, const DecimalDigits& digits, int exponent, const Locale& locale) const;
  int scaleToExponent(DecimalDigits& digits) const;

  std::vector<Token> tokens_;
  std::string literals_;
  ExponentForm exponent_;
  int integerPlaces_ = 0;
  int fractionPlaces_ = 0;
  int leastDecimals_ = 0;  // up to the last '0' behind the point
  int powerOfTen_ = 0;     // from percent signs and scaling commas
  int commas_ = 0;         // while reading: since the latest placeholder before the point
  bool grouped_ = false;
  bool hasPoint_ = false;
};

}  // namespace qrn
