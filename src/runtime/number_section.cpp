#include "runtime/number_section.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace qrn {
namespace {

constexpr int kMostQuickDecimals = 9;
constexpr double kPowersOfTen[kMostQuickDecimals + 1] = {1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9};

// Digits rounded to so many decimals, by way of one whole number. Fails where the fifteen-digit rounding that
// counts could come out differently: too many digits, or too close to a tie.
bool quickDigits(double magnitude, int decimals, DecimalDigits& result) {
  if (decimals > kMostQuickDecimals) return false;
  const double scaled = magnitude * kPowersOfTen[decimals];
  if (!(scaled < 1e14)) return false;
  const auto floor = static_cast<std::uint64_t>(scaled);
  const double overTie = scaled - static_cast<double>(floor) - 0.5;
  if (std::fabs(overTie) < scaled * 1e-14 + 1e-14) return false;
  const std::uint64_t whole = floor + (overTie > 0 ? 1 : 0);
  if (whole == 0) return true;
  char* const begin = result.digits.data();
  const auto written = std::to_chars(begin, begin + result.digits.size(), whole);
  std::size_t count = static_cast<std::size_t>(written.ptr - begin);
  result.point = static_cast<int>(count) - decimals;
  while (begin[count - 1] == '0') --count;
  result.count = count;
  return true;
}

bool isExponentLetter(char c) { return c == 'E' || c == 'e'; }

bool startsWithExponent(std::string_view rest) {
  return rest.size() > 1 && isExponentLetter(rest[0]) && (rest[1] == '+' || rest[1] == '-');
}

}  // namespace

bool NumberSection::startsWithNumberPart(const PatternReader& reader) {
  const std::string_view rest = reader.rest();
  return !rest.empty() &&
         (rest.front() == '0' || rest.front() == '#' || rest.front() == '%' || startsWithExponent(rest));
}

NumberSection::NumberSection(PatternReader& reader) {
  while (!reader.atEnd()) {
    const PatternReader::Piece piece = reader.next();
    if (piece.isLiteral) {
      addLiteral(piece.text);
    } else if (piece.text == ";") {
      break;
    } else {
      readCharacter(reader, piece.text);
    }
  }
  countScalingCommas();
}

void NumberSection::readCharacter(PatternReader& reader, std::string_view character) {
  switch (character.front()) {
    case '0': return addPlaceholder(Part::Zero);
    case '#': return addPlaceholder(Part::Optional);
    case '.': return addPoint();
    case ',': return addComma();
    case '%': powerOfTen_ += 2; break;
    case 'E':
    case 'e':
      if (readExponent(reader, character.front())) return;
      break;
    default: break;
  }
  addLiteral(character);
}

bool NumberSection::readExponent(PatternReader& reader, char letter) {
  const std::string_view rest = reader.rest();
  if (exponent_.letter != 0 || rest.empty() || (rest.front() != '+' && rest.front() != '-')) return false;
  countScalingCommas();
  exponent_.letter = letter;
  exponent_.plus = rest.front() == '+';
  const std::string_view places = rest.substr(1, rest.find_first_not_of("0#", 1) - 1);
  exponent_.digits = places.size();
  reader.skip(1 + places.size());
  tokens_.push_back({Part::Exponent, 0});
  return true;
}

void NumberSection::addPlaceholder(Part part) {
  tokens_.push_back({part, 0});
  if (hasPoint_) {
    ++fractionPlaces_;
    if (part == Part::Zero) leastDecimals_ = fractionPlaces_;
    return;
  }
  ++integerPlaces_;
  grouped_ = grouped_ || commas_ > 0;
  commas_ = 0;
}

// Only the first point is one.
void NumberSection::addPoint() {
  if (hasPoint_) return addLiteral(".");
  countScalingCommas();
  hasPoint_ = true;
  tokens_.push_back({Part::Point, 0});
}

// Between two placeholders it groups; behind the last one it scales. Anywhere else it says nothing.
void NumberSection::addComma() {
  if (!hasPoint_ && integerPlaces_ > 0) ++commas_;
}

void NumberSection::countScalingCommas() {
  powerOfTen_ -= 3 * commas_;
  commas_ = 0;
}

