#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "edd/source.h"

namespace qrn::edd {

enum class TokenKind : std::uint8_t { Name, Number, Text, Character, Mark, End };

/// A token points into its source. The text of a string literal is as written between the quotes, escapes
/// included.
struct Token {
  TokenKind kind = TokenKind::End;
  bool startsLine = false;
  bool followsSpace = false;
  std::string_view text;
  const SourceText* source = nullptr;
  int line = 1;

  bool is(std::string_view wanted) const {
    return (kind == TokenKind::Mark || kind == TokenKind::Name) && text == wanted;
  }
  Place place() const { return {source->name, line}; }
  /// How a message calls it: its text in quotes, or "the end of the file".
  std::string shown() const;
};

[[noreturn]] void fail(const Token& at, const std::string& text);

/// `name` in quotes for a message, shortened if it is very long.
std::string inQuotes(std::string_view name);

/// Splits one source into tokens; comments and line splices (a backslash before the line's end) are space.
class Lexer {
 public:
  explicit Lexer(const SourceText& source) : source_(&source), rest_(source.text) {}

  Token next();
  /// The next token of the same line, or nothing when the line ends first.
  std::optional<Token> nextInLine();
  void skipLine();

  const SourceText& source() const { return *source_; }

 private:
  char at(std::size_t offset) const { return offset < rest_.size() ? rest_[offset] : '\0'; }
  void skipSpace(bool withinLine);
  bool skipSplice();
  bool skipComment();
  Token begin() const;
  Token take(Token token, TokenKind kind, std::size_t length);
  Token name(Token token);
  Token number(Token token);
  Token literal(Token token, TokenKind kind);

  const SourceText* source_;
  std::string_view rest_;
  int line_ = 1;
  bool startsLine_ = true;
  bool followsSpace_ = false;
};

}  // namespace qrn::edd
