#pragma once

#include <QAccessible>
#include <functional>

namespace qrn::qt {

/// The way of events to assistive tools, or to a test in their place: without a display Qt delivers none.
class QtAccessibleEvents {
 public:
  bool wanted() const { return listener || QAccessible::isActive(); }
  void send(QAccessibleEvent& event) const {
    if (listener)
      listener(event);
    else
      QAccessible::updateAccessibility(&event);
  }

  std::function<void(QAccessibleEvent&)> listener;
};

}  // namespace qrn::qt
