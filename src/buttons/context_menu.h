#pragma once

#include <memory>
#include <optional>
#include <string_view>

#include "host/popup_menu.h"

namespace qrn {

/// The menu that buttons and rows pop up. Entry 0 is the template "&Help": never shown, never removed; the
/// host's entries count from 1.
class ContextMenu {
 public:
  ContextMenu() { menu_.load(0, "&Help"); }

  /// The new entry's index is the number of loaded entries, which may be taken after entries were removed
  /// from the middle; then nothing is added and nothing returned.
  std::shared_ptr<host::MenuEntry> add(std::string_view caption);
  std::shared_ptr<host::MenuEntry> entry(int index) const { return menu_.entry(index); }
  void remove(int index);
  void removeAll();

  /// Pops up only when the host has added an entry; answers the chosen one.
  std::optional<int> show(host::Platform& platform, Point screen);

 private:
  host::PopupMenu menu_;
};

}  // namespace qrn
