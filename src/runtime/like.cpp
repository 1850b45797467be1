#include "runtime/like.h"

#include <algorithm>

#include "base/text.h"
#include "runtime/errors.h"

namespace qrn {

LikePattern::LikePattern(std::string_view pattern) {
  for (std::size_t offset = 0; offset < pattern.size();) {
    const char32_t character = text::next(pattern, offset);
    switch (character) {
      case U'?': elements_.push_back({Kind::AnyCharacter}); break;
      case U'*': elements_.push_back({Kind::AnyRun}); break;
      case U'#': elements_.push_back({Kind::Digit}); break;
      case U'[': offset = readList(pattern, offset); break;
      default: elements_.push_back({Kind::Character, character});
    }
  }
}

// From behind the bracket; answers where the pattern goes on.
std::size_t LikePattern::readList(std::string_view pattern, std::size_t offset) {
  const std::size_t end = pattern.find(']', offset);
  if (end == std::string_view::npos) raiseRunTimeError(kInvalidPatternString);
  std::string_view list = pattern.substr(offset, end - offset);
  if (list.empty()) return end + 1;
  const bool negated = list.size() > 1 && list.front() == '!';
  if (negated) list.remove_prefix(1);
  const std::size_t firstRange = ranges_.size();
  readRanges(list);
  elements_.push_back({negated ? Kind::NoneOf : Kind::OneOf, 0, firstRange, ranges_.size() - firstRange});
  return end + 1;
}

void LikePattern::readRanges(std::string_view list) {
  for (std::size_t offset = 0; offset < list.size();) {
    const char32_t first = text::next(list, offset);
    char32_t last = first;
    if (offset + 1 < list.size() && list[offset] == '-') {
      ++offset;
      last = text::next(list, offset);
      if (last < first) raiseRunTimeError(kInvalidPatternString);
    }
    ranges_.push_back({first, last});
  }
}

// After a mismatch only the latest run is worth lengthening: an earlier one can take nothing the latest could
// not.
bool LikePattern::matches(std::string_view text) const {
  constexpr std::size_t kNone = static_cast<std::size_t>(-1);
  std::size_t element = 0;
  std::size_t offset = 0;
  std::size_t afterRun = kNone;
  std::size_t runEnd = 0;
  while (offset < text.size()) {
    if (element < elements_.size() && elements_[element].kind == Kind::AnyRun) {
      afterRun = ++element;
      runEnd = offset;
      continue;
    }
    std::size_t next = offset;
    const char32_t character = text::next(text, next);
    if (element < elements_.size() && admits(elements_[element], character)) {
      ++element;
      offset = next;
    } else if (afterRun != kNone) {
      text::next(text, runEnd);
      offset = runEnd;
      element = afterRun;
    } else {
      return false;
    }
  }
  return std::all_of(elements_.begin() + static_cast<std::ptrdiff_t>(element), elements_.end(),
                     [](const Element& rest) { return rest.kind == Kind::AnyRun; });
}

bool LikePattern::admits(const Element& element, char32_t character) const {
  switch (element.kind) {
    case Kind::Character: return character == element.character;
    case Kind::Digit: return character >= U'0' && character <= U'9';
    case Kind::OneOf: return lists(element, character);
    case Kind::NoneOf: return !lists(element, character);
    case Kind::AnyCharacter:
    case Kind::AnyRun: break;
  }
  return true;
}

bool LikePattern::lists(const Element& element, char32_t character) const {
  const auto first = ranges_.begin() + static_cast<std::ptrdiff_t>(element.firstRange);
  return std::any_of(first, first + static_cast<std::ptrdiff_t>(element.rangeCount),
                     [&](const Range& range) { return range.first <= character && character <= range.last; });
}

bool Like(std::string_view text, std::string_view pattern) { return LikePattern(pattern).matches(text); }

}  // namespace qrn
