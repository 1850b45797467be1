#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "edd/reader.h"

namespace qrn::edd {

using Files = std::map<std::string, std::string>;

/// Options whose includes come from memory.
inline ReadOptions includesFrom(Files files) {
  ReadOptions options;
  options.loadInclude = [files = std::move(files)](const std::string& path) -> std::optional<std::string> {
    const auto found = files.find(path);
    if (found == files.end()) return std::nullopt;
    return found->second;
  };
  return options;
}

inline ReadOptions inLanguage(std::string language) {
  ReadOptions options;
  options.language = std::move(language);
  return options;
}

/// Complete and on one line, so that what follows it starts on line 1.
inline const std::string identification = "MANUFACTURER 1, DEVICE_TYPE 2, DEVICE_REVISION 3, DD_REVISION 4 ";

inline Description read(const std::string& text, const ReadOptions& options = {}) {
  return readDescriptionText(identification + text, "test.ddl", options);
}

/// What the reader says about a text that it refuses; empty if it does not.
inline std::string errorOf(const std::string& text, const ReadOptions& options = {}) {
  try {
    read(text, options);
  } catch (const DescriptionError& error) {
    return error.what();
  }
  return {};
}

inline std::vector<std::string> warningsOf(const Description& description) {
  std::vector<std::string> texts;
  for (const Diagnostic& warning : description.warnings)
    texts.push_back(warning.file + ":" + std::to_string(warning.line) + ": " + warning.text);
  return texts;
}

/// The only variable of a description.
inline Variable variableOf(const std::string& attributes, const ReadOptions& options = {}) {
  return read("VARIABLE v { " + attributes + " }", options).variables().at(0);
}

using Texts = std::vector<std::string>;

}  // namespace qrn::edd
