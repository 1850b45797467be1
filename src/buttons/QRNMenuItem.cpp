#include "buttons/QRNMenuItem.h"

#include "diag/QRNErrors.h"

namespace qrn {

QRNMenuItem::QRNMenuItem() { Move(0, 0, 120, 28); }

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

void QRNMenuItem::terminate() { hover_.stop(); }

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
  changed("Enabled");
}

void QRNMenuItem::SetButtonMode(qrnButtonMode mode) {
  if (mode == buttonMode_) return;
  if (mode == qrnbuttonNone) {
    mouseOver_ = spacePressed_ = hasFocus_ = keyboardFocus_ = false;
    hover_.stop();
  }
  store(buttonMode_, mode, "ButtonMode");
}

void QRNMenuItem::SetIcon(host::PicturePtr icon) {
  icon_ = std::move(icon);
  changed("Icon");
}

void QRNMenuItem::SetIconDisabled(host::PicturePtr icon) {
  iconDisabled_ = std::move(icon);
  changed("IconDisabled");
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

void QRNMenuItem::showContextMenu(bool atKeyboard) {
  if (auto chosen = menu_.show(*this, atKeyboard)) raise(MenuClick, "MenuClick", *chosen);
}

// ---- mouse and keyboard ----

// What went down on a button that is hidden comes up on another one.
void QRNMenuItem::release() {
  leftButtonDown_ = rightButtonDown_ = spacePressed_ = mouseOver_ = false;
  hover_.stop();
}

bool QRNMenuItem::isCursorOver() {
  const Point at = platform().cursor();
  const auto half = [](double value) {
    return static_cast<std::intptr_t>(static_cast<std::uint16_t>(static_cast<std::int32_t>(value)));
  };
  const host::Message test{host::wm::NcHitTest, 0, half(at.y) << 16 | half(at.x)};
  return platform().windows().send(window(), test) == host::kHitClient;
}

// Answers whether the button is still there.
bool QRNMenuItem::doClick(FirstError& error) {
  if (!Enabled() || !takesClicks()) return true;
  const WeakRef<QRNMenuItem> self(this);
  error.of([&] { raise(Click, "Click"); });
  return static_cast<bool>(self);
}

// One that takes no clicks is only there to be read.
void QRNMenuItem::tellFacts(host::AccessibleFacts& facts) const {
  facts.role = takesClicks() ? host::AccessibleRole::Button : host::AccessibleRole::Label;
  facts.name = caption_;
  facts.description = ToolTipText();
  if (takesClicks()) facts.action = host::AccessibleAction::Press;
}

void QRNMenuItem::accessibleAct(std::int32_t) {
  FirstError error;
  doClick(error);
  error.raise();
}

void QRNMenuItem::lookAgain() {
  mouseOver_ = Enabled() && isCursorOver();
  if (mouseOver_) return;
  hover_.stop();
  invalidate();
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
  if (mouseOver_ == hover_.active()) return;
  if (mouseOver_)
    hover_.start(*this, [this] { lookAgain(); });
  else
    hover_.stop();
  invalidate();
}

void QRNMenuItem::mouseUp(host::MouseButton button, std::int16_t, Point at) {
  const bool inside = contains(at) && shown();
  if (button == host::MouseButton::Left && leftButtonDown_) {
    leftButtonDown_ = false;
    if (!takesClicks()) return;
    FirstError error;
    if (!inside || doClick(error)) invalidate();
    error.raise();
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
  FirstError error;
  const bool chosen = keyCode == host::key::Space && takesClicks();
  const bool there = !chosen || doClick(error);
  if (there && chosen) {
    spacePressed_ = false;
    invalidate();
  }
  if (there) error.of([&] { raise(KeyUp, "KeyUp", keyCode, shift); });
  error.raise();
}

void QRNMenuItem::keyPress(std::int16_t& keyAscii) {
  FirstError error;
  const bool chosen = keyAscii == host::key::Enter && takesClicks() && hasFocus_ && keyboardFocus_;
  if (!chosen || doClick(error)) error.of([&] { raise(KeyPress, "KeyPress", keyAscii); });
  error.raise();
}

void QRNMenuItem::gotFocus() {
  if (takesClicks() && Visible()) {
    // The press that brings the focus is told only after it.
    keyboardFocus_ =
        !input().holds(host::MouseButton::Left, *this) && !input().holds(host::MouseButton::Right, *this);
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
