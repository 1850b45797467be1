#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "edd/cursor.h"

namespace qrn::edd {

/// A line of a menu before it is known what its name stands for.
struct WrittenItem {
  Token name;
  bool readOnly = false;
};

/// What was read, before its parts are related to each other.
struct WrittenDescription {
  Description description;
  std::vector<std::vector<WrittenItem>> menuItems;  ///< one list for each menu
  /// Names of declarations that were skipped, and what they are (a CHART, say).
  std::unordered_map<std::string_view, std::string_view> skippedNames;
};

/// Reads all declarations of the description.
WrittenDescription parse(Cursor& cursor);

Variable parseVariable(Cursor& cursor, const Token& name);
Menu parseMenu(Cursor& cursor, const Token& name, std::vector<WrittenItem>& items);
Method parseMethod(Cursor& cursor, const Token& name);

/// A text and its semicolon. What is no constant text (a condition, a reference) is skipped with a warning
/// and leaves `into` as it was.
void parseText(Cursor& cursor, const Token& attribute, std::string& into);

/// Skips the rest of an attribute that is not known, with a warning.
void skipAttribute(Cursor& cursor, const Token& attribute, std::string_view owner);

/// Skips the rest of an attribute that is known but not written as a constant, with a warning.
void skipValue(Cursor& cursor, const Token& attribute);

/// Calls `read` with each attribute's keyword until the closing brace of the declaration `name`.
template <class Read>
void forEachAttribute(Cursor& cursor, const Token& name, std::string_view keyword, Read read) {
  const std::string where = std::string(keyword) + " " + inQuotes(name.text);
  const Token opened = cursor.expect("{", "after " + where);
  while (!cursor.accept("}")) {
    if (cursor.accept(";")) continue;
    if (cursor.peek().kind == TokenKind::End) fail(opened, "this \"{\" of " + where + " has no \"}\"");
    read(cursor.expectName("an attribute of " + where));
  }
}

/// A declaration that bears its name and, until a label is read, shows it.
template <class Declaration>
Declaration named(const Token& name) {
  Declaration declaration;
  declaration.name = declaration.label = std::string(name.text);
  declaration.where = name.place();
  return declaration;
}

/// Reads the attributes that all declarations share (LABEL and HELP); false if `attribute` is none of them.
template <class Declaration>
bool parseCommonAttribute(Cursor& cursor, const Token& attribute, Declaration& into) {
  if (attribute.is("LABEL")) {
    parseText(cursor, attribute, into.label);
  } else if (attribute.is("HELP")) {
    parseText(cursor, attribute, into.help);
  } else {
    return false;
  }
  return true;
}

}  // namespace qrn::edd
