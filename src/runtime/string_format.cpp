#include "runtime/string_format.h"

#include <utility>

#include "base/letter_case.h"
#include "base/text.h"

namespace qrn {
namespace {

constexpr std::size_t kMostSections = 2;

// Hands out a text character by character.
class Characters {
 public:
  explicit Characters(std::string_view text) : text_(text) {}
  std::string_view take(std::size_t count) {
    const std::size_t start = offset_;
    for (; count > 0 && offset_ < text_.size(); --count) text::next(text_, offset_);
    return text_.substr(start, offset_ - start);
  }
  std::string_view takeRest() { return text_.substr(std::exchange(offset_, text_.size())); }

 private:
  std::string_view text_;
  std::size_t offset_ = 0;
};

}  // namespace

bool StringFormat::startsWithTextPart(const PatternReader& reader) {
  return !reader.atEnd() && std::string_view("@&<>!").find(reader.rest().front()) != std::string_view::npos;
}

StringFormat::StringFormat(std::string_view pattern) {
  PatternReader reader(pattern);
  do sections_.emplace_back(reader);
  while (!reader.atEnd() && sections_.size() < kMostSections);
}

StringFormat::Section::Section(PatternReader& reader) {
  while (!reader.atEnd()) {
    const PatternReader::Piece piece = reader.next();
    if (piece.isLiteral) {
      addLiteral(piece.text);
    } else if (piece.text == ";") {
      return;
    } else {
      readCharacter(piece.text);
    }
  }
}

void StringFormat::Section::readCharacter(std::string_view character) {
  switch (character.front()) {
    case '@': return addPlace(Part::CharacterOrBlank);
    case '&': return addPlace(Part::CharacterOrNothing);
    case '<': letterCase = Case::Lower; return;
    case '>': letterCase = Case::Upper; return;
    case '!': fromLeft = true; return;
    default: addLiteral(character);
  }
}

void StringFormat::Section::addPlace(Part part) {
  tokens.push_back({part, 0});
  ++places;
}

void StringFormat::Section::addLiteral(std::string_view text) {
  literals += text;
  if (!tokens.empty() && tokens.back().part == Part::Literal) {
    tokens.back().length += text.size();
  } else {
    tokens.push_back({Part::Literal, text.size()});
  }
}

std::string StringFormat::apply(std::string_view text) const {
  const bool second = text.empty() && sections_.size() > 1;
  const Section& section = second ? sections_[1] : sections_[0];
  switch (section.letterCase) {
    case Case::Lower: return section.fill(lowerCase(text));
    case Case::Upper: return section.fill(upperCase(text));
    case Case::AsIs: break;
  }
  return section.fill(text);
}

// Filled from the right, places in front stay without a character when there are too few, and the first place
// takes those that are too many. Filled from the left, both happen at the end.
std::string StringFormat::Section::fill(std::string_view text) const {
  const std::size_t length = text::length(text);
  std::size_t vacant = !fromLeft && length < places ? places - length : 0;
  std::size_t surplus = !fromLeft && length > places ? length - places : 0;
  Characters characters(text);
  std::string out;
  std::size_t literal = 0;
  for (const Token& token : tokens) {
    if (token.part == Part::Literal) {
      out.append(literals, literal, token.length);
      literal += token.length;
      continue;
    }
    const std::string_view taken =
        vacant > 0 ? std::string_view() : characters.take(1 + std::exchange(surplus, 0));
    if (vacant > 0) --vacant;
    out += taken;
    if (taken.empty() && token.part == Part::CharacterOrBlank) out += ' ';
  }
  out += characters.takeRest();
  return out;
}

}  // namespace qrn
