#include "event_printer.h"

#include <ostream>

#include "base/text.h"

namespace qrn::eddpanel {
namespace {

bool isFlag(std::string_view event, std::size_t argument) {
  return event == "ParameterEndEdit" && argument == 1;
}

// The panel's own events carry no item.
bool hasItem(std::string_view event) {
  return event.starts_with("Item") || event.starts_with("Parameter") || event.starts_with("Action");
}

}  // namespace

void EventPrinter::watch(MenuPanel& panel) {
  connections_.push_back(
      panel.display().ObjectEvent.connect([this, &panel](std::string_view name, host::EventArgs arguments) {
        // Focus events of the panel among other windows say nothing about its items.
        if (name != "GotFocus" && name != "LostFocus") print(panel, name, arguments);
      }));
  connections_.push_back(
      panel.Message.connect([this](const std::string& text) { out_ << "message: " << text << '\n'; }));
  connections_.push_back(panel.Help.connect(
      [this](std::int32_t, const std::string& text) { out_ << "help: " << text << '\n'; }));
}

void EventPrinter::print(MenuPanel& panel, std::string_view name, host::EventArgs arguments) {
  out_ << panel.menu().label << ": " << name;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    out_ << (i == 0 ? "(" : ", ");
    if (isFlag(name, i))
      out_ << (arguments[i].as<bool>() ? "True" : "False");
    else
      out_ << arguments[i].asLong();
  }
  if (!arguments.empty()) out_ << ')';
  if (hasItem(name) && !arguments.empty()) {
    const std::int32_t item = arguments[0].asLong();
    out_ << ' ' << panel.entry(item).name;
    if (QRNEdit* row = panel.row(item); row && !row->Password()) out_ << " = \"" << row->ValueText() << '"';
  }
  if (name.starts_with("Button") && !arguments.empty()) {
    const auto button = panel.display().Buttons().Item(Variant(arguments[0].asLong()));
    out_ << ' ' << text::replaced(button->Control().Caption(), "&", "");
  }
  out_ << std::endl;
}

}  // namespace qrn::eddpanel
