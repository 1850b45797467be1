#include "platform/qt/qt_font_metrics.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <cmath>

#include "base/text.h"
#include "platform/qt/qt_text.h"

namespace qrn::qt {
namespace {

double screenDpi() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  return screen ? screen->logicalDotsPerInchY() : 96;
}

// Pairs that fonts join to one glyph; with a third letter they may become another one again.
bool mayJoin(char32_t first, char32_t second) {
  return first == 'f' && (second == 'f' || second == 'i' || second == 'l' || second == 'j');
}

}  // namespace

QFont toQFont(const host::Font& font) {
  QFont result = QGuiApplication::font();
  if (!font.family.empty()) result.setFamilies({toQString(font.family)});
  if (font.size > 0) result.setPointSizeF(font.size * 96 / screenDpi());
  result.setBold(font.bold);
  result.setItalic(font.italic);
  result.setUnderline(font.underline);
  result.setStrikeOut(font.strikethrough);
  return result;
}

QtFontMetrics::QtFontMetrics(const host::Font& font)
    : font_(toQFont(font)), shaper_(font_), added_(kCodes * kCodes, kUnknownStep) {
  const QFontMetrics whole(font_);
  height_ = whole.height();
  ascent_ = whole.ascent();
  letters_.fill(kUnknown);
  glyphs_.fill({kNotAsked, 0, 0, 0, 0});
  raw_ = QRawFont::fromFont(font_);
  asked_.run.setRawFont(raw_);
  inGlyphs_ = raw_.isValid() && !font_.underline() && !font_.strikeOut();
}

// A form has the same units and choices in many rows, and a single one with a pair that may be joined would
// take longer than all its other texts.
double QtFontMetrics::shaped(std::string_view text) {
  constexpr std::size_t kMostKept = 512, kLongest = 64;
  if (const auto known = widths_.find(text); known != widths_.end()) return known->second;
  ++textsShaped_;
  const double width = shaper_.horizontalAdvance(toQString(text));
  if (text.size() > kLongest) return width;
  if (widths_.size() >= kMostKept) widths_.clear();
  widths_.emplace(text, width);
  return width;
}

double QtFontMetrics::letter(unsigned char c) {
  float& width = letters_[c];
  if (width == kUnknown) width = static_cast<float>(shaper_.horizontalAdvance(QString(QChar(c))));
  return static_cast<double>(width);
}

double QtFontMetrics::kerning(unsigned char first, unsigned char second) {
  if (kernings_.empty()) kernings_.assign(kLetters * kLetters, kUnknown);
  float& kept = kernings_[first * kLetters + second];
  if (kept == kUnknown) {
    const QChar pair[] = {QChar(first), QChar(second)};
    kept = static_cast<float>(shaper_.horizontalAdvance(QString(pair, 2)) - letter(first) - letter(second));
  }
  return static_cast<double>(kept);
}

double QtFontMetrics::advance(std::string_view text) {
  std::int64_t width = 0;
  std::size_t before = kNotPlain;
  for (const char c : text) {
    const std::size_t code = plainCode(static_cast<unsigned char>(c));
    width += added_[before * kCodes + code];
    before = code;
  }
  // What is unknown outweighs all pairs that move together.
  return width < kUnknownStep / 2 ? static_cast<double>(width) / kSteps : learned(text);
}

// Letter by letter, so that plain texts like it will be in the table. Pairs that may be joined never are.
double QtFontMetrics::learned(std::string_view text) {
  double width = 0;
  char32_t before = 0;
  for (std::size_t at = 0; at < text.size();) {
    const char32_t c = text::next(text, at);
    if (c < 0x20 || c >= kLetters || mayJoin(before, c)) return shaped(text);
    const auto second = static_cast<unsigned char>(c), first = static_cast<unsigned char>(before);
    const double added = letter(second) + (before != 0 ? kerning(first, second) : 0);
    keep(first, second, added);
    width += added;
    before = c;
  }
  return width;
}

void QtFontMetrics::keep(unsigned char first, unsigned char second, double added) {
  const std::size_t before = plainCode(first), code = plainCode(second);
  const double steps = added * kSteps;
  const bool behindPlain = first == 0 || before != kNotPlain;
  if (code == kNotPlain || !behindPlain || steps != std::rint(steps)) return;
  added_[before * kCodes + code] = static_cast<std::int32_t>(steps);
}

const QtFontMetrics::Glyph& QtFontMetrics::glyph(unsigned char c) {
  Glyph& kept = glyphs_[c];
  if (kept.index != kNotAsked) return kept;
  const QList<quint32> found = raw_.glyphIndexesForString(QString(QChar(c)));
  kept.index = found.size() == 1 ? found.front() : kNoGlyph;
  const QRectF ink = raw_.boundingRect(kept.index);
  kept.left = static_cast<float>(ink.left());
  kept.top = static_cast<float>(ink.top());
  kept.right = static_cast<float>(ink.right());
  kept.bottom = static_cast<float>(ink.bottom());
  return kept;
}

const QtGlyphs* QtFontMetrics::glyphs(std::string_view text) {
  if (!inGlyphs_) return nullptr;
  indexes_.clear();
  places_.clear();
  constexpr double kNone = 1e6;
  double x = 0, left = kNone, right = -kNone;
  float top = 0, bottom = 0;
  char32_t before = 0;
  for (std::size_t at = 0; at < text.size();) {
    const char32_t c = text::next(text, at);
    if (c < 0x20 || c >= kLetters || mayJoin(before, c)) return nullptr;
    const auto letterCode = static_cast<unsigned char>(c);
    const Glyph& found = glyph(letterCode);
    if (found.index == kNoGlyph) return nullptr;
    if (before != 0) x += kerning(static_cast<unsigned char>(before), letterCode);
    indexes_.push_back(found.index);
    places_.emplace_back(x, 0);
    left = std::min(left, x + static_cast<double>(found.left));
    right = std::max(right, x + static_cast<double>(found.right));
    top = std::min(top, found.top);
    bottom = std::max(bottom, found.bottom);
    x += letter(letterCode);
    before = c;
  }
  asked_.run.setRawData(indexes_.data(), places_.data(), static_cast<int>(indexes_.size()));
  asked_.ink = text.empty() ? QRectF() : QRectF(QPointF(left, top), QPointF(right, bottom));
  return &asked_;
}

}  // namespace qrn::qt
