#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace qrn {

/// A text pattern, read once: ? for one character, * for any number of them, # for a digit, [abc], [a-z] and
/// [!a-z] for one character in or not in a list. Characters are code points and their case counts; broken
/// bytes are U+FFFD. Within a list a '-' at either end stands for itself, and so does every other character
/// that means something outside; [] is as good as not there, and [!] matches an exclamation mark.
class LikePattern {
 public:
  /// Error 93 for a list without its ']' and for a range that runs backwards.
  explicit LikePattern(std::string_view pattern);

  /// Costs at most the length of the text times that of the pattern.
  bool matches(std::string_view text) const;

 private:
  struct Range {
    char32_t first;
    char32_t last;
  };
  enum class Kind : std::uint8_t { Character, AnyCharacter, AnyRun, Digit, OneOf, NoneOf };
  struct Element {
    Kind kind;
    char32_t character = 0;
    std::size_t firstRange = 0;  // of a list
    std::size_t rangeCount = 0;
  };

  std::size_t readList(std::string_view pattern, std::size_t offset);
  void readRanges(std::string_view list);
  bool admits(const Element& element, char32_t character) const;
  bool lists(const Element& element, char32_t character) const;

  std::vector<Element> elements_;
  std::vector<Range> ranges_;
};

/// Matches once. Whoever matches often with one pattern keeps a LikePattern.
bool Like(std::string_view text, std::string_view pattern);

}  // namespace qrn
