#include <QAbstractItemView>
#include <QComboBox>

#include "host/user_control.h"
#include "platform/qt/qt_accessible.h"
#include "platform/qt/qt_canvas.h"

namespace qrn::qt {
namespace {

// A canvas, and the widgets that it has made for its controls. The list that drops down is two levels inside
// its drop list: Qt's own interface for it would be one more tree of the same entries.
QtCanvas* canvasAround(QWidget* widget) {
  if (auto* canvas = dynamic_cast<QtCanvas*>(widget)) return canvas;
  if (qobject_cast<QAbstractItemView*>(widget) && widget->parentWidget()) {
    if (auto* combo = qobject_cast<QComboBox*>(widget->parentWidget()->parentWidget())) widget = combo;
  }
  return dynamic_cast<QtCanvas*>(widget->parentWidget());
}

}  // namespace

QAccessibleInterface* QtAccessibleWidget::make(const QString&, QObject* object) {
  auto* widget = qobject_cast<QWidget*>(object);
  return widget && canvasAround(widget) ? new QtAccessibleWidget(*widget) : nullptr;
}

QObject* QtAccessibleWidget::object() const { return widget_; }

QtCanvas* QtAccessibleWidget::canvas() const { return widget_ ? canvasAround(widget_) : nullptr; }

// A widget that is being made, or put away, stands for no control.
host::AccessibleNode QtAccessibleWidget::node() const {
  const QtCanvas* outer = canvas();
  if (!outer || !outer->control()) return {};
  // The focus only passes through on its way from one editor to the next: tools need not hear of that.
  if (outer == widget_) return {outer->keepsFocusQuietly() ? nullptr : outer->control()};
  for (const QWidget* at = widget_; at && at != outer; at = at->parentWidget()) {
    if (host::Control* control = outer->controlOf(*at)) return {control};
  }
  return {};
}

QtAccessiblePart::QtAccessiblePart(QtCanvas& canvas, const host::AccessibleNode& node)
    : canvas_(&canvas), control_(node.control), entry_(node.entry) {}

host::AccessibleNode QtAccessiblePart::node() const {
  if (!control_ || !canvas_->control() || entry_ >= control_->accessibleCount()) return {};
  return {control_.get(), entry_};
}

}  // namespace qrn::qt
