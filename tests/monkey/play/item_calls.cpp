#include <algorithm>

#include "actions.h"
#include "rules.h"
#include "stage.h"
#include "values.h"

namespace qrn::monkey {
namespace {

constexpr std::int32_t kMostItems = 30;

// Mostly none: the collection makes one.
std::string anyName(Numbers& numbers) {
  static const std::string names[] = {"", "", "", "", "",  "",  "",           "",
                                      "", "", "", "", "A", "a", "Parameter3", "lblTitle"};
  return numbers.oneOf(names);
}

// An item in front of which the new one goes, by object, key or position; none for the end.
std::optional<Variant> anyPlace(Stage& stage, Numbers& numbers) {
  const std::size_t kind = numbers.below(6);
  if (kind < 2) return std::nullopt;
  if (kind == 5) return Variant(static_cast<std::int32_t>(numbers.below(40)));
  const PanelItemPtr item = stage.anyItem(numbers);
  if (!item) return Variant("nowhere");
  if (kind == 2) return Variant(item);
  return Variant(stage.items().GetIndexOf(Variant(item)));
}

std::string shownPlace(const std::optional<Variant>& place) {
  return place ? ", " + (place->isObject() ? std::string("an item") : shown(*place)) : std::string();
}

void addParameter(Stage& stage, Numbers& numbers) {
  if (stage.items().Count() >= kMostItems) return;
  const qrnValueType type = anyValueType(numbers);
  const auto place = anyPlace(stage, numbers);
  const std::string name = anyName(numbers);
  stage.note("Items().AddParameter(", quoted(name), ", ", type, shownPlace(place), ")");
  stage.items().AddParameter(name, type, place);
}

void addAction(Stage& stage, Numbers& numbers) {
  if (stage.items().Count() >= kMostItems) return;
  const auto type = static_cast<ddtypeAction>(numbers.below(4));
  const auto place = anyPlace(stage, numbers);
  const std::string name = anyName(numbers);
  stage.note("Items().AddAction(", quoted(name), ", ", type, shownPlace(place), ")");
  stage.items().AddAction(name, type, place);
}

void removeItem(Stage& stage, Numbers& numbers) {
  const PanelItemPtr item = stage.anyItem(numbers);
  if (!item) return;
  const std::int32_t position = stage.items().GetIndexOf(Variant(item));
  stage.note("Items().Remove(", position, ")");
  stage.items().Remove(numbers.oneIn(2) ? Variant(item) : Variant(position));
}

void removeNothing(Stage& stage, Numbers& numbers) {
  const Variant selector = numbers.oneIn(2) ? Variant("no such key") : Variant(0);
  stage.note("Items().Remove(", shown(selector), ")");
  stage.items().Remove(selector);
}

void removeAllItems(Stage& stage, Numbers& numbers) {
  const bool controlsToo = anyFlag(numbers);
  stage.note(controlsToo ? "RemoveControls()" : "Items().RemoveAll()");
  if (controlsToo)
    stage.panel()->RemoveControls();
  else
    stage.items().RemoveAll();
}

// A host that holds on to an item may ask for it long after the item has gone.
void keepItem(Stage& stage, Numbers& numbers) {
  const PanelItemPtr item = stage.anyItem(numbers);
  if (!item) return;
  stage.note("const auto kept = Items().Item(", stage.items().GetIndexOf(Variant(item)), ")");
  stage.kept = item;
}

void useKeptItem(Stage& stage, Numbers& numbers) {
  if (!stage.kept) return;
  const auto parameter = std::dynamic_pointer_cast<clsQRNParam>(stage.kept);
  const std::size_t use = numbers.below(parameter ? 6 : 3);
  static const char* const uses[] = {"Items().GetIndexOf(kept)",         "Items().Remove(kept)",
                                     "Items().AddAction(\"\", 0, kept)", "kept->SetParamState(1)",
                                     "kept->SetParamValue(5)",           "kept->SetDefaultLayout(10)"};
  stage.note(uses[use]);
  switch (use) {
    case 0: stage.items().GetIndexOf(Variant(stage.kept)); break;
    case 1: stage.items().Remove(Variant(stage.kept)); break;
    case 2:
      if (stage.items().Count() < kMostItems) stage.items().AddAction("", ddtypeMenu, Variant(stage.kept));
      break;
    case 3: parameter->SetParamState(qrnStateReadOnly); break;
    case 4: parameter->SetParamValue(Variant(5)); break;
    default: parameter->SetDefaultLayout(qrnTypeArray);
  }
}

void layOutControls(Stage& stage, Numbers& numbers) {
  const bool adjustOnly = numbers.oneIn(4);
  stage.note("LayoutControls(", shown(adjustOnly), ")");
  stage.panel()->LayoutControls(adjustOnly);
  if (!adjustOnly && !stage.audience().meddledInThisStep()) checkItemsLieWhereTheyBelong(stage);
}

void setColumnLayout(Stage& stage, Numbers& numbers) {
  static const std::int32_t weights[] = {0, 1, 2, -1, 100};
  static const float tolerances[] = {0, 10.2F, 5, 0.9F, -3};
  const auto label = numbers.oneOf(weights), value = numbers.oneOf(weights), unit = numbers.oneOf(weights);
  const float tolerance = numbers.oneOf(tolerances);
  stage.note("SetColumnLayout(", label, ", ", value, ", ", unit, ", ", tolerance, ")");
  stage.columns() = ColumnWeights::of(label, value, unit, tolerance);
  stage.panel()->SetColumnLayout(label, value, unit, tolerance);
  if (!stage.audience().meddledInThisStep()) checkItemsLieWhereTheyBelong(stage);
}

void setItemFocus(Stage& stage, Numbers& numbers) {
  const PanelItemPtr item = numbers.oneIn(8) ? nullptr : stage.anyItem(numbers);
  const Variant selector = item ? Variant(stage.items().GetIndexOf(Variant(item))) : Variant("nothing");
  stage.note("SetItemFocus(", shown(selector), ")");
  stage.panel()->SetItemFocus(selector);
  checkFocusIsOfUse(stage);
}

void getActiveItem(Stage& stage, Numbers& numbers) {
  const bool mouseToo = anyFlag(numbers);
  stage.note("GetActiveItem(", shown(mouseToo), ")");
  const std::int32_t active = stage.panel()->GetActiveItem(mouseToo);
  if (active < 0 || active > stage.items().Count())
    stage.complain("the active item is an item", std::to_string(active));
}

}  // namespace

void addItemCalls(Actions& to) {
  to.push_back({"AddParameter", 90, Actor::Host, addParameter});
  to.push_back({"AddAction", 25, Actor::Host, addAction});
  to.push_back({"RemoveItem", 25, Actor::Host, removeItem});
  to.push_back({"RemoveNothing", 3, Actor::Host, removeNothing});
  to.push_back({"RemoveAllItems", 1, Actor::Host, removeAllItems});
  to.push_back({"KeepItem", 6, Actor::Host, keepItem});
  to.push_back({"UseKeptItem", 12, Actor::Host, useKeptItem});
  to.push_back({"LayoutControls", 30, Actor::Host, layOutControls});
  to.push_back({"SetColumnLayout", 10, Actor::Host, setColumnLayout});
  to.push_back({"SetItemFocus", 40, Actor::Host, setItemFocus});
  to.push_back({"GetActiveItem", 5, Actor::Host, getActiveItem});
}

}  // namespace qrn::monkey
