#include "buttons/clsQRNButtons.h"

#include <algorithm>

#include "base/first_error.h"
#include "diag/QRNErrors.h"
#include "runtime/errors.h"

namespace qrn {
namespace {

constexpr std::string_view kTimer = "tmrButtonFire";
constexpr std::int32_t kFireInterval = 100;  // milliseconds

}  // namespace

clsQRNButtons::clsQRNButtons(ButtonsPanel& panel) {
  panel_.set(&panel);
  startTimer();
}

clsQRNButtons::~clsQRNButtons() {
  for (const ButtonPtr& button : buttons_) button->detach();
}

ButtonsPanel& clsQRNButtons::panel() const {
  ButtonsPanel* panel = panel_.get();
  if (!panel) RaiseError(kObjectNotInitialized, *this);
  return *panel;
}

ButtonPtr clsQRNButtons::AddButton(std::string_view CtlName, const std::string& Caption,
                                   const std::optional<Variant>& AtPosition) {
  const std::string key = CtlName.empty() ? buttons_.freeKey("Button") : std::string(CtlName);
  ButtonPtr button = makeButton(key, AtPosition);
  if (!button) return nullptr;
  startTimer();  // an earlier removal may have taken it
  const WeakRef<ButtonsPanel> guard(panel_.get());
  FirstError error;
  error.of([&] { button->SetDefaultLayout(Caption); });
  if (guard) error.of([&] { guard->buttonsChanged(); });
  error.raise();
  return button;
}

ButtonPtr clsQRNButtons::makeButton(const std::string& key, const std::optional<Variant>& atPosition) {
  auto button = std::make_shared<clsQRNButton>();
  host::Control* control = nullptr;
  const bool made = ignoringErrors([&] {
    control = &controls().add("VB.CommandButton", key, panel().ButtonsContainer());
    buttons_.add(key, button, atPosition);
  });
  if (made) {
    button->SetControl(panel(), static_cast<host::CommandButton&>(*control));
    return button;
  }
  if (control) controls().remove(key);
  return nullptr;
}

std::int32_t clsQRNButtons::GetIndexOf(const Variant& aSelector) const {
  const std::int32_t position = buttons_.positionOf(aSelector);
  if (position == 0) RaiseError(kObjectNotInCollection, *this);
  return position;
}

ButtonPtr clsQRNButtons::Item(const Variant& aSelector) const {
  return aSelector.isObject() ? buttons_.at(GetIndexOf(aSelector)) : buttons_.at(aSelector);
}

void clsQRNButtons::Remove(const Variant& aSelector) {
  if (aSelector.isObject()) {
    // The timer stays, even without buttons.
    if (const std::int32_t position = buttons_.positionOf(aSelector)) removeAt(position);
    return;
  }
  const WeakRef<ButtonsPanel> guard(panel_.get());
  const std::int32_t position = Item(aSelector)->entry_->position;
  FirstError error;
  error.of([&] { removeAt(position); });
  if (guard && Count() == 0) stopTimer();
  error.raise();
}

void clsQRNButtons::RemoveAll() {
  const WeakRef<ButtonsPanel> guard(panel_.get());
  FirstError error;
  for (std::int32_t i = Count(); guard && i >= 1; --i) {
    if (i <= Count()) error.of([&] { Remove(Variant(i)); });
  }
  error.raise();
}

void clsQRNButtons::removeAt(std::int32_t position) {
  const ButtonPtr button = buttons_.take(position);
  const WeakRef<ButtonsPanel> guard(panel_.get());
  button->detach();
  if (const host::Control* control = button->control()) controls().remove(std::string(control->Name()));
  if (guard) guard->buttonsChanged();
}

// ---- buttons that click themselves ----

void clsQRNButtons::startTimer() {
  if (timer_) return;
  std::string name(kTimer);
  while (controls().find(name)) name += '_';  // an item may bear that name
  auto& timer = static_cast<host::Timer&>(controls().add("VB.Timer", name, panel().control()));
  timer_ = WeakRef<host::Timer>(&timer);
  ticks_ = timer.Tick.connect([this, &timer] { tick(timer.Interval()); });
  timer.SetInterval(kFireInterval);
}

void clsQRNButtons::stopTimer() {
  if (timer_) controls().remove(std::string(timer_->Name()));
}

void clsQRNButtons::tick(std::int32_t passed) {
  for (const ButtonPtr& button : buttons_) {
    if (button->AutoFireDelay() >= 0) button->SetAutoFireDelay(std::max(button->AutoFireDelay() - passed, 0));
  }
}

}  // namespace qrn
