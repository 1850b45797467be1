#include "buttons/clsQRNButton.h"

#include <algorithm>

#include "base/text.h"
#include "diag/DebugTrace.h"
#include "diag/QRNErrors.h"
#include "runtime/conversions.h"
#include "runtime/errors.h"

namespace qrn {
namespace {

constexpr double kRoomAroundCaption = 10;

// Nobody waits for an answer of a click, so its errors go to the trace.
template <class Action>
void tracingErrors(Action&& action) {
  try {
    action();
  } catch (const RunTimeError& error) {
    DebugTrace(error.source() + ": " + error.description(), 1);
  }
}

}  // namespace

host::CommandButton& clsQRNButton::Control() const {
  if (!control_) RaiseError(kObjectNotInitialized, *this);
  return *control_;
}

void clsQRNButton::SetControl(ButtonsPanel& panel, host::CommandButton& control) {
  panel_ = WeakRef<ButtonsPanel>(&panel);
  control_ = WeakRef<host::CommandButton>(&control);
  clicked_ = control.Click.connect([this] { click(); });
}

void clsQRNButton::detach() {
  clicked_.disconnect();
  poster_.reset();
  panel_ = {};
}

void clsQRNButton::SetDefaultLayout(const std::string& Caption) {
  host::CommandButton& button = Control();
  const host::UserControl& panel = panel_->control();
  stdWidth_ = CLng(Variant(12 * panel.TextWidth("a")));
  const std::string shown = text::replaced(Caption, "&", "");
  minWidth_ = CLng(Variant(panel.TextWidth(shown + "a") + kRoomAroundCaption));
  const double height = panel.TextHeight("|") + kRoomAroundCaption;
  button.Move(button.Left(), button.Top(), std::max(stdWidth_, minWidth_), height);
  button.SetCaption(Caption);
  if (entry_) panel_->buttonNeedsLayout(entry_->position);
}

void clsQRNButton::SetAutoFireDelay(std::int32_t milliseconds) {
  autoFireDelay_ = milliseconds;
  if (milliseconds == 0) click();
}

void clsQRNButton::click() {
  autoFireDelay_ = -1;
  if (!entry_ || !panel_) return;
  tracingErrors([this] { post(entry_->position); });
}

void clsQRNButton::post(std::int32_t index) {
  if (!poster_) poster_ = panel_->makePoster();
  poster_->PostThisCode(*this, Variant(index));
}

void clsQRNButton::Callback(Variant& Code) {
  // A listener may remove the button.
  const auto self = shared_from_this();
  tracingErrors([&] {
    if (panel_) panel_->buttonClicked(CLng(Code));
  });
}

}  // namespace qrn
