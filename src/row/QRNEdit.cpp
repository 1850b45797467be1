#include "row/QRNEdit.h"

#include "diag/QRNErrors.h"
#include "row/focus_watch.h"
#include "row/icon_tracking.h"
#include "runtime/rounding.h"

namespace qrn {
namespace {

constexpr double kDesignWidth = 320;
constexpr double kDesignPartWidth = 100;

}  // namespace

QRNEdit::QRNEdit() = default;

QRNEdit::~QRNEdit() = default;

void QRNEdit::initialize() {
  contain(lblLabel_, *this, "lblLabel");
  contain(icon1_.image, *this, "imgIcon1");
  contain(icon2_.image, *this, "imgIcon2");
  contain(lblUnit_, *this, "lblUnit");
  lblLabel_.SetCaption("Label");
  lblUnit_.SetCaption("Unit");
  lblLabel_.Move(0, 0, kDesignPartWidth, textHeight());
  lblUnit_.Move(0, 0, kDesignPartWidth, textHeight());
  Move(0, 0, kDesignWidth, GetMinHeight());
}

void QRNEdit::show() {
  redraw_ = true;
  layOut();
}

void QRNEdit::terminate() {
  stopTracking();
  focusWatch_.reset();
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
  const bool switchedOn = redraw && !redraw_;
  redraw_ = redraw;
  if (switchedOn) layOut();
}

// ---- setters ----

void QRNEdit::SetScaleMode(std::int16_t mode) {
  const Point before = pixelsPerUnit();
  setScaleMode(mode);
  rescaleParts(before);
  if (auto* composite = compositeEditor()) composite->SetScaleMode(mode);
  applyFont();
  if (propertyChanged("ScaleMode")) layOut();
}

// What is on the screen stays where it is; only its numbers change.
void QRNEdit::rescaleParts(Point pixelsBefore) {
  const Point now = pixelsPerUnit();
  const double x = pixelsBefore.x / now.x, y = pixelsBefore.y / now.y;
  for (host::Control* part : contained()) {
    const Rect place = part->bounds();
    part->Move(place.left * x, place.top * y, place.width * x, place.height * y);
  }
}

void QRNEdit::SetBackColor(host::Color color) {
  if (color == backColor()) return;
  setBackColor(color);
  if (chkValue_) chkValue_->Check().SetBackColor(color);
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
  lblLabel_.SetEnabled(enabled);
  lblUnit_.SetEnabled(enabled);
  applyEnabled();
  propertyChanged("Enabled");
}

void QRNEdit::SetFont(host::FontPtr font) {
  setFont(std::move(font));
  applyFont();
  if (propertyChanged("Font")) layOut();
}

std::int32_t QRNEdit::widthOf(const host::Control& part) { return nearestLong(roundHalfEven(part.Width())); }

void QRNEdit::setPartWidth(host::Control& part, std::int32_t width, std::string_view key) {
  if (width == widthOf(part)) return;
  part.SetWidth(width);
  if (propertyChanged(key)) layOut();
}

void QRNEdit::setPartToolTip(host::Control& part, const std::string& text, std::string_view key) {
  if (text == part.ToolTipText()) return;
  part.SetToolTipText(text);
  propertyChanged(key);
}

void QRNEdit::setPartCaption(host::Label& part, const std::string& text, std::string_view key) {
  if (text == part.Caption()) return;
  part.SetCaption(text);
  propertyChanged(key);
}

void QRNEdit::SetLabelAlignment(std::int32_t alignment) {
  if (alignment == lblLabel_.Alignment()) return;
  lblLabel_.SetAlignment(alignment);
  propertyChanged("LabelAlignment");
}

void QRNEdit::SetUnitAlignment(std::int32_t alignment) {
  if (alignment == lblUnit_.Alignment()) return;
  lblUnit_.SetAlignment(alignment);
  propertyChanged("UnitAlignment");
}

void QRNEdit::setIconPicture(Icon& icon, host::PicturePtr picture, std::string_view key) {
  if (picture == icon.image.Picture()) return;
  const Rect before = icon.image.bounds();
  icon.image.SetPicture(std::move(picture));
  const bool resized = before.size() != icon.image.bounds().size();
  if (propertyChanged(key) && resized) layOut();
}

void QRNEdit::setIconHidden(Icon& icon, bool hidden, std::string_view key) {
  if (hidden == icon.hidden) return;
  icon.hidden = hidden;
  applyIconVisibility();
  propertyChanged(key);
}

std::int32_t QRNEdit::ValueWidth() const { return editorFrame() ? widthOf(*editorFrame()) : 0; }

void QRNEdit::SetValueWidth(std::int32_t width) {
  if (host::Control* frame = editorFrame()) setPartWidth(*frame, width, "ValueWidth");
}

const std::string& QRNEdit::ValueToolTip() const {
  static const std::string none;
  const host::Editor* editor = CurrentEditor();
  return editor ? editor->ToolTipText() : none;
}

void QRNEdit::SetValueToolTip(const std::string& text) {
  host::Editor* editor = CurrentEditor();
  if (!editor || text == editor->ToolTipText()) return;
  editor->SetToolTipText(text);
  // A disabled check box shows no tool tip; what lies under it does.
  if (chkValue_) chkValue_->SetToolTipText(text);
  propertyChanged("ValueToolTip");
}

void QRNEdit::setIconMode(Icon& icon, qrnButtonMode mode, std::string_view key) {
  if (mode == qrnbuttonNone && isTracked(icon)) stopTracking();
  storeAndLayOut(icon.mode, mode, key);
}

void QRNEdit::SetValueAlignment(std::int32_t alignment) {
  storeAndApply(valueAlignment_, alignment, "ValueAlignment", &QRNEdit::applyAlignment);
}

void QRNEdit::SetLocked(bool locked) { storeAndApply(locked_, locked, "Locked", &QRNEdit::applyLocked); }

host::Color QRNEdit::ValueForeColor() const {
  const host::Editor* editor = CurrentEditor();
  return editor ? editor->ForeColor() : host::kWindowText;
}

void QRNEdit::SetValueForeColor(host::Color color) {
  host::Editor* editor = CurrentEditor();
  if (!editor || color == editor->ForeColor()) return;
  editor->SetForeColor(color);
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
  if (txtValue_) txtValue_->select(StartSel, SelLength);
}

}  // namespace qrn
