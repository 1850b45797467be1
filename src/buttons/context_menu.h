#pragma once

#include <memory>
#include <optional>
#include <string_view>

#include "base/geometry.h"
#include "host/popup_menu.h"
#include "host/user_control.h"

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

/// Where a control's menu pops up when it is asked for by keyboard: a third of the way in, two thirds down.
Point menuPositionForKeyboard(const host::UserControl& control);

}  // namespace qrn
