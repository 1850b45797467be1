#include <algorithm>
#include <cmath>

#include "base/text.h"
#include "host/rich_text_box.h"
#include "host/user_control.h"
#include "richtext/rtf_reader.h"
#include "richtext/rtf_writer.h"
#include "runtime/conversions.h"
#include "runtime/errors.h"

namespace qrn::host {
namespace {

using richtext::CharFormat;
using richtext::Document;
using richtext::ParagraphFormat;

const auto asItIs = [](const auto& value) { return Variant(value); };

double unitsOf(std::int32_t twips, double pixelsPerUnit) { return twips / kTwipsPerPixel / pixelsPerUnit; }

/// Nothing for a length that no format has.
std::optional<std::int32_t> twipsOf(const Variant& units, double pixelsPerUnit) {
  const double twips = std::round(CDbl(units) * pixelsPerUnit * kTwipsPerPixel);
  if (!(std::abs(twips) <= richtext::kMostTwips)) return std::nullopt;
  return static_cast<std::int32_t>(twips);
}

}  // namespace

void RichTextBox::refuse() const { raiseRunTimeError(kInvalidPropertyValue, typeName()); }

void RichTextBox::SetSelStart(std::int32_t start) {
  if (start < 0) refuse();
  selection_ = {document_.settled(static_cast<std::size_t>(start)), 0};
  inserted_.reset();
}

void RichTextBox::SetSelLength(std::int32_t length) {
  if (length < 0) refuse();
  selection_.length =
      document_.settled(selection_.start + static_cast<std::size_t>(length)) - selection_.start;
  inserted_.reset();
}

void RichTextBox::SetSelText(std::string_view text) {
  replaceSelection(Document::plain(text, insertedFormat(), document_.paragraphFormatAt(selection_.start)));
}

std::string RichTextBox::SelRTF() const { return richtext::writeRtf(document_.part(selection_)); }

void RichTextBox::SetSelRTF(std::string_view rtf) {
  if (const auto document = richtext::readRtf(rtf))
    replaceSelection(*document);
  else
    SetSelText(rtf);
}

void RichTextBox::replaceSelection(const Document& by) {
  document_.replace(selection_, by);
  selection_ = {selection_.start + by.length(), 0};
  inserted_.reset();
  documentChanged();
}

// What takes the place of a selection looks like its first character.
const CharFormat& RichTextBox::insertedFormat() const {
  if (inserted_) return *inserted_;
  return document_.formatAt(selection_.start + (selection_.length > 0 ? 1 : 0));
}

template <class T, class Shown>
Variant RichTextBox::common(T CharFormat::*field, Shown&& shown) const {
  if (selection_.length == 0) return shown(insertedFormat().*field);
  const std::optional<T> value = document_.uniform(selection_, field);
  return value ? Variant(shown(*value)) : Variant(Null());
}

template <class T, class Shown>
Variant RichTextBox::common(T ParagraphFormat::*field, Shown&& shown) const {
  const std::optional<T> value = document_.uniform(selection_, field);
  return value ? Variant(shown(*value)) : Variant(Null());
}

template <class T>
void RichTextBox::format(T CharFormat::*field, const T& value) {
  if (selection_.length == 0) {
    inserted_ = insertedFormat();
    (*inserted_).*field = value;
    return;
  }
  document_.set(selection_, field, value);
  documentChanged();
}

template <class T>
void RichTextBox::format(T ParagraphFormat::*field, const T& value) {
  document_.set(selection_, field, value);
  documentChanged();
}

Variant RichTextBox::SelFontName() const {
  return common(&CharFormat::font,
                [this](const std::string& name) { return name.empty() ? Font()->family : name; });
}

void RichTextBox::SetSelFontName(const Variant& name) {
  const std::string wanted = CStr(name);
  if (text::length(wanted) > richtext::kLongestFontName) refuse();
  format(&CharFormat::font, wanted);
}

Variant RichTextBox::SelFontSize() const {
  return common(&CharFormat::halfPoints,
                [](std::int32_t halfPoints) { return static_cast<float>(halfPoints) / 2; });
}

void RichTextBox::SetSelFontSize(const Variant& points) {
  const double halfPoints = std::round(CDbl(points) * 2);
  if (!(halfPoints >= 1 && halfPoints <= richtext::kMostHalfPoints)) refuse();
  format(&CharFormat::halfPoints, static_cast<std::int32_t>(halfPoints));
}

Variant RichTextBox::SelBold() const { return common(&CharFormat::bold, asItIs); }
void RichTextBox::SetSelBold(const Variant& bold) { format(&CharFormat::bold, CBool(bold)); }
Variant RichTextBox::SelItalic() const { return common(&CharFormat::italic, asItIs); }
void RichTextBox::SetSelItalic(const Variant& italic) { format(&CharFormat::italic, CBool(italic)); }
Variant RichTextBox::SelUnderline() const { return common(&CharFormat::underline, asItIs); }
void RichTextBox::SetSelUnderline(const Variant& underline) {
  format(&CharFormat::underline, CBool(underline));
}
Variant RichTextBox::SelStrikeThru() const { return common(&CharFormat::strikeThrough, asItIs); }
void RichTextBox::SetSelStrikeThru(const Variant& strikeThrough) {
  format(&CharFormat::strikeThrough, CBool(strikeThrough));
}

Variant RichTextBox::SelCharOffset() const {
  const double scale = Parent()->pixelsPerUnit().y;
  return common(&CharFormat::offset, [scale](std::int32_t twips) { return unitsOf(twips, scale); });
}

void RichTextBox::SetSelCharOffset(const Variant& offset) {
  const auto twips = twipsOf(offset, Parent()->pixelsPerUnit().y);
  if (!twips) refuse();
  constexpr double kStep = richtext::kTwipsPerHalfPoint;
  format(&CharFormat::offset, static_cast<std::int32_t>(std::round(*twips / kStep) * kStep));
}

Variant RichTextBox::SelColor() const {
  return common(&CharFormat::color, [this](const std::optional<Color>& color) {
    return static_cast<std::int32_t>(color.value_or(ForeColor()));
  });
}

void RichTextBox::SetSelColor(const Variant& color) {
  const auto wanted = static_cast<Color>(CLng(color));
  const Color number = wanted & 0x7FFFFFFF;
  if (number > (isSystemColor(wanted) ? 0xFFU : 0xFFFFFFU)) refuse();
  std::optional<Color> plain;
  if (wanted != kWindowText) plain = platform().resolve(wanted);
  format(&CharFormat::color, plain);
}

Variant RichTextBox::SelAlignment() const {
  return common(&ParagraphFormat::alignment,
                [](richtext::Alignment alignment) { return static_cast<std::int32_t>(alignment); });
}

void RichTextBox::SetSelAlignment(const Variant& alignment) {
  const std::int32_t wanted = CLng(alignment);
  if (wanted < kAlignLeft || wanted > kAlignCentre) refuse();
  format(&ParagraphFormat::alignment, static_cast<richtext::Alignment>(wanted));
}

Variant RichTextBox::SelIndent() const { return commonIndent(&ParagraphFormat::leftIndent); }
void RichTextBox::SetSelIndent(const Variant& indent) { formatIndent(&ParagraphFormat::leftIndent, indent); }
Variant RichTextBox::SelHangingIndent() const { return commonIndent(&ParagraphFormat::hangingIndent); }
void RichTextBox::SetSelHangingIndent(const Variant& indent) {
  formatIndent(&ParagraphFormat::hangingIndent, indent);
}
Variant RichTextBox::SelRightIndent() const { return commonIndent(&ParagraphFormat::rightIndent); }
void RichTextBox::SetSelRightIndent(const Variant& indent) {
  formatIndent(&ParagraphFormat::rightIndent, indent);
}

Variant RichTextBox::commonIndent(std::int32_t ParagraphFormat::*field) const {
  const double scale = Parent()->pixelsPerUnit().x;
  return common(field, [scale](std::int32_t twips) { return unitsOf(twips, scale); });
}

// The lines behind the first one may start left of it, the first one not left of the edge.
void RichTextBox::formatIndent(std::int32_t ParagraphFormat::*field, const Variant& indent) {
  const auto twips = twipsOf(indent, Parent()->pixelsPerUnit().x);
  const bool hanging = field == &ParagraphFormat::hangingIndent;
  if (!twips || (*twips < 0 && !hanging)) refuse();
  format(field, *twips);
}

Variant RichTextBox::SelBullet() const { return common(&ParagraphFormat::bullet, asItIs); }
void RichTextBox::SetSelBullet(const Variant& bullet) { format(&ParagraphFormat::bullet, CBool(bullet)); }

}  // namespace qrn::host
