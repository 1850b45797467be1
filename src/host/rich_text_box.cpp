#include "host/rich_text_box.h"

#include <algorithm>
#include <cmath>

#include "host/user_control.h"
#include "richtext/rtf_reader.h"
#include "richtext/rtf_writer.h"

namespace qrn::host {
namespace {

using richtext::CharFormat;
using richtext::Document;

constexpr double kThumb = 3;  // as wide as the margin has room for
constexpr double kSmallestThumb = 12;
constexpr double kLinesPerNotch = 3;

}  // namespace

void RichTextBox::SetText(std::string_view text) { show(Document::plain(text, ownFormat())); }

std::string RichTextBox::TextRTF() const { return richtext::writeRtf(document_); }

void RichTextBox::SetTextRTF(std::string_view rtf) {
  if (auto document = richtext::readRtf(rtf))
    show(*std::move(document));
  else
    SetText(rtf);
}

void RichTextBox::show(Document document) {
  if (document == document_) return;
  document_ = std::move(document);
  selection_ = {};
  inserted_.reset();
  scrolledBy_ = 0;
  documentChanged();
}

void RichTextBox::documentChanged() {
  layout_.reset();
  touched(Aspect::Content);
}

CharFormat RichTextBox::ownFormat() const {
  if (!Parent() || !Font()) return {};
  const host::Font& own = *Font();
  CharFormat format{.font = own.family, .halfPoints = static_cast<std::int32_t>(std::lround(own.size * 2))};
  format.bold = own.bold;
  format.italic = own.italic;
  format.underline = own.underline;
  format.strikeThrough = own.strikethrough;
  return format;
}

// Text that is there keeps its fonts; an empty box takes on the new one.
void RichTextBox::forgetMeasures() {
  layout_.reset();
  if (document_.length() == 0) document_ = Document::plain({}, ownFormat(), document_.paragraphFormatAt(0));
}

host::Font RichTextBox::fontOf(const CharFormat& format) const {
  host::Font font(format.font.empty() ? Font()->family : format.font, format.halfPoints / 2.0, format.bold,
                  format.italic);
  font.underline = format.underline;
  font.strikethrough = format.strikeThrough;
  return font;
}

const RichTextLayout& RichTextBox::layout() const {
  const double width = pixelSize().width - 2 * kMargin;
  if (!layout_ || layout_->width() != width) {
    const auto metricsOf = [this](const CharFormat& format) -> FontMetrics& {
      return platform().metrics(fontOf(format));
    };
    layout_.emplace(document_, width, metricsOf);
  }
  return *layout_;
}

double RichTextBox::furthest() const {
  return std::max(0.0, layout().height() - (pixelSize().height - 2 * kMargin));
}

double RichTextBox::scrolledBy() const { return std::min(scrolledBy_, furthest()); }

void RichTextBox::scrollTo(double offset) {
  const double before = scrolledBy();
  scrolledBy_ = std::clamp(offset, 0.0, furthest());
  if (scrolledBy_ != before) invalidate();
}

double RichTextBox::lineHeight() const { return platform().metrics(*Font()).height(); }

// At the end of the text the wheel still belongs to the box: what lies behind must not start to move.
bool RichTextBox::wheel(double notches) {
  if (furthest() == 0) return false;
  scrollTo(scrolledBy() - notches * kLinesPerNotch * lineHeight());
  return true;
}

bool RichTextBox::userKeyed(std::int16_t keyCode, std::int16_t shift) {
  if (shift != shift::None) return false;
  const double page = std::max(lineHeight(), pixelSize().height - 2 * kMargin - lineHeight());
  switch (keyCode) {
    case key::Up: scrollTo(scrolledBy() - lineHeight()); return true;
    case key::Down: scrollTo(scrolledBy() + lineHeight()); return true;
    case key::PageUp: scrollTo(scrolledBy() - page); return true;
    case key::PageDown: scrollTo(scrolledBy() + page); return true;
    case key::Home: scrollTo(0); return true;
    case key::End: scrollTo(furthest()); return true;
    default: return false;
  }
}

std::intptr_t RichTextBox::windowMessage(const Message& message) {
  if (message.number == wm::GetDlgCode)
    return dlgc::WantAllKeys | dlgc::WantChars | dlgc::HasSetSel | dlgc::WantArrows;
  return Editor::windowMessage(message);
}

// The system's text colour need not fit to a background of the box's own any more than those of the text do.
Color RichTextBox::colorOf(const CharFormat& format) const {
  if (!enabledUpToSurface()) return textColor();
  return readableOn(platform().resolve(format.color.value_or(textColor())), platform().resolve(BackColor()));
}

void RichTextBox::paint(Surface& surface, Size size) {
  surface.fill({0, 0, size.width, size.height}, BackColor());
  paintText(surface, size);
  paintThumb(surface, size);
  if (bordered_) surface.frame({0, 0, size.width, size.height}, kButtonShadow);
}

void RichTextBox::paintText(Surface& surface, Size size) {
  surface.enter({kMargin, 0, size.width - 2 * kMargin, size.height});
  const Rect seen = surface.visible();
  const double scrolled = scrolledBy() - kMargin;
  for (const auto& line : layout().linesBetween(seen.top + scrolled, seen.bottom() + scrolled)) {
    for (const auto& piece : line.pieces) {
      surface.text({piece.left, piece.top - scrolled}, piece.text, fontOf(*piece.format),
                   colorOf(*piece.format));
    }
  }
  surface.leave();
}

// Where the part that can be seen lies in the whole text.
void RichTextBox::paintThumb(Surface& surface, Size size) {
  if (furthest() == 0) return;
  const double height = std::max(kSmallestThumb, size.height * size.height / (size.height + furthest()));
  const double top = (size.height - height) * scrolledBy() / furthest();
  constexpr double kFaint = 0.4;
  const Color color = mixed(platform().resolve(BackColor()), colorOf({}), kFaint);
  surface.fill({size.width - kThumb, top, kThumb, height}, color);
}

}  // namespace qrn::host
