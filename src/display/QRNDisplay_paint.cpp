#include "display/QRNDisplay.h"

namespace qrn {

using host::SystemColor;
using host::systemColor;

namespace {

constexpr double kGlyph = 8;  // of the buttons in the title bar

// Each arm is two lines beside each other, as strong as the other glyphs.
void drawCross(host::Surface& surface, const Rect& box, host::Color color) {
  constexpr double kApart = 0.5;
  const double right = box.right() - 1, bottom = box.bottom() - 1;
  surface.line({box.left + kApart, box.top}, {right, bottom - kApart}, color);
  surface.line({box.left, box.top + kApart}, {right - kApart, bottom}, color);
  surface.line({right - kApart, box.top}, {box.left, bottom - kApart}, color);
  surface.line({right, box.top + kApart}, {box.left + kApart, bottom}, color);
}

// A window with a title bar of two pixels.
void drawWindow(host::Surface& surface, const Rect& box, host::Color color) {
  surface.frame(box, color);
  surface.fill({box.left, box.top, box.width, 2}, color);
}

void drawTwoWindows(host::Surface& surface, const Rect& box, host::Color color) {
  constexpr double kStep = 2;
  const Rect back{box.left + kStep, box.top, box.width - kStep, box.height - kStep};
  surface.line({back.left, back.top}, {back.right() - 1, back.top}, color);
  surface.line({back.right() - 1, back.top}, {back.right() - 1, back.bottom() - 1}, color);
  drawWindow(surface, {box.left, box.top + kStep, box.width - kStep, box.height - kStep}, color);
}

}  // namespace

void QRNDisplay::applyTitleLook() {
  lblTitle_.SetVisible(titleStyle_ != qrnTitleNone);
  imgClose_.SetVisible(titleStyle_ != qrnTitleNone && !iconCloseHidden_);
  imgMaxRst_.SetVisible(titleStyle_ != qrnTitleNone && !iconMaxRstHidden_);
  imgMaxRst_.SetToolTipText(maximized_ ? rstButtonToolTip_ : maxButtonToolTip_);
  if (titleStyle_ == qrnTitleDialog) {
    lblTitle_.SetForeColor(
        systemColor(active_ ? SystemColor::ActiveCaptionText : SystemColor::InactiveCaptionText));
  } else {
    lblTitle_.SetForeColor(active_ ? std::nullopt : std::optional(host::kGrayText));
  }
  invalidate();
}

void QRNDisplay::paint(host::Surface& surface, Size size) {
  surface.fill({0, 0, size.width, size.height}, BackColor());
  if (titleStyle_ != qrnTitleNone) paintTitle(surface, size);
  paintEdge(surface, size);
}

// The title of a disabled panel is grey, which can be read on the bar of an inactive one only.
void QRNDisplay::paintTitle(host::Surface& surface, Size size) {
  const Rect bar{0, 0, size.width, titleHeight_};
  if (titleStyle_ == qrnTitleDialog) {
    const bool active = active_ && Enabled();
    surface.fill(bar, systemColor(active ? SystemColor::ActiveCaption : SystemColor::InactiveCaption));
  }
  surface.line({0, bar.bottom()}, {size.width - 1, bar.bottom()}, host::kButtonShadow);
  if (imgMaxRst_.Visible()) paintTitleButton(surface, imgMaxRst_);
  if (imgClose_.Visible()) paintTitleButton(surface, imgClose_);
}

// A caption has no shades of its own for raised and sunken: there a button is outlined under the mouse and
// inverted while it is pressed.
void QRNDisplay::paintTitleButton(host::Surface& surface, const host::Image& button) {
  const Rect box = pixelBounds(button);
  const bool pressed = pressed_ == &button, hovered = hovered_ == &button;
  const bool dialog = titleStyle_ == qrnTitleDialog;
  host::Color color = active_ ? ForeColor() : host::kGrayText;
  if (dialog)
    color = systemColor(active_ ? SystemColor::ActiveCaptionText : SystemColor::InactiveCaptionText);
  if (!Enabled()) color = host::kGrayText;
  if (dialog && pressed) {
    surface.fill(box, color);
    color = systemColor(active_ ? SystemColor::ActiveCaption : SystemColor::InactiveCaption);
  } else if (dialog && hovered) {
    surface.frame(box, color);
  } else if (pressed) {
    surface.frame(box, host::kButtonShadow, host::kButtonHighlight);
  } else if (hovered) {
    surface.frame(box, host::kButtonHighlight, host::kButtonShadow);
  }
  const double inset = (box.width - kGlyph) / 2, down = pressed ? 1 : 0;
  const Rect glyph{box.left + inset + down, box.top + inset + down, kGlyph, kGlyph};
  if (&button == &imgClose_)
    drawCross(surface, glyph, color);
  else if (maximized_)
    drawTwoWindows(surface, glyph, color);
  else
    drawWindow(surface, glyph, color);
}

void QRNDisplay::paintEdge(host::Surface& surface, Size size) {
  const Rect outer{0, 0, size.width, size.height};
  switch (borderStyle_) {
    case qrnEdgeSimple: surface.frame(outer, host::kButtonShadow); break;
    case qrnEdgeSunken: surface.frame(outer, host::kButtonShadow, host::kButtonHighlight); break;
    case qrnEdgeEngraved:
      surface.frame(outer, host::kButtonShadow, host::kButtonHighlight);
      surface.frame(outer, host::kButtonHighlight, host::kButtonShadow, 1);
      break;
    case qrnEdgeBorder: surface.frame(outer, systemColor(SystemColor::WindowFrame)); break;
    default: break;
  }
}

}  // namespace qrn
