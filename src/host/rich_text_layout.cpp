#include "host/rich_text_layout.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"
#include "host/alignment.h"

namespace qrn::host {
namespace {

using richtext::CharFormat;
using richtext::Paragraph;
using Piece = RichTextLayout::Piece;
using Line = RichTextLayout::Line;

constexpr std::string_view kBullet = "•", kBetween = " ";
constexpr double kUsualTabStops = 720 / kTwipsPerPixel;
constexpr double kNoise = 1e-6;  // what sums of widths leave

/// Fills lines with one paragraph after the other.
class LineFiller {
 public:
  LineFiller(std::vector<Line>& lines, double width, const RichTextLayout::MetricsOf& metricsOf)
      : lines_(lines), width_(width), metricsOf_(metricsOf) {}

  void add(const Paragraph& paragraph);

 private:
  struct Measured {
    Piece piece;
    FontMetrics* metrics;
    double width;
  };

  void use(const CharFormat& format);
  void addText(std::string_view text);
  void addTab();
  void startParagraph(const Paragraph& paragraph);
  void startLine(double left);
  void breakLine();
  void endLine();
  void endWord();
  void breakWord();
  void place(const Piece& piece, FontMetrics& metrics, double width);
  void makeRoom(const FontMetrics& metrics, double rise);
  double nextTabStop() const;

  std::vector<Line>& lines_;
  const double width_;
  const RichTextLayout::MetricsOf& metricsOf_;

