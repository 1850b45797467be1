#pragma once

#include <cstddef>
#include <string_view>

namespace qrn {

/// Walks a format pattern one piece at a time and takes care of what stands in quotes or behind a backslash.
class PatternReader {
 public:
  struct Piece {
    std::string_view text;
    bool isLiteral;  // quoted or escaped; otherwise the text is one character that may mean something
  };

  explicit PatternReader(std::string_view pattern) : rest_(pattern) {}

  bool atEnd() const { return rest_.empty(); }
  /// What is still to come.
  std::string_view rest() const { return rest_; }
  void skip(std::size_t count) { rest_.remove_prefix(count); }

  Piece next();

  /// If the rest starts with that text, in any case of its letters, skips it.
  bool skipWord(std::string_view word);
  /// Skips further occurrences of a letter, in either case, and answers how many; at most `most`.
  std::size_t skipRun(char letter, std::size_t most);

 private:
  std::string_view take(std::size_t count);
  Piece quoted();

  std::string_view rest_;
};

char asciiLower(char c);

}  // namespace qrn
