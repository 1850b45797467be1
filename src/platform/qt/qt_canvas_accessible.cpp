#include <QAccessible>

#include "host/user_control.h"
#include "platform/qt/qt_accessible_parts.h"
#include "platform/qt/qt_canvas.h"
#include "platform/qt/qt_peer.h"
#include "platform/qt/qt_platform.h"

namespace qrn::qt {

QAccessibleInterface* QtCanvas::accessible(const host::AccessibleNode& node) {
  if (!node) return nullptr;
  if (node.entry == host::AccessibleNode::kWhole) {
    if (node.control == control_) return QAccessible::queryAccessibleInterface(this);
    const auto* peer = static_cast<const QtPeer*>(node.control->peer());
    if (peer && peer->widget()) return QAccessible::queryAccessibleInterface(peer->widget());
  }
  if (!accessibleParts_) accessibleParts_ = std::make_unique<QtAccessibleParts>(*this);
  return accessibleParts_->of(node);
}

host::Control* QtCanvas::controlOf(const QWidget& widget) const {
  if (!control_) return nullptr;
  for (host::Control* control : input().withPeers()) {
    if (static_cast<const QtPeer*>(control->peer())->widget() == &widget) return control;
  }
  return nullptr;
}

std::size_t QtCanvas::accessibleParts() const { return accessibleParts_ ? accessibleParts_->count() : 0; }

// The values of a panel that nobody sees tick on unheard.
void QtCanvas::tellToolsOfChange(host::Control& control, host::Aspect aspect) {
  const bool heard = isVisible() && platform_.accessibleEvents().wanted();
  if (accessibleParts_ && control_ && heard) accessibleParts_->tellChange(control, aspect);
}

void QtCanvas::tellToolsOfFocus() {
  if (!control_ || !platform_.accessibleEvents().wanted()) return;
  const QAccessibleInterface* whole = QAccessible::queryAccessibleInterface(this);
  QAccessibleInterface* focus = whole ? whole->focusChild() : nullptr;
  if (!focus || focus->object()) return;
  QAccessibleEvent event(focus, QAccessible::Focus);
  platform_.accessibleEvents().send(event);
}

}  // namespace qrn::qt
