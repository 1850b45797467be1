#include "host/property_bag.h"

#include <charconv>
#include <fstream>
#include <optional>
#include <sstream>

#include "base/text.h"
#include "host/font.h"
#include "host/picture.h"
#include "runtime/conversions.h"
#include "runtime/errors.h"

namespace qrn::host {
namespace {

constexpr std::string_view kHeader = "QRNV16Controls2 properties 1";

// ---- writing ----

std::string inQuotes(std::string_view text) {
  std::string result = "\"";
  for (const char c : text) {
    switch (c) {
      case '"': result += "\\\""; break;
      case '\\': result += "\\\\"; break;
      case '\n': result += "\\n"; break;
      case '\r': result += "\\r"; break;
      case '\t': result += "\\t"; break;
      default: result += c;
    }
  }
  return result + '"';
}

// A key that is no plain word is quoted like a text.
std::string writtenKey(std::string_view key) {
  const bool plain = !key.empty() && key.find_first_of(" \t\r\n=\"") == std::string_view::npos;
  return plain ? std::string(key) : inQuotes(key);
}

// The shortest text that reads back as the same number.
std::string exact(double number) {
  char buffer[40];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, number).ptr;
  return {buffer, end};
}

// Not by the conversions: a bag reads the same wherever it is opened.
std::string exact(Currency amount) {
  const bool negative = amount.tenThousandths < 0;
  const std::string count = std::to_string(amount.tenThousandths);
  return Decimal::fromDigits(negative, std::string_view(count).substr(negative ? 1 : 0), -4).toText();
}

std::string written(const Font& font) {
  std::string result = "Font " + inQuotes(font.family) + ' ' + exact(font.size);
  if (font.bold) result += " bold";
  if (font.italic) result += " italic";
  if (font.underline) result += " underline";
  if (font.strikethrough) result += " strikethrough";
  return result;
}

std::string writtenObject(const ObjectPtr& object) {
  if (const auto* font = dynamic_cast<const Font*>(object.get())) return written(*font);
  if (const auto* picture = dynamic_cast<const Picture*>(object.get())) return "Picture " + toText(*picture);
  return "Empty";
}

std::string written(const Variant& value) {
  switch (value.type()) {
    case Variant::Type::Empty: return "Empty";
    case Variant::Type::Null: return "Null";
    case Variant::Type::Boolean: return *value.get<bool>() ? "True" : "False";
    case Variant::Type::String: return inQuotes(*value.get<std::string>());
    case Variant::Type::Object: return writtenObject(*value.get<ObjectPtr>());
    case Variant::Type::Single: return "Single " + exact(static_cast<double>(*value.get<float>()));
    case Variant::Type::Double: return "Double " + exact(*value.get<double>());
    case Variant::Type::Currency: return "Currency " + exact(*value.get<Currency>());
    case Variant::Type::Decimal: return "Decimal " + value.get<Decimal>()->toText();
    case Variant::Type::Date: return "Date " + exact(value.get<Date>()->serial);
    case Variant::Type::Error: return "Error " + std::to_string(value.get<ErrorValue>()->number);
    default: return std::string(typeName(value.type())) + ' ' + CStr(value);
  }
}

// ---- reading ----

/// One line of a bag's text, read from the left. Its errors name the file, the line and what was wrong.
class LineReader {
 public:
  LineReader(std::string_view line, std::string_view file, int number)
      : rest_(line), file_(file), number_(number) {}

  [[noreturn]] void refuse(const std::string& what) const {
    raiseRunTimeError(kInvalidFileFormat, "PropertyBag",
                      std::string(file_) + ":" + std::to_string(number_) + ": " + what);
  }

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

  [[noreturn]] void refuseAs(std::string_view text, std::string_view what) const {
    refuse("\"" + std::string(text) + "\" is no " + std::string(what));
  }

  void expectEnd() {
    skipBlanks();
    if (!rest_.empty()) refuse("unexpected \"" + std::string(rest_.substr(0, 40)) + "\" after the value");
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
      default: refuse(std::string("unknown escape \"\\") + c + '"');
    }
  }

  std::string_view rest_;
  std::string_view file_;
  int number_;
};

