#include <charconv>
#include <cmath>
#include <optional>

#include "base/text.h"
#include "host/font.h"
#include "host/picture.h"
#include "host/property_bag_text.h"
#include "runtime/conversions.h"
#include "runtime/errors.h"

namespace qrn::host {
namespace {

/// One line of a bag's text, read from the left. Its errors name the file, the line and what was wrong.
class LineReader {
 public:
  LineReader(std::string_view line, std::string_view file, int number)
      : rest_(line), file_(file), number_(number) {}

  /// From here on the line is about the value of a property.
  void isAbout(std::string_view key) { about_ = "property \"" + shownPart(key) + "\": "; }

  [[noreturn]] void refuse(const std::string& what) const { refuseLine(file_, number_, about_ + what); }

  std::string_view word() { return upTo(" \t="); }
  /// A part of a value, which may well hold an equals sign.
  std::string_view part() { return upTo(" \t"); }

  void expect(char wanted) {
    skipBlanks();
    if (rest_.empty() || rest_.front() != wanted) refuse(std::string("expected \"") + wanted + '"');
    rest_.remove_prefix(1);
  }

  bool startsText() {
    skipBlanks();
    return !rest_.empty() && rest_.front() == '"';
  }

  std::string quotedText() {
    expect('"');
    std::string result;
    while (true) {
      if (rest_.empty()) refuse("the text has no closing quotation mark");
      const char c = take();
      if (c == '"') return result;
      result += c == '\\' ? escaped() : c;
    }
  }

  template <class Number>
  Number number(
      std::string_view what, bool (*fits)(Number) = [](Number) { return true; }) {
    const std::string_view text = part();
    Number value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || !fits(value)) refuseAs(text, what);
    return value;
  }

  // No property of a control is infinite or no number at all, so a text that says so is a mistake.
  template <class Number>
  Number finite(std::string_view what) {
    return number<Number>(what, [](Number value) { return std::isfinite(value); });
  }

  [[noreturn]] void refuseAs(std::string_view text, std::string_view what) const {
    refuse("\"" + shownPart(text) + "\" is no " + std::string(what));
  }

  void expectEnd() {
    skipBlanks();
    if (!rest_.empty()) refuse("unexpected \"" + shownPart(rest_) + "\" after the value");
  }

 private:
  std::string_view upTo(std::string_view ends) {
    skipBlanks();
    const auto end = std::min(rest_.find_first_of(ends), rest_.size());
    const std::string_view result = rest_.substr(0, end);
    rest_.remove_prefix(end);
    return result;
  }

  void skipBlanks() { rest_.remove_prefix(std::min(rest_.find_first_not_of(" \t"), rest_.size())); }

  char take() {
    const char c = rest_.front();
    rest_.remove_prefix(1);
    return c;
  }

  char escaped() {
    if (rest_.empty()) refuse("the text ends inside an escape");
    switch (const char c = take()) {
      case 'n': return '\n';
      case 'r': return '\r';
      case 't': return '\t';
      case '"':
      case '\\': return c;
      default: refuse("unknown escape \"\\" + shownPart({&c, 1}) + '"');
    }
  }

  std::string_view rest_;
  std::string_view file_;
  std::string about_;
  int number_;
};

Variant readFont(LineReader& line) {
  auto font = std::make_shared<Font>();
  font->family = line.quotedText();
  font->size = line.number<double>("font size", isFontSize);
  for (std::string_view style = line.part(); !style.empty(); style = line.part()) {
    if (style == "bold")
      font->bold = true;
    else if (style == "italic")
      font->italic = true;
    else if (style == "underline")
      font->underline = true;
    else if (style == "strikethrough")
      font->strikethrough = true;
    else
      line.refuse("unknown font style \"" + shownPart(style) + '"');
  }
  return font;
}

Variant readPicture(LineReader& line) {
  try {
    return std::const_pointer_cast<Picture>(pictureFromText(line.part()));
  } catch (const RunTimeError& error) {
    line.refuse(error.description());
  }
}

std::optional<Decimal> decimalFrom(std::string_view text) {
  const bool negative = text.starts_with('-');
  text.remove_prefix(negative ? 1 : 0);
  const std::size_t point = std::min(text.find('.'), text.size());
  const std::string_view decimals = text.substr(std::min(point + 1, text.size()));
  const std::string digits = std::string(text.substr(0, point)) + std::string(decimals);
  if (digits.empty() || digits.find_first_not_of("0123456789") != std::string::npos) return std::nullopt;
  return Decimal::fromDigits(negative, digits, -static_cast<std::int64_t>(decimals.size()));
}

// Currency and Decimal stand there as plain digits with a point, whatever the locale.
template <class Convert>
Variant readExact(LineReader& line, std::string_view what, Convert convert) {
  const std::string_view text = line.part();
  try {
    if (const auto value = decimalFrom(text)) return convert(Variant(*value));
  } catch (const RunTimeError&) {
    // Too large: refused like what is no number at all.
  }
  line.refuseAs(text, what);
}

Variant readTyped(LineReader& line, std::string_view type) {
  if (type == "True") return true;
  if (type == "False") return false;
  if (type == "Empty") return {};
  if (type == "Null") return Null();
  if (type == "Integer") return line.number<std::int16_t>("Integer");
  if (type == "Long") return line.number<std::int32_t>("Long");
  if (type == "Single") return line.finite<float>("Single");
  if (type == "Double") return line.finite<double>("Double");
  if (type == "Date") return Date{line.finite<double>("Date")};
  if (type == "Error") return ErrorValue{line.number<std::int32_t>("Error")};
  if (type == "Currency") return readExact(line, type, [](const Variant& v) { return Variant(CCur(v)); });
  if (type == "Decimal") return readExact(line, type, [](const Variant& v) { return Variant(CDec(v)); });
  if (type == "Font") return readFont(line);
  if (type == "Picture") return readPicture(line);
  line.refuse("unknown type \"" + shownPart(type) + '"');
}

}  // namespace

PropertyBag::Item readLine(std::string_view text, std::string_view file, int number) {
  LineReader line(text, file, number);
  PropertyBag::Item item;
  const bool quoted = line.startsText();
  item.key = quoted ? line.quotedText() : std::string(line.word());
  if (item.key.empty() && !quoted) line.refuse("expected a property's name");
  line.isAbout(item.key);
  line.expect('=');
  if (line.startsText())
    item.value = line.quotedText();
  else
    item.value = readTyped(line, line.word());
  line.expectEnd();
  return item;
}

void refuseLine(std::string_view file, int number, const std::string& what) {
  raiseRunTimeError(kInvalidFileFormat, "PropertyBag",
                    std::string(file) + ":" + std::to_string(number) + ": " + what);
}

std::string shownPart(std::string_view text) {
  constexpr int kMost = 40;
  std::string result;
  std::size_t offset = 0;
  for (int count = 0; offset < text.size(); ++count) {
    if (count == kMost) return result + "...";
    const char32_t c = text::next(text, offset);
    text::append(result, c < 0x20 || c == 0x7F ? U'?' : c);
  }
  return result;
}

}  // namespace qrn::host
