#include "fuzz/description_promises.h"

#include <string>

#include "edd/reader.h"

namespace qrn::fuzz {
namespace {

using namespace qrn::edd;

// What a description promises to those who use it without looking twice.
bool holdsItsPromises(const Description& description) {
  for (const Menu& menu : description.menus())
    for (const MenuItem& item : menu.items) {
      const auto entry = description.find(item.name);
      if (!entry || entry->kind != item.kind || entry->index != item.index) return false;
    }
  for (const Variable& variable : description.variables()) {
    if (description.variable(variable.name) != &variable) return false;
    for (const Range& range : variable.ranges)
      if (range.minimum && range.maximum && range.minimum->value > range.maximum->value) return false;
  }
  return true;
}

}  // namespace

std::string brokenDescriptionPromise(std::string_view text) {
  constexpr std::string_view divider = "\n//---\n";
  std::string_view included;
  if (const auto at = text.find(divider); at != std::string_view::npos) {
    included = text.substr(at + divider.size());
    text = text.substr(0, at);
  }

  ReadOptions options;
  options.language = "de";
  options.loadInclude = [included](const std::string& path) -> std::optional<std::string> {
    if (path != "a" && path != "b") return std::nullopt;
    return std::string(included);
  };
  try {
    if (!holdsItsPromises(readDescriptionText(text, "fuzz.ddl", options)))
      return "the description contradicts itself";
  } catch (const DescriptionError& error) {
    const std::string where = error.where().file + ":" + std::to_string(error.where().line) + ": ";
    if (error.where().line < 1 || !std::string_view(error.what()).starts_with(where))
      return std::string("the refusal does not say where: ") + error.what();
  }
  return {};
}

}  // namespace qrn::fuzz
