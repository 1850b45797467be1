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
void Audience::listen(Seat& seat, Event<Args...>& event, std::string_view name) {
  seat.connections.push_back(
      event.connect([this, &seat, name](Args... args) { heard(seat, name, indexIn(args...)); }));
}

void Audience::sitsDown(QRNDisplay& panel) {
  seats_.push_back(std::make_unique<Seat>());
  Seat& seat = *seats_.back();
  seat.panel = WeakRef<QRNDisplay>(&panel);
  listen(seat, panel.ItemGotFocus, "ItemGotFocus");
  listen(seat, panel.ItemLostFocus, "ItemLostFocus");
  listen(seat, panel.ItemMenuClick, "ItemMenuClick");
  listen(seat, panel.ItemKeyDown, "ItemKeyDown");
  listen(seat, panel.ItemKeyPress, "ItemKeyPress");
  listen(seat, panel.ItemKeyUp, "ItemKeyUp");
  listen(seat, panel.ActionLayout, "ActionLayout");
  listen(seat, panel.ActionClick, "ActionClick");
  listen(seat, panel.ParameterLayout, "ParameterLayout");
  listen(seat, panel.ParameterChange, "ParameterChange");
  listen(seat, panel.ParameterItemCheck, "ParameterItemCheck");
  listen(seat, panel.ParameterIcon1Click, "ParameterIcon1Click");
  listen(seat, panel.ParameterIcon2Click, "ParameterIcon2Click");
  listen(seat, panel.ParameterClick, "ParameterClick");
  listen(seat, panel.ParameterStartEdit, "ParameterStartEdit");
  listen(seat, panel.ParameterEndEdit, "ParameterEndEdit");
  listen(seat, panel.ParameterStatusChange, "ParameterStatusChange");
  listen(seat, panel.ButtonLayout, "ButtonLayout");
  listen(seat, panel.ButtonClick, "ButtonClick");
  listen(seat, panel.KeyDown, "KeyDown");
  listen(seat, panel.KeyPress, "KeyPress");
  listen(seat, panel.KeyUp, "KeyUp");
  listen(seat, panel.Click, "Click");
  listen(seat, panel.DisplayClose, "DisplayClose");
  listen(seat, panel.DisplayRestore, "DisplayRestore");
  listen(seat, panel.DisplayMaximize, "DisplayMaximize");
  // Once more by name, after the event's own listeners have done what they wanted.
  seat.connections.push_back(
      panel.ObjectEvent.connect([this, &seat](std::string_view, host::EventArgs arguments) {
        meddle(seat.panel.get(), arguments.empty() ? 0 : arguments[0].asLong());
      }));
}

Audience::Seat& Audience::seatOf(const QRNDisplay& panel) {
  return **std::find_if(seats_.begin(), seats_.end(),
                        [&](const auto& seat) { return seat->panel.get() == &panel; });
}

void Audience::standsUp() {
  seats_.clear();
  deeds_.clear();
}

void Audience::stepBegins() {
  std::erase_if(seats_, [](const auto& seat) { return !seat->panel; });
  gotFocus_.clear();
  lostFocus_.clear();
  deedsBefore_ = deedsDone_;
}

void Audience::heardOfSite() {
  if (stage_.surface()) meddle(stage_.panel(), 0);
}

void Audience::leansOver(QRNDisplay& panel, QRNEdit& row, std::int32_t position) {
  Seat& seat = seatOf(panel);
  const auto then = [this, &seat, position](auto&&...) { meddle(seat.panel.get(), position); };
  seat.connections.push_back(row.events().StartEdit.connect(then));
  seat.connections.push_back(row.events().EndEdit.connect(then));
  seat.connections.push_back(row.events().Change.connect(then));
  seat.connections.push_back(row.events().StatusChange.connect(then));
  seat.connections.push_back(row.events().KeyDown.connect(then));
  seat.connections.push_back(row.events().Click.connect(then));
  seat.connections.push_back(row.events().Icon2Click.connect(then));
  seat.connections.push_back(row.ObjectEvent.connect(then));
}

void Audience::heard(Seat& seat, std::string_view name, std::int32_t index) {
  checkPosition(seat, name, index);
  checkEditCycle(seat, name, index);
  noteFocus(seat, name, index);
  if (name == "DisplayMaximize" || name == "DisplayRestore")
    stage_.pages().asksForSize(seat.panel, name == "DisplayMaximize");
  meddle(seat.panel.get(), index);
}

// The end of an edit of an item that has gone carries the position that it had, and a click of a footer
// button the one at the time of the click; every other event is raised at an item that is there.
void Audience::checkPosition(Seat& seat, std::string_view name, std::int32_t index) {
  const bool ofItem = name.starts_with("Item") || name.starts_with("Action") || name.starts_with("Parameter");
  if (!ofItem || name == "ParameterEndEdit" || !seat.panel) return;
  const std::int32_t count = seat.panel->Items().Count();
  if (index < 1 || index > count)
    stage_.complain("an event carries its item's position", std::string(name) + " " + std::to_string(index) +
                                                                " of " + std::to_string(count) + " items");
}

void Audience::checkEditCycle(Seat& seat, std::string_view name, std::int32_t index) {
  const bool starts = name == "ParameterStartEdit";
  if (!starts && name != "ParameterEndEdit") return;
  const auto complain = [&](const char* rule, const std::string& otherwise) {
    stage_.complain(rule, std::string(name) + " " + std::to_string(index) + otherwise);
  };
  if (starts == seat.isEditing)
    complain("one row at a time is edited", seat.isEditing ? " during another edit" : " of no edit");
  seat.isEditing = starts;
  if (!seat.panel) return;
  clsQRNCollection& items = seat.panel->Items();
  if (starts) {
    seat.edited = items.Item(Variant(index));
    return;
  }
  // As long as the item is there the end finds it, wherever it has got to.
  const PanelItemPtr item = seat.edited.lock();
  if (item && isIn(items, item) && items.Item(Variant(index)) != item)
    complain("the end of an edit carries its item's position", " of another item");
}

void Audience::noteFocus(Seat& seat, std::string_view name, std::int32_t index) {
  const bool got = name == "ItemGotFocus";
  if ((!got && name != "ItemLostFocus") || !seat.panel || index < 1 || index > seat.panel->Items().Count())
    return;
  (got ? gotFocus_ : lostFocus_).push_back(seat.panel->Items().Item(Variant(index)).get());
}

void Audience::meddle(QRNDisplay* panel, std::int32_t index) {
  if (!stage_.surface()) return;
  for (std::size_t i = 0; i < deeds_.size(); ++i) {
    if (deeds_[i].events-- > 0) continue;
    const Deed due = deeds_[i];
    deeds_.erase(deeds_.begin() + static_cast<std::ptrdiff_t>(i));
    ++deedsDone_;
    // The deed raises events itself, and whoever is waiting for those has its turn then.
    return doDeed(stage_, due, panel, index);
  }
}

}  // namespace qrn::monkey
