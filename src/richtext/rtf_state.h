#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "richtext/format.h"

namespace qrn::richtext {

/// What the text of a group is for.
enum class Destination : std::uint8_t { Text, Skipped, Fonts, Colors, Bullet };

inline constexpr std::int32_t kDefaultFont = -1;

/// What a group of RTF takes along from the one around it, and gives back at its end. Fonts and colours are
/// numbers of their tables, which say later what they are.
struct RtfState {
  struct Characters {
    enum class Script : std::uint8_t { None, Super, Sub };

    std::int32_t font = kDefaultFont;
    std::int32_t color = 0;
    std::int32_t halfPoints = 24;
    std::int32_t offset = 0;
    Script script = Script::None;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikeThrough = false;
    bool hidden = false;
  };
  struct Indents {
    std::int32_t left = 0;       // of the lines behind the first one
    std::int32_t firstLine = 0;  // from the left one
  };

  Characters characters;
  ParagraphFormat paragraph;  // but for its indents on the left
  Indents indents;
  std::int32_t unicodeFallback = 1;  // what stands behind a \u for readers that don't know it
  Destination destination = Destination::Text;

  std::int32_t halfPoints() const;
  std::int32_t offset() const;
  ParagraphFormat paragraphFormat() const;
  /// Takes a word that formats characters or paragraphs; any other one changes nothing.
  void apply(std::string_view word, std::optional<std::int32_t> number);
};

}  // namespace qrn::richtext
