#pragma once

#include <memory>
#include <optional>
#include <string>

#include "runtime/format.h"

namespace qrn {

/// The rule, character set and format of a row. Most rows have few of them, and many have the same ones:
/// those that were set one after the other share them.
class ValueSettings {
 public:
  const std::string& rule() const { return texts().rule; }
  const std::string& charSet() const { return texts().charSet; }
  const std::string& format() const { return texts().format; }
  void setRule(const std::string& rule) { change(&Texts::rule, rule); }
  void setCharSet(const std::string& charSet) { change(&Texts::charSet, charSet); }
  void setFormat(const std::string& format) { change(&Texts::format, format); }

  /// The format, read once; null for none.
  const CompiledFormat* compiledFormat() const { return texts().compiled ? &*texts().compiled : nullptr; }

 private:
  struct Texts {
    std::string rule;
    std::string charSet;
    std::string format;
    std::optional<CompiledFormat> compiled;
  };

  const Texts& texts() const;
  void change(std::string Texts::*text, const std::string& value);

  std::shared_ptr<const Texts> texts_;
};

}  // namespace qrn
