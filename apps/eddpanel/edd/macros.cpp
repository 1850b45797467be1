#include "edd/macros.h"

#include <algorithm>

#include "edd/chain.h"

namespace qrn::edd {

const std::vector<Token>* Macros::bodyOf(std::string_view name) const {
  const auto found = macros_.find(name);
  return found == macros_.end() ? nullptr : &found->second.body;
}

bool Macros::expand(const Token& token) {
  const auto found = macros_.find(token.text);
  if (found == macros_.end()) return false;
  spend(token);
  Macro& macro = found->second;
  if (macro.expanding) refuseCycle(token);
  macro.expanding = true;
  expansions_.push_back({found->first, &macro, 0, token});
  return true;
}

std::optional<Token> Macros::next() {
  while (!expansions_.empty()) {
    Expansion& current = expansions_.back();
    if (current.position < current.macro->body.size()) {
      Token token = current.macro->body[current.position++];
      token.source = current.use.source;
      token.line = current.use.line;
      token.startsLine = false;
      spend(token);
      return token;
    }
    current.macro->expanding = false;
    expansions_.pop_back();
  }
  return std::nullopt;
}

// A few definitions that double each other would otherwise make more tokens than any memory holds.
void Macros::spend(const Token& at) {
  if (++spent_ > maximumExpansion)
    fail(at, "macros expand to more than " + std::to_string(maximumExpansion) + " tokens");
}

void Macros::refuseCycle(const Token& use) const {
  auto first = std::find_if(expansions_.begin(), expansions_.end(),
                            [&use](const Expansion& expansion) { return expansion.name == use.text; });
  std::vector<std::string_view> names;
  for (; first != expansions_.end(); ++first) names.push_back(first->name);
  names.push_back(use.text);
  fail(use, "macro " + inQuotes(use.text) + " expands to itself: " + chain(names));
}

}  // namespace qrn::edd
