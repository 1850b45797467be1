#include "row/QRNEdit.h"

#include "diag/QRNErrors.h"
#include "row/row_extras.h"
#include "runtime/rounding.h"

namespace qrn {
namespace {

constexpr double kDesignWidth = 320;

}  // namespace

QRNEdit::QRNEdit() = default;

QRNEdit::~QRNEdit() = default;

void QRNEdit::initialize() {
  startUnarranged();
  label_.text = "Label";
  unit_.text = "Unit";
  Move(0, 0, kDesignWidth, GetMinHeight());
}

void QRNEdit::show() {
  redraw_ = true;
  layOut();
}

void QRNEdit::terminate() {
  stopTracking();
  if (extras_) extras_->focusWatch.reset();
  removeEditor();
}

bool QRNEdit::Redraw() const {
  if (!userMode()) RaiseError(kGetNotAtDesignTime, *this);
  return redraw_;
}

void QRNEdit::SetRedraw(bool redraw) {
  if (!userMode()) RaiseError(kSetNotAtDesignTime, *this);
  switchRedraw(redraw);
}

void QRNEdit::switchRedraw(bool redraw) {
  if (redraw == redraw_) return;
  // From now on what has been seen of the row stays as it is.
  if (!redraw && parts_) settle();
  redraw_ = redraw;
  layOut();
}

// ---- setters ----

void QRNEdit::SetScaleMode(std::int16_t mode) {
  const Point before = pixelsPerUnit();
  if (parts_) settle();
  setScaleMode(mode);
  rescaleParts(before);
  if (auto* composite = editor_.composite()) composite->SetScaleMode(mode);
  applyFont();
  if (propertyChanged("ScaleMode")) layOut();
}

// What is on the screen stays where it is; only its numbers change.
void QRNEdit::rescaleParts(Point pixelsBefore) {
  const Point now = pixelsPerUnit();
  const double x = pixelsBefore.x / now.x, y = pixelsBefore.y / now.y;
  for (double* width : {&labelWidth_, &valueWidth_, &unitWidth_}) *width *= x;
  if (!parts_) return;
  for (host::Control* part : contained()) {
    const Rect place = part->bounds();
    part->Move(place.left * x, place.top * y, place.width * x, place.height * y);
  }
}

void QRNEdit::SetBackColor(host::Color color) {
  if (color == backColor()) return;
  setBackColor(color);
  if (editor_.check()) editor_.check()->Check().SetBackColor(color);
  propertyChanged("BackColor");
}

void QRNEdit::SetForeColor(host::Color color) {
  if (color == foreColor()) return;
  setForeColor(color);
  propertyChanged("ForeColor");
}

void QRNEdit::SetEnabled(bool enabled) {
  if (enabled == Enabled()) return;
  UserControl::SetEnabled(enabled);
  if (parts_) {
    parts_->lblLabel.SetEnabled(enabled);
    parts_->lblUnit.SetEnabled(enabled);
  }
  applyEnabled();
  propertyChanged("Enabled");
}

void QRNEdit::SetFont(host::FontPtr font) {
  setFont(std::move(font));
  applyFont();
  if (propertyChanged("Font")) layOut();
}

std::int32_t QRNEdit::wholeWidth(double width) { return nearestLong(roundHalfEven(width)); }

void QRNEdit::setWidth(double& part, std::int32_t width, std::string_view key) {
  if (width == wholeWidth(part)) return;
  part = width;
  if (parts_ && !redraw_) applyWidths();
  tellMeasureChanged();
  if (propertyChanged(key)) layOut();
}

const std::string& QRNEdit::toolTip(std::string RowToolTips::*part) const {
  static const RowToolTips none;
  return (toolTips_ ? *toolTips_ : none).*part;
}

RowToolTips& QRNEdit::toolTips() {
  if (!toolTips_) toolTips_ = std::make_unique<RowToolTips>();
  return *toolTips_;
}

void QRNEdit::setToolTip(std::string RowToolTips::*part, const std::string& text, std::string_view key) {
  if (text == toolTip(part)) return;
  toolTips().*part = text;
  if (parts_) applyToolTips();
  propertyChanged(key);
}

void QRNEdit::setText(RowText& part, const std::string& text, std::string_view key) {
  if (text == part.text) return;
  part.text = text;
  forgetMeasure(&part == &label_ ? &Measures::label : &Measures::unit);
  if (parts_) labelOf(part).SetCaption(text);
  propertyChanged(key);
}

void QRNEdit::setTextAlignment(RowText& part, std::int32_t alignment, std::string_view key) {
  if (alignment == part.alignment) return;
  part.alignment = alignment;
  if (parts_) labelOf(part).SetAlignment(alignment);
  propertyChanged(key);
}

void QRNEdit::SetLabelAlignment(std::int32_t alignment) {
  setTextAlignment(label_, alignment, "LabelAlignment");
}

void QRNEdit::SetUnitAlignment(std::int32_t alignment) {
  setTextAlignment(unit_, alignment, "UnitAlignment");
}

void QRNEdit::setIconPicture(RowIcon& icon, host::PicturePtr picture, std::string_view key) {
  if (picture == icon.picture) return;
  const auto sizeOf = [](const host::PicturePtr& one) { return one ? one->size() : Size{}; };
  const bool resized = sizeOf(picture) != sizeOf(icon.picture);
  icon.picture = std::move(picture);
  if (parts_) imageOf(icon).SetPicture(icon.picture);
  if (propertyChanged(key) && resized) layOut();
}

void QRNEdit::setIconHidden(RowIcon& icon, bool hidden, std::string_view key) {
  if (hidden == icon.hidden) return;
  icon.hidden = hidden;
  if (parts_) imageOf(icon).SetVisible(icon.shown());
  propertyChanged(key);
}

std::int32_t QRNEdit::ValueWidth() const { return editor_.exists() ? wholeWidth(valueWidth_) : 0; }

void QRNEdit::SetValueWidth(std::int32_t width) {
  if (editor_.exists()) setWidth(valueWidth_, width, "ValueWidth");
}

const std::string& QRNEdit::ValueToolTip() const {
  return editor_.inner() ? editor_.inner()->ToolTipText() : toolTip(&RowToolTips::value);
}

void QRNEdit::SetValueToolTip(const std::string& text) {
  if (!editor_.exists() || text == ValueToolTip()) return;
  applyValueToolTip(text);
  propertyChanged("ValueToolTip");
}

void QRNEdit::setIconMode(RowIcon& icon, qrnButtonMode mode, std::string_view key) {
  if (mode == qrnbuttonNone && isTracked(icon)) stopTracking();
  storeAndLayOut(icon.mode, mode, key);
}

void QRNEdit::SetValueAlignment(std::int32_t alignment) {
  storeAndApply(valueAlignment_, alignment, "ValueAlignment", &QRNEdit::applyAlignment);
}

void QRNEdit::SetLocked(bool locked) { storeAndApply(locked_, locked, "Locked", &QRNEdit::applyLocked); }

void QRNEdit::SetValueForeColor(host::Color color) {
  if (!editor_.exists() || color == ValueForeColor()) return;
  editor_.setForeColor(color);
  propertyChanged("ValueForeColor");
}

void QRNEdit::SetValueUpperCase(bool upperCase) {
  storeAndApply(valueUpperCase_, upperCase, "ValueUpperCase", &QRNEdit::applyUpperCase);
}

void QRNEdit::SetValueMaxLength(std::int32_t length) {
  constexpr std::int32_t kLongest = 65535;
  if (length < 0 || length > kLongest) length = kLongest;
  storeAndApply(valueMaxLength_, length, "ValueMaxLength", &QRNEdit::applyMaxLength);
}

void QRNEdit::SetPassword(bool password) {
  storeAndApply(password_, password, "Password", &QRNEdit::applyPassword);
}

void QRNEdit::SetValueRule(const std::string& rule) {
  if (rule == ValueRule()) return;
  settings_.setRule(rule);
  propertyChanged("ValueRule");
}

void QRNEdit::SetValueCharSet(const std::string& charSet) {
  if (charSet == ValueCharSet()) return;
  settings_.setCharSet(charSet);
  propertyChanged("ValueCharSet");
}

void QRNEdit::SetValueFormat(const std::string& format) {
  if (format == ValueFormat()) return;
  settings_.setFormat(format);
  propertyChanged("ValueFormat");
}

void QRNEdit::SetSelection(std::int32_t StartSel, std::int32_t SelLength) {
  makeEditor();
  if (editor_.textBox()) editor_.textBox()->select(StartSel, SelLength);
}

}  // namespace qrn
