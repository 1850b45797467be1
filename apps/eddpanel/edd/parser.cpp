#include "edd/parser.h"

#include <limits>
#include <utility>

namespace qrn::edd {

namespace {

void refuseDuplicate(const Description& description, const Token& name) {
  const auto earlier = description.find(name.text);
  if (!earlier) return;
  const Place& where = description.placeOf(*earlier);
  fail(name, "duplicate name " + inQuotes(name.text) + ", declared already at " + where.file + ":" +
                 std::to_string(where.line));
}

IdentificationValue identificationValue(Cursor& cursor, const Token& key) {
  const Token first = cursor.peek();
  if (const auto text = cursor.text()) return {*text, 0};
  if (first.kind == TokenKind::Name) return {std::string(cursor.next().text), 0};
  const auto number = cursor.number();
  if (!number) fail(first, "expected a value of " + std::string(key.text) + ", found " + first.shown());
  if (!number->whole || number->value < 0 || number->value > std::numeric_limits<std::uint32_t>::max())
    fail(first, std::string(key.text) + " " + number->text + " is out of range");
  return {number->text, static_cast<std::uint32_t>(number->magnitude)};
}

bool isIdentificationKey(const Token& token) {
  static constexpr std::string_view keys[] = {"MANUFACTURER",    "MANUFACTURER_EXT", "DEVICE_TYPE",
                                              "DEVICE_REVISION", "DD_REVISION",      "EDD_VERSION",
                                              "EDD_PROFILE"};
  for (const std::string_view key : keys)
    if (token.is(key)) return true;
  return false;
}

// MANUFACTURER 0x1F7, DEVICE_TYPE 1, ... : neither braces nor a semicolon end this one, only a missing comma.
void parseIdentification(Cursor& cursor, Token key, Identification& into) {
  for (;;) {
    IdentificationValue value = identificationValue(cursor, key);
    if (key.is("MANUFACTURER")) into.manufacturer = std::move(value);
    if (key.is("DEVICE_TYPE")) into.deviceType = std::move(value);
    if (key.is("DEVICE_REVISION")) into.deviceRevision = std::move(value);
    if (key.is("DD_REVISION")) into.ddRevision = std::move(value);
    if (!isIdentificationKey(key))
      cursor.warnings().add(key, std::string(key.text) + " of the identification is not known and skipped");
    if (!cursor.accept(",")) return;
    key = cursor.expectName("a name of the identification");
  }
}

// The name of what is skipped stands before its braces, or, if it is like something else, first.
void skipDeclaration(Cursor& cursor, const Token& keyword, WrittenDescription& into) {
  const bool isLike = cursor.peek().is("LIKE");
  const std::string_view kind = isLike ? "LIKE" : keyword.text;
  cursor.warnings().add(keyword, std::string(kind) + " is not known and skipped");
  std::string_view name = keyword.text;
  while (!isLike && cursor.peek().kind == TokenKind::Name) name = cursor.next().text;
  if (name != keyword.text || isLike) into.skippedNames.emplace(name, kind);
  cursor.skipStatement();
}

void parseDeclaration(Cursor& cursor, const Token& keyword, WrittenDescription& into) {
  const bool isVariable = keyword.is("VARIABLE");
  const bool isMenu = keyword.is("MENU");
  if (!isVariable && !isMenu && !keyword.is("METHOD")) return skipDeclaration(cursor, keyword, into);

  const Token name = cursor.expectName("the name of a " + std::string(keyword.text));
  refuseDuplicate(into.description, name);
  if (isVariable) {
    into.description.add(parseVariable(cursor, name));
  } else if (isMenu) {
    into.description.add(parseMenu(cursor, name, into.menuItems.emplace_back()));
  } else {
    into.description.add(parseMethod(cursor, name));
  }
}

}  // namespace

WrittenDescription parse(Cursor& cursor) {
  WrittenDescription written;
  while (cursor.peek().kind != TokenKind::End) {
    if (cursor.accept(";")) continue;
    const Token keyword = cursor.expectName("a declaration");
    if (isIdentificationKey(keyword)) {
      parseIdentification(cursor, keyword, written.description.identification);
    } else {
      parseDeclaration(cursor, keyword, written);
    }
  }
  return written;
}

void parseText(Cursor& cursor, const Token& attribute, std::string& into) {
  auto text = cursor.text();
  if (!text) return skipValue(cursor, attribute);
  into = std::move(*text);
  cursor.expect(";", "after " + std::string(attribute.text));
}

void skipAttribute(Cursor& cursor, const Token& attribute, std::string_view owner) {
  cursor.warnings().add(
      attribute, inQuotes(attribute.text) + " of a " + std::string(owner) + " is not known and skipped");
  cursor.skipStatement();
}

void skipValue(Cursor& cursor, const Token& attribute) {
  cursor.warnings().add(attribute, std::string(attribute.text) + " is not a constant here and skipped");
  cursor.skipStatement();
}

Method parseMethod(Cursor& cursor, const Token& name) {
  auto method = named<Method>(name);
  // Parameters, which a user interface cannot pass.
  if (cursor.peek().is("(")) cursor.skipToEndOf(cursor.next());
  forEachAttribute(cursor, name, "METHOD", [&](const Token& attribute) {
    if (parseCommonAttribute(cursor, attribute, method)) return;
    if (attribute.is("DEFINITION") || attribute.is("CLASS") || attribute.is("ACCESS") || attribute.is("TYPE"))
      return cursor.skipStatement();
    skipAttribute(cursor, attribute, "METHOD");
  });
  return method;
}

}  // namespace qrn::edd
