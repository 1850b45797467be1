#include "edd/lexer.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "edd/utf8.h"

namespace qrn::edd {

namespace {

// The language knows ASCII only outside of texts; <cctype> would ask the locale.
bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isNameStart(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; }
bool isNamePart(char c) { return isNameStart(c) || isDigit(c); }
bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\f' || c == '\v'; }
bool isMark(char c) { return c > ' ' && c < '\x7F'; }
bool isControl(char c) { return (static_cast<unsigned char>(c) < ' ' && c != '\t') || c == '\x7F'; }

std::string byteName(char c) {
  std::array<char, 8> text{};
  std::snprintf(text.data(), text.size(), "0x%02X", static_cast<unsigned>(static_cast<unsigned char>(c)));
  return text.data();
}

}  // namespace

std::string Token::shown() const {
  if (kind == TokenKind::End) return "the end of the file";
  if (kind == TokenKind::Text) return "a text";
  return inQuotes(text);
}

std::string inQuotes(std::string_view name) {
  constexpr std::size_t longest = 120;
  if (name.size() <= longest) return '"' + std::string(name) + '"';
  return '"' + std::string(name.substr(0, longest)) + "...\"";
}

void fail(const Token& at, const std::string& text) { throw DescriptionError(at.place(), text); }

Token Lexer::begin() const {
  Token token;
  token.startsLine = startsLine_;
  token.followsSpace = followsSpace_;
  token.source = source_;
  token.line = line_;
  return token;
}

bool Lexer::skipSplice() {
  if (at(0) != '\\' || at(1) != '\n') return false;
  rest_.remove_prefix(2);
  ++line_;
  return true;
}

bool Lexer::skipComment() {
  if (rest_.starts_with("//")) {
    rest_.remove_prefix(std::min(rest_.find('\n'), rest_.size()));
    return true;
  }
  if (!rest_.starts_with("/*")) return false;
  const std::size_t end = rest_.find("*/", 2);
  if (end == std::string_view::npos) fail(begin(), "this comment has no end");
  line_ +=
      static_cast<int>(std::count(rest_.begin(), rest_.begin() + static_cast<std::ptrdiff_t>(end), '\n'));
  rest_.remove_prefix(end + 2);
  return true;
}

void Lexer::skipSpace(bool withinLine) {
  while (!rest_.empty()) {
    if (isBlank(rest_[0])) {
      rest_.remove_prefix(1);
    } else if (rest_[0] == '\n') {
      if (withinLine) return;
      rest_.remove_prefix(1);
      ++line_;
      startsLine_ = true;
    } else if (!skipSplice() && !skipComment()) {
      return;
    }
    followsSpace_ = true;
  }
}

void Lexer::skipLine() {
  while (nextInLine()) {
  }
}

std::optional<Token> Lexer::nextInLine() {
  skipSpace(true);
  if (rest_.empty() || rest_[0] == '\n') return std::nullopt;
  return next();
}

Token Lexer::next() {
  skipSpace(false);
  const Token token = begin();
  startsLine_ = followsSpace_ = false;
  if (rest_.empty()) return token;
  const char c = rest_[0];
  if (isNameStart(c)) return name(token);
  if (isDigit(c) || (c == '.' && isDigit(at(1)))) return number(token);
  if (c == '"') return literal(token, TokenKind::Text);
  if (c == '\'') return literal(token, TokenKind::Character);
  if (!isMark(c)) fail(token, "unexpected character " + byteName(c));
  return take(token, TokenKind::Mark, 1);
}

Token Lexer::take(Token token, TokenKind kind, std::size_t length) {
  token.kind = kind;
  token.text = rest_.substr(0, length);
  rest_.remove_prefix(length);
  return token;
}

Token Lexer::name(Token token) {
  const auto end = std::find_if_not(rest_.begin(), rest_.end(), isNamePart);
  return take(token, TokenKind::Name, static_cast<std::size_t>(end - rest_.begin()));
}

// Everything that could belong to a number, so that "12abc" is one wrong number and not two tokens.
Token Lexer::number(Token token) {
  std::size_t length = 1;
  while (isNamePart(at(length)) || at(length) == '.' ||
         ((at(length) == '+' || at(length) == '-') && (at(length - 1) == 'e' || at(length - 1) == 'E') &&
          !rest_.starts_with("0x") && !rest_.starts_with("0X")))
    ++length;
  return take(token, TokenKind::Number, length);
}

Token Lexer::literal(Token token, TokenKind kind) {
  const char quote = rest_[0];
  std::size_t end = 1;
  for (; end < rest_.size() && rest_[end] != quote && rest_[end] != '\n'; ++end) {
    if (rest_[end] == '\\' && end + 1 < rest_.size()) {
      if (rest_[++end] == '\n') ++line_;
    } else if (isControl(rest_[end])) {
      fail(token, "control character " + byteName(rest_[end]) + " in a text");
    }
  }
  if (end >= rest_.size() || rest_[end] == '\n')
    fail(token,
         kind == TokenKind::Text ? "this text has no closing quote" : "this character has no closing quote");
  rest_.remove_prefix(1);
  token = take(token, kind, end - 1);
  rest_.remove_prefix(1);
  return token;
}

}  // namespace qrn::edd
