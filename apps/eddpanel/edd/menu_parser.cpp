#include "edd/parser.h"

namespace qrn::edd {

namespace {

bool isPlainElement(const Token& token) {
  return token.is("SEPARATOR") || token.is("COLUMNBREAK") || token.is("ROWBREAK");
}

// (READ_ONLY, DISPLAY_VALUE)
bool parseQualifiers(Cursor& cursor, const Token& opened) {
  bool readOnly = false;
  while (!cursor.accept(")")) {
    const Token token = cursor.next();
    if (token.kind == TokenKind::End) fail(opened, "this \"(\" has no \")\"");
    if (token.is("(")) cursor.skipToEndOf(token);
    if (token.kind != TokenKind::Name) continue;
    if (token.is("READ_ONLY")) {
      readOnly = true;
    } else {
      cursor.warnings().add(token, inQuotes(token.text) + " of a menu item is not known and skipped");
    }
  }
  return readOnly;
}

// Conditional items are skipped with both their branches.
void skipCondition(Cursor& cursor) {
  do {
    cursor.next();
    while (!cursor.peek().is("{") && !cursor.peek().is("}") && cursor.peek().kind != TokenKind::End)
      cursor.next();
    if (cursor.peek().is("{")) cursor.skipToEndOf(cursor.next());
  } while (cursor.peek().is("ELSE"));
}

// An element of a collection or an array: `flags[2]`, `limits.high`.
void skipElement(Cursor& cursor, const Token& name) {
  cursor.warnings().add(
      name, "a menu item that is an element of a list or collection is not supported and skipped");
  while (!cursor.peek().is(",") && !cursor.peek().is("}") && !cursor.peek().is("(") &&
         cursor.peek().kind != TokenKind::End)
    cursor.next();
}

void parseItem(Cursor& cursor, std::vector<WrittenItem>& items) {
  const Token first = cursor.peek();
  if (first.is("IF") || first.is("SWITCH")) {
    cursor.warnings().add(
        first, std::string(first.text) + " among the items of a menu is not supported and skipped");
    return skipCondition(cursor);
  }
  if (cursor.text()) {
    cursor.warnings().add(first, "a text among the items of a menu is not supported and skipped");
  } else if (isPlainElement(first)) {
    cursor.warnings().add(cursor.next(), std::string(first.text) + " is not supported and skipped");
  } else {
    WrittenItem item{cursor.expectName("an item of a menu")};
    const bool isElement = cursor.peek().is("[") || cursor.peek().is(".");
    if (isElement) skipElement(cursor, first);
    if (cursor.peek().is("(")) item.readOnly = parseQualifiers(cursor, cursor.next());
    if (!isElement) items.push_back(item);
  }
}

void parseItems(Cursor& cursor, const Token& menu, std::vector<WrittenItem>& items) {
  const Token opened = cursor.expect("{", "after ITEMS");
  while (!cursor.accept("}")) {
    if (cursor.peek().kind == TokenKind::End)
      fail(opened, "this \"{\" of the items of menu " + inQuotes(menu.text) + " has no \"}\"");
    const bool isCondition = cursor.peek().is("IF") || cursor.peek().is("SWITCH");
    parseItem(cursor, items);
    if (!cursor.accept(",") && !isCondition && !cursor.peek().is("}") && cursor.peek().kind != TokenKind::End)
      fail(cursor.peek(), "expected \",\" or \"}\" after a menu item, found " + cursor.peek().shown());
  }
}

}  // namespace

Menu parseMenu(Cursor& cursor, const Token& name, std::vector<WrittenItem>& items) {
  auto menu = named<Menu>(name);
  forEachAttribute(cursor, name, "MENU", [&](const Token& attribute) {
    if (parseCommonAttribute(cursor, attribute, menu)) return;
    if (attribute.is("ITEMS")) {
      parseItems(cursor, name, items);
    } else if (attribute.is("STYLE")) {
      menu.isDialog = cursor.peek().is("DIALOG");
      cursor.skipStatement();
    } else if (attribute.is("ACCESS")) {
      cursor.skipStatement();
    } else {
      skipAttribute(cursor, attribute, "MENU");
    }
  });
  return menu;
}

}  // namespace qrn::edd
