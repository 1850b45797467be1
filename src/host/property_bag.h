#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/variant.h"

namespace qrn::host {

/// The saved properties of one control, in the order of writing. A value that equals its default is not kept.
///
/// The text form has one property a line: `Name = value`, where a value is True, False, Empty, Null, a
/// "quoted text" with \" \\ \n \r \t, or a type and its value (`Long 100`, `Double 0.5`, `Font "Sans" 9
/// bold`, `Picture …`). A name that is no plain word is quoted like a text. Numbers are written the same way
/// in every locale.
class PropertyBag {
 public:
  struct Item {
    std::string key;
    Variant value;
  };

  /// The kept value, or the default for a key that is not there. Keys compare without regard to case.
  Variant readProperty(std::string_view key, const Variant& defaultValue = {}) const;
  void writeProperty(std::string_view key, const Variant& value, const Variant& defaultValue = {});
  const Variant* find(std::string_view key) const;
  const std::vector<Item>& items() const { return items_; }

  /// Errors: 380 naming the key, for what the text form can't hold: a number that is not finite, a font
  /// without a size, an object that is neither font nor picture.
  std::string toText() const;
  /// Errors: 321 with `name:line: what` for a text that is no property bag; `name` is used in messages only.
  static PropertyBag fromText(std::string_view text, std::string_view name = "property bag");

  /// Errors: 53 for a file that can't be written or read, and those of toText and fromText.
  void save(const std::filesystem::path& file) const;
  static PropertyBag load(const std::filesystem::path& file);

 private:
  std::vector<Item> items_;
};

/// The same value; fonts and pictures by what they look like.
bool sameValue(const Variant& a, const Variant& b);

}  // namespace qrn::host
