#include <algorithm>
#include <cmath>

#include "row/QRNEdit.h"
#include "runtime/rounding.h"

namespace qrn {
namespace {

std::int32_t toLong(double value) { return nearestLong(roundHalfEven(value)); }

// A width that only misses a whole number by what the conversion of scales leaves is that number.
std::int32_t roundedUp(double value) {
  constexpr double kNoise = 1e-6;
  return nearestLong(std::ceil(value - kNoise));
}

void moveTo(host::Control& part, double left, double top) {
  part.Move(roundHalfEven(left), roundHalfEven(top), part.Width(), part.Height());
}

}  // namespace

std::int32_t QRNEdit::textHeight() const { return toLong(TextHeight("|")); }

std::int32_t QRNEdit::rowHeight() const { return toLong(7 / pixelsPerUnit().y + textHeight()); }

std::int32_t QRNEdit::GetMinHeight() const {
  std::int32_t height = textHeight() + 8;
  if (lstValue_) height = std::max(height, lstValue_->List().ListCount() * (textHeight() + 2) + 5);
  return height;
}

std::int32_t QRNEdit::iconWidth(const Icon& icon) const {
  return roundedUp(icon.image.Width()) + (icon.mode != qrnbuttonNone ? 2 : 0);
}

std::int32_t QRNEdit::GetMinLabelWidth() const { return roundedUp(lblLabel_.textWidth()); }

std::int32_t QRNEdit::GetMinUnitWidth() const { return roundedUp(lblUnit_.textWidth()); }

std::int32_t QRNEdit::GetMinValueWidth() const {
  switch (editorKind_) {
    case EditorKind::TextBox: return roundedUp(txtValue_->textWidth() + textHeight());
    case EditorKind::Check: return 2 * textHeight();
    case EditorKind::DropList:
    case EditorKind::BitList: return 2 * textHeight() + roundedUp(listEditor()->widestText());
    default: return 0;
  }
}

std::int32_t QRNEdit::GetMinWidth() const {
  double width = overhead();
  if (labelVisible_) width += GetMinLabelWidth();
  if (valueVisible_) width += GetMinValueWidth();
  if (unitVisible_) width += GetMinUnitWidth();
  return nearestLong(width);
}

std::int32_t QRNEdit::GetMinBruttoWidth() const { return nearestLong(overhead()); }

// The icons, and a spacing between any two parts; in doubles, as a spacing may be as large as a Long.
double QRNEdit::overhead() const {
  const double spacing = horizontalSpacing_;
  double width = -spacing;
  for (const Icon* icon : {&icon1_, &icon2_}) {
    if (icon->visible && icon->column >= 1) width += iconWidth(*icon) + spacing;
  }
  for (const bool visible : {labelVisible_, valueVisible_, unitVisible_}) width += visible ? spacing : 0;
  return width;
}

void QRNEdit::applyIconVisibility() {
  icon1_.image.SetVisible(iconShown(icon1_));
  icon2_.image.SetVisible(iconShown(icon2_));
}

// Hiding the focused editor ends the edit, and who hears of that may do anything: answers whether the row is
// still there.
bool QRNEdit::showEditor() {
  const WeakRef<QRNEdit> self(this);
  if (!valueVisible_ && editorFrame() && editorFrame()->hasFocus()) input().setFocus(nullptr);
  if (!self) return false;
  if (host::Control* frame = editorFrame()) {
    frame->SetVisible(valueVisible_);
    CurrentEditor()->SetVisible(valueVisible_);
  }
  return true;
}

void QRNEdit::layOut() {
  if (!redraw_ || !showEditor()) return;
  lblLabel_.SetVisible(labelVisible_);
  applyIconVisibility();
  lblUnit_.SetVisible(unitVisible_);
  double x = 0;
  if (alignment_ != host::kAlignLeft) {
    const double room = toLong(ScaleWidth()) - (placeParts(0, false) - horizontalSpacing_);
    x = alignment_ == host::kAlignRight ? room : room / 2;
  }
  placeParts(x, true);
  invalidate();
}

// Icons, caption, icons, value, icons, unit, icons; answers where the next part would start.
double QRNEdit::placeParts(double x, bool move) {
  const std::int32_t text = textHeight(), row = rowHeight();
  const auto placeLabel = [&](host::Label& label) {
    if (move) {
      label.SetHeight(text);
      moveTo(label, x, (row - label.Height()) / 2);
    }
    x += label.Width() + horizontalSpacing_;
  };
  x = placeIcons(1, x, move);
  if (labelVisible_) placeLabel(lblLabel_);
  x = placeIcons(2, x, move);
  if (valueVisible_) x = placeEditor(x, move) + horizontalSpacing_;
  x = placeIcons(3, x, move);
  if (unitVisible_) placeLabel(lblUnit_);
  return placeIcons(4, x, move);
}

// A value without an editor takes no width, but its spacing.
double QRNEdit::placeEditor(double x, bool move) {
  host::Control* const frame = editorFrame();
  if (!frame) return x;
  double height = toLong(ScaleHeight());
  if (chkValue_)
    height = rowHeight();
  else if (cboValue_)
    height = cboValue_->Combo().Height();
  else if (lstValue_)
    height = std::min<double>(GetMinHeight(), height);
  if (move) frame->Move(roundHalfEven(x), 0, frame->Width(), height);
  return x + frame->Width();
}

double QRNEdit::placeIcons(std::int32_t column, double x, bool move) {
  for (Icon* icon : {&icon1_, &icon2_}) {
    if (icon->column != column || !icon->visible) continue;
    const double offset = icon->mode != qrnbuttonNone ? 1 : 0;
    if (move) moveTo(icon->image, x + offset, (rowHeight() - icon->image.Height()) / 2);
    x += icon->image.Width() + horizontalSpacing_ + 2 * offset;
  }
  return x;
}

}  // namespace qrn
