#include <charconv>
#include <cmath>

#include "host/font.h"
#include "host/picture.h"
#include "host/property_bag_text.h"
#include "runtime/conversions.h"
#include "runtime/errors.h"

namespace qrn::host {
namespace {

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

[[noreturn]] void refuse(const std::string& why) {
  raiseRunTimeError(kInvalidPropertyValue, "PropertyBag", why);
}

// The shortest text that reads back as the same number.
std::string exact(double number) {
  if (!std::isfinite(number)) refuse("a number that is not finite can't be kept");
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
  if (!isFontSize(font.size)) refuse("a font of that size can't be kept");
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
  if (object) refuse("a " + std::string(object->typeName()) + " can't be kept");
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

}  // namespace

std::string writtenLine(const PropertyBag::Item& item) {
  try {
    return writtenKey(item.key) + " = " + written(item.value);
  } catch (const RunTimeError& error) {
    raiseRunTimeError(error.number(), error.source(),
                      "Property \"" + shownPart(item.key) + "\": " + error.description());
  }
}

}  // namespace qrn::host
