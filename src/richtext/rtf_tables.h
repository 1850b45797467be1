#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace qrn::richtext {

/// The fonts of an RTF document, built up from the words and characters of its font table.
class RtfFonts {
 public:
  void word(std::string_view word, std::int32_t number);
  void character(char32_t c);
  void endEntry() { current_.reset(); }

  /// Empty for a font that is not there.
  const std::string& name(std::int32_t number) const;
  /// Of a font's characters; `usual` where the font does not say.
  int codePage(std::int32_t number, int usual) const;
  /// The font whose entry is being read.
  std::int32_t current() const { return current_.value_or(-1); }

 private:
  struct Font {
    std::string name;
    std::size_t length = 0;  // of the name, in code points
    std::int32_t charset = 0;
    std::int32_t codePage = 0;
  };

  std::unordered_map<std::int32_t, Font> fonts_;
  std::optional<std::int32_t> current_;
};

/// The colours of an RTF document. One that names no part of it is the colour that text has by itself.
class RtfColors {
 public:
  void word(std::string_view word, std::int32_t number);
  void endEntry();

  std::optional<std::uint32_t> color(std::int32_t number) const;

 private:
  std::vector<std::optional<std::uint32_t>> colors_;
  std::optional<std::uint32_t> current_;
};

}  // namespace qrn::richtext
