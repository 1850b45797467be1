#include "display/QRNDisplay.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "diag/QRNErrors.h"
#include "display/shown_tool_tip.h"
#include "runtime/errors.h"
#include "runtime/rounding.h"

namespace qrn {
namespace {

constexpr double kTitleButton = 16;

}  // namespace

QRNDisplay::QRNDisplay() : items_(std::make_shared<clsQRNCollection>()) {}

QRNDisplay::~QRNDisplay() = default;

void QRNDisplay::initialize() {
  contain(lblTitle_, *this, "lblTitle");
  contain(imgMaxRst_, *this, "imgMaxRst");
  contain(imgClose_, *this, "imgClose");
  contain(pbxContainer_, *this, "pbxContainer");
  contain(sbrVertical_, *this, "sbrVertical");
  contain(buttonsContainer_, *this, "m_ButtonsContainer");
  imgMaxRst_.Move(0, 0, kTitleButton, kTitleButton);
  imgClose_.Move(0, 0, kTitleButton, kTitleButton);
  sbrVertical_.SetVisible(false);
  sbrVertical_.SetMax(0);
  buttonsContainer_.SetVisible(false);
  items_->SetDisplay(*this);
  Move(0, 0, 480, 360);
}

void QRNDisplay::show() {
  if (redraw_) return;
  redraw_ = true;
  applyTitleLook();
  arrange();
}

QRNImageList& QRNDisplay::ImageList() {
  if (!imageList_) imageList_ = WeakRef<QRNImageList>(&ownImageList());
  return *imageList_;
}

// An item may bear the name that it should have.
QRNImageList& QRNDisplay::ownImageList() {
  std::string name = "imlImages";
  for (; host::Control* there = controls().find(name); name += '_') {
    if (auto* own = dynamic_cast<QRNImageList*>(there)) return *own;
  }
  return static_cast<QRNImageList&>(controls().add("QRNV16Controls2.QRNImageList", name, *this));
}

// ---- setters ----

bool QRNDisplay::apply(After after) {
  const WeakRef<host::Control> self(this);
  switch (after) {
    case After::Nothing: break;
    case After::Repaint: invalidate(); break;
    case After::Arrange: arrange(); break;
    case After::LayoutButtons: LayoutButtons(); break;
    case After::TitleLook: applyTitleLook(); break;
  }
  return static_cast<bool>(self);
}

void QRNDisplay::SetTitle(const std::string& title) {
  if (title == Title()) return;
  lblTitle_.SetCaption(title);
  propertyChanged("Title");
}

void QRNDisplay::SetBackColor(host::Color color) {
  if (color == backColor()) return;
  setBackColor(color);
  propertyChanged("BackColor");
}

void QRNDisplay::SetForeColor(host::Color color) {
  if (color == foreColor()) return;
  setForeColor(color);
  propertyChanged("ForeColor");
}

void QRNDisplay::SetFont(host::FontPtr font) {
  if (font && *font == *this->font()) return;
  setFont(std::move(font));
  for (host::Control* button : buttonsContainer_.contained()) button->fontChanged();
  if (apply(After::Arrange)) propertyChanged("Font");
}

void QRNDisplay::SetEnabled(bool enabled) {
  if (enabled == Enabled()) return;
  UserControl::SetEnabled(enabled);
  sbrVertical_.SetEnabled(enabled && sbrVertical_.Visible());
  if (titleStyle_ == qrnTitleDialog) invalidate();
  propertyChanged("Enabled");
}

void QRNDisplay::SetTitleStyle(qrnTitleStyle style) {
  if (style == titleStyle_) return;
  titleStyle_ = style;
  applyTitleLook();
  if (apply(After::Arrange)) propertyChanged("TitleStyle");
}

bool QRNDisplay::Redraw() const {
  if (!userMode()) RaiseError(kGetNotAtDesignTime, *this);
  return redraw_;
}

void QRNDisplay::SetRedraw(bool redraw) {
  if (!userMode()) RaiseError(kSetNotAtDesignTime, *this);
  const bool switchedOn = redraw && !redraw_;
  redraw_ = redraw;
  if (switchedOn) arrange();
}

void QRNDisplay::SetCloseButtonToolTip(const std::string& text) {
  if (text == CloseButtonToolTip()) return;
  imgClose_.SetToolTipText(text);
  propertyChanged("CloseButtonToolTip");
}

// ---- sizes that follow from the font ----

std::int32_t QRNDisplay::GetHorizontalSpacing() const {
  if (horizontalSpacing_ >= 0) return horizontalSpacing_;
  return static_cast<std::int32_t>(roundHalfEven(TextWidth("0")));
}

std::int32_t QRNDisplay::GetVerticalSpacing() const {
  if (verticalSpacing_ >= 0) return verticalSpacing_;
  return static_cast<std::int32_t>(std::ceil(TextHeight("|") / 3));
}

std::int32_t QRNDisplay::GetMenuItemHeight() const {
  if (menuItemHeight_ >= 0) return menuItemHeight_;
  return static_cast<std::int32_t>(std::ceil(2 * TextHeight("|")));
}

void QRNDisplay::RemoveControls() {
  items_->RemoveAll();
  setUpScrollBar(0);
}

// ---- focus ----

void QRNDisplay::SetItemFocus(const Variant& aItemSelector) {
  host::Control* target = &pbxContainer_;
  ignoringErrors([&] {
    if (host::Control* control = items_->Item(aItemSelector)->control()) target = control;
  });
  target->SetFocus();
}

std::int32_t QRNDisplay::GetActiveItem(bool bAcceptMouseHit) {
  const Point cursor = platform().cursor() - platform().screenPosition(root());
  std::int32_t found = 0;
  for (std::int32_t i = 1; i <= items_->Count(); ++i) {
    host::Control* control = items_->Item(Variant(i))->control();
    if (!control) continue;
    if (control->hasFocus()) return i;
    if (bAcceptMouseHit && control->shown() && control->visibleOnSurface().contains(cursor)) found = i;
  }
  return found;
}

// The items come first, then the buttons of the footer, each kind in the order of its tab indices.
host::Control* QRNDisplay::nextTabStop(host::Control* from, bool forward) {
  const auto isTop = [&](const host::Control* c) {
    return c->Container() == &pbxContainer_ || c->Container() == &buttonsContainer_;
  };
  // From a tool tip on, it goes to the neighbours of what that is about.
  if (toolTip() && toolTip()->hasFocus()) from = relatedTo(*toolTip());
  while (from && !isTop(from)) from = from->Container();
  std::vector<host::Control*> all;
  const auto addSorted = [&](auto controls) {
    const auto first = static_cast<std::ptrdiff_t>(all.size());
    for (host::Control* control : controls) {
      if (control && control->Visible()) all.push_back(control);
    }
    std::stable_sort(all.begin() + first, all.end(),
                     [](const auto* a, const auto* b) { return a->TabIndex() < b->TabIndex(); });
  };
  std::vector<host::Control*> items;
  for (const PanelItemPtr& item : *items_) items.push_back(item->control());
  addSorted(std::move(items));
  if (hasButtons()) addSorted(buttonsContainer_.contained());
  if (!forward) std::reverse(all.begin(), all.end());
  const auto at = std::find(all.begin(), all.end(), from);
  const auto behind = at == all.end() ? all.begin() : std::next(at);
  // Rows have no editor yet before somebody asks for it: only those on the way are asked.
  const auto next = std::find_if(behind, all.end(), [](auto* control) { return control->focusTarget(); });
  return next == all.end() ? nullptr : *next;
}

}  // namespace qrn
