#include <algorithm>

#include "base/first_error.h"
#include "display/QRNDisplay.h"
#include "display/shown_tool_tip.h"
#include "host/control_ref.h"
#include "runtime/errors.h"
#include "tooltip/tool_tip_place.h"

namespace qrn {
namespace {

constexpr std::string_view kName = "ctlToolTip";
constexpr double kLongestLine = 80;  // characters; the eye loses its way in longer ones

}  // namespace

QRNToolTip* QRNDisplay::toolTip() const { return toolTip_ ? toolTip_->tip.get() : nullptr; }

bool QRNDisplay::holdsEditsBack() const { return toolTipShown_ && toolTip(); }

QRNToolTip* QRNDisplay::DisplayToolTip(const Variant& RelatedControl, float nEstimatedLines) {
  const WeakRef<host::Control> self(this);
  RemoveToolTip(false);
  if (!ignoringErrors([&] { createToolTip(); })) return nullptr;
  QRNToolTip& tip = *toolTip();
  const WeakRef<QRNToolTip> guard(&tip);
  toolTipShown_ = true;
  tip.SetRelatedControl(RelatedControl);
  estimatedLines_ = nEstimatedLines >= 1 ? nEstimatedLines : 1;
  placeToolTip();
  // It has come last, so that it is in front.
  tip.SetVisible(true);
  // The row that loses the focus by this tells its listeners.
  tip.SetFocus();
  return self ? guard.get() : nullptr;
}

void QRNDisplay::createToolTip() {
  auto& tip = static_cast<QRNToolTip&>(controls().add("QRNV16Controls2.QRNToolTip", kName, *this));
  toolTip_ = std::make_unique<ShownToolTip>();
  toolTip_->tip = WeakRef<QRNToolTip>(&tip);
  toolTip_->closed = tip.afterTTClose.connect([this] { RemoveToolTip(true); });
  toolTip_->left = tip.afterAppLostFocus.connect([this] { leave(); });
}

// Whoever hears that the focus is back may show other help, or remove this one himself.
void QRNDisplay::RemoveToolTip(bool bRestoreFocus) {
  const WeakRef<host::Control> self(this);
  const WeakRef<QRNToolTip> removed(toolTip());
  if (removed && bRestoreFocus) {
    FirstError ignored;
    ignored.of([&] {
      if (host::Control* related = relatedTo(*removed)) related->SetFocus();
    });
    if (!self || toolTip() != removed.get()) return;
  }
  toolTip_.reset();
  toolTipShown_ = false;
  if (removed) controls().remove(kName);
}

host::Control* QRNDisplay::relatedTo(const QRNToolTip& tip) const {
  if (host::Control* control = host::controlIn(tip.RelatedControl())) return control;
  host::Control* control = nullptr;
  ignoringErrors([&] { control = items_->Item(tip.RelatedControl())->control(); });
  return control;
}

// What tools see of a tool tip.
host::Control* QRNDisplay::shownHelp() const {
  QRNToolTip* tip = toolTip();
  return tip && tip->Visible() ? &tip->RichTextControl() : nullptr;
}

// The edit that the tool tip has held back ends here.
void QRNDisplay::leave() {
  RemoveToolTip(false);
  releaseEditCycle();
}

// Beside what it is about, or at the top; the scroll bar stays free.
void QRNDisplay::placeToolTip() {
  QRNToolTip* tip = toolTip();
  if (!tip) return;
  const Rect area{pbxContainer_.Left(), pbxContainer_.Top(), std::max(containerWidth(), 1.0),
                  pbxContainer_.Height()};
  const host::Control* related = relatedTo(*tip);
  const Point origin = onSurface().topLeft();
  const Rect beside =
      related ? related->onSurface().translated(Point{} - origin) : Rect{area.left, area.top, area.width, 0};
  const double line = TextHeight("|"), margins = 2 * host::RichTextBox::kMargin;
  const Rect place = toolTipPlace(
      beside, area,
      {kLongestLine * TextWidth("0") + margins, estimatedLines_ * line + margins, line + margins});
  tip->Move(place.left, place.top, place.width, place.height);
}

}  // namespace qrn
