#pragma once

#include <deque>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>

#include "edd/reader.h"

namespace qrn::edd {

/// A text that is being read; it stays where it is until the reading ends, so tokens may point into it.
struct SourceText {
  std::string name;
  std::string text;  ///< UTF-8 without byte order mark, lines end with a line feed
};

/// The files of one description. Each is loaded once, however often it is included.
class Sources {
 public:
  static constexpr std::size_t maximumSize = std::size_t{64} << 20;

  explicit Sources(IncludeLoader loader) : loader_(std::move(loader)) {}

  /// Text that is not UTF-8 is taken as ISO 8859-1, which is what older tools write.
  /// @throws DescriptionError if the text is too large or UTF-16
  const SourceText& add(std::string name, std::string_view text);

  /// The file that `includer` calls `written`, or null if there is none.
  const SourceText* include(const SourceText& includer, std::string_view written);

 private:
  IncludeLoader loader_;
  std::deque<SourceText> texts_;
  std::map<std::string, const SourceText*> included_;
};

/// @throws DescriptionError if `file` is not a readable file of at most Sources::maximumSize bytes
std::string contentOf(const std::filesystem::path& file);

}  // namespace qrn::edd
