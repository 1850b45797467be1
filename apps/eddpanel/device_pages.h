#pragma once

#include <string_view>
#include <vector>

#include "base/event.h"
#include "changes_question.h"
#include "menu_page.h"
#include "stack/QRNDisplayStack.h"

namespace qrn::eddpanel {

/// The menus of a device as pages of a stack: a submenu opens on top of the page that leads to it, and a page
/// with edited values asks before it closes. All it knows of the pages it hears from the stack.
class DevicePages {
 public:
  DevicePages(const edd::Description& description, QRNDisplayStack& stack, ChangesQuestion& question);

  QRNDisplayStack& stack() { return stack_; }
  const edd::Description& description() const { return description_; }
  /// The menus that no other one leads to.
  const std::vector<const edd::Menu*>& roots() const { return roots_; }
  /// The menus in the order in which they are offered: each root, then what it leads to.
  const std::vector<const edd::Menu*>& menus() const { return menus_; }
  /// By its name or label; null if there is none.
  const edd::Menu* find(std::string_view nameOrLabel) const;

  /// Goes back to the page of a menu, or puts one on top.
  void open(const edd::Menu& menu);
  /// Closes the pages from the top down; answers whether none was kept open.
  bool closeAll();
  MenuPage& page(std::int32_t index);
  /// Null while there is no page.
  MenuPage* top() { return stack_.Count() > 0 ? &page(stack_.Count()) : nullptr; }
  void help(std::int32_t page, std::int32_t item);
  /// The device's time goes on; the pages look at its dynamic values when they refresh themselves.
  void tick() { device_.tick(); }

  /// Something to tell the user: a method's report, what became of the values.
  Event<const std::string&> Message;
  /// The help that is shown now.
  Event<QRNToolTip&> HelpShown;
  /// A button of the footer has closed the last page.
  Event<> LastPageClosed;

 private:
  void collect(const edd::Menu& menu);
  void listenToPages();
  void listenToItems();
  void fill(std::int32_t page);
  void activated(std::int32_t page);
  void ask(std::int32_t page, bool& cancel);
  void chosenInMenu(std::int32_t page, std::int32_t item, std::int16_t entry);
  void act(std::int32_t page, std::int32_t item);
  void pressed(std::int32_t page, std::int32_t button);
  bool apply(std::int32_t page);
  void undo(std::int32_t page);
  void close(std::int32_t page);

  const edd::Description& description_;
  QRNDisplayStack& stack_;
  ChangesQuestion& question_;
  Device device_;
  std::vector<const edd::Menu*> roots_;
  std::vector<const edd::Menu*> menus_;
  const edd::Menu* opening_ = nullptr;  // whose page is being put on the stack
  std::vector<Connection> connections_;
};

}  // namespace qrn::eddpanel
