#include <utility>

#include "base/first_error.h"
#include "base/scoped_flag.h"
#include "diag/DebugTrace.h"
#include "row/QRNEdit.h"
#include "row/row_extras.h"
#include "runtime/errors.h"
#include "values/bit_string.h"

namespace qrn {
namespace {

constexpr std::int32_t kTraceLevel = 0;

}  // namespace

RowExtras& QRNEdit::extras() {
  if (!extras_) extras_ = std::make_unique<RowExtras>();
  return *extras_;
}

RowEvents& QRNEdit::events() {
  if (!events_) events_ = std::make_unique<RowEvents>();
  return *events_;
}

// ---- the edit bracket ----

bool QRNEdit::beginEdit() {
  if (locked_ || editing_) return false;
  editing_ = true;
  raise(&RowEvents::StartEdit, "StartEdit");
  return true;
}

bool QRNEdit::endEdit() {
  if (!editor_.exists() || !editing_ || locked_) return false;
  editing_ = false;
  bool changed = ValueChanged();
  raise(&RowEvents::EndEdit, "EndEdit", changed);
  return true;
}

void QRNEdit::gotFocus() {
  const WeakRef<QRNEdit> self(this);
  FirstError error;
  watchApplication();
  error.of([&] { beginEdit(); });
  if (self) error.of([&] { UserControl::gotFocus(); });
  error.raise();
}

// Whoever leaves the application leaves the edit; it begins again when he comes back and finds the focus
// here.
void QRNEdit::watchApplication() {
  auto watch = std::make_unique<FocusWatch>();
  watch->left = watch->application.AppLostFocus.connect([this] {
    const WeakRef<QRNEdit> self(this);
    endEdit();
    if (self) raiseByName("AppLostFocus", {});
  });
  watch->back = watch->application.AppGotFocus.connect([this] {
    if (beginEdit()) DebugTrace("AppGotFocus", kTraceLevel);
  });
  watch->application.SetHwnd(root().window());
  extras().focusWatch = std::move(watch);
}

void QRNEdit::lostFocus() {
  const WeakRef<QRNEdit> self(this);
  FirstError error;
  if (extras_) extras_->focusWatch.reset();
  error.of([&] { endEdit(); });
  if (self) error.of([&] { UserControl::lostFocus(); });
  error.raise();
}

host::Control* QRNEdit::focusTarget() {
  host::Editor* editor = valueVisible_ ? CurrentEditor() : nullptr;
  return editor && editor->acceptsFocus() ? editor : nullptr;
}

// ---- what the editor reports ----

void QRNEdit::childChanged(host::Control& child) {
  if (handlingChange_) return;
  if (&child == editor_.textBox() && valueType_ == qrnTypeDouble) {
    const ScopedFlag handling(*this, &QRNEdit::handlingChange_);
    correctDecimalSeparator();
  }
  raise(&RowEvents::Change, "Change");
}

void QRNEdit::childClicked(host::Control&) { raise(&RowEvents::Click, "Click"); }

void QRNEdit::childItemChecked(host::Control& child, std::int16_t item) {
  QRNBitList* const list = editor_.bitList();
  if (handlingChange_ || !list || &child != &list->List()) return;
  if (!locked_) {
    raise(&RowEvents::ItemCheck, "ItemCheck", item);
    return;
  }
  const ScopedFlag handling(*this, &QRNEdit::handlingChange_);
  const auto* bits = displayBaseline_.get<std::string>();
  const bool accepted = bits && BitStringGet(*bits, item);
  ignoringErrors([&] { list->List().SetSelected(item, accepted); });
}

void QRNEdit::childKeyDown(host::Control&, std::int16_t& keyCode, std::int16_t& shift) {
  if (keyCode == host::key::F10 && shift == host::shift::Shift) {
    keyCode = 0;
    showContextMenu(true);
    return;
  }
  raise(&RowEvents::KeyDown, "KeyDown", keyCode, shift);
}

void QRNEdit::childKeyPress(host::Control&, std::int16_t& keyAscii) {
  raise(&RowEvents::KeyPress, "KeyPress", keyAscii);
}

void QRNEdit::childKeyUp(host::Control&, std::int16_t& keyCode, std::int16_t& shift) {
  raise(&RowEvents::KeyUp, "KeyUp", keyCode, shift);
}

// ---- clicks ----

const RowIcon* QRNEdit::iconOf(const host::Control& child) const {
  if (!parts_) return nullptr;
  if (&child == &parts_->imgIcon1) return &icon1_;
  return &child == &parts_->imgIcon2 ? &icon2_ : nullptr;
}

void QRNEdit::mouseDown(host::MouseButton button, std::int16_t, Point) {
  if (button == host::MouseButton::Left && Enabled()) leftPressed_ = true;
}

void QRNEdit::mouseUp(host::MouseButton button, std::int16_t, Point at) {
  const bool inside = contains(at);
  if (button == host::MouseButton::Right && inside) return showContextMenu(false);
  if (button != host::MouseButton::Left || !leftPressed_) return;
  leftPressed_ = false;
  if (inside && Enabled()) raise(&RowEvents::BackgroundClick, "BackgroundClick");
}

void QRNEdit::childMouseDown(host::Control& child, host::MouseButton button, std::int16_t, Point) {
  if (button != host::MouseButton::Left || !Enabled()) return;
  leftPressed_ = true;
  // The caption of a Boolean parameter works its check box.
  if (parts_ && &child == &parts_->lblLabel && editor_.check() && editor_.check()->shown() && !locked_) {
    const WeakRef<QRNEdit> self(this);
    const auto box = [&] { return self && editor_.check() ? &editor_.check()->Check() : nullptr; };
    SetFocus();
    if (box()) box()->userToggled();
    // The box's own widget has not seen this click.
    if (box() && box()->peer()) box()->peer()->changed(host::Aspect::Content);
    return;
  }
  if (const RowIcon* icon = iconOf(child); icon && icon->mode != qrnbuttonNone) invalidate();
}

void QRNEdit::childMouseMove(host::Control& child, std::int16_t, std::int16_t, Point at) {
  const RowIcon* icon = iconOf(child);
  // A pressed icon hears of the mouse wherever it goes.
  if (icon && icon->mode != qrnbuttonNone && Enabled() && child.contains(at)) trackIcon(*icon);
}

void QRNEdit::childMouseUp(host::Control& child, host::MouseButton button, std::int16_t, Point at) {
  const bool inside = child.contains(at);
  if (button == host::MouseButton::Right && inside) return showContextMenu(false);
  if (button != host::MouseButton::Left || !leftPressed_) return;
  leftPressed_ = false;
  const RowIcon* icon = iconOf(child);
  if (icon && icon->mode != qrnbuttonNone) invalidate();
  if (inside && Enabled()) clickOn(child);
}

void QRNEdit::clickOn(host::Control& child) {
  const RowIcon* icon = iconOf(child);
  if (parts_ && &child == &parts_->lblLabel)
    raise(&RowEvents::LabelClick, "LabelClick");
  else if (parts_ && &child == &parts_->lblUnit)
    raise(&RowEvents::UnitClick, "UnitClick");
  else if (icon && icon->mode == qrnbuttonNone)
    return;
  else if (icon == &icon1_)
    raise(&RowEvents::Icon1Click, "Icon1Click");
  else if (icon == &icon2_)
    raise(&RowEvents::Icon2Click, "Icon2Click");
  else if (editor_.bitList() && &child == &editor_.bitList()->List())
    raise(&RowEvents::Click, "Click");
}

void QRNEdit::showContextMenu(bool atKeyboard) {
  if (!Enabled() || !extras_) return;
  if (auto chosen = extras_->menu.show(*this, atKeyboard)) raise(&RowEvents::MenuClick, "MenuClick", *chosen);
}

// ---- icons ----

bool QRNEdit::isTracked(const RowIcon& icon) const {
  const IconTracking* tracking = extras_ ? extras_->tracking.get() : nullptr;
  return tracking && tracking->watch.active() && tracking->image == &imageOf(icon);
}

void QRNEdit::trackIcon(const RowIcon& icon) {
  if (isTracked(icon)) return;
  stopTracking();
  auto tracking = std::make_unique<IconTracking>();
  tracking->image = &imageOf(icon);
  tracking->watch.start(*this, [this, image = tracking->image] {
    const Point cursor = platform().cursor() - platform().screenPosition(root());
    if (!image->shown() || !image->visibleOnSurface().contains(cursor)) stopTracking();
  });
  extras().tracking = std::move(tracking);
  invalidate();
}

void QRNEdit::stopTracking() {
  if (!extras_ || !extras_->tracking) return;
  std::exchange(extras_->tracking, nullptr)->watch.stop();
  invalidate();
}

// ---- the context menu ----

std::shared_ptr<host::MenuEntry> QRNEdit::AddMenuItem(std::string_view MenuCaption) {
  return extras().menu.add(MenuCaption);
}

std::shared_ptr<host::MenuEntry> QRNEdit::GetMenuItem(std::int32_t Index) {
  return extras().menu.entry(Index);
}

void QRNEdit::RemoveMenuItem(std::int32_t Index) {
  if (extras_) extras_->menu.remove(Index);
}

void QRNEdit::RemoveMenu() {
  if (extras_) extras_->menu.removeAll();
}

void QRNEdit::paint(host::Surface& surface, Size size) {
  seenParts();
  surface.fill({0, 0, size.width, size.height}, BackColor());
  paintIconFrame(surface, icon1_);
  paintIconFrame(surface, icon2_);
}

// An embossed icon always has its frame; a flat one only while it is tracked.
void QRNEdit::paintIconFrame(host::Surface& surface, const RowIcon& icon) {
  const bool tracked = isTracked(icon);
  const bool embossed = icon.mode == qrnButtonEmbossed && icon.column >= 1 && icon.visible;
  if (!tracked && !embossed) return;
  const Rect image = pixelBounds(imageOf(icon));
  const Rect frame{image.left - 1, image.top - 1, image.width + 2, image.height + 2};
  const bool pressed = tracked && leftPressed_;
  surface.frame(frame, pressed ? host::kButtonShadow : host::kButtonHighlight,
                pressed ? host::kButtonHighlight : host::kButtonShadow);
}

}  // namespace qrn
