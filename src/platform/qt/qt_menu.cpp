#include "platform/qt/qt_menu.h"

#include <QMenu>

#include "host/popup_menu.h"
#include "platform/qt/qt_text.h"

namespace qrn::qt {
namespace {

void addEntry(QMenu& menu, const host::MenuEntry& entry, int index) {
  if (entry.Caption() == "-") {
    menu.addSeparator();
    return;
  }
  QAction* action = menu.addAction(toQString(entry.Caption()));
  action->setData(index);
  action->setEnabled(entry.Enabled());
  action->setCheckable(entry.Checked());
  action->setChecked(entry.Checked());
}

}  // namespace

bool offersAnything(const host::PopupMenu& menu) {
  for (int i = 0; i < menu.size(); ++i) {
    if (const auto entry = menu.entry(i); entry && entry->Visible()) return true;
  }
  return false;
}

std::optional<int> chooseFrom(const host::PopupMenu& entries, Point screen) {
  // Without a parent, as the widget below may be deleted while the menu is open.
  QMenu menu;
  for (int i = 0; i < entries.size(); ++i) {
    if (const auto entry = entries.entry(i); entry && entry->Visible()) addEntry(menu, *entry, i);
  }
  const QAction* chosen = menu.exec(QPointF(screen.x, screen.y).toPoint());
  return chosen ? std::optional<int>(chosen->data().toInt()) : std::nullopt;
}

}  // namespace qrn::qt
