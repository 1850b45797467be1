#include "buttons/QRNMenuItem.h"

#include "diag/QRNErrors.h"

namespace qrn {
namespace {

constexpr std::int32_t kHoverInterval = 70;  // milliseconds

}  // namespace

QRNMenuItem::QRNMenuItem() { Move(0, 0, 120, 28); }

QRNMenuItem::~QRNMenuItem() = default;

void QRNMenuItem::initProperties() {
  UserControl::initProperties();
  icon_ = std::make_shared<host::Picture>(std::vector<host::Picture::Bitmap>());
}

void QRNMenuItem::show() {
  if (!redraw_) {
    redraw_ = true;
    invalidate();
  }
}

void QRNMenuItem::terminate() { stopHitTracking(); }

void QRNMenuItem::SetBackColor(host::Color color) {
  if (color == backColor()) return;
  setBackColor(color);
  propertyChanged("BackColor");
}

void QRNMenuItem::SetFont(host::FontPtr font) {
  setFont(std::move(font));
  propertyChanged("Font");
}

void QRNMenuItem::SetForeColor(host::Color color) {
  if (color == foreColor()) return;
  setForeColor(color);
  propertyChanged("ForeColor");
}

void QRNMenuItem::SetEnabled(bool enabled) {
  if (enabled == Enabled()) return;
  UserControl::SetEnabled(enabled);
  propertyChanged("Enabled");
  invalidate();
}

void QRNMenuItem::SetButtonMode(qrnButtonMode mode) {
  if (mode == buttonMode_) return;
  if (mode == qrnbuttonNone) mouseOver_ = spacePressed_ = hasFocus_ = keyboardFocus_ = false;
  store(buttonMode_, mode, "ButtonMode");
}

void QRNMenuItem::SetIcon(host::PicturePtr icon) {
  icon_ = std::move(icon);
  propertyChanged("Icon");
  invalidate();
}

void QRNMenuItem::SetIconDisabled(host::PicturePtr icon) {
  iconDisabled_ = std::move(icon);
  propertyChanged("IconDisabled");
  invalidate();
}

bool QRNMenuItem::Redraw() const {
  if (!userMode()) RaiseError(kGetNotAtDesignTime, *this);
  return redraw_;
}

void QRNMenuItem::SetRedraw(bool redraw) {
  if (!userMode()) RaiseError(kSetNotAtDesignTime, *this);
  switchRedraw(redraw);
}

void QRNMenuItem::switchRedraw(bool redraw) {
  if (redraw && !redraw_) invalidate();
  redraw_ = redraw;
}

// ---- the menu ----

ContextMenu& QRNMenuItem::menu() {
  if (!menu_) menu_ = std::make_unique<ContextMenu>();
  return *menu_;
}

void QRNMenuItem::RemoveMenuItem(std::int32_t Index) {
  if (menu_) menu_->remove(Index);
}

void QRNMenuItem::RemoveMenu() {
  if (menu_) menu_->removeAll();
}

void QRNMenuItem::showContextMenu(bool atKeyboard) {
  if (!menu_) return;
  const Point at = atKeyboard ? menuPositionForKeyboard(*this) : platform().cursor();
  const WeakRef<QRNMenuItem> self(this);
  const auto chosen = menu_->show(platform(), at);
  if (!chosen || !self) return;
  auto index = static_cast<std::int16_t>(*chosen);
  raise(MenuClick, "MenuClick", index);
}

// ---- mouse and keyboard ----

bool QRNMenuItem::isCursorOver() {
  const Point at = platform().cursor();
  const auto half = [](double value) {
    return static_cast<std::intptr_t>(static_cast<std::uint16_t>(static_cast<std::int32_t>(value)));
  };
  return windowMessage({host::wm::NcHitTest, 0, half(at.y) << 16 | half(at.x)}) == host::kHitClient;
}

bool QRNMenuItem::doClick() {
  if (!Enabled() || !takesClicks()) return true;
  const WeakRef<QRNMenuItem> self(this);
  raise(Click, "Click");
  return static_cast<bool>(self);
}

void QRNMenuItem::startHitTracking() {
  auto& added = controls().add("VB.Timer", "tmrHit", *this);
  tmrHit_ = static_cast<host::Timer*>(&added);
  tick_ = tmrHit_->Tick.connect([this] {
    mouseOver_ = Enabled() && isCursorOver();
    if (mouseOver_) return;
    stopHitTracking();
    invalidate();
  });
  tmrHit_->SetInterval(kHoverInterval);
}

void QRNMenuItem::stopHitTracking() {
  if (!tmrHit_) return;
  tmrHit_->SetEnabled(false);
  tmrHit_ = nullptr;
  tick_.disconnect();
  controls().remove("tmrHit");
}

void QRNMenuItem::mouseDown(host::MouseButton button, std::int16_t, Point) {
  if (button == host::MouseButton::Left) {
    leftButtonDown_ = true;
    if (takesClicks()) {
      keyboardFocus_ = false;
      invalidate();
    }
  } else if (button == host::MouseButton::Right) {
    rightButtonDown_ = true;
  }
}

void QRNMenuItem::mouseMove(std::int16_t, std::int16_t, Point at) {
  if (!takesClicks()) return;
  mouseOver_ = contains(at);
  if (mouseOver_ && !tmrHit_)
    startHitTracking();
  else if (!mouseOver_ && tmrHit_)
    stopHitTracking();
  else
    return;
  invalidate();
}

void QRNMenuItem::mouseUp(host::MouseButton button, std::int16_t, Point at) {
  const bool inside = contains(at);
  if (button == host::MouseButton::Left && leftButtonDown_) {
    leftButtonDown_ = false;
    if (!takesClicks()) return;
    if (inside && !doClick()) return;
    invalidate();
  } else if (button == host::MouseButton::Right && rightButtonDown_) {
    rightButtonDown_ = false;
    if (inside) showContextMenu(false);
  }
}

void QRNMenuItem::keyDown(std::int16_t& keyCode, std::int16_t& shift) {
  if (keyCode == host::key::F10 && shift == host::shift::Shift) {
    keyCode = 0;
    showContextMenu(true);
    return;
  }
  if (keyCode == host::key::Space && takesClicks()) {
    spacePressed_ = true;
    invalidate();
  }
  raise(KeyDown, "KeyDown", keyCode, shift);
}

void QRNMenuItem::keyUp(std::int16_t& keyCode, std::int16_t& shift) {
  if (keyCode == host::key::Space && takesClicks()) {
    if (!doClick()) return;
    spacePressed_ = false;
    invalidate();
  }
  raise(KeyUp, "KeyUp", keyCode, shift);
}

void QRNMenuItem::keyPress(std::int16_t& keyAscii) {
  if (keyAscii == host::key::Enter && takesClicks() && hasFocus_ && keyboardFocus_ && !doClick()) return;
  raise(KeyPress, "KeyPress", keyAscii);
}

void QRNMenuItem::gotFocus() {
  if (takesClicks() && Visible()) {
    keyboardFocus_ = !(leftButtonDown_ || rightButtonDown_);
    hasFocus_ = true;
    invalidate();
  }
  UserControl::gotFocus();
}

void QRNMenuItem::lostFocus() {
  keyboardFocus_ = hasFocus_ = spacePressed_ = false;
  if (takesClicks()) invalidate();
  UserControl::lostFocus();
}

}  // namespace qrn
