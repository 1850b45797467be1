#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/pattern_reader.h"

namespace qrn {

/// A text pattern, read once: @ for a character or a blank, & for a character or nothing, < and > for lower
/// and upper case, ! to fill the places from the left instead of from the right. A second section is for what
/// is empty.
class StringFormat {
 public:
  explicit StringFormat(std::string_view pattern);
  std::string apply(std::string_view text) const;

  /// Whether the character at the start of the rest is something only a text can fill in.
  static bool startsWithTextPart(const PatternReader& reader);

 private:
  enum class Case { AsIs, Lower, Upper };
  enum class Part { Literal, CharacterOrBlank, CharacterOrNothing };
  struct Token {
    Part part;
    std::size_t length;  // of a literal; the literals stand one behind the other in literals
  };
  struct Section {
    std::vector<Token> tokens;
    std::string literals;
    std::size_t places = 0;
    Case letterCase = Case::AsIs;
    bool fromLeft = false;

    explicit Section(PatternReader& reader);
    void readCharacter(std::string_view character);
    void addPlace(Part part);
    void addLiteral(std::string_view text);
    std::string fill(std::string_view text) const;
  };

  std::vector<Section> sections_;
};

}  // namespace qrn
