#pragma once

#include <optional>
#include <string>
#include <vector>

#include "edd/lexer.h"
#include "edd/macros.h"
#include "edd/warnings.h"

namespace qrn::edd {

/// The tokens of a description with its includes read, its macros expanded and its conditions decided.
class Preprocessor {
 public:
  static constexpr std::size_t maximumIncludeDepth = 32;
  static constexpr std::size_t maximumIncludes = 10'000;

  Preprocessor(Sources& sources, const SourceText& main, Warnings& warnings);

  /// At the end of the description this answers the end token again and again.
  Token next();

 private:
  // One #if that is not closed yet.
  struct Condition {
    Token opened;
    bool outerActive;
    bool active;
    bool decided = false;  // a branch was taken, so what follows is not
    bool sawElse = false;
  };
  struct File {
    Lexer lexer;
    std::vector<Condition> conditions;
  };

  Lexer& lexer() { return files_.back().lexer; }
  std::vector<Condition>& conditions() { return files_.back().conditions; }
  bool skipping() const {
    return !files_.back().conditions.empty() && !files_.back().conditions.back().active;
  }

  Token nextOfFile();
  void enter(const SourceText& source, const Token& at);
  std::string includeChain(const SourceText& last) const;

  void directive();
  bool conditional(const Token& name);
  void include(const Token& name);
  void define(const Token& name);

  void open(const Token& name, bool holds);
  void otherwise(const Token& name, bool holds);
  Condition& innermost(const Token& name);
  bool evaluate(const Token& name);
  bool isTrue(const Token& operand) const;
  Token operand(const Token& name, TokenKind kind, const char* what);
  std::string restOfLine();

  Sources& sources_;
  Warnings& warnings_;
  Macros macros_;
  std::vector<File> files_;
  std::size_t bytes_ = 0;
  std::size_t includes_ = 0;
};

}  // namespace qrn::edd
