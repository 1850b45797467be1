#include "tooltip/QRNToolTip.h"

#include <exception>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "base/first_error.h"
#include "base/text.h"
#include "diag/QRNErrors.h"
#include "richtext/code_page.h"

namespace qrn {
namespace {

constexpr std::int32_t kBehindAnyText = 10000000;

std::string bytesOf(const std::string& fileName) {
  const std::filesystem::path path(std::u8string(fileName.begin(), fileName.end()));
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) return {};
  std::ifstream file(path, std::ios::binary);
  std::ostringstream bytes;
  return file && bytes << file.rdbuf() ? bytes.str() : std::string();
}

std::string escaped(const std::string& text) {
  std::string rtf;
  for (const char c : text) {
    if (c == '\\' || c == '{' || c == '}') rtf += '\\';
    rtf += c;
  }
  return rtf;
}

}  // namespace

void QRNToolTip::initialize() {
  contain(rtfInfo_, *this, "rtfInfo");
  rtfInfo_.setBordered(true);
  rtfInfo_.SetVisible(false);
}

// Nobody is to see it before it has been filled and has its place.
void QRNToolTip::placed() {
  SetVisible(false);
  UserControl::placed();
}

void QRNToolTip::show() {
  watch_ = std::make_unique<ApplicationWatch>();
  watch_->left = watch_->application.AppLostFocus.connect(
      [this] { tell(AppLostFocus, "AppLostFocus", afterAppLostFocus); });
  watch_->application.SetHwnd(root().window());
  if (redraw_) return;
  redraw_ = true;
  showBox(true);
}

// ---- the box ----

bool QRNToolTip::Redraw() const {
  if (!userMode()) RaiseError(kGetNotAtDesignTime, *this);
  return redraw_;
}

void QRNToolTip::SetRedraw(bool redraw) {
  if (!userMode()) RaiseError(kSetNotAtDesignTime, *this);
  redraw_ = redraw;
  showBox(redraw);
}

// The focus stays in the tip while the box is away, so that Escape still closes it.
void QRNToolTip::showBox(bool shown) {
  if (shown == rtfInfo_.Visible()) return;
  const WeakRef<host::Control> self(this);
  if (!shown && rtfInfo_.hasFocus()) host::Control::input().setFocus(this);
  if (!self) return;
  rtfInfo_.SetVisible(shown);
  // It shows its text from the beginning, with nothing selected.
  if (shown) rtfInfo_.SetSelStart(0);
  if (shown && hasFocus()) rtfInfo_.SetFocus();
}

host::Control* QRNToolTip::focusTarget() {
  if (rtfInfo_.acceptsFocus()) return &rtfInfo_;
  return Visible() && Enabled() ? this : nullptr;
}

void QRNToolTip::keyDown(std::int16_t& keyCode, std::int16_t& shift) {
  if (keyCode != host::key::Escape || shift != host::shift::None) return;
  keyCode = 0;
  tell(TTClose, "TTClose", afterTTClose);
}

void QRNToolTip::tell(Event<>& event, std::string_view name, const Event<>& after) {
  const WeakRef<host::Control> self(this);
  FirstError error;
  error.of([&] { raise(event, name); });
  if (self) error.of([&] { after.raise(); });
  error.raise();
}

void QRNToolTip::tellFactsOf(const host::Control& inside, host::AccessibleFacts& facts) const {
  if (&inside != &rtfInfo_) return;
  facts.role = host::AccessibleRole::Label;
  facts.name = Text();
}

// ---- text ----

std::string QRNToolTip::GetFileAsString(const std::string& FileName) const {
  try {
    std::string text;
    for (const char byte : bytesOf(FileName))
      text::append(text, richtext::characterOf(static_cast<unsigned char>(byte), richtext::kWesternPage));
    return text;
  } catch (const std::exception&) {
    return {};
  }
}

void QRNToolTip::RTFReplace(std::string& aRichText, const std::string& aVariable,
                            const std::string& aValue) const {
  aRichText = text::replaced(aRichText, escaped(aVariable), escaped(aValue));
}

void QRNToolTip::AddText(const std::string& Str, const std::optional<std::int32_t>& InsertPos) {
  rtfInfo_.SetSelStart(InsertPos.value_or(kBehindAnyText));
  rtfInfo_.SetSelText(Str);
}

}  // namespace qrn
