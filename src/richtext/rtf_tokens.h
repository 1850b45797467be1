#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace qrn::richtext {

/// One piece of RTF.
struct RtfToken {
  enum class Kind : std::uint8_t {
    GroupStart,
    GroupEnd,
    Word,       // a backslash and letters, with a number or without
    Symbol,     // a backslash and another character, which is `byte`
    Hex,        // \'hh: a byte in the current code page
    Binary,     // \bin and the bytes behind it
    Character,  // of the text itself
    End,
  };

  Kind kind = Kind::End;
  std::string_view word = {};
  std::optional<std::int32_t> number = {};  // at most kMostNumber either way
  char32_t character = 0;
  unsigned char byte = 0;
  bool broken = false;  // the character is no UTF-8; `byte` is what stands there
};

inline constexpr std::int32_t kMostNumber = 100'000'000;

/// Cuts RTF into tokens; line ends between them mean nothing and are left out. Whatever the text holds, each
/// call moves on, and the end comes at last. It keeps a view of the text.
class RtfTokens {
 public:
  explicit RtfTokens(std::string_view rtf) : rest_(rtf) {}

  RtfToken next();

 private:
  RtfToken control();
  RtfToken word();
  RtfToken hex();
  RtfToken character();
  std::optional<std::int32_t> number();

  std::string_view rest_;
};

}  // namespace qrn::richtext
