#include <algorithm>
#include <cmath>
#include <limits>

#include "base/first_error.h"
#include "display/QRNDisplay.h"
#include "runtime/conversions.h"
#include "runtime/errors.h"
#include "runtime/rounding.h"

namespace qrn {
namespace {

constexpr double kNarrowest = 80;  // of an item, whatever the panel's width

ColumnWidths minimumOf(const QRNEdit& row) {
  return {row.GetMinLabelWidth(), row.GetMinValueWidth(), row.GetMinUnitWidth()};
}

// Errors: 6 beyond a Long.
std::int32_t sum(std::int32_t a, std::int32_t b) { return CLng(Variant(static_cast<double>(a) + b)); }

ColumnWidths widthsOf(const QRNEdit& row) { return {row.LabelWidth(), row.ValueWidth(), row.UnitWidth()}; }

}  // namespace

// ---- the parts of the panel ----

// The item container comes last: its new size lays the items out, and that may fail, or end the panel.
void QRNDisplay::arrange() {
  if (!redraw_ || !showButtons()) return;
  titleHeight_ = titleStyle_ == qrnTitleNone ? 0 : arrangeTitle();
  const double below = arrangeButtons();
  const double width = std::max(roundHalfEven(ScaleWidth() - leftMargin_ - rightMargin_), 1.0);
  const double top = titleHeight_ + topMargin_;
  const double height = std::max(roundHalfEven(ScaleHeight() - top - below), 1.0);
  const double bar = platform().scrollBarWidth();
  sbrVertical_.Move(leftMargin_ + width - bar, top, bar, height);
  invalidate();
  const WeakRef<host::Control> self(this);
  FirstError error;
  error.of([&] { pbxContainer_.Move(leftMargin_, top, width, height); });
  if (self) placeToolTip();
  error.raise();
}

// Answers the height of the title bar.
double QRNDisplay::arrangeTitle() {
  constexpr double kEdge = 5, kGap = 4;
  const double text = TextHeight("|");
  const double indent = roundHalfEven(text / 3 + 5);
  const double height = roundHalfEven(text + 10 - 1);
  imgClose_.Move(ScaleWidth() - kEdge - imgClose_.Width(), (height - imgClose_.Height() + 1) / 2,
                 imgClose_.Width(), imgClose_.Height());
  imgMaxRst_.Move(imgClose_.Left() - imgMaxRst_.Width() - kGap, (height - imgMaxRst_.Height() + 1) / 2,
                  imgMaxRst_.Width(), imgMaxRst_.Height());
  double width = roundHalfEven(ScaleWidth() - indent - 2);
  if (!iconCloseHidden_) width -= imgClose_.Width() + kGap;
  if (!iconMaxRstHidden_) width -= imgMaxRst_.Width() + kGap;
  const auto top = static_cast<std::int32_t>(roundHalfEven(height - text + 1)) / 2;
  lblTitle_.Move(indent, top, std::max(width, 1.0), text + 1);
  return height;
}

// ---- the items ----

void QRNDisplay::SetColumnLayout(std::int32_t nLabelWeight, std::int32_t nValueWeight,
                                 std::int32_t nUnitWeight, float Tolerance) {
  columns_ = ColumnWeights::of(nLabelWeight, nValueWeight, nUnitWeight, Tolerance);
  LayoutControls(false);
}

void QRNDisplay::LayoutControls(bool bAdjustParamsOnly) {
  if (bAdjustParamsOnly && (columnsFit_ || !columns_.anyAutomatic())) return;
  ColumnFit fit(columns_);
  if (columns_.anyAutomatic()) {
    for (std::int32_t position = 1; position <= items_->Count(); ++position) {
      const QRNEdit* row = items_->at(position).row();
      if (!row) continue;
      if (bAdjustParamsOnly)
        fit.add(minimumOf(*row), widthsOf(*row));
      else
        fit.add(minimumOf(*row));
    }
  }
  columnsFit_ = bAdjustParamsOnly && !fit.mustRefit();
  if (!columnsFit_) placeItems(fit.widths());
}

double QRNDisplay::containerWidth() const {
  return std::trunc(pbxContainer_.ScaleWidth() - sbrVertical_.Width());
}

void QRNDisplay::placeItems(const ColumnWidths& automatic) {
  const ItemMeasures all{automatic, containerWidth(), GetHorizontalSpacing(), GetVerticalSpacing(),
                         GetMenuItemHeight()};
  double y = 0, gap = 0;
  std::int32_t tab = 0;
  const WeakRef<host::Control> self(this);
  const host::ContainerControl::Rearrangement rearrangement(pbxContainer_);
  // A row that ends its edit when it is placed has listeners. They may change the items, and when they lay
  // them out, nothing is left to be done.
  const std::uint32_t placing = ++placings_;
  const auto goesOn = [&] { return self && placings_ == placing; };
  clsQRNCollection::Walk walk(items_->items_);
  while (const PanelItem* item = goesOn() ? walk.next() : nullptr) {
    host::Control* control = item->control();
    if (!control || !control->Visible()) continue;
    control->SetTabIndex(++tab);
    if (QRNEdit* row = item->row()) {
      y = placeRow(*row, all, y, gap);
      gap = all.verticalSpacing;
    } else {
      y = placeAction(static_cast<QRNMenuItem&>(*control), all, y, gap);
      gap = 0;
    }
  }
  if (goesOn()) setUpScrollBar(y);
}

// Answers where the item ends. Buttons touch each other; rows keep a distance from everything.
double QRNDisplay::placeAction(QRNMenuItem& button, const ItemMeasures& all, double y, double gap) {
  button.switchRedraw(false);
  button.SetMargin(all.horizontalSpacing);
  if (y > 0 && gap >= 1) y += gap;
  button.Move(0, y, std::max(all.room - all.horizontalSpacing, kNarrowest), all.actionHeight);
  button.switchRedraw(true);
  return y + all.actionHeight;
}

double QRNDisplay::placeRow(QRNEdit& row, const ItemMeasures& all, double y, double gap) {
  const double width = std::max(all.room - 2.0 * all.horizontalSpacing, kNarrowest);
  ColumnWidths widths = all.automatic;
  double free = width - row.widthBesideParts(all.horizontalSpacing);
  for (const std::int32_t automatic : all.automatic) free -= automatic;
  free = std::max(free, 1.0);
  for (std::size_t column = 0; column < kColumns; ++column) {
    const auto share = static_cast<double>(columns_.weight[column]);
    if (share > 0) widths[column] = nearestLong(std::floor(share * free));
  }
  if (!row.UnitVisible()) widths[1] = sum(widths[1], widths[2]);
  const std::int32_t height = row.GetMinHeight();
  if (y > 0) y += std::max(gap, static_cast<double>(all.verticalSpacing));
  const auto left = static_cast<double>(all.horizontalSpacing);
  const Rect bounds{left, y, width, static_cast<double>(height)};
  row.place({bounds, all.horizontalSpacing, widths[0], widths[1], widths[2]});
  return y + height;
}

// ---- scrolling ----

std::int32_t QRNDisplay::scrollNumber(double value) const {
  const double whole = roundHalfEven(value);
  if (!tallContent_ && whole > std::numeric_limits<std::int16_t>::max()) {
    raiseRunTimeError(kOverflow, typeName());
  }
  return nearestLong(whole);
}

void QRNDisplay::setUpScrollBar(double contentHeight) {
  const double room = pbxContainer_.ScaleHeight();
  const bool fits = room >= contentHeight;
  if (fits) {
    sbrVertical_.SetMax(0);
  } else {
    sbrVertical_.SetMax(scrollNumber(contentHeight - room));
    // A scroll bar can't go by nothing, though an action may be without height.
    sbrVertical_.SetLargeChange(std::max(1, scrollNumber(room)));
    sbrVertical_.SetSmallChange(std::max(1, scrollNumber(GetMenuItemHeight())));
  }
  sbrVertical_.SetEnabled(!fits && Enabled());
  sbrVertical_.SetVisible(!fits);
  applyScroll();
}

void QRNDisplay::applyScroll() {
  pbxContainer_.scrollTo(sbrVertical_.Value());
  placeToolTip();
}

bool QRNDisplay::wheel(double notches) {
  if (!sbrVertical_.Visible() || !sbrVertical_.Enabled()) return false;
  // Into the range before it becomes a whole number: a turn may be longer than any content.
  const double wished = sbrVertical_.Value() - notches * sbrVertical_.SmallChange();
  sbrVertical_.SetValue(scrollNumber(std::clamp<double>(wished, sbrVertical_.Min(), sbrVertical_.Max())));
  applyScroll();
  return true;
}

}  // namespace qrn
