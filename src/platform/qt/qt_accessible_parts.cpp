#include "platform/qt/qt_accessible_parts.h"

#include <algorithm>

#include "host/control.h"
#include "platform/qt/qt_accessible.h"
#include "platform/qt/qt_canvas.h"
#include "platform/qt/qt_platform.h"
#include "platform/qt/qt_text.h"

namespace qrn::qt {
namespace {

using host::AccessibleNode;
using host::AccessibleRole;

void tellStates(const QtAccessibleEvents& tools, QAccessibleInterface& part,
                const QAccessible::State& changed) {
  QAccessibleStateChangeEvent event(&part, changed);
  tools.send(event);
}

void tellChecked(const QtAccessibleEvents& tools, QAccessibleInterface& part) {
  QAccessible::State changed;
  changed.checked = true;
  tellStates(tools, part, changed);
}

void tellEntry(const QtAccessibleEvents& tools, QAccessibleInterface& entry) {
  if (entry.state().checkable) return tellChecked(tools, entry);
  QAccessible::State changed;
  changed.selected = true;
  tellStates(tools, entry, changed);
}

void tellAvailability(const QtAccessibleEvents& tools, QAccessibleInterface& part) {
  QAccessible::State changed;
  changed.disabled = changed.focusable = changed.readOnly = changed.editable = true;
  tellStates(tools, part, changed);
}

void tellValue(const QtAccessibleEvents& tools, QAccessibleInterface& part,
               const host::AccessibleFacts& facts) {
  const QString value = toQString(facts.value);
  if (facts.role == AccessibleRole::Text) {
    // What it was before nobody has kept.
    QAccessibleTextUpdateEvent event(&part, 0, QString(), value);
    tools.send(event);
  } else if (facts.role == AccessibleRole::CheckBox) {
    tellChecked(tools, part);
  } else if (facts.role == AccessibleRole::DropList) {
    QAccessibleValueChangeEvent event(&part, value);
    tools.send(event);
  }
}

}  // namespace

QtAccessibleParts::~QtAccessibleParts() {
  for (const auto& [key, id] : parts_) QAccessible::deleteAccessibleInterface(id);
}

QAccessibleInterface* QtAccessibleParts::known(const Key& key) const {
  const auto found = parts_.find(key);
  QAccessibleInterface* part =
      found == parts_.end() ? nullptr : QAccessible::accessibleInterface(found->second);
  return part && part->isValid() ? part : nullptr;
}

QAccessibleInterface* QtAccessibleParts::of(const AccessibleNode& node) {
  const Key key(node.control, node.entry);
  if (QAccessibleInterface* part = known(key)) return part;
  if (parts_.size() >= roomyUpTo_) putAwayDead();
  auto* part = new QtAccessiblePart(canvas_, node);
  // Another control may have the place in memory of one that has gone.
  if (const auto dead = parts_.find(key); dead != parts_.end())
    QAccessible::deleteAccessibleInterface(dead->second);
  parts_[key] = QAccessible::registerAccessibleInterface(part);
  return part;
}

void QtAccessibleParts::putAwayDead() {
  std::erase_if(parts_, [this](const auto& one) {
    if (known(one.first)) return false;
    QAccessible::deleteAccessibleInterface(one.second);
    return true;
  });
  roomyUpTo_ = std::max<std::size_t>(64, 2 * parts_.size());
}

// Widgets tell of their values themselves, but not of the entries in a list.
void QtAccessibleParts::tellChange(host::Control& control, host::Aspect aspect) {
  const AccessibleNode node{&control};
  const Key whole(node.control, node.entry);
  QAccessibleInterface* const part = known(whole);
  const QtAccessibleEvents& tools = canvas_.platform().accessibleEvents();
  if (aspect == host::Aspect::Enabled && part) tellAvailability(tools, *part);
  if (aspect != host::Aspect::Content) return;
  if (part && !control.peer()) tellValue(tools, *part, node.facts());
  for (auto at = parts_.upper_bound(whole); at != parts_.end() && at->first.first == &control; ++at) {
    if (QAccessibleInterface* entry = known(at->first)) tellEntry(tools, *entry);
  }
}

}  // namespace qrn::qt
