#include "runtime/variant.h"

#include <array>

#include "runtime/errors.h"
#include "runtime/number_text.h"

namespace qrn {
namespace {

bool readsAsNumber(std::string_view text) {
  const auto number = readNumberText(text, currentLocale());
  return number && ignoringErrors([&] { static_cast<void>(toDouble(*number)); });
}

}  // namespace

std::string_view typeName(Variant::Type type) {
  static constexpr std::array<std::string_view, 13> kNames = {
      "Empty",    "Null",    "Boolean", "Integer", "Long",   "Single", "Double",
      "Currency", "Decimal", "Date",    "String",  "Object", "Error"};
  return kNames[static_cast<std::size_t>(type)];
}

bool isNumeric(const Variant& value) {
  switch (value.type()) {
    case Variant::Type::Null:
    case Variant::Type::Date:
    case Variant::Type::Object:
    case Variant::Type::Error: return false;
    case Variant::Type::String: return readsAsNumber(*value.get<std::string>());
    default: return true;
  }
}

}  // namespace qrn
