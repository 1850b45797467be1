// Prints what the controls say about themselves, for tools/make_control_pages: one line for each class,
// property, method and event, its fields separated by tabs.

#include <cstdio>
#include <string>

#include "host/class_table.h"
#include "host/prog_ids.h"
#include "library/library.h"
#include "runtime/conversions.h"

namespace qrn {
namespace {

using host::PropertyType;

std::string nameOf(PropertyType type) {
  switch (type) {
    case PropertyType::Boolean: return "Boolean";
    case PropertyType::Integer: return "Integer";
    case PropertyType::Long: return "Long";
    case PropertyType::Single: return "Single";
    case PropertyType::Double: return "Double";
    case PropertyType::String: return "String";
    case PropertyType::Color: return "Color";
    case PropertyType::Font: return "Font";
    case PropertyType::Picture: return "Picture";
    case PropertyType::Variant: return "Variant";
    case PropertyType::Object: return "Object";
  }
  return "?";
}

std::string asColor(std::int32_t color) {
  char text[16];
  std::snprintf(text, sizeof text, "&H%X", static_cast<unsigned>(color));
  return text;
}

/// As a reader of the pages sees it; empty where a new instance has nothing of its own.
std::string textOf(const host::Default& value, PropertyType type, const host::UserControl& control) {
  if (value.isAmbient()) return "the container's";
  const Variant constant = value.of(control);
  if (type == PropertyType::Picture) return "none";
  if (constant.isEmpty()) return "";
  if (type == PropertyType::Color) return asColor(host::longFrom(constant));
  if (constant.isString()) return "\"" + CStr(constant) + "\"";
  return CStr(constant);
}

void printProperty(const host::Property& one, const host::UserControl& control) {
  const bool stored = !one.key.empty();
  const std::string fresh = textOf(one.fresh, one.type, control);
  const std::string missing = stored ? textOf(one.readDefault, one.type, control) : "";
  const std::string unwritten = stored ? textOf(one.writeDefault, one.type, control) : "";
  std::printf("property\t%s\t%s\t%s\t%s\t%s\t%s\t%s\n", std::string(one.name).c_str(),
              nameOf(one.type).c_str(), one.write ? "writable" : "read-only",
              stored ? nameOf(one.storedType).c_str() : "", fresh.c_str(), missing.c_str(),
              unwritten.c_str());
}

void printClass(const host::UserControl& control) {
  const host::ClassTable& table = control.classTable();
  std::printf("class\t%s\t%s\n", std::string(table.name).c_str(), std::string(table.progId).c_str());
  for (const host::Property& one : table.properties) printProperty(one, control);
  for (const std::string_view name : table.methods) std::printf("method\t%s\n", std::string(name).c_str());
  for (const std::string_view name : table.events) std::printf("event\t%s\n", std::string(name).c_str());
}

}  // namespace
}  // namespace qrn

int main() {
  qrn::registerControls();
  for (const qrn::host::ProgId& known : qrn::host::controlClasses()) {
    const auto control = known.create();
    qrn::printClass(dynamic_cast<const qrn::host::UserControl&>(*control));
  }
  return 0;
}
