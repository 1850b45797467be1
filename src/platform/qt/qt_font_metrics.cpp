#include "platform/qt/qt_font_metrics.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
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

QtFontMetrics::QtFontMetrics(const host::Font& font) : font_(toQFont(font)), shaper_(font_) {
  const QFontMetrics whole(font_);
  height_ = whole.height();
  ascent_ = whole.ascent();
  letters_.fill(kUnknown);
  glyphs_.fill(kNotAsked);
  raw_ = QRawFont::fromFont(font_);
  run_.setRawFont(raw_);
}

double QtFontMetrics::shaped(std::string_view text) const {
  return shaper_.horizontalAdvance(toQString(text));
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
  if (const std::optional<double> plain = plainAdvance(text)) return *plain;
  double width = 0;
  char32_t before = 0;
  for (std::size_t at = 0; at < text.size();) {
    const char32_t c = text::next(text, at);
    if (c < 0x20 || c >= kLetters || mayJoin(before, c)) return shaped(text);
    if (before != 0) width += kerning(static_cast<unsigned char>(before), static_cast<unsigned char>(c));
    width += letter(static_cast<unsigned char>(c));
    before = c;
  }
  return width;
}

// Most texts are plain, and their few pairs lie close together.
std::optional<double> QtFontMetrics::plainAdvance(std::string_view text) {
  if (plainPairs_.empty()) plainPairs_.assign(kPlain * kPlain, kUnknown);
  double width = 0;
  unsigned char before = 0;
  for (const char c : text) {
    const auto code = static_cast<unsigned char>(c);
    if (code < kFirstPlain || code >= kFirstPlain + kPlain || mayJoin(before, code)) return std::nullopt;
    if (before == 0) {
      width = letter(code);
    } else {
      float& added = plainPairs_[(before - kFirstPlain) * kPlain + (code - kFirstPlain)];
      if (added == kUnknown) added = static_cast<float>(kerning(before, code) + letter(code));
      width += static_cast<double>(added);
    }
    before = code;
  }
  return width;
}

quint32 QtFontMetrics::glyph(unsigned char c) {
  quint32& kept = glyphs_[c];
  if (kept == kNotAsked) {
    const QList<quint32> found = raw_.glyphIndexesForString(QString(QChar(c)));
    kept = found.size() == 1 ? found.front() : kNoGlyph;
  }
  return kept;
}

const QGlyphRun* QtFontMetrics::glyphs(std::string_view text) {
  if (font_.underline() || font_.strikeOut() || !raw_.isValid()) return nullptr;
  QList<quint32> indexes;
  QList<QPointF> places;
  double x = 0;
  char32_t before = 0;
  for (std::size_t at = 0; at < text.size();) {
    const char32_t c = text::next(text, at);
    if (c < 0x20 || c >= kLetters || mayJoin(before, c)) return nullptr;
    const auto letterCode = static_cast<unsigned char>(c);
    const quint32 index = glyph(letterCode);
    if (index == kNoGlyph) return nullptr;
    if (before != 0) x += kerning(static_cast<unsigned char>(before), letterCode);
    indexes.append(index);
    places.append(QPointF(x, 0));
    x += letter(letterCode);
    before = c;
  }
  run_.setGlyphIndexes(indexes);
  run_.setPositions(places);
  return &run_;
}

void drawText(QPainter& painter, QPointF at, std::string_view text, QtFontMetrics& metrics) {
  // Between two scales Qt rounds the places of the letters in its own way.
  const double scale = painter.deviceTransform().m11();
  const QGlyphRun* const glyphs = scale == std::floor(scale) ? metrics.glyphs(text) : nullptr;
  if (glyphs) {
    painter.drawGlyphRun(at, *glyphs);
    return;
  }
  painter.setFont(metrics.font());
  painter.drawText(at, toQString(text));
}

}  // namespace qrn::qt
