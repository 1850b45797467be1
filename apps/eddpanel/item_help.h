#pragma once

#include <string>
#include <vector>

#include "display/QRNDisplay.h"
#include "edd/description.h"

namespace qrn::eddpanel {

/// What a description says of an item of a menu.
struct ItemHelp {
  std::string caption;
  std::string text;
  std::vector<std::string> choices;  // what the entries of an enumeration mean
  std::string range;                 // of a number

  bool empty() const { return text.empty() && choices.empty(); }
};

ItemHelp helpOf(const edd::Description& description, const edd::MenuItem& item);

/// Shows help beside an item, in the panel's own font with a bold caption, until the user presses Escape or
/// goes elsewhere. Null when there is none to show.
QRNToolTip* showHelp(QRNDisplay& panel, std::int32_t item, const ItemHelp& help);

}  // namespace qrn::eddpanel
