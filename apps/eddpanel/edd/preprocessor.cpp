#include "edd/preprocessor.h"

#include <algorithm>

#include "edd/chain.h"
#include "edd/number.h"

namespace qrn::edd {

Preprocessor::Preprocessor(Sources& sources, const SourceText& main, Warnings& warnings)
    : sources_(sources), warnings_(warnings) {
  Token start;
  start.source = &main;
  enter(main, start);
}

Token Preprocessor::next() {
  for (;;) {
    const auto expanded = macros_.next();
    const Token token = expanded ? *expanded : nextOfFile();
    if (token.kind != TokenKind::Name || !macros_.expand(token)) return token;
  }
}

Token Preprocessor::nextOfFile() {
  for (;;) {
    const Token token = lexer().next();
    if (token.kind == TokenKind::End) {
      if (!conditions().empty()) fail(conditions().back().opened, "this condition has no #endif");
      if (files_.size() == 1) return token;
      files_.pop_back();
    } else if (token.startsLine && token.is("#")) {
      directive();
    } else if (!skipping()) {
      return token;
    }
  }
}

void Preprocessor::enter(const SourceText& source, const Token& at) {
  const bool open = std::any_of(files_.begin(), files_.end(), [&source](const File& file) {
    return file.lexer.source().name == source.name;
  });
  if (open) fail(at, "the file includes itself: " + includeChain(source));
  if (files_.size() >= maximumIncludeDepth)
    fail(at, "includes nest deeper than " + std::to_string(maximumIncludeDepth) + " files");
  bytes_ += source.text.size();
  if (++includes_ > maximumIncludes || bytes_ > Sources::maximumSize)
    fail(at, "the included files are more than 64 MB or " + std::to_string(maximumIncludes));
  files_.push_back({Lexer(source), {}});
}

std::string Preprocessor::includeChain(const SourceText& last) const {
  std::vector<std::string_view> names;
  for (const File& file : files_) {
    if (names.empty() && file.lexer.source().name != last.name) continue;
    names.push_back(file.lexer.source().name);
  }
  names.push_back(last.name);
  return chain(names);
}

void Preprocessor::directive() {
  const auto name = lexer().nextInLine();
  if (!name) return;  // a lone # does nothing
  if (!conditional(*name) && !skipping()) {
    if (name->is("include")) {
      // The rest of the line belongs to this file, so it goes before the other file starts.
      return include(*name);
    }
    if (name->is("define")) return define(*name);
    if (name->is("undef")) {
      macros_.undefine(operand(*name, TokenKind::Name, "a name").text);
    } else if (name->is("error")) {
      fail(*name, "#error" + restOfLine());
    } else {
      warnings_.add(*name, "#" + std::string(name->text) + " is not known and skipped");
    }
  }
  lexer().skipLine();
}

std::string Preprocessor::restOfLine() {
  std::string rest;
  while (const auto token = lexer().nextInLine()) rest += ' ' + std::string(token->text);
  return rest;
}

Token Preprocessor::operand(const Token& name, TokenKind kind, const char* what) {
  const auto token = lexer().nextInLine();
  if (!token || token->kind != kind) fail(name, "#" + std::string(name.text) + " needs " + what);
  return *token;
}

void Preprocessor::include(const Token& name) {
  const Token file = operand(name, TokenKind::Text, "a file name in quotes");
  lexer().skipLine();
  const SourceText* source = nullptr;
  try {
    source = sources_.include(*file.source, file.text);
  } catch (const DescriptionError& error) {
    fail(file, "cannot read the included file: " + std::string(error.what()));
  }
  if (source == nullptr) fail(file, "cannot open the included file " + inQuotes(file.text));
  enter(*source, file);
}

void Preprocessor::define(const Token& name) {
  const Token macro = operand(name, TokenKind::Name, "a name");
  std::vector<Token> body;
  while (const auto token = lexer().nextInLine()) body.push_back(*token);
  if (!body.empty() && body.front().is("(") && !body.front().followsSpace) {
    warnings_.add(
        macro, "macro " + inQuotes(macro.text) + " takes arguments, which is not supported, and is skipped");
  } else {
    macros_.define(macro.text, std::move(body));
  }
}

bool Preprocessor::conditional(const Token& name) {
  if (name.is("ifdef") || name.is("ifndef")) {
    const Token macro = operand(name, TokenKind::Name, "a name");
    open(name, macros_.isDefined(macro.text) == name.is("ifdef"));
  } else if (name.is("if")) {
    open(name, !skipping() && evaluate(name));
  } else if (name.is("elif")) {
    otherwise(name, !innermost(name).decided && innermost(name).outerActive && evaluate(name));
  } else if (name.is("else")) {
    otherwise(name, true);
    innermost(name).sawElse = true;
  } else if (name.is("endif")) {
    innermost(name);
    conditions().pop_back();
  } else {
    return false;
  }
  return true;
}

void Preprocessor::open(const Token& name, bool holds) {
  const bool outerActive = !skipping();
  conditions().push_back({name, outerActive, outerActive && holds, holds});
}

void Preprocessor::otherwise(const Token& name, bool holds) {
  Condition& condition = innermost(name);
  if (condition.sawElse) fail(name, "#" + std::string(name.text) + " follows #else");
  condition.active = condition.outerActive && !condition.decided && holds;
  condition.decided = condition.decided || holds;
}

Preprocessor::Condition& Preprocessor::innermost(const Token& name) {
  if (conditions().empty()) fail(name, "#" + std::string(name.text) + " without #if");
  return conditions().back();
}

// [!] number, [!] name, [!] defined name and [!] defined(name); no description was seen to need more.
bool Preprocessor::evaluate(const Token& name) {
  std::vector<Token> words;
  while (const auto token = lexer().nextInLine())
    if (!token->is("(") && !token->is(")")) words.push_back(*token);
  const bool negated = !words.empty() && words.front().is("!");
  if (negated) words.erase(words.begin());
  if (words.size() == 2 && words[0].is("defined")) return macros_.isDefined(words[1].text) != negated;
  if (words.size() == 1) return isTrue(words[0]) != negated;
  warnings_.add(name,
                "this condition of #" + std::string(name.text) + " is not understood and taken as false");
  return false;
}

bool Preprocessor::isTrue(const Token& operand) const {
  const Token* word = &operand;
  // Follows a name that stands for a name; more steps than that can only be a circle.
  for (int step = 0; step < 100 && word->kind == TokenKind::Name; ++step) {
    const auto* body = macros_.bodyOf(word->text);
    if (body == nullptr || body->size() != 1) return false;
    word = &body->front();
  }
  return word->kind == TokenKind::Number && parseNumber(*word, false).value != 0;
}

}  // namespace qrn::edd
