#include "event_printer.h"

#include <ostream>
#include <sstream>

#include "base/text.h"
#include "tooltip/QRNToolTip.h"

namespace qrn::eddpanel {
namespace {

bool concernsItem(std::string_view event) {
  return event.starts_with("Item") || event.starts_with("Parameter") || event.starts_with("Action");
}

// A control's name without the place that it has on its page.
std::string inDescription(std::string_view controlName) {
  return std::string(controlName.substr(0, controlName.find('.')));
}

}  // namespace

struct EventPrinter::Argument {
  Argument(bool flag) : text(flag ? "True" : "False") {}
  Argument(std::int16_t code) : text(std::to_string(code)), number(code) {}
  Argument(std::int32_t index) : text(std::to_string(index)), number(index) {}

  std::string text;
  std::int32_t number = 0;
};

EventPrinter::EventPrinter(QRNDisplayStack& stack, std::ostream& out) : stack_(stack), out_(out) {
  listenToItems();
  listenToPages();
}

template <class... Args>
void EventPrinter::print(std::string_view name, Event<Args...>& event) {
  connections_.push_back(
      event.connect([this, name](Args... arguments) { line(name, {Argument(arguments)...}); }));
}

void EventPrinter::listenToItems() {
  print("ItemGotFocus", stack_.ItemGotFocus);
  print("ItemLostFocus", stack_.ItemLostFocus);
  print("ItemMenuClick", stack_.ItemMenuClick);
  print("ItemKeyDown", stack_.ItemKeyDown);
  print("ItemKeyPress", stack_.ItemKeyPress);
  print("ItemKeyUp", stack_.ItemKeyUp);
  print("ActionLayout", stack_.ActionLayout);
  print("ActionClick", stack_.ActionClick);
  print("ParameterLayout", stack_.ParameterLayout);
  print("ParameterChange", stack_.ParameterChange);
  print("ParameterItemCheck", stack_.ParameterItemCheck);
  print("ParameterIcon1Click", stack_.ParameterIcon1Click);
  print("ParameterIcon2Click", stack_.ParameterIcon2Click);
  print("ParameterClick", stack_.ParameterClick);
  print("ParameterStartEdit", stack_.ParameterStartEdit);
  print("ParameterEndEdit", stack_.ParameterEndEdit);
  print("ParameterStatusChange", stack_.ParameterStatusChange);
}

void EventPrinter::listenToPages() {
  print("ButtonLayout", stack_.ButtonLayout);
  print("ButtonClick", stack_.ButtonClick);
  print("KeyDown", stack_.KeyDown);
  print("KeyPress", stack_.KeyPress);
  print("KeyUp", stack_.KeyUp);
  print("PageLayout", stack_.PageLayout);
  print("PageActivate", stack_.PageActivate);
  print("PageDeactivate", stack_.PageDeactivate);
  print("PageClose", stack_.PageClose);
}

void EventPrinter::watch(DevicePages& pages) {
  connections_.push_back(
      pages.Message.connect([this](const std::string& text) { out_ << "message: " << text << std::endl; }));
  connections_.push_back(pages.HelpShown.connect([this](QRNToolTip& tip) {
    std::istringstream lines(text::replaced(tip.Text(), "\r", ""));
    for (std::string help; std::getline(lines, help);) out_ << "help: " << help << std::endl;
  }));
}

// The first argument is the page's index, the second one the position of an item or a button.
void EventPrinter::line(std::string_view name, const std::vector<Argument>& arguments) {
  QRNDisplay& page = stack_.Pages(Variant(arguments[0].number));
  out_ << page.Title() << ": " << name << '(';
  for (std::size_t i = 0; i < arguments.size(); ++i) out_ << (i == 0 ? "" : ", ") << arguments[i].text;
  out_ << ')';
  if (arguments.size() > 1) out_ << concerned(name, page, arguments[1].number);
  out_ << std::endl;
}

std::string EventPrinter::concerned(std::string_view name, QRNDisplay& page, std::int32_t position) {
  if (name.starts_with("Button"))
    return ' ' + text::replaced(page.Buttons().Item(Variant(position))->Control().Caption(), "&", "");
  if (!concernsItem(name)) return {};
  const PanelItemPtr item = page.Items().Item(Variant(position));
  if (const auto* action = dynamic_cast<clsQRNAction*>(item.get()))
    return ' ' + inDescription(action->Control().Name());
  QRNEdit& row = static_cast<clsQRNParam&>(*item).Control();
  const bool hasValue = !row.Password() && !name.ends_with("Layout");
  return ' ' + inDescription(row.Name()) + (hasValue ? " = \"" + row.ValueText() + '"' : "");
}

}  // namespace qrn::eddpanel
