#include "display/QRNDisplay.h"

namespace qrn {

using host::SystemColor;
using host::systemColor;

namespace {

constexpr double kGlyph = 8;  // of the buttons in the title bar

void drawCross(host::Surface& surface, const Rect& box, host::Color color) {
  const double right = box.right() - 1, bottom = box.bottom() - 1;
  for (const double shift : {0.0, 1.0}) {
    surface.line({box.left + shift, box.top}, {right, bottom - shift}, color);
    surface.line({box.left, box.top + shift}, {right - shift, bottom}, color);
    surface.line({right - shift, box.top}, {box.left, bottom - shift}, color);
    surface.line({right, box.top + shift}, {box.left + shift, bottom}, color);
  }
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

void QRNDisplay::paintTitle(host::Surface& surface, Size size) {
  const Rect bar{0, 0, size.width, titleHeight_};
  if (titleStyle_ == qrnTitleDialog) {
    surface.fill(bar, systemColor(active_ ? SystemColor::ActiveCaption : SystemColor::InactiveCaption));
  }
  surface.line({0, bar.bottom()}, {size.width - 1, bar.bottom()}, host::kButtonShadow);
  if (imgMaxRst_.Visible()) paintTitleButton(surface, imgMaxRst_);
  if (imgClose_.Visible()) paintTitleButton(surface, imgClose_);
}

void QRNDisplay::paintTitleButton(host::Surface& surface, const host::Image& button) {
  const Rect box = pixelBounds(button);
  const bool pressed = pressed_ == &button;
  if (pressed)
    surface.frame(box, host::kButtonShadow, host::kButtonHighlight);
  else if (hovered_ == &button)
    surface.frame(box, host::kButtonHighlight, host::kButtonShadow);
  host::Color color = active_ ? ForeColor() : host::kGrayText;
  if (titleStyle_ == qrnTitleDialog) {
    color = systemColor(active_ ? SystemColor::ActiveCaptionText : SystemColor::InactiveCaptionText);
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
  const Rect outer{0, 0, size.width, size.height}, inner{1, 1, size.width - 2, size.height - 2};
  switch (borderStyle_) {
    case qrnEdgeSimple: surface.frame(outer, host::kButtonShadow); break;
    case qrnEdgeSunken: surface.frame(outer, host::kButtonShadow, host::kButtonHighlight); break;
    case qrnEdgeEngraved:
      surface.frame(outer, host::kButtonShadow, host::kButtonHighlight);
      surface.frame(inner, host::kButtonHighlight, host::kButtonShadow);
      break;
    case qrnEdgeBorder: surface.frame(outer, systemColor(SystemColor::WindowFrame)); break;
    default: break;
  }
}

}  // namespace qrn
