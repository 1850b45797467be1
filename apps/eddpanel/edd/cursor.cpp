#include "edd/cursor.h"

#include "edd/literal.h"

namespace qrn::edd {

namespace {

bool isOperator(const Token& token) {
  return token.kind == TokenKind::Mark &&
         std::string_view("+-*/%<>=!?&|^.").find(token.text) != std::string_view::npos;
}

}  // namespace

Token Cursor::next() {
  const Token token = ahead_;
  ahead_ = tokens_.next();
  return token;
}

bool Cursor::accept(std::string_view mark) {
  if (!ahead_.is(mark)) return false;
  next();
  return true;
}

Token Cursor::expect(std::string_view mark, std::string_view where) {
  if (!ahead_.is(mark))
    fail(ahead_, "expected " + inQuotes(mark) + " " + std::string(where) + ", found " + ahead_.shown());
  return next();
}

Token Cursor::expectName(std::string_view what) {
  if (ahead_.kind != TokenKind::Name)
    fail(ahead_, "expected " + std::string(what) + ", found " + ahead_.shown());
  return next();
}

std::optional<std::string> Cursor::text() {
  if (ahead_.kind != TokenKind::Text) return std::nullopt;
  std::string written;
  while (ahead_.kind == TokenKind::Text) written += next().text;
  return textOfLiteral(written, language_);
}

std::optional<Number> Cursor::number() {
  if (ahead_.kind != TokenKind::Number && !ahead_.is("+") && !ahead_.is("-") && !ahead_.is("("))
    return std::nullopt;
  std::size_t parentheses = 0;
  while (accept("(")) ++parentheses;
  const bool negative = ahead_.is("-");
  if (negative || ahead_.is("+")) next();
  if (ahead_.kind != TokenKind::Number) fail(ahead_, "expected a number, found " + ahead_.shown());
  Number number = parseNumber(next(), negative);
  for (; parentheses > 0 && accept(")"); --parentheses) {
  }
  if (parentheses > 0 || isOperator(ahead_)) return std::nullopt;
  return number;
}

void Cursor::skipStatement() {
  while (ahead_.kind != TokenKind::End && !ahead_.is("}")) {
    const Token token = next();
    if (token.is(";")) return;
    if (!token.is("{")) continue;
    skipToEndOf(token);
    if (ahead_.is("ELSE")) continue;
    accept(";");
    return;
  }
}

void Cursor::skipToEndOf(const Token& opened) {
  const std::string_view open = opened.text;
  const std::string_view close = open == "{" ? "}" : ")";
  for (std::size_t depth = 1; depth > 0;) {
    const Token token = next();
    if (token.kind == TokenKind::End) fail(opened, "this " + inQuotes(open) + " has no " + inQuotes(close));
    if (token.is(open)) ++depth;
    if (token.is(close)) --depth;
  }
}

}  // namespace qrn::edd
