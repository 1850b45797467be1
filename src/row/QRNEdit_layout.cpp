#include <algorithm>
#include <cmath>

#include "base/first_error.h"
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

std::int32_t QRNEdit::textHeight() const {
  if (textHeight_ == Measures::kUnknown) textHeight_ = toLong(TextHeight("|"));
  return textHeight_;
}

std::int32_t QRNEdit::rowHeight() const { return toLong(7 / pixelsPerUnit().y + textHeight()); }

std::int32_t QRNEdit::GetMinHeight() const {
  std::int32_t height = textHeight() + 8;
  if (editor_.bitList()) height = std::max(height, editor_.list()->ListCount() * (textHeight() + 2) + 5);
  return height;
}

double QRNEdit::pictureWidth(const RowIcon& icon) const {
  return icon.picture ? icon.picture->width() / pixelsPerUnit().x : 0;
}

std::int32_t QRNEdit::iconWidth(const RowIcon& icon) const {
  return roundedUp(pictureWidth(icon)) + (icon.mode != qrnbuttonNone ? 2 : 0);
}

void QRNEdit::forgetMeasure(std::int32_t Measures::*part) {
  minimum_.*part = Measures::kUnknown;
  tellMeasureChanged();
}

// The row measures its texts itself, whether there are labels or not.
void QRNEdit::childMeasureChanged(host::Control& part) {
  if (&part == editor_.frame() && !makingEditor_) forgetMeasure(&Measures::value);
}

std::int32_t QRNEdit::GetMinLabelWidth() const {
  if (minimum_.label == Measures::kUnknown) minimum_.label = roundedUp(TextWidth(label_.text));
  return minimum_.label;
}

std::int32_t QRNEdit::GetMinUnitWidth() const {
  if (minimum_.unit == Measures::kUnknown) minimum_.unit = roundedUp(TextWidth(unit_.text));
  return minimum_.unit;
}

std::int32_t QRNEdit::GetMinValueWidth() const {
  if (minimum_.value == Measures::kUnknown) minimum_.value = measuredValueWidth();
  return minimum_.value;
}

std::int32_t QRNEdit::measuredValueWidth() const {
  using enum ValueEditor::Kind;
  switch (editor_.kind()) {
    case TextBox: return roundedUp(valueTextWidth(editor_.text()) + textHeight());
    case Check: return 2 * textHeight();
    case DropList:
    case BitList: return 2 * textHeight() + roundedUp(widestEntry());
    default: return 0;
  }
}

// The editor has the row's font, unless a host has given it one of its own.
double QRNEdit::valueTextWidth(std::string_view text) const {
  const host::Editor* editor = editor_.inner();
  if (!editor || editor->Font() == font()) return TextWidth(text);
  return platform().metrics(*editor->Font()).advance(text) / pixelsPerUnit().x;
}

double QRNEdit::widestEntry() const {
  const host::ListEntries& list = *editor_.list();
  double widest = 0;
  for (std::int32_t i = 0; i < list.ListCount(); ++i) widest = std::max(widest, valueTextWidth(list.List(i)));
  return widest;
}

std::int32_t QRNEdit::GetMinWidth() const {
  double width = overhead(horizontalSpacing_);
  if (labelVisible_) width += GetMinLabelWidth();
  if (valueVisible_) width += GetMinValueWidth();
  if (unitVisible_) width += GetMinUnitWidth();
  return nearestLong(width);
}

std::int32_t QRNEdit::widthBesideParts(std::int32_t spacing) const { return nearestLong(overhead(spacing)); }

// The icons, and a spacing between any two parts; in doubles, as a spacing may be as large as a Long.
double QRNEdit::overhead(double spacing) const {
  double icons = 0;
  int parts = labelVisible_ + valueVisible_ + unitVisible_;
  for (const RowIcon* icon : {&icon1_, &icon2_}) {
    if (!icon->visible || icon->column < 1) continue;
    icons += iconWidth(*icon);
    ++parts;
  }
  return icons + (parts - 1) * spacing;
}

void QRNEdit::layOut() {
  if (!redraw_) return;
  if (editorShown_ == valueVisible_) return arrangeLater();
  // Hiding the focused editor ends the edit, and who hears of that may do anything, fail included.
  const WeakRef<QRNEdit> self(this);
  FirstError error;
  showEditor(error);
  if (self) arrangeLater();
  error.raise();
}

