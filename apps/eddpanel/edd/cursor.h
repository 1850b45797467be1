#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "edd/number.h"
#include "edd/preprocessor.h"

namespace qrn::edd {

/// Walks over the tokens of a description, one ahead. All skipping is a loop: no nesting is too deep for it.
class Cursor {
 public:
  Cursor(Preprocessor& tokens, Warnings& warnings, std::string language)
      : tokens_(tokens), warnings_(warnings), language_(std::move(language)), ahead_(tokens.next()) {}

  Warnings& warnings() const { return warnings_; }

  const Token& peek() const { return ahead_; }
  Token next();
  bool accept(std::string_view mark);
  /// The next token, which must be `mark`; `where` completes the message: `expected ";" after LABEL`.
  Token expect(std::string_view mark, std::string_view where);
  Token expectName(std::string_view what);

  /// Adjacent string literals as one text in the wanted language, or nothing if no literal is next.
  std::optional<std::string> text();
  /// A number with an optional sign, in parentheses or not, or nothing if there is none or an expression.
  std::optional<Number> number();

  /// To the end of what was begun: behind a semicolon, or behind braces (and an ELSE and its braces) at the
  /// outermost level, or before the brace that closes what contains it.
  void skipStatement();
  /// Behind the mark that closes `opened` ("{" or "("), which was read last.
  void skipToEndOf(const Token& opened);

 private:
  Preprocessor& tokens_;
  Warnings& warnings_;
  std::string language_;
  Token ahead_;
};

}  // namespace qrn::edd