  const Paragraph* paragraph_ = nullptr;
  const CharFormat* format_ = nullptr;
  FontMetrics* metrics_ = nullptr;
  double indent_ = 0;  // of the lines behind the first one
  double right_ = 0;   // where lines end
  double start_ = 0;   // where the text of this line starts
  double x_ = 0;
  double inked_ = 0;  // the end of the last word in this line
  double ascent_ = 0;
  double descent_ = 0;
  Line line_;
  std::vector<Measured> word_;  // not placed yet
  double wordWidth_ = 0;
};

double riseOf(const CharFormat& format) { return format.offset / kTwipsPerPixel; }

void LineFiller::add(const Paragraph& paragraph) {
  startParagraph(paragraph);
  for (const richtext::Run& run : paragraph.runs) {
    use(run.format);
    addText(run.text);
  }
  endWord();
  if (paragraph.runs.empty()) use(paragraph.end);
  endLine();
}

void LineFiller::use(const CharFormat& format) {
  format_ = &format;
  metrics_ = &metricsOf_(format);
}

void LineFiller::startParagraph(const Paragraph& paragraph) {
  paragraph_ = &paragraph;
  const richtext::ParagraphFormat& format = paragraph.format;
  const double first = std::max(0.0, format.leftIndent / kTwipsPerPixel);
  indent_ = std::max(0.0, (format.leftIndent + format.hangingIndent) / kTwipsPerPixel);
  right_ = width_ - std::max(0.0, format.rightIndent / kTwipsPerPixel);
  startLine(first);
  if (!format.bullet) return;
  use(paragraph.runs.empty() ? paragraph.end : paragraph.runs.front().format);
  place({.text = kBullet, .format = format_}, *metrics_, metrics_->advance(kBullet));
  indent_ = std::max(indent_, x_ + metrics_->advance(kBetween));
  start_ = x_ = inked_ = indent_;
}

void LineFiller::startLine(double left) {
  start_ = x_ = inked_ = left;
  ascent_ = descent_ = 0;
  line_ = {};
}

void LineFiller::addText(std::string_view text) {
  while (!text.empty()) {
    const std::size_t length = std::min(text.find_first_of(" \t\v"), text.size());
    if (length > 0) {
      const std::string_view part = text.substr(0, length);
      word_.push_back({{.text = part, .format = format_}, metrics_, metrics_->advance(part)});
      wordWidth_ += word_.back().width;
      text.remove_prefix(length);
      continue;
    }
    endWord();
    if (text.front() == '\t') addTab();
    if (text.front() == '\v') breakLine();
    // Blanks at the end of a line need no room.
    if (text.front() == ' ') {
      const double inked = inked_;
      place({.text = text.substr(0, 1), .format = format_}, *metrics_, metrics_->advance(" "));
      inked_ = inked;
    }
    text.remove_prefix(1);
  }
}

double LineFiller::nextTabStop() const {
  for (const std::int32_t twips : paragraph_->format.tabStops) {
    if (const double stop = twips / kTwipsPerPixel; stop > x_ + kNoise) return stop;
  }
  // Where the other lines of the paragraph start is a stop as well.
  if (indent_ > x_ + kNoise) return indent_;
  return (std::floor((x_ + kNoise) / kUsualTabStops) + 1) * kUsualTabStops;
}

void LineFiller::addTab() {
  makeRoom(*metrics_, riseOf(*format_));
  if (nextTabStop() > right_ && x_ > start_) breakLine();
  x_ = std::max(x_, std::min(nextTabStop(), right_));
}

void LineFiller::endWord() {
  if (word_.empty()) return;
  if (x_ + wordWidth_ > right_ + kNoise && x_ > start_) breakLine();
  if (x_ + wordWidth_ > right_ + kNoise) {
    breakWord();
  } else {
    for (const Measured& part : word_) place(part.piece, *part.metrics, part.width);
  }
  word_.clear();
  wordWidth_ = 0;
}

void LineFiller::breakWord() {
  for (const Measured& part : word_) {
    const std::string_view text = part.piece.text;
    for (std::size_t at = 0; at < text.size();) {
      const std::size_t from = at;
      text::next(text, at);
      const std::string_view letter = text.substr(from, at - from);
      const double width = part.metrics->advance(letter);
      if (x_ + width > right_ + kNoise && x_ > start_) breakLine();
      place({.text = letter, .format = part.piece.format}, *part.metrics, width);
    }
  }
}

void LineFiller::makeRoom(const FontMetrics& metrics, double rise) {
  ascent_ = std::max(ascent_, metrics.ascent() + rise);
  descent_ = std::max(descent_, metrics.height() - metrics.ascent() - rise);
}

// What goes on behind the last piece in the same run becomes a part of it.
void LineFiller::place(const Piece& piece, FontMetrics& metrics, double width) {
  const double rise = riseOf(*piece.format);
  makeRoom(metrics, rise);
  Piece* last = line_.pieces.empty() ? nullptr : &line_.pieces.back();
  if (last && last->format == piece.format && last->text.data() + last->text.size() == piece.text.data()) {
    last->text = {last->text.data(), last->text.size() + piece.text.size()};
  } else {
    line_.pieces.push_back({x_, -metrics.ascent() - rise, piece.text, piece.format});
  }
  x_ += width;
  inked_ = x_;
}

void LineFiller::breakLine() {
  endLine();
  startLine(indent_);
}

void LineFiller::endLine() {
  if (ascent_ + descent_ == 0) makeRoom(*metrics_, 0);
  line_.top = lines_.empty() ? 0 : lines_.back().top + lines_.back().height;
  line_.height = ascent_ + descent_;
  const auto alignment = static_cast<std::int32_t>(paragraph_->format.alignment);
  const double shift = std::max(0.0, alignedStart(alignment, right_ - start_, inked_ - start_));
  for (Piece& piece : line_.pieces) {
    piece.left += shift;
    piece.top += line_.top + ascent_;
  }
  lines_.push_back(std::move(line_));
}

}  // namespace

RichTextLayout::RichTextLayout(const richtext::Document& document, double width, const MetricsOf& metricsOf)
    : width_(width) {
  LineFiller filler(lines_, width, metricsOf);
  for (const Paragraph& paragraph : document.paragraphs()) filler.add(paragraph);
}

std::span<const Line> RichTextLayout::linesBetween(double top, double bottom) const {
  const auto first = std::partition_point(lines_.begin(), lines_.end(),
                                          [&](const Line& line) { return line.top + line.height <= top; });
  const auto last =
      std::partition_point(first, lines_.end(), [&](const Line& line) { return line.top < bottom; });
  return {first, last};
}

}  // namespace qrn::host
