#include "host/popup_menu.h"

#include <algorithm>

#include "host/platform.h"

namespace qrn::host {

std::shared_ptr<MenuEntry> PopupMenu::entry(int index) const {
  return index >= 0 && index < size() ? entries_[static_cast<std::size_t>(index)] : nullptr;
}

bool PopupMenu::load(int index, std::string_view caption) {
  if (index < 0 || entry(index)) return false;
  if (index >= size()) entries_.resize(static_cast<std::size_t>(index) + 1);
  entries_[static_cast<std::size_t>(index)] = std::make_shared<MenuEntry>(caption);
  return true;
}

void PopupMenu::unload(int index) {
  if (!entry(index)) return;
  entries_[static_cast<std::size_t>(index)] = nullptr;
  while (!entries_.empty() && !entries_.back()) entries_.pop_back();
}

int PopupMenu::count() const {
  return static_cast<int>(
      std::count_if(entries_.begin(), entries_.end(), [](const auto& e) { return e != nullptr; }));
}

std::optional<int> PopupMenu::popUp(Platform& platform, Point screen) {
  return platform.popUp(*this, screen);
}

}  // namespace qrn::host
