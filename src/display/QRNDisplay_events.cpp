#include <utility>

#include "display/QRNDisplay.h"
#include "runtime/errors.h"

namespace qrn {

void QRNDisplay::raiseItem(Event<std::int32_t&>& event, std::string_view name, const PanelItem& item) {
  std::int32_t index = item.position();
  raise(event, name, index);
}

// ---- focus and edit cycles ----

void QRNDisplay::itemGotFocus(const PanelItem& item) {
  ignoringErrors([&] { bringIntoView(*item.control()); });
  raiseItem(ItemGotFocus, "ItemGotFocus", item);
}

// The bottom first, then the top: of an item taller than the view the top is seen.
void QRNDisplay::bringIntoView(const host::Control& control) {
  double offset = sbrVertical_.Value();
  const double bottom = control.Top() - offset + control.Height(), room = pbxContainer_.ScaleHeight();
  if (bottom > room) offset += bottom - room;
  const double top = control.Top() - offset;
  if (top < 0) offset += top;
  if (offset == sbrVertical_.Value()) return;
  sbrVertical_.SetValue(scrollNumber(offset));
  applyScroll();
}

void QRNDisplay::startEditCycle(const PanelItem& item) {
  const WeakRef<host::Control> self(this);
  // A tool tip has taken the focus from a row, whose edit goes on.
  if (holdsEditsBack()) return;
  if (!isEdited(item)) releaseEditCycle();
  // Who heard of that end may have moved the item, removed it, or shown help.
  if (!self || editing_ || holdsEditsBack() || item.position() == 0) return;
  editing_ = true;
  edited_ = item.weak_from_this();
  editIndex_ = item.position();
  editChanged_ = false;
  raiseItem(ParameterStartEdit, "ParameterStartEdit", item);
}

void QRNDisplay::endEditCycle(const PanelItem& item, bool changed) {
  if (!isEdited(item)) return;
  editChanged_ = changed;
  if (!holdsEditsBack()) releaseEditCycle();
}

// The position is that of now: items before it may have come or gone meanwhile.
void QRNDisplay::releaseEditCycle() {
  if (!editing_) return;
  editing_ = false;
  const auto item = edited_.lock();
  std::int32_t index = item && item->position() != 0 ? item->position() : editIndex_;
  bool changed = std::exchange(editChanged_, false);
  edited_.reset();
  raise(ParameterEndEdit, "ParameterEndEdit", index, changed);
}

// The tool tip itself hears that the application has been left, too, and goes by itself.
void QRNDisplay::applicationLeft() {
  toolTipShown_ = false;
  releaseEditCycle();
}

// Its edit goes on, for the next start of another one to end it at the place that it had.
void QRNDisplay::itemLeaves(const PanelItem& item) {
  if (!isEdited(item)) return;
  editIndex_ = item.position();
  edited_.reset();
}

// ---- the panel's own ----

void QRNDisplay::keyDown(std::int16_t& keyCode, std::int16_t& shift) {
  if (keyCode != host::key::Escape || shift != host::shift::None || !toolTip())
    return raise(KeyDown, "KeyDown", keyCode, shift);
  keyCode = 0;
  RemoveToolTip(true);
}

void QRNDisplay::keyPress(std::int16_t& keyAscii) {
  // Escape closes the tool tip or the panel, so it goes no further while there is something to close.
  if (keyAscii == host::key::Escape && (toolTip() || !iconCloseHidden_))
    keyAscii = 0;
  else
    raise(KeyPress, "KeyPress", keyAscii);
}

void QRNDisplay::keyUp(std::int16_t& keyCode, std::int16_t& shift) { raise(KeyUp, "KeyUp", keyCode, shift); }

void QRNDisplay::passiveClick() {
  RemoveToolTip(false);
  raise(Click, "Click");
}

void QRNDisplay::mouseDown(host::MouseButton button, std::int16_t, Point) {
  if (button == host::MouseButton::Left) pressed_ = this;
}

void QRNDisplay::mouseUp(host::MouseButton button, std::int16_t, Point at) {
  if (button != host::MouseButton::Left || pressed_ != this) return;
  pressed_ = nullptr;
  if (contains(at)) passiveClick();
}

void QRNDisplay::childMouseDown(host::Control& child, host::MouseButton button, std::int16_t, Point) {
  if (button != host::MouseButton::Left) return;
  pressed_ = &child;
  child.invalidate();
}

void QRNDisplay::childMouseMove(host::Control& child, std::int16_t, std::int16_t, Point at) {
  const bool button = &child == &imgClose_ || &child == &imgMaxRst_;
  hover(button && child.contains(at) ? &child : nullptr);
}

void QRNDisplay::hover(const host::Control* titleButton) {
  if (titleButton == hovered_) return;
  hovered_ = titleButton;
  imgClose_.invalidate();
  imgMaxRst_.invalidate();
}

void QRNDisplay::childMouseUp(host::Control& child, host::MouseButton button, std::int16_t, Point at) {
  if (button != host::MouseButton::Left || pressed_ != &child) return;
  pressed_ = nullptr;
  child.invalidate();
  if (child.contains(at)) clickOn(child);
}

void QRNDisplay::clickOn(host::Control& child) {
  if (&child == &imgClose_) {
    if (!iconCloseHidden_) raise(DisplayClose, "DisplayClose");
  } else if (&child == &imgMaxRst_) {
    toggleMaximized();
  } else if (&child == &lblTitle_ || &child == &pbxContainer_ || &child == &buttonsContainer_) {
    passiveClick();
  }
}

void QRNDisplay::childDoubleClick(host::Control& child, Point at) {
  if (&child == &lblTitle_)
    toggleMaximized();
  else
    UserControl::childDoubleClick(child, at);
}

// The caller decides what becomes of it; the panel itself stays as it is.
void QRNDisplay::toggleMaximized() {
  if (iconMaxRstHidden_) return;
  if (maximized_)
    raise(DisplayRestore, "DisplayRestore");
  else
    raise(DisplayMaximize, "DisplayMaximize");
}

void QRNDisplay::childChanged(host::Control& child) {
  if (&child == &sbrVertical_)
    applyScroll();
  else if (&child == &pbxContainer_)
    LayoutControls(false);
  else if (&child == &buttonsContainer_)
    LayoutButtons();
}

}  // namespace qrn
