#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <array>
#include <vector>

#include "host/font.h"

namespace qrn::qt {

/// Widths from a table of letters and pairs of letters, each shaped once; what the table can't know is shaped
/// whole. The height is the one that the widgets of Qt work with.
class QtFontMetrics final : public host::FontMetrics {
 public:
  explicit QtFontMetrics(const host::Font& font);

  double advance(std::string_view text) override;
  double height() const override { return height_; }
  double ascent() const override { return ascent_; }

  const QFont& font() const { return font_; }

 private:
  // Letters up to U+00FF; beyond them pairs would fill too large a table.
  static constexpr std::size_t kLetters = 256;
  static constexpr float kUnknown = -1e6F;

  double shaped(std::string_view text) const;
  double letter(unsigned char c);
  double kerning(unsigned char first, unsigned char second);

  QFont font_;
  QFontMetricsF shaper_;
  double height_;
  double ascent_;
  std::array<float, kLetters> letters_;
  std::vector<float> kernings_;  // kLetters squared, by first and second
};

/// The font of Qt for what a caller asked for: points are those of 96 to the inch, whatever the screen says.
QFont toQFont(const host::Font& font);

}  // namespace qrn::qt
