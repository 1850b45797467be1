#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace qrn::richtext {

inline constexpr std::int32_t kTwipsPerPoint = 20;
inline constexpr std::int32_t kTwipsPerHalfPoint = 10;
/// 22 inches; no length of a format is larger.
inline constexpr std::int32_t kMostTwips = 31680;
inline constexpr std::int32_t kMostHalfPoints = 3276;
inline constexpr std::size_t kMostTabStops = 32;
/// In code points.
inline constexpr std::size_t kLongestFontName = 64;

/// How characters look. What the rich text formats can say is kept, not more: a size in half points, an
/// offset in twips that make whole half points.
struct CharFormat {
  std::string font = {};  // empty: whatever shows the text has one
  std::int32_t halfPoints = 24;
  std::int32_t offset = 0;                  // twips above the line, below it if negative
  std::optional<std::uint32_t> color = {};  // 0x00BBGGRR; none: the colour that text has by itself
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strikeThrough = false;

  friend bool operator==(const CharFormat&, const CharFormat&) = default;
};

enum class Alignment : std::uint8_t { Left, Right, Centre };

/// How a paragraph lies between the edges. Lengths are in twips.
struct ParagraphFormat {
  Alignment alignment = Alignment::Left;
  bool bullet = false;
  std::int32_t leftIndent = 0;     // of the first line
  std::int32_t hangingIndent = 0;  // of the other lines, from where the first one starts
  std::int32_t rightIndent = 0;
  std::vector<std::int32_t> tabStops = {};  // from the left edge, ascending

  friend bool operator==(const ParagraphFormat&, const ParagraphFormat&) = default;
};

}  // namespace qrn::richtext
