#include "stack/QRNDisplayStack.h"

#include <algorithm>
#include <utility>

#include "stack/page_place.h"

namespace qrn {

void QRNDisplayStack::initialize() {
  host::Control& list = controls().add("QRNV16Controls2.QRNImageList", "imlImages", *this);
  imageList_ = WeakRef<QRNImageList>(static_cast<QRNImageList*>(&list));
  Move(0, 0, 480, 360);
}

// A designer sees how pages lie on each other.
void QRNDisplayStack::show() {
  if (userMode() || Count() > 0) return;
  AddPage("", "Page1", false);
  AddPage("", "Page2", false);
}

QRNDisplay& QRNDisplayStack::Pages(const Variant& aSelector) const {
  return *pages_.at(aSelector)->Control();
}

bool QRNDisplayStack::hasDialog() const {
  for (const Page& page : pages_) {
    if (page->Control()->TitleStyle() == qrnTitleDialog) return true;
  }
  return false;
}

// ---- setters ----

void QRNDisplayStack::storeIndent(std::int32_t& field, std::int32_t indent, std::string_view key) {
  if (indent == field) return;
  field = indent;
  const WeakRef<Control> self(this);
  FirstError error;
  error.of([&] { propertyChanged(key); });
  if (self) error.of([&] { layOutAll(); });
  error.raise();
}

void QRNDisplayStack::SetHideDisabledControls(bool hide) {
  if (hide == hideDisabledControls_) return;
  hideDisabledControls_ = hide;
  propertyChanged("HideDisabledControls");
}

void QRNDisplayStack::SetEnabled(bool enabled) {
  if (enabled == Enabled()) return;
  UserControl::SetEnabled(enabled);
  propertyChanged("Enabled");
}

void QRNDisplayStack::SetFont(host::FontPtr font) {
  setFont(std::move(font));
  FirstError error;
  const auto set = [this](clsDisplayPage& page) { page.Control()->SetFont(this->font()); };
  forPages(1, Count(), set, error);
  error.raise();
}

void QRNDisplayStack::SetBackColor(host::Color color) {
  if (color == backColor()) return;
  setBackColor(color);
  FirstError error;
  forPages(
      1, Count(), [color](clsDisplayPage& page) { page.Control()->SetBackColor(color); }, error);
  error.raise();
}

// ---- places ----

bool QRNDisplayStack::forPages(std::int32_t first, std::int32_t last, const PageWork& work,
                               FirstError& error) {
  const WeakRef<Control> self(this);
  for (std::int32_t k = first; self && k <= std::min(last, Count()); ++k) {
    const Page one = page(k);
    error.of([&] { work(*one); });
  }
  return static_cast<bool>(self);
}

void QRNDisplayStack::layOut(clsDisplayPage& page, bool maximized) {
  QRNDisplay& display = *page.Control();
  const double level = page.PageIndex() - 1;
  const PagePlace place{leftIndent_ * level, topIndent_ * level, maximized,
                        display.TitleStyle() == qrnTitleDialog, display.GetMenuItemHeight()};
  const Rect bounds = placePage(place, {ScaleWidth(), ScaleHeight()});
  FirstError error;
  error.of([&] { display.Move(bounds.left, bounds.top, bounds.width, bounds.height); });
  if (page.isOpen()) display.SetMaximized(maximized);
  error.raise();
}

void QRNDisplayStack::layOutAll() {
  FirstError error;
  const auto keep = [this](clsDisplayPage& page) { layOut(page, page.Control()->Maximized()); };
  if (forPages(1, Count(), keep, error)) settleScrollBars();
  error.raise();
}

// The first page always fills the stack: it only learns that it does when it is the one that was asked.
void QRNDisplayStack::maximize(std::int32_t index) {
  FirstError error;
  const auto grow = [this](clsDisplayPage& page) { layOut(page, true); };
  bool there = forPages(index, index, grow, error);
  for (std::int32_t k = index - 1; there && k >= 2; --k) there = forPages(k, k, grow, error);
  if (there) settleScrollBars();
  error.raise();
}

void QRNDisplayStack::restore(std::int32_t index) {
  FirstError error;
  const auto shrink = [this](clsDisplayPage& page) { layOut(page, false); };
  if (forPages(std::min(2, index), index, shrink, error)) settleScrollBars();
  error.raise();
}

// A native scroll bar would show through the pages above its own.
void QRNDisplayStack::settleScrollBars() {
  for (const Page& page : pages_) page->Control()->sbrVertical().realiseWithSurface();
}

// ---- the user ----

// A page that is disabled lets the mouse through to here.
void QRNDisplayStack::mouseDown(host::MouseButton button, std::int16_t, Point) {
  if (button == host::MouseButton::Left) pressed_ = true;
}

void QRNDisplayStack::mouseUp(host::MouseButton button, std::int16_t, Point at) {
  if (button != host::MouseButton::Left || !std::exchange(pressed_, false)) return;
  if (contains(at) && hasDialog()) platform().beep();
}

// The keyboard is for the page on top only.
host::Control* QRNDisplayStack::nextTabStop(host::Control* from, bool forward) {
  return top() && top()->Enabled() ? top()->nextTabStop(from, forward) : nullptr;
}

const host::ContainerControl& QRNDisplayStack::keyboardArea() const {
  if (top()) return *top();
  return *this;
}

}  // namespace qrn
