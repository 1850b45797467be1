#include "platform/qt/qt_accessible.h"

#include <QApplication>

#include "host/user_control.h"
#include "platform/qt/qt_accessible_text.h"
#include "platform/qt/qt_canvas.h"
#include "platform/qt/qt_geometry.h"
#include "platform/qt/qt_guard.h"
#include "platform/qt/qt_text.h"

namespace qrn::qt {
namespace {

using host::AccessibleAction;
using host::AccessibleFacts;
using host::AccessibleNode;
using host::AccessibleRole;

QAccessible::Role toQt(AccessibleRole role) {
  switch (role) {
    case AccessibleRole::None: return QAccessible::Client;
    case AccessibleRole::Panel: return QAccessible::Pane;
    case AccessibleRole::Group: return QAccessible::Grouping;
    case AccessibleRole::Label: return QAccessible::StaticText;
    case AccessibleRole::Picture: return QAccessible::Graphic;
    case AccessibleRole::Text: return QAccessible::EditableText;
    case AccessibleRole::CheckBox: return QAccessible::CheckBox;
    case AccessibleRole::DropList: return QAccessible::ComboBox;
    case AccessibleRole::List: return QAccessible::List;
    case AccessibleRole::Entry: return QAccessible::ListItem;
    case AccessibleRole::Button: return QAccessible::Button;
    case AccessibleRole::ScrollBar: return QAccessible::ScrollBar;
  }
  return QAccessible::NoRole;
}

// "Invalid" means here that the interface itself is dead. Qt has no word for a wrong value: that is in the
// description.
QAccessible::State deadState() {
  QAccessible::State state;
  state.invalid = true;
  return state;
}

QAccessible::State toQt(const AccessibleFacts& facts) {
  const host::AccessibleStates& from = facts.states;
  QAccessible::State state;
  state.disabled = from.unavailable;
  state.invisible = from.invisible;
  state.offscreen = from.offscreen;
  state.focusable = from.focusable;
  state.focused = from.focused;
  state.readOnly = from.readOnly;
  state.passwordEdit = from.secret;
  state.checkable = from.checkable;
  state.checked = from.checked;
  state.selectable = from.selectable;
  state.selected = from.selected;
  state.modal = from.modal;
  state.editable = facts.role == AccessibleRole::Text && !from.readOnly;
  state.selectableText = facts.role == AccessibleRole::Text;
  state.hasPopup = state.expandable = facts.role == AccessibleRole::DropList;
  return state;
}

bool keyboardIsOn(const QtCanvas& canvas) {
  const QWidget* focus = QApplication::focusWidget();
  return focus && (focus == &canvas || canvas.isAncestorOf(focus));
}

// The entries of a list share its height; those of a drop list are seen nowhere.
Rect placeOf(const AccessibleNode& node) {
  const Rect whole = node.control->onSurface();
  if (node.entry == AccessibleNode::kWhole) return whole;
  const AccessibleNode list{node.control};
  if (list.facts().role != AccessibleRole::List) return {};
  const double height = whole.height / list.childCount();
  return {whole.left, whole.top + node.entry * height, whole.width, height};
}

QString actionName(AccessibleAction action) {
  return action == AccessibleAction::Toggle ? QAccessibleActionInterface::toggleAction()
                                            : QAccessibleActionInterface::pressAction();
}

}  // namespace

QtAccessible::QtAccessible() = default;

QtAccessible::~QtAccessible() = default;

AccessibleFacts QtAccessible::facts() const {
  AccessibleFacts facts;
  if (const AccessibleNode target = node()) guarded([&] { facts = target.facts(); });
  return facts;
}

// ---- the tree ----

QWindow* QtAccessible::window() const { return isValid() ? canvas()->window()->windowHandle() : nullptr; }

QAccessibleInterface* QtAccessible::parent() const {
  const AccessibleNode target = node();
  if (!target) return nullptr;
  if (const AccessibleNode holder = target.parent()) return canvas()->accessible(holder);
  if (target.control != canvas()->control()) return nullptr;
  QObject* const outer = canvas()->parentWidget();
  return QAccessible::queryAccessibleInterface(outer ? outer : qApp);
}

QAccessibleInterface* QtAccessible::child(int index) const {
  const AccessibleNode target = node();
  return target ? canvas()->accessible(target.child(index)) : nullptr;
}

int QtAccessible::childCount() const {
  const AccessibleNode target = node();
  return target ? target.childCount() : 0;
}

int QtAccessible::indexOfChild(const QAccessibleInterface* child) const {
  const auto* ours = dynamic_cast<const QtAccessible*>(child);
  const AccessibleNode target = node(), wanted = ours ? ours->node() : AccessibleNode{};
  return target && wanted ? target.indexOf(wanted) : -1;
}

QAccessibleInterface* QtAccessible::focusChild() const {
  const AccessibleNode target = node();
  if (!target || !keyboardIsOn(*canvas())) return nullptr;
  for (host::Control* at = target.control->input().focus(); at; at = at->Container()) {
    const AccessibleNode seen{at};
    if (at == target.control || seen.parent()) return canvas()->accessible(seen);
  }
  return nullptr;
}

QAccessibleInterface* QtAccessible::childAt(int x, int y) const {
  const AccessibleNode target = node();
  if (!target || !canvas()->isVisible()) return nullptr;
  const Point at = fromQt(QPointF(canvas()->mapFromGlobal(QPoint(x, y))));
  for (int index = 0; index < target.childCount(); ++index) {
    const AccessibleNode one = target.child(index);
    if (!one || !one.control->shown()) continue;
    const Rect seen = one.control->visibleOnSurface().intersected(placeOf(one));
    if (seen.contains(at)) return canvas()->accessible(one);
  }
  return nullptr;
}

// ---- the facts ----

QString QtAccessible::text(QAccessible::Text what) const {
  const AccessibleFacts now = facts();
  switch (what) {
    case QAccessible::Name: return toQString(now.name);
    case QAccessible::Description: return toQString(now.wholeDescription());
    case QAccessible::Value: return toQString(now.value);
    case QAccessible::Accelerator: return toQString(now.shortcut);
    default: return {};
  }
}

void QtAccessible::setText(QAccessible::Text what, const QString& text) {
  const AccessibleNode target = node();
  if (target && what == QAccessible::Value) guarded([&] { target.enter(toUtf8(text)); });
}

QRect QtAccessible::rect() const {
  const AccessibleNode target = node();
  if (!target) return {};
  const QRect place = toPixels(placeOf(target));
  return place.isEmpty() ? QRect() : QRect(canvas()->mapToGlobal(place.topLeft()), place.size());
}

QAccessible::Role QtAccessible::role() const { return isValid() ? toQt(facts().role) : QAccessible::NoRole; }

QAccessible::State QtAccessible::state() const {
  if (!isValid()) return deadState();
  QAccessible::State state = toQt(facts());
  if (!canvas()->isVisible()) state.invisible = true;
  if (!keyboardIsOn(*canvas())) state.focused = false;
  return state;
}

void* QtAccessible::interface_cast(QAccessible::InterfaceType type) {
  if (!isValid()) return nullptr;
  if (type == QAccessible::ActionInterface) return static_cast<QAccessibleActionInterface*>(this);
  const AccessibleRole role = facts().role;
  if (role == AccessibleRole::Text) {
    if (!text_) text_ = std::make_unique<QtAccessibleText>(*this);
    if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(text_.get());
    if (type == QAccessible::EditableTextInterface)
      return static_cast<QAccessibleEditableTextInterface*>(text_.get());
  }
  if (role == AccessibleRole::ScrollBar && type == QAccessible::ValueInterface) {
    if (!value_) value_ = std::make_unique<QtAccessibleValue>(*this);
    return static_cast<QAccessibleValueInterface*>(value_.get());
  }
  return nullptr;
}

// ---- actions ----

QStringList QtAccessible::actionNames() const {
  const AccessibleFacts now = facts();
  QStringList names;
  if (now.action != AccessibleAction::None && !now.states.readOnly) names << actionName(now.action);
  if (now.states.focusable) names << setFocusAction();
  return names;
}

void QtAccessible::doAction(const QString& name) {
  const AccessibleNode target = node();
  if (!target) return;
  if (name == setFocusAction())
    guarded([&] { target.focus(); });
  else if (actionNames().contains(name))
    guarded([&] { target.act(); });
}

QStringList QtAccessible::keyBindingsForAction(const QString& name) const {
  const AccessibleFacts now = facts();
  const bool pressed = name == pressAction() && !now.shortcut.empty();
  return pressed ? QStringList(toQString(now.shortcut)) : QStringList();
}

}  // namespace qrn::qt
