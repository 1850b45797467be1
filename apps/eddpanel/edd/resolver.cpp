#include "edd/resolver.h"

#include <algorithm>
#include <utility>

#include "edd/chain.h"

namespace qrn::edd {

namespace {

std::vector<MenuItem> resolvedItems(const WrittenDescription& written, std::size_t menu, Warnings& warnings) {
  std::vector<MenuItem> items;
  for (const WrittenItem& item : written.menuItems[menu]) {
    const std::string_view name = item.name.text;
    if (const auto entry = written.description.find(name)) {
      items.push_back({entry->kind, std::string(name), entry->index, item.readOnly, item.name.line});
      continue;
    }
    const auto skipped = written.skippedNames.find(name);
    if (skipped == written.skippedNames.end())
      fail(item.name, "menu " + inQuotes(written.description.menus()[menu].name) + " contains " +
                          inQuotes(name) + ", which is not declared");
    warnings.add(item.name, "a menu item that names a " + std::string(skipped->second) + " is skipped");
  }
  return items;
}

/// Walks through all menus, each once, inner ones first. The way down is a list and not the call stack, as it
/// is as long as the description makes it.
class NestingCheck {
 public:
  explicit NestingCheck(const Description& description)
      : menus_(description.menus()), levels_(menus_.size(), unseen) {}

  void run() {
    for (std::size_t i = 0; i < menus_.size(); ++i) {
      if (levels_[i] == unseen) enter(i);
      while (!way_.empty()) step();
    }
  }

 private:
  static constexpr int unseen = 0;
  static constexpr int open = -1;  // on the way; finished menus have the number of their levels

  struct Visit {
    std::size_t menu;
    std::size_t nextItem = 0;
    int innerLevels = 0;
  };

  void enter(std::size_t menu) {
    levels_[menu] = open;
    way_.push_back({menu});
  }

  void step() {
    Visit& visit = way_.back();
    const auto& items = menus_[visit.menu].items;
    if (visit.nextItem == items.size()) return leave();
    const MenuItem& item = items[visit.nextItem++];
    if (item.kind != ItemKind::Menu) return;
    if (levels_[item.index] == open) refuseCycle(item);
    if (levels_[item.index] == unseen) return enter(item.index);
    visit.innerLevels = std::max(visit.innerLevels, levels_[item.index]);
  }

  void leave() {
    const Visit left = way_.back();
    way_.pop_back();
    const int levels = levels_[left.menu] = left.innerLevels + 1;
    if (levels > Description::maximumMenuDepth)
      throw DescriptionError(menus_[left.menu].where,
                             "menus nest deeper than " + std::to_string(Description::maximumMenuDepth) +
                                 " levels below " + inQuotes(menus_[left.menu].name));
    if (!way_.empty()) way_.back().innerLevels = std::max(way_.back().innerLevels, levels);
  }

  [[noreturn]] void refuseCycle(const MenuItem& item) const {
    std::vector<std::string_view> names;
    for (const Visit& visit : way_)
      if (!names.empty() || visit.menu == item.index) names.push_back(menus_[visit.menu].name);
    names.push_back(item.name);
    throw DescriptionError({menus_[way_.back().menu].where.file, item.line},
                           "menu " + inQuotes(item.name) + " contains itself: " + chain(names));
  }

  const std::vector<Menu>& menus_;
  std::vector<int> levels_;
  std::vector<Visit> way_;
};

}  // namespace

Description resolve(WrittenDescription written, Warnings& warnings) {
  for (std::size_t i = 0; i < written.menuItems.size(); ++i)
    written.description.itemsOfMenu(i) = resolvedItems(written, i, warnings);
  NestingCheck(written.description).run();
  return std::move(written.description);
}

}  // namespace qrn::edd
