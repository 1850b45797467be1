#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

#include "host/popup_menu.h"
#include "host/user_control.h"

namespace qrn {

/// The menu that buttons and rows pop up. Entry 0 is the template "&Help": never shown, never removed; the
/// host's entries count from 1. Weighs one pointer until somebody asks for an entry.
class ContextMenu {
 public:
  /// The new entry's index is the number of loaded entries, which may be taken after entries were removed
  /// from the middle; then nothing is added and nothing returned.
  std::shared_ptr<host::MenuEntry> add(std::string_view caption);
  /// Null where nothing is loaded.
  std::shared_ptr<host::MenuEntry> entry(int index) { return menu().entry(index); }
  void remove(int index);
  void removeAll();

  /// Pops up only when the host has added an entry: at the mouse, or where the keyboard asks for it, a third
  /// of the way into the control and two thirds down. Answers the chosen entry; none as well when the control
  /// has gone meanwhile.
  std::optional<std::int16_t> show(host::UserControl& control, bool atKeyboard);

 private:
  host::PopupMenu& menu();

  std::unique_ptr<host::PopupMenu> menu_;
};

}  // namespace qrn