void QRNEdit::showEditor(FirstError& error) {
  editorShown_ = valueVisible_;
  const WeakRef<QRNEdit> self(this);
  if (editor_.frame()) error.of([&] { editor_.frame()->SetVisible(editorShown_); });
  if (self && editor_.inner()) error.of([&] { editor_.inner()->SetVisible(editorShown_); });
}

RowParts& QRNEdit::seenParts() {
  settle();
  if (!parts_) makeParts();  // of a row that is about to go
  return *parts_;
}

host::Controls& QRNEdit::controls() {
  seenParts();
  return UserControl::controls();
}

void QRNEdit::makeParts() {
  parts_ = std::make_unique<RowParts>();
  // Before they lie in the row, which would take it for a change of its own.
  for (const RowText* text : {&label_, &unit_}) {
    labelOf(*text).SetCaption(text->text);
    labelOf(*text).SetAlignment(text->alignment);
  }
  contain(parts_->lblLabel, *this, "lblLabel");
  contain(parts_->imgIcon1, *this, "imgIcon1");
  contain(parts_->imgIcon2, *this, "imgIcon2");
  contain(parts_->lblUnit, *this, "lblUnit");
  makeEditor();
  if (editor_.frame()) bringToFront(*editor_.frame());
  for (host::Label* label : {&parts_->lblLabel, &parts_->lblUnit}) {
    label->SetEnabled(Enabled());
    label->SetHeight(textHeight());
  }
  for (const RowIcon* icon : {&icon1_, &icon2_}) imageOf(*icon).SetPicture(icon->picture);
  if (toolTips_) applyToolTips();
}

void QRNEdit::applyToolTips() {
  parts_->lblLabel.SetToolTipText(toolTips_->label);
  parts_->lblUnit.SetToolTipText(toolTips_->unit);
  parts_->imgIcon1.SetToolTipText(toolTips_->icon1);
  parts_->imgIcon2.SetToolTipText(toolTips_->icon2);
}

void QRNEdit::applyWidths() {
  parts_->lblLabel.SetWidth(labelWidth_);
  parts_->lblUnit.SetWidth(unitWidth_);
  if (editor_.frame()) editor_.frame()->SetWidth(valueWidth_);
}

void QRNEdit::arrangeInside() {
  if (!parts_) makeParts();
  applyWidths();
  parts_->lblLabel.SetVisible(labelVisible_);
  for (const RowIcon* icon : {&icon1_, &icon2_}) imageOf(*icon).SetVisible(icon->shown());
  parts_->lblUnit.SetVisible(unitVisible_);
  double x = 0;
  if (alignment_ != host::kAlignLeft) {
    const double room = toLong(ScaleWidth()) - (placeParts(0, false) - horizontalSpacing_);
    x = alignment_ == host::kAlignRight ? room : room / 2;
  }
  placeParts(x, true);
}

void QRNEdit::place(const RowPlace& place) {
  horizontalSpacing_ = place.spacing;
  labelWidth_ = place.label;
  valueWidth_ = place.value;
  unitWidth_ = place.unit;
  redraw_ = false;
  Move(place.bounds.left, place.bounds.top, place.bounds.width, place.bounds.height);
  redraw_ = true;
  layOut();
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
  if (labelVisible_) placeLabel(parts_->lblLabel);
  x = placeIcons(2, x, move);
  if (valueVisible_) x = placeEditor(x, move) + horizontalSpacing_;
  x = placeIcons(3, x, move);
  if (unitVisible_) placeLabel(parts_->lblUnit);
  return placeIcons(4, x, move);
}

// A value without an editor takes no width, but its spacing.
double QRNEdit::placeEditor(double x, bool move) {
  host::Control* const frame = editor_.frame();
  if (!frame) return x;
  double height = toLong(ScaleHeight());
  if (editor_.check())
    height = rowHeight();
  else if (editor_.dropList())
    height = editor_.dropList()->Combo().Height();
  else if (editor_.bitList())
    height = std::min<double>(GetMinHeight(), height);
  if (move) frame->Move(roundHalfEven(x), 0, frame->Width(), height);
  return x + frame->Width();
}

double QRNEdit::placeIcons(std::int32_t column, double x, bool move) {
  for (const RowIcon* icon : {&icon1_, &icon2_}) {
    if (icon->column != column || !icon->visible) continue;
    host::Image& image = imageOf(*icon);
    const double offset = icon->mode != qrnbuttonNone ? 1 : 0;
    if (move) moveTo(image, x + offset, (rowHeight() - image.Height()) / 2);
    x += image.Width() + horizontalSpacing_ + 2 * offset;
  }
  return x;
}

}  // namespace qrn
