#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "edd/description.h"

namespace qrn::edd {

/// A description that cannot be used; what() reads `file:line: what is wrong`.
class DescriptionError : public std::runtime_error {
 public:
  DescriptionError(Place where, const std::string& text)
      : std::runtime_error(where.file + ":" + std::to_string(where.line) + ": " + text),
        where_(std::move(where)) {}

  const Place& where() const { return where_; }

 private:
  Place where_;
};

/// The content of an included file, or nothing if there is no such file. The path is the including file's
/// folder and the name as written, joined and normalised.
using IncludeLoader = std::function<std::optional<std::string>(const std::string& path)>;

struct ReadOptions {
  std::string language = "en";  ///< wanted language; then English, then the first one written
  IncludeLoader loadInclude;    ///< empty: readDescription reads files, readDescriptionText finds none
};

/// Reads EDD text (IEC 61804-3) from a file. Time and memory are linear in what is read; files of more than
/// 64 MB and macros that multiply their input beyond measure are refused.
/// @throws DescriptionError if the file cannot be read or used.
Description readDescription(const std::filesystem::path& file, const ReadOptions& options = {});

/// The same for text that is in memory already; `fileName` is what messages call it.
Description readDescriptionText(std::string_view text, std::string_view fileName,
                                const ReadOptions& options = {});

}  // namespace qrn::edd
