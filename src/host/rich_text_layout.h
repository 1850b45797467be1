#pragma once

#include <functional>
#include <span>
#include <string_view>
#include <vector>

#include "host/font.h"
#include "richtext/document.h"

namespace qrn::host {

inline constexpr double kTwipsPerPixel = 15;

/// The lines that a document makes in a given width, in logical pixels from the upper left corner of its
/// text. They point into the document, which has to stay as it is.
///
/// A line ends between words; a word that is wider than a whole line is broken where the line ends. A
/// paragraph with a bullet starts all its lines behind the bullet at least. Tabs go to the next stop, which
/// are half an inch apart where the paragraph sets none.
class RichTextLayout {
 public:
  struct Piece {
    double left = 0;
    double top = 0;
    std::string_view text;
    const richtext::CharFormat* format = nullptr;
  };
  struct Line {
    double top = 0;
    double height = 0;
    std::vector<Piece> pieces;
  };
  using MetricsOf = std::function<FontMetrics&(const richtext::CharFormat&)>;

  RichTextLayout(const richtext::Document& document, double width, const MetricsOf& metricsOf);

  double width() const { return width_; }
  double height() const { return lines_.empty() ? 0 : lines_.back().top + lines_.back().height; }
  const std::vector<Line>& lines() const { return lines_; }
  /// Those of which something can be seen between two heights.
  std::span<const Line> linesBetween(double top, double bottom) const;

 private:
  double width_;
  std::vector<Line> lines_;
};

}  // namespace qrn::host
