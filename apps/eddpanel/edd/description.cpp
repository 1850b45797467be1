#include "edd/description.h"

#include <array>
#include <utility>

namespace qrn::edd {

std::string_view keywordOf(ValueKind kind) {
  static constexpr std::array<std::string_view, 19> keywords = {"INTEGER",       "UNSIGNED_INTEGER",
                                                                "FLOAT",         "DOUBLE",
                                                                "ENUMERATED",    "BIT_ENUMERATED",
                                                                "INDEX",         "ASCII",
                                                                "PACKED_ASCII",  "VISIBLE",
                                                                "EUC",           "PASSWORD",
                                                                "BITSTRING",     "OCTET",
                                                                "DATE",          "TIME",
                                                                "DATE_AND_TIME", "DURATION",
                                                                "TIME_VALUE"};
  return keywords.at(static_cast<std::size_t>(kind));
}

std::optional<Description::Entry> Description::find(std::string_view name) const {
  const auto found = entries_.find(name);
  if (found == entries_.end()) return std::nullopt;
  return found->second;
}

const Variable* Description::variable(std::string_view name) const {
  const auto entry = find(name);
  return entry && entry->kind == ItemKind::Variable ? &variables_[entry->index] : nullptr;
}

const Menu* Description::menu(std::string_view name) const {
  const auto entry = find(name);
  return entry && entry->kind == ItemKind::Menu ? &menus_[entry->index] : nullptr;
}

const Method* Description::method(std::string_view name) const {
  const auto entry = find(name);
  return entry && entry->kind == ItemKind::Method ? &methods_[entry->index] : nullptr;
}

const Place& Description::placeOf(Entry entry) const {
  switch (entry.kind) {
    case ItemKind::Menu: return menus_[entry.index].where;
    case ItemKind::Method: return methods_[entry.index].where;
    case ItemKind::Variable: break;
  }
  return variables_[entry.index].where;
}

std::vector<const Menu*> Description::rootMenus() const {
  std::vector<bool> contained(menus_.size(), false);
  for (const Menu& menu : menus_)
    for (const MenuItem& item : menu.items)
      if (item.kind == ItemKind::Menu) contained[item.index] = true;
  std::vector<const Menu*> roots;
  for (std::size_t i = 0; i < menus_.size(); ++i)
    if (!contained[i]) roots.push_back(&menus_[i]);
  return roots;
}

template <class T>
bool Description::add(std::vector<T>& list, T&& added, ItemKind kind) {
  if (!entries_.emplace(added.name, Entry{kind, list.size()}).second) return false;
  list.push_back(std::move(added));
  return true;
}

bool Description::add(Variable added) { return add(variables_, std::move(added), ItemKind::Variable); }
bool Description::add(Menu added) { return add(menus_, std::move(added), ItemKind::Menu); }
bool Description::add(Method added) { return add(methods_, std::move(added), ItemKind::Method); }

}  // namespace qrn::edd
