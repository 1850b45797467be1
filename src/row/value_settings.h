#pragma once

#include <memory>
#include <optional>
#include <string>

#include "runtime/format.h"

namespace qrn {

/// The rule, character set and format of a row. Most rows have few of them, so they cost one pointer.
class ValueSettings {
 public:
  const std::string& rule() const { return texts_ ? texts_->rule : none(); }
  const std::string& charSet() const { return texts_ ? texts_->charSet : none(); }
  const std::string& format() const { return texts_ ? texts_->format : none(); }
  void setRule(const std::string& rule) { texts().rule = rule; }
  void setCharSet(const std::string& charSet) { texts().charSet = charSet; }
  void setFormat(const std::string& format) {
    texts().format = format;
    texts_->compiled.reset();
  }

  /// The format, read once; null for none.
  const CompiledFormat* compiledFormat() const {
    if (format().empty()) return nullptr;
    if (!texts_->compiled) texts_->compiled.emplace(texts_->format);
    return &*texts_->compiled;
  }

 private:
  struct Texts {
    std::string rule;
    std::string charSet;
    std::string format;
    std::optional<CompiledFormat> compiled;
  };

  static const std::string& none() {
    static const std::string empty;
    return empty;
  }
  Texts& texts() {
    if (!texts_) texts_ = std::make_unique<Texts>();
    return *texts_;
  }

  std::unique_ptr<Texts> texts_;
};

}  // namespace qrn
