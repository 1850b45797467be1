#include "edd/type_parser.h"

#include <algorithm>
#include <charconv>

#include "edd/parser.h"

namespace qrn::edd {

namespace {

struct TypeRule {
  ValueKind kind;
  std::uint32_t size;  // if none is written
  std::uint32_t smallest;
  std::uint32_t largest;
};

constexpr std::uint32_t longest = 65'535;

constexpr TypeRule typeRules[] = {{ValueKind::Integer, 1, 1, 8},
                                  {ValueKind::UnsignedInteger, 1, 1, 8},
                                  {ValueKind::Float, 4, 4, 4},
                                  {ValueKind::Double, 8, 8, 8},
                                  {ValueKind::Enumerated, 1, 1, 8},
                                  {ValueKind::BitEnumerated, 1, 1, 8},
                                  {ValueKind::Index, 1, 1, 8},
                                  {ValueKind::Ascii, 1, 1, longest},
                                  {ValueKind::PackedAscii, 1, 1, longest},
                                  {ValueKind::Visible, 1, 1, longest},
                                  {ValueKind::Euc, 1, 1, longest},
                                  {ValueKind::Password, 1, 1, longest},
                                  {ValueKind::BitString, 1, 1, longest},
                                  {ValueKind::OctetString, 1, 1, longest},
                                  {ValueKind::Date, 0, 0, 8},
                                  {ValueKind::Time, 0, 0, 8},
                                  {ValueKind::DateAndTime, 0, 0, 8},
                                  {ValueKind::Duration, 0, 0, 8},
                                  {ValueKind::TimeValue, 0, 0, 8}};

const TypeRule& ruleOf(const Token& keyword, const Variable& variable) {
  const auto* const found =
      std::find_if(std::begin(typeRules), std::end(typeRules),
                   [&keyword](const TypeRule& rule) { return keyword.is(keywordOf(rule.kind)); });
  if (found == std::end(typeRules))
    fail(keyword, "unknown type " + inQuotes(keyword.text) + " of variable " + inQuotes(variable.name));
  return *found;
}

std::uint32_t parseSize(Cursor& cursor, const TypeRule& rule, const Variable& variable) {
  if (!cursor.accept("(")) return rule.size;
  const Token at = cursor.peek();
  const auto size = cursor.number();
  if (!size) fail(at, "expected the size of variable " + inQuotes(variable.name) + ", found " + at.shown());
  if (!size->whole || size->value < rule.smallest || size->value > rule.largest)
    fail(at, "size " + size->text + " of variable " + inQuotes(variable.name) +
                 " is out of range: " + std::string(keywordOf(rule.kind)) + " has " +
                 std::to_string(rule.smallest) + " to " + std::to_string(rule.largest));
  cursor.expect(")", "after the size of variable " + inQuotes(variable.name));
  return static_cast<std::uint32_t>(size->magnitude);
}

// { value, "text", "help", classes and actions ... }
void parseEnumerator(Cursor& cursor, const Token& opened, Variable& variable) {
  const std::string owner = "of variable " + inQuotes(variable.name);
  const Token at = cursor.peek();
  const auto value = cursor.number();
  if (!value) fail(at, "expected a value " + owner + ", found " + at.shown());
  if (!fits(*value, variable.type))
    fail(at, "value " + value->text + " " + owner + " does not fit " + shown(variable.type));
  cursor.expect(",", "after value " + value->text + " " + owner);
  Enumerator entry{value->magnitude, value->text, ""};
  if (auto text = cursor.text()) {
    entry.text = std::move(*text);
    if (cursor.accept(",")) entry.help = cursor.text().value_or("");
  } else {
    cursor.warnings().add(cursor.peek(), "the text of a value is not a constant here and skipped");
  }
  cursor.skipToEndOf(opened);
  variable.enumerators.push_back(std::move(entry));
}

void parseTypeBlock(Cursor& cursor, const Token& opened, WrittenVariable& into) {
  const std::string_view keyword = keywordOf(into.variable.type.kind);
  while (!cursor.accept("}")) {
    const Token first = cursor.peek();
    if (first.kind == TokenKind::End)
      fail(opened, "this \"{\" of the type of variable " + inQuotes(into.variable.name) + " has no \"}\"");
    if (cursor.accept(";") || cursor.accept(",")) continue;
    if (into.variable.type.isEnumeration() && cursor.accept("{")) {
      parseEnumerator(cursor, first, into.variable);
      continue;
    }
    const Token attribute =
        cursor.expectName("an attribute of the type of variable " + inQuotes(into.variable.name));
    if (!parseValueAttribute(cursor, attribute, into)) skipAttribute(cursor, attribute, keyword);
  }
}

// The n of MIN_VALUEn; more digits than anybody writes are another name.
std::optional<unsigned> limitNumber(std::string_view name, std::string_view keyword) {
  if (!name.starts_with(keyword) || name.size() > keyword.size() + 3) return std::nullopt;
  if (name.size() == keyword.size()) return 0;
  unsigned number = 0;
  const auto [end, error] = std::from_chars(name.data() + keyword.size(), name.data() + name.size(), number);
  if (error != std::errc{} || end != name.data() + name.size()) return std::nullopt;
  return number;
}

void parseValue(Cursor& cursor, const Token& attribute, std::optional<WrittenValue>& into) {
  WrittenValue value{attribute, {}, {}};
  if (auto text = cursor.text()) {
    value.text = std::move(*text);
  } else if ((value.number = cursor.number())) {
    value.text = value.number->text;
  } else {
    return skipValue(cursor, attribute);
  }
  cursor.expect(";", "after " + std::string(attribute.text));
  into = std::move(value);
}

// A limit that is no constant makes no range.
void parseLimit(Cursor& cursor, const Token& attribute, std::optional<WrittenValue> WrittenRange::*side,
                unsigned number, WrittenVariable& into) {
  std::optional<WrittenValue> limit;
  parseValue(cursor, attribute, limit);
  if (limit) into.ranges[number].*side = std::move(limit);
}

}  // namespace

void parseType(Cursor& cursor, WrittenVariable& into) {
  const Token keyword = cursor.expectName("the type of variable " + inQuotes(into.variable.name));
  const TypeRule& rule = ruleOf(keyword, into.variable);
  into.variable.type = {rule.kind, parseSize(cursor, rule, into.variable)};
  // An index names the list that it counts in.
  if (rule.kind == ValueKind::Index && cursor.peek().kind == TokenKind::Name) cursor.next();
  if (!cursor.peek().is("{")) {
    cursor.expect(";", "after TYPE");
    return;
  }
  parseTypeBlock(cursor, cursor.next(), into);
}

bool parseValueAttribute(Cursor& cursor, const Token& attribute, WrittenVariable& into) {
  if (attribute.is("DISPLAY_FORMAT")) {
    parseText(cursor, attribute, into.variable.displayFormat);
  } else if (attribute.is("EDIT_FORMAT")) {
    parseText(cursor, attribute, into.variable.editFormat);
  } else if (attribute.is("DEFAULT_VALUE")) {
    parseValue(cursor, attribute, into.defaultValue);
  } else if (attribute.is("INITIAL_VALUE")) {
    parseValue(cursor, attribute, into.initialValue);
  } else if (const auto minimum = limitNumber(attribute.text, "MIN_VALUE")) {
    parseLimit(cursor, attribute, &WrittenRange::minimum, *minimum, into);
  } else if (const auto maximum = limitNumber(attribute.text, "MAX_VALUE")) {
    parseLimit(cursor, attribute, &WrittenRange::maximum, *maximum, into);
  } else {
    return false;
  }
  return true;
}

}  // namespace qrn::edd
