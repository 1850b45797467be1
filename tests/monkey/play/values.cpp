#include "values.h"

#include <vector>

#include "images/built_in_pictures.h"
#include "runtime/conversions.h"
#include "runtime/errors.h"

namespace qrn::monkey {

std::string anyCaption(Numbers& numbers) {
  static const std::string captions[] = {
      "Damping", "", "a", "&Apply", "A rather long caption of a value", "ä€\U0001F600", "two\nlines", "&&"};
  return numbers.oneOf(captions);
}

std::string anyTypedText(Numbers& numbers) {
  static const std::string texts[] = {"7",  "abc", "-1.5", "0",   "1e5",  " ",          "ä€", "FF",
                                      ",5", "99",  "x",    "101", "12.5", "31.12.1999", "+"};
  return numbers.oneOf(texts);
}

std::string anyRule(Numbers& numbers) {
  static const std::string rules[] = {"", "0..10", "..5;7..", "#*", "[A-Z]*", "?", "..", "[a", "9..1"};
  return numbers.oneOf(rules);
}

std::string anyCharSet(Numbers& numbers) {
  static const std::string sets[] = {"", "0-9", "a-zA-Z", "!x", "z-a", "]"};
  return numbers.oneOf(sets);
}

std::string anyFormat(Numbers& numbers) {
  static const std::string formats[] = {"",           "0.00", "#,##0.###", "Scientific",
                                        "dd.mm.yyyy", ">@@@", "\"",        "%"};
  return numbers.oneOf(formats);
}

Variant anyValue(Numbers& numbers) {
  static const Variant values[] = {5,
                                   "7",
                                   true,
                                   0,
                                   "",
                                   -1.5,
                                   "abc",
                                   std::int16_t{1},
                                   "10110",
                                   1e300,
                                   Date{36525.5},
                                   Currency{12345},
                                   Decimal::fromDigits(false, "12345", -2),
                                   Empty{},
                                   Null{},
                                   ErrorValue{5},
                                   ObjectPtr()};
  return numbers.oneOf(values);
}

qrnValueType anyValueType(Numbers& numbers) { return static_cast<qrnValueType>(numbers.below(13)); }

std::int32_t anyLength(Numbers& numbers) {
  static const std::int32_t lengths[] = {5, 0, 1, -1, 20, 100, 300, 2000, -50};
  return numbers.oneOf(lengths);
}

host::FontPtr anyFont(Numbers& numbers) {
  static const host::FontPtr fonts[] = {std::make_shared<host::Font>("DejaVu Sans", 9),
                                        std::make_shared<host::Font>("DejaVu Sans", 14, true),
                                        std::make_shared<host::Font>("DejaVu Sans", 6), nullptr};
  return numbers.oneOf(fonts);
}

host::PicturePtr anyPicture(Numbers& numbers) {
  const std::size_t which = numbers.below(4);
  if (which == 0) return builtInPicture(qrnImageInfo);
  if (which == 1) return nullptr;
  if (which == 2) return std::make_shared<host::Picture>(std::vector<host::Picture::Bitmap>{});
  return std::make_shared<host::Picture>(
      std::vector<host::Picture::Bitmap>{{40, 9, std::vector<std::uint32_t>(360, 0xFF336699)}});
}

bool anyFlag(Numbers& numbers) { return numbers.below(2) == 1; }

std::string quoted(std::string_view text) {
  std::string result = "\"";
  for (const char c : text) result += c == '\n' ? "\\n" : c == '"' ? "\\\"" : std::string(1, c);
  return result + '"';
}

std::string shown(const Variant& value) {
  std::string text(typeName(value.type()));
  if (const auto* held = value.get<std::string>()) return quoted(*held);
  ignoringErrors([&] { text += " " + CStr(value); });
  return text;
}

std::string shown(bool flag) { return flag ? "true" : "false"; }

}  // namespace qrn::monkey
