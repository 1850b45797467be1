#pragma once

#include <set>
#include <string>
#include <vector>

#include "edd/lexer.h"

namespace qrn::edd {

/// Collects warnings, one for each text however often it is deserved, and not more than anybody would read.
class Warnings {
 public:
  static constexpr std::size_t maximum = 200;

  explicit Warnings(std::vector<Diagnostic>& list) : list_(list) {}

  void add(const Token& at, const std::string& text);

 private:
  std::vector<Diagnostic>& list_;
  std::set<std::string> given_;
};

}  // namespace qrn::edd
