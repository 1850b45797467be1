#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "base/event.h"
#include "device_pages.h"

namespace qrn::eddpanel {

/// Prints every event of a stack with the page's index in front and the name of the item concerned, for
/// instance `Basic setup: ParameterEndEdit(2, 7, True) damping = "2.5"`. Made before the listeners that act
/// on the events, it prints them in the order in which they happen.
class EventPrinter {
 public:
  EventPrinter(QRNDisplayStack& stack, std::ostream& out);

  /// What the pages say and show as well.
  void watch(DevicePages& pages);

 private:
  struct Argument;

  void listenToItems();
  void listenToPages();
  template <class... Args>
  void print(std::string_view name, Event<Args...>& event);
  void line(std::string_view name, const std::vector<Argument>& arguments);
  std::string concerned(std::string_view name, QRNDisplay& page, std::int32_t position);

  QRNDisplayStack& stack_;
  std::ostream& out_;
  std::vector<Connection> connections_;
};

}  // namespace qrn::eddpanel
