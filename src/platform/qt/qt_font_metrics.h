#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QRawFont>
#include <QRectF>
#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

#include "host/font.h"

namespace qrn::qt {

/// A text's glyphs, and where they leave ink, both from the beginning of the base line.
struct QtGlyphs {
  QGlyphRun run;
  QRectF ink;
};

/// Widths from a table of letters and pairs of letters, each shaped once; what the table can't know is shaped
/// whole, and short texts are kept then. The height is the one that the widgets of Qt work with.
class QtFontMetrics final : public host::FontMetrics {
 public:
  explicit QtFontMetrics(const host::Font& font);

  double advance(std::string_view text) override;
  double height() const override { return height_; }
  double ascent() const override { return ascent_; }

  const QFont& font() const { return font_; }
  /// How many texts were shaped whole, and how many of them are kept.
  int textsShaped() const { return textsShaped_; }
  std::size_t textsKept() const { return widths_.size(); }

  /// The glyphs of a text that the tables know, at the places that Qt would find after a while; null for what
  /// it has to shape itself. Valid until the next call.
  const QtGlyphs* glyphs(std::string_view text);

 private:
  // Letters up to U+00FF; beyond them pairs would fill too large a table.
  static constexpr std::size_t kLetters = 256;
  static constexpr float kUnknown = -1e6F;

  double shaped(std::string_view text);
  double letter(unsigned char c);
  double kerning(unsigned char first, unsigned char second);
  double learned(std::string_view text);
  void keep(unsigned char first, unsigned char second, double added);
  struct Glyph {
    quint32 index;
    float left, top, right, bottom;  // of the ink, from where the glyph stands
  };
  const Glyph& glyph(unsigned char c);

  struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
  };

  QFont font_;
  QFontMetricsF shaper_;
  std::unordered_map<std::string, double, TextHash, std::equal_to<>> widths_;  // of texts shaped whole
  int textsShaped_ = 0;
  double height_;
  double ascent_;
  std::array<float, kLetters> letters_;
  std::vector<float> kernings_;  // kLetters squared, by first and second

  // What each letter from the blank to the end of ASCII adds behind another one or at the beginning, in the
  // 64ths of a pixel that Qt counts in; anything else is unknown, and makes a sum too large.
  static constexpr std::size_t kNotPlain = 0, kFirstPlain = 0x20, kCodes = 0x61;
  static constexpr int kSteps = 64;
  static constexpr std::int32_t kUnknownStep = 1 << 30;
  static std::size_t plainCode(unsigned char c) {
    const std::size_t code = c - kFirstPlain + 1;
    return code < kCodes ? code : kNotPlain;
  }
  std::vector<std::int32_t> added_;  // kCodes squared, by the code before and the letter's own

  static constexpr quint32 kNoGlyph = 0, kNotAsked = 0xFFFFFFFF;
  QRawFont raw_;
  bool inGlyphs_;  // lines under and through it aren't glyphs
  std::array<Glyph, kLetters> glyphs_;
  // Of the text that was asked for last.
  QtGlyphs asked_;
  std::vector<quint32> indexes_;
  std::vector<QPointF> places_;
};

/// The font of Qt for what a caller asked for: points are those of 96 to the inch, whatever the screen says.
QFont toQFont(const host::Font& font);

}  // namespace qrn::qt
