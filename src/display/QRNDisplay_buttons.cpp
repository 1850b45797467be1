#include <algorithm>
#include <vector>

#include "display/QRNDisplay.h"
#include "display/button_row.h"
#include "hooks/frmPostCode.h"
#include "runtime/conversions.h"
#include "runtime/errors.h"

namespace qrn {

clsQRNButtons& QRNDisplay::Buttons() {
  if (!buttons_) buttons_ = std::make_unique<clsQRNButtons>(static_cast<ButtonsPanel&>(*this));
  return *buttons_;
}

double QRNDisplay::firstButtonHeight() const {
  const host::CommandButton* first = (*buttons_->begin())->control();
  return first ? first->Height() : 0;
}

// The user may have given the focus to the footer, and who hears of its loss may do anything: answers whether
// the panel is still there, and still to be arranged.
bool QRNDisplay::showButtons() {
  const WeakRef<host::Control> self(this);
  buttonsContainer_.SetVisible(hasButtons());
  return self && redraw_;
}

// Answers what the footer, the bottom margin included, takes of the panel's height. A wide margin is kept; a
// narrow one grows to half a button, at the sides of the row too.
double QRNDisplay::arrangeButtons() {
  if (!hasButtons()) return bottomMargin_;
  const double height = firstButtonHeight();
  const std::int32_t half = halfOf(height);
  const std::int32_t bottom = std::max(bottomMargin_, half), left = std::max(leftMargin_, half);
  const double width = ScaleWidth() - left - std::max(rightMargin_, half);
  buttonsContainer_.Move(left, ScaleHeight() - (bottom + height), std::max(width, 1.0), height);
  return bottom + height + half;
}

void QRNDisplay::LayoutButtons() {
  if (!hasButtons()) return;
  std::vector<ButtonWidths> widths;
  for (const ButtonPtr& button : *buttons_) widths.push_back({button->MinWidth(), button->StdWidth()});
  const auto places =
      placeButtons(widths, firstButtonHeight(), buttonsContainer_.ScaleWidth(), buttonsAlignment_);
  std::int32_t tab = items_->Count();
  auto place = places.begin();
  for (const ButtonPtr& button : *buttons_) {
    ++tab;
    if (host::CommandButton* control = button->control()) {
      control->Move(place->left, 0, place->width, control->Height());
      control->SetTabIndex(tab);
    }
    ++place;
  }
}

void QRNDisplay::buttonsChanged() {
  if (!apply(After::Arrange)) return;
  // The container has the size that it had, unless the row has just appeared.
  LayoutButtons();
}

std::unique_ptr<host::CallPoster> QRNDisplay::makePoster() {
  return std::make_unique<frmPostCode>(platform());
}

void QRNDisplay::Callback(Variant& Code) {
  ignoringErrors([&] { buttonClicked(CLng(Code)); });
}

}  // namespace qrn
