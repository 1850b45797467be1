#include "audience.h"

#include <string>
#include <type_traits>

#include "meddling.h"
#include "stage.h"

namespace qrn::monkey {
namespace {

bool isIn(clsQRNCollection& items, const PanelItemPtr& item) {
  for (const PanelItemPtr& one : items) {
    if (one == item) return true;
  }
  return false;
}

// Item events begin with the position, a Long; keys and the like are Integers.
std::int32_t indexIn() { return 0; }
template <class First, class... Rest>
std::int32_t indexIn(const First& first, const Rest&...) {
  if constexpr (std::is_same_v<First, std::int32_t>) return first;
  return 0;
}

}  // namespace

template <class... Args>
void Audience::listen(Event<Args...>& event, std::string_view name) {
  connections_.push_back(event.connect([this, name](Args... args) { heard(name, indexIn(args...)); }));
}

void Audience::sitsDown(QRNDisplay& panel) {
  listen(panel.ItemGotFocus, "ItemGotFocus");
  listen(panel.ItemLostFocus, "ItemLostFocus");
  listen(panel.ItemMenuClick, "ItemMenuClick");
  listen(panel.ItemKeyDown, "ItemKeyDown");
  listen(panel.ItemKeyPress, "ItemKeyPress");
  listen(panel.ItemKeyUp, "ItemKeyUp");
  listen(panel.ActionLayout, "ActionLayout");
  listen(panel.ActionClick, "ActionClick");
  listen(panel.ParameterLayout, "ParameterLayout");
  listen(panel.ParameterChange, "ParameterChange");
  listen(panel.ParameterItemCheck, "ParameterItemCheck");
  listen(panel.ParameterIcon1Click, "ParameterIcon1Click");
  listen(panel.ParameterIcon2Click, "ParameterIcon2Click");
  listen(panel.ParameterClick, "ParameterClick");
  listen(panel.ParameterStartEdit, "ParameterStartEdit");
  listen(panel.ParameterEndEdit, "ParameterEndEdit");
  listen(panel.ParameterStatusChange, "ParameterStatusChange");
  listen(panel.ButtonLayout, "ButtonLayout");
  listen(panel.ButtonClick, "ButtonClick");
  listen(panel.KeyDown, "KeyDown");
  listen(panel.KeyPress, "KeyPress");
  listen(panel.KeyUp, "KeyUp");
  listen(panel.Click, "Click");
  listen(panel.DisplayClose, "DisplayClose");
  listen(panel.DisplayRestore, "DisplayRestore");
  listen(panel.DisplayMaximize, "DisplayMaximize");
  // Once more by name, after the event's own listeners have done what they wanted.
  connections_.push_back(panel.ObjectEvent.connect([this](std::string_view, host::EventArgs arguments) {
    meddle(arguments.empty() ? 0 : arguments[0].asLong());
  }));
}

void Audience::standsUp() {
  connections_.clear();
  deeds_.clear();
  isEditing_ = false;
}

void Audience::leansOver(QRNEdit& row, std::int32_t position) {
  const auto then = [this, position](auto&&...) { meddle(position); };
  connections_.push_back(row.StartEdit.connect(then));
  connections_.push_back(row.EndEdit.connect(then));
  connections_.push_back(row.Change.connect(then));
  connections_.push_back(row.StatusChange.connect(then));
  connections_.push_back(row.KeyDown.connect(then));
  connections_.push_back(row.Click.connect(then));
  connections_.push_back(row.Icon2Click.connect(then));
  connections_.push_back(row.ObjectEvent.connect(then));
}

void Audience::heard(std::string_view name, std::int32_t index) {
  checkPosition(name, index);
  checkEditCycle(name, index);
  noteFocus(name, index);
  meddle(index);
}

// The end of an edit of an item that has gone carries the position that it had, and a click of a footer
// button the one at the time of the click; every other event is raised at an item that is there.
void Audience::checkPosition(std::string_view name, std::int32_t index) {
  const bool ofItem = name.starts_with("Item") || name.starts_with("Action") || name.starts_with("Parameter");
  if (!ofItem || name == "ParameterEndEdit" || !stage_.panel()) return;
  if (index < 1 || index > stage_.items().Count())
    stage_.complain("an event carries its item's position",
                    std::string(name) + " " + std::to_string(index) + " of " +
                        std::to_string(stage_.items().Count()) + " items");
}

void Audience::checkEditCycle(std::string_view name, std::int32_t index) {
  const bool starts = name == "ParameterStartEdit";
  if (!starts && name != "ParameterEndEdit") return;
  const auto complain = [&](const char* rule, const std::string& otherwise) {
    stage_.complain(rule, std::string(name) + " " + std::to_string(index) + otherwise);
  };
  if (starts == isEditing_)
    complain("one row at a time is edited", isEditing_ ? " during another edit" : " of no edit");
  isEditing_ = starts;
  if (!stage_.panel()) return;
  if (starts) {
    edited_ = stage_.items().Item(Variant(index));
    return;
  }
  // As long as the item is there the end finds it, wherever it has got to.
  const PanelItemPtr item = edited_.lock();
  if (item && isIn(stage_.items(), item) && stage_.items().Item(Variant(index)) != item)
    complain("the end of an edit carries its item's position", " of another item");
}

void Audience::noteFocus(std::string_view name, std::int32_t index) {
  const bool got = name == "ItemGotFocus";
  if ((!got && name != "ItemLostFocus") || !stage_.panel() || index < 1 || index > stage_.items().Count())
    return;
  (got ? gotFocus_ : lostFocus_).push_back(stage_.items().Item(Variant(index)).get());
}

void Audience::meddle(std::int32_t index) {
  if (!stage_.panel()) return;
  for (std::size_t i = 0; i < deeds_.size(); ++i) {
    if (deeds_[i].events-- > 0) continue;
    const Deed due = deeds_[i];
    deeds_.erase(deeds_.begin() + static_cast<std::ptrdiff_t>(i));
    ++deedsDone_;
    // The deed raises events itself, and whoever is waiting for those has its turn then.
    return doDeed(stage_, due, index);
  }
}

}  // namespace qrn::monkey
