#include "runtime/pattern_reader.h"

#include <algorithm>

namespace qrn {

char asciiLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

PatternReader::Piece PatternReader::next() {
  if (rest_.front() == '"') return quoted();
  if (rest_.front() == '\\' && rest_.size() > 1) {
    skip(1);
    return {take(1), true};
  }
  return {take(1), false};
}

// A quotation without an end reaches to the end of the pattern.
PatternReader::Piece PatternReader::quoted() {
  skip(1);
  const std::string_view text = take(std::min(rest_.find('"'), rest_.size()));
  if (!rest_.empty()) skip(1);
  return {text, true};
}

bool PatternReader::skipWord(std::string_view word) {
  const auto same = [](char a, char b) { return asciiLower(a) == asciiLower(b); };
  if (rest_.size() < word.size() || !std::equal(word.begin(), word.end(), rest_.begin(), same)) return false;
  skip(word.size());
  return true;
}

std::size_t PatternReader::skipRun(char letter, std::size_t most) {
  std::size_t count = 0;
  while (count < most && count < rest_.size() && asciiLower(rest_[count]) == letter) ++count;
  skip(count);
  return count;
}

std::string_view PatternReader::take(std::size_t count) {
  const std::string_view text = rest_.substr(0, count);
  rest_.remove_prefix(count);
  return text;
}

}  // namespace qrn
