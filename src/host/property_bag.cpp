#include "host/property_bag.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <unordered_set>

#include "base/letter_case.h"
#include "base/text.h"
#include "host/font.h"
#include "host/picture.h"
#include "host/property_bag_text.h"
#include "runtime/errors.h"

namespace qrn::host {
namespace {

constexpr std::string_view kHeader = "QRNV16Controls2 properties 1";

// The next line without the blanks around it.
std::string_view takeLine(std::string_view& text) {
  const auto end = std::min(text.find('\n'), text.size());
  const std::string_view line = text::trimmed(text.substr(0, end));
  text.remove_prefix(std::min(end + 1, text.size()));
  return line;
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
  for (const Item& item : items_) result += writtenLine(item) + '\n';
  return result;
}

PropertyBag PropertyBag::fromText(std::string_view text, std::string_view name) {
  int number = 1;
  if (constexpr std::string_view kMark = "\xEF\xBB\xBF"; text.starts_with(kMark))
    text.remove_prefix(kMark.size());
  if (takeLine(text) != kHeader) refuseLine(name, number, "expected \"" + std::string(kHeader) + '"');
  PropertyBag bag;
  // Kept beside the bag, which would have to look through all it has for each line of a large text.
  std::unordered_set<std::string> keys;
  while (!text.empty()) {
    const std::string_view line = takeLine(text);
    ++number;
    if (line.empty()) continue;
    Item item = readLine(line, name, number);
    if (!keys.insert(lowerCase(std::string_view(item.key))).second)
      refuseLine(name, number, "property \"" + shownPart(item.key) + "\" stands here a second time");
    bag.items_.push_back(std::move(item));
  }
  return bag;
}

void PropertyBag::save(const std::filesystem::path& file) const {
  // Before the file is touched: a value that can't be written must not cost what is in it.
  const std::string text = toText();
  std::ofstream out(file, std::ios::binary);
  out << text;
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