Variant readFont(LineReader& line) {
  auto font = std::make_shared<Font>();
  font->family = line.quotedText();
  constexpr auto isFontSize = [](double points) { return points > 0 && points <= 10'000; };
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
      line.refuse("unknown font style \"" + std::string(style) + '"');
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
  if (type == "Single") return line.number<float>("Single");
  if (type == "Double") return line.number<double>("Double");
  if (type == "Date") return Date{line.number<double>("Date")};
  if (type == "Error") return ErrorValue{line.number<std::int32_t>("Error")};
  if (type == "Currency") return readExact(line, type, [](const Variant& v) { return Variant(CCur(v)); });
  if (type == "Decimal") return readExact(line, type, [](const Variant& v) { return Variant(CDec(v)); });
  if (type == "Font") return readFont(line);
  if (type == "Picture") return readPicture(line);
  line.refuse("unknown type \"" + std::string(type) + '"');
}

PropertyBag::Item readItem(LineReader& line) {
  PropertyBag::Item item;
  const bool quoted = line.startsText();
  item.key = quoted ? line.quotedText() : std::string(line.word());
  if (item.key.empty() && !quoted) line.refuse("expected a property's name");
  line.expect('=');
  if (line.startsText())
    item.value = line.quotedText();
  else
    item.value = readTyped(line, line.word());
  line.expectEnd();
  return item;
}

}  // namespace

bool sameValue(const Variant& a, const Variant& b) {
  const ObjectPtr *first = a.get<ObjectPtr>(), *second = b.get<ObjectPtr>();
  if (!first || !second || !*first || !*second) return a == b;
  const auto *fontA = dynamic_cast<const Font*>(first->get()),
             *fontB = dynamic_cast<const Font*>(second->get());
  if (fontA && fontB) return *fontA == *fontB;
  const auto *pictureA = dynamic_cast<const Picture*>(first->get()),
             *pictureB = dynamic_cast<const Picture*>(second->get());
  if (pictureA && pictureB) return *pictureA == *pictureB;
  return a == b;
}

const Variant* PropertyBag::find(std::string_view key) const {
  for (const Item& item : items_) {
    if (text::sameName(item.key, key)) return &item.value;
  }
  return nullptr;
}

Variant PropertyBag::readProperty(std::string_view key, const Variant& defaultValue) const {
  const Variant* kept = find(key);
  return kept ? *kept : defaultValue;
}

void PropertyBag::writeProperty(std::string_view key, const Variant& value, const Variant& defaultValue) {
  std::erase_if(items_, [key](const Item& item) { return text::sameName(item.key, key); });
  if (!sameValue(value, defaultValue)) items_.push_back({std::string(key), value});
}

std::string PropertyBag::toText() const {
  std::string result(kHeader);
  result += '\n';
  for (const Item& item : items_) result += writtenKey(item.key) + " = " + written(item.value) + '\n';
  return result;
}

PropertyBag PropertyBag::fromText(std::string_view text, std::string_view name) {
  PropertyBag bag;
  int number = 0;
  while (!text.empty() || number == 0) {
    const auto end = std::min(text.find('\n'), text.size());
    const std::string_view line = text::trimmed(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
    LineReader reader(line, name, ++number);
    if (number == 1) {
      if (line != kHeader) reader.refuse("expected \"" + std::string(kHeader) + '"');
      continue;
    }
    if (line.empty()) continue;
    Item item = readItem(reader);
    if (bag.find(item.key)) reader.refuse("property \"" + item.key + "\" stands here a second time");
    bag.items_.push_back(std::move(item));
  }
  return bag;
}

void PropertyBag::save(const std::filesystem::path& file) const {
  std::ofstream out(file, std::ios::binary);
  out << toText();
  out.close();
  if (!out) raiseRunTimeError(kFileNotFound, "PropertyBag", file.string() + ": can't be written");
}

PropertyBag PropertyBag::load(const std::filesystem::path& file) {
  std::error_code ignored;
  std::ifstream in(file, std::ios::binary);
  if (!in || std::filesystem::is_directory(file, ignored)) {
    raiseRunTimeError(kFileNotFound, "PropertyBag", file.string() + ": can't be read");
  }
  std::ostringstream text;
  text << in.rdbuf();
  return fromText(text.str(), file.string());
}

}  // namespace qrn::host
