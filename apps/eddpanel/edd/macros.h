#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "edd/lexer.h"

namespace qrn::edd {

/// The object-like macros of a description and the expansions under way.
/// Tokens of a macro bear the line where it was used, as that is where a mistake shows.
class Macros {
 public:
  static constexpr std::size_t maximumExpansion = 4'000'000;  ///< macro uses and the tokens that come of them

  void define(std::string_view name, std::vector<Token> body) { macros_[name].body = std::move(body); }
  void undefine(std::string_view name) { macros_.erase(name); }
  bool isDefined(std::string_view name) const { return macros_.contains(name); }
  /// What `name` stands for, or null.
  const std::vector<Token>* bodyOf(std::string_view name) const;

  /// If `token` names a macro, its tokens are what next() answers from now on.
  /// @throws DescriptionError if the macro is being expanded already, or if there is too much of it
  bool expand(const Token& token);

  /// The next token of the macros being expanded, or nothing when all of them have ended.
  std::optional<Token> next();

 private:
  struct Macro {
    std::vector<Token> body;
    bool expanding = false;
  };
  struct Expansion {
    std::string_view name;
    Macro* macro;
    std::size_t position;
    Token use;  // where in a file the outermost macro was used
  };

  void spend(const Token& at);
  [[noreturn]] void refuseCycle(const Token& use) const;

  std::unordered_map<std::string_view, Macro> macros_;
  std::vector<Expansion> expansions_;
  std::size_t spent_ = 0;
};

}  // namespace qrn::edd