void NumberSection::addLiteral(std::string_view text) {
  literals_ += text;
  if (!tokens_.empty() && tokens_.back().part == Part::Literal) {
    tokens_.back().length += text.size();
  } else {
    tokens_.push_back({Part::Literal, text.size()});
  }
}

void NumberSection::write(std::string& out, double magnitude, const Locale& locale) const {
  DecimalDigits digits;
  const bool plain = exponent_.letter == 0 && powerOfTen_ == 0;
  if (plain && quickDigits(magnitude, fractionPlaces_, digits)) return writeDigits(out, digits, 0, locale);
  write(out, decimalDigits(magnitude, kDoubleDigits), locale);
}

void NumberSection::write(std::string& out, DecimalDigits magnitude, const Locale& locale) const {
  if (magnitude.count > 0) magnitude.point += powerOfTen_;
  const int exponent = exponent_.letter == 0 ? 0 : scaleToExponent(magnitude);
  magnitude.roundAt(-fractionPlaces_);
  writeDigits(out, magnitude, exponent, locale);
}

// As many digits go before the point as there are places; the exponent makes up for it.
int NumberSection::scaleToExponent(DecimalDigits& digits) const {
  if (digits.count == 0) return 0;
  int exponent = digits.point - integerPlaces_;
  digits.point = integerPlaces_;
  digits.roundAt(-fractionPlaces_);
  if (digits.count > 0 && digits.point > integerPlaces_) {
    ++exponent;
    digits.point = integerPlaces_;
  }
  return exponent;
}

class NumberSection::Writer {
 public:
  Writer(std::string& out, const NumberSection& section, const DecimalDigits& digits, const Locale& locale)
      : out_(out),
        section_(section),
        digits_(digits),
        locale_(locale),
        wholeDigits_(digits.count > 0 ? std::max(digits.point, 0) : 0),
        decimals_(std::max(digits.count > 0 ? static_cast<int>(digits.count) - digits.point : 0,
                           section.leastDecimals_)),
        position_(section.integerPlaces_) {}

  void writePlace(Part part) {
    if (position_ > 0) {
      writeWholePlace(part);
    } else if (-position_ < decimals_) {
      out_ += digits_.digitAt(position_ - 1);
    }
    --position_;
  }

  void writePoint() {
    if (section_.integerPlaces_ == 0) writeWhole(wholeDigits_, 0);
    out_ += locale_.decimalSeparator;
  }

  void writeExponent(int exponent) {
    const ExponentForm& form = section_.exponent_;
    out_ += form.letter;
    if (exponent < 0) out_ += '-';
    if (exponent >= 0 && form.plus) out_ += '+';
    const std::string digits = std::to_string(std::abs(exponent));
    if (digits.size() < form.digits) out_.append(form.digits - digits.size(), '0');
    out_ += digits;
  }

 private:
  // The first place takes all the digits that are too many.
  void writeWholePlace(Part part) {
    if (position_ == section_.integerPlaces_ && wholeDigits_ > position_) writeWhole(wholeDigits_, position_);
    filled_ = filled_ || part == Part::Zero || wholeDigits_ >= position_;
    if (filled_) writeWhole(position_, position_ - 1);
  }

  // The digits from the place of 10^(from-1) down to that of 10^to.
  void writeWhole(int from, int to) {
    for (int place = from - 1; place >= to; --place) {
      out_ += digits_.digitAt(place);
      if (section_.grouped_ && place > 0 && place % 3 == 0) out_ += locale_.groupSeparator;
    }
  }

  std::string& out_;
  const NumberSection& section_;
  const DecimalDigits& digits_;
  const Locale& locale_;
  const int wholeDigits_;
  const int decimals_;
  int position_;         // the next place stands for 10^(position_ - 1)
  bool filled_ = false;  // a digit has been written, so the places after it are no longer optional
};

void NumberSection::writeDigits(std::string& out, const DecimalDigits& digits, int exponent,
                                const Locale& locale) const {
  Writer writer(out, *this, digits, locale);
  std::size_t literal = 0;
  for (const Token& token : tokens_) {
    switch (token.part) {
      case Part::Literal:
        out.append(literals_, literal, token.length);
        literal += token.length;
        break;
      case Part::Zero:
      case Part::Optional: writer.writePlace(token.part); break;
      case Part::Point: writer.writePoint(); break;
      case Part::Exponent: writer.writeExponent(exponent); break;
    }
  }
}

}  // namespace qrn
