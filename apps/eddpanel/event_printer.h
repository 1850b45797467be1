#pragma once

#include <iosfwd>
#include <vector>

#include "base/event.h"
#include "device_panels.h"

namespace qrn::eddpanel {

/// Prints every event of the panels with the names of the items concerned, for instance
/// `Basic setup: ParameterEndEdit(7, True) damping = "2.5"`.
class EventPrinter {
 public:
  explicit EventPrinter(std::ostream& out) : out_(out) {}

  void watch(MenuPanel& panel);

 private:
  void print(MenuPanel& panel, std::string_view name, host::EventArgs arguments);

  std::ostream& out_;
  std::vector<Connection> connections_;
};

}  // namespace qrn::eddpanel
