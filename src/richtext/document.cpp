#include "richtext/document.h"

#include <algorithm>

#include "base/text.h"

namespace qrn::richtext {
namespace {

constexpr std::size_t kEnd = std::string_view::npos;
constexpr std::size_t kEndLength = kParagraphEnd.size();

std::size_t lengthOf(const Paragraph& paragraph) {
  std::size_t length = 0;
  for (const Run& run : paragraph.runs) length += text::length(run.text);
  return length;
}

void append(Paragraph& to, const Paragraph& from) {
  for (const Run& run : from.runs) to.append(run.text, run.format);
}

// `count` code points of a paragraph from an offset, with its format and its end.
Paragraph slice(const Paragraph& paragraph, std::size_t from, std::size_t count = kEnd) {
  Paragraph result{paragraph.format, {}, paragraph.end};
  for (const Run& run : paragraph.runs) {
    const std::size_t length = text::length(run.text), skipped = std::min(from, length);
    result.append(text::slice(run.text, skipped, count), run.format);
    from -= skipped;
    if (count != kEnd) count -= std::min(count, length - skipped);
  }
  return result;
}

bool isKept(char32_t c) { return c >= 0x20 || c == U'\t' || c == kLineBreak; }

}  // namespace

void Paragraph::append(std::string_view text, const CharFormat& of) {
  if (text.empty()) return;
  if (!runs.empty() && runs.back().format == of)
    runs.back().text += text;
  else
    runs.push_back({std::string(text), of});
}

Document::Document(std::vector<Paragraph> paragraphs) : paragraphs_(std::move(paragraphs)) {
  if (paragraphs_.empty()) paragraphs_.emplace_back();
  for (Paragraph& paragraph : paragraphs_) paragraph = slice(paragraph, 0);
}

Document Document::plain(std::string_view text, const CharFormat& format, const ParagraphFormat& paragraph) {
  Document result;
  const Paragraph fresh{paragraph, {}, format};
  result.paragraphs_ = {fresh};
  std::string line;
  const auto endLine = [&] { result.paragraphs_.back().append(std::exchange(line, {}), format); };
  for (std::size_t at = 0; at < text.size();) {
    const char32_t c = text::next(text, at);
    if (isKept(c)) text::append(line, c);
    if (c != U'\r' && c != U'\n') continue;
    if (c == U'\r' && at < text.size() && text[at] == '\n') ++at;
    endLine();
    result.paragraphs_.push_back(fresh);
  }
  endLine();
  return result;
}

std::size_t Document::length() const {
  std::size_t length = kEndLength * (paragraphs_.size() - 1);
  for (const Paragraph& paragraph : paragraphs_) length += lengthOf(paragraph);
  return length;
}

std::string Document::text() const {
  std::string text;
  for (const Paragraph& paragraph : paragraphs_) {
    if (&paragraph != &paragraphs_.front()) text += kParagraphEnd;
    for (const Run& run : paragraph.runs) text += run.text;
  }
  return text;
}

Document::Place Document::place(std::size_t position) const {
  for (std::size_t i = 0;; ++i) {
    const std::size_t length = lengthOf(paragraphs_[i]);
    if (position < length + kEndLength || i + 1 == paragraphs_.size()) return {i, std::min(position, length)};
    position -= length + kEndLength;
  }
}

std::pair<Document::Place, Document::Place> Document::places(Range range) const {
  const std::size_t end = range.start + std::min(range.length, kEnd - range.start);
  return {place(range.start), place(end)};
}

Document::Places Document::touched(Range range) const {
  const auto [from, to] = places(range);
  return {from.paragraph, to.paragraph};
}

std::size_t Document::settled(std::size_t position) const {
  const Place at = place(position);
  std::size_t before = 0;
  for (std::size_t i = 0; i < at.paragraph; ++i) before += lengthOf(paragraphs_[i]) + kEndLength;
  return before + at.offset;
}

Document Document::part(Range range) const {
  const auto [from, to] = places(range);
  Document result;
  result.paragraphs_.clear();
  for (std::size_t i = from.paragraph; i <= to.paragraph; ++i) {
    const std::size_t start = i == from.paragraph ? from.offset : 0;
    const std::size_t end = i == to.paragraph ? to.offset : kEnd;
    result.paragraphs_.push_back(slice(paragraphs_[i], start, end == kEnd ? kEnd : end - start));
  }
  return result;
}

const CharFormat& Document::formatAt(std::size_t position) const {
  auto [i, offset] = place(position);
  const Paragraph& paragraph = paragraphs_[i];
  for (const Run& run : paragraph.runs) {
    const std::size_t length = text::length(run.text);
    if (offset <= length) return run.format;
    offset -= length;
  }
  return paragraph.end;
}

const ParagraphFormat& Document::paragraphFormatAt(std::size_t position) const {
  return paragraphs_[place(position).paragraph].format;
}

void Document::visit(Range range, const std::function<void(const CharFormat&)>& look) const {
  const auto [from, to] = places(range);
  for (std::size_t i = from.paragraph; i <= to.paragraph; ++i) {
    const std::size_t start = i == from.paragraph ? from.offset : 0;
    const std::size_t end = i == to.paragraph ? to.offset : kEnd;
    std::size_t at = 0;
    for (const Run& run : paragraphs_[i].runs) {
      const std::size_t behind = at + text::length(run.text);
      if (at < end && behind > start) look(run.format);
      at = behind;
    }
  }
}

void Document::change(Range range, const std::function<void(CharFormat&)>& action) {
  const auto [from, to] = places(range);
  for (std::size_t i = from.paragraph; i <= to.paragraph; ++i) {
    Paragraph& paragraph = paragraphs_[i];
    const std::size_t start = i == from.paragraph ? from.offset : 0;
    const std::size_t end = i == to.paragraph ? to.offset : lengthOf(paragraph);
    Paragraph changed = slice(paragraph, 0, start);
    for (const Run& run : slice(paragraph, start, end - start).runs) {
      CharFormat format = run.format;
      action(format);
      changed.append(run.text, format);
    }
    append(changed, slice(paragraph, end));
    const bool untilEnd = i + 1 == paragraphs_.size() && range.length > 0 && end == lengthOf(paragraph);
    if (i < to.paragraph || untilEnd) action(changed.end);
    paragraph = std::move(changed);
  }
}

void Document::replace(Range range, const Document& by) {
  const auto [from, to] = places(range);
  const Paragraph head = slice(paragraphs_[from.paragraph], 0, from.offset);
  const Paragraph tail = slice(paragraphs_[to.paragraph], to.offset);
  const bool continues = !head.runs.empty(), continued = !tail.runs.empty();
  std::vector<Paragraph> joined = by.paragraphs_;
  const bool several = joined.size() > 1, nothing = !several && joined.front().runs.empty();

  Paragraph& first = joined.front();
  if (continues || (nothing && !continued)) first.format = head.format;
  first.runs.insert(first.runs.begin(), head.runs.begin(), head.runs.end());
  Paragraph& last = joined.back();
  if (continued && (several || !continues)) last.format = tail.format;
  if (continued || nothing || (continues && !several)) last.end = tail.end;
  last.runs.insert(last.runs.end(), tail.runs.begin(), tail.runs.end());
  // Joins the runs where the pieces meet.
  first = slice(first, 0);
  last = slice(last, 0);

  const auto at = paragraphs_.begin() + static_cast<std::ptrdiff_t>(from.paragraph);
  const auto behind = paragraphs_.begin() + static_cast<std::ptrdiff_t>(to.paragraph) + 1;
  const auto rest = paragraphs_.erase(at, behind);
  paragraphs_.insert(rest, std::make_move_iterator(joined.begin()), std::make_move_iterator(joined.end()));
}

}  // namespace qrn::richtext
