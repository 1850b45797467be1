#include "richtext/rtf_writer.h"

#include <unordered_map>

#include "base/text.h"

namespace qrn::richtext {
namespace {

/// Numbers for things in the order in which they come.
template <class T>
class Numbers {
 public:
  std::size_t of(const T& thing) {
    const auto [found, isNew] = numbers_.emplace(thing, things_.size());
    if (isNew) things_.push_back(thing);
    return found->second;
  }
  const std::vector<T>& things() const { return things_; }

 private:
  std::unordered_map<T, std::size_t> numbers_;
  std::vector<T> things_;
};

class RtfWriter {
 public:
  std::string written(const Document& document);

 private:
  void writeParagraph(const Paragraph& paragraph);
  void write(const ParagraphFormat& format);
  void write(const CharFormat& format);
  void writeText(std::string_view text);
  std::string fontTable() const;
  std::string colorTable() const;

  void word(std::string_view name) { (out_ += '\\') += name, pending_ = true; }
  void word(std::string_view name, std::int64_t number) { word(name), out_ += std::to_string(number); }
  void wordIf(bool changed, std::string_view name, std::int64_t number) {
    if (changed) word(name, number);
  }
  void toggleIf(bool changed, std::string_view name, bool on) {
    if (changed) on ? word(name) : word(name, 0);
  }

  Numbers<std::string> fonts_;
  Numbers<std::uint32_t> colors_;
  std::string out_;
  bool pending_ = false;  // a word that text must not run into
  CharFormat now_;
  ParagraphFormat paragraphNow_;
};

std::string escaped(std::string_view text) {
  std::string result;
  const auto unicode = [&](char32_t unit) {
    result += "\\u" + std::to_string(static_cast<std::int16_t>(static_cast<std::uint16_t>(unit))) + "?";
  };
  for (std::size_t at = 0; at < text.size();) {
    const char32_t c = text::next(text, at);
    if (c == U'\\' || c == U'{' || c == U'}') result += '\\';
    if (c == U'\t')
      result += "\\tab ";
    else if (c == kLineBreak)
      result += "\\line ";
    else if (c < 0x80)
      result += static_cast<char>(c);
    else if (c < 0x10000)
      unicode(c);
    else
      unicode(0xD800 + ((c - 0x10000) >> 10)), unicode(0xDC00 + ((c - 0x10000) & 0x3FF));
  }
  return result;
}

std::string RtfWriter::written(const Document& document) {
  // What a reader starts with; the first font is the usual one.
  const Paragraph& first = document.paragraphs().front();
  now_.font = (first.runs.empty() ? first.end : first.runs.front().format).font;
  fonts_.of(now_.font);
  for (const Paragraph& paragraph : document.paragraphs()) writeParagraph(paragraph);
  return "{\\rtf1\\ansi\\ansicpg1252\\deff0" + fontTable() + colorTable() + "\r\n" + out_ + "}";
}

void RtfWriter::writeParagraph(const Paragraph& paragraph) {
  write(paragraph.format);
  // For readers that don't know the description of a bullet.
  if (paragraph.format.bullet) out_ += "{\\pntext\\'b7\\tab}", pending_ = false;
  for (const Run& run : paragraph.runs) {
    write(run.format);
    writeText(run.text);
  }
  write(paragraph.end);
  word("par");
  out_ += "\r\n";
  pending_ = false;
}

void RtfWriter::write(const ParagraphFormat& format) {
  if (format == paragraphNow_) return;
  paragraphNow_ = format;
  word("pard");
  if (format.bullet) out_ += "{\\*\\pn\\pnlvlblt\\pnindent0{\\pntxtb\\'b7}}", pending_ = false;
  if (format.alignment == Alignment::Right) word("qr");
  if (format.alignment == Alignment::Centre) word("qc");
  wordIf(format.hangingIndent != 0, "fi", -format.hangingIndent);
  const std::int64_t left = std::int64_t{format.leftIndent} + format.hangingIndent;
  wordIf(left != 0, "li", left);
  wordIf(format.rightIndent != 0, "ri", format.rightIndent);
  for (const std::int32_t stop : format.tabStops) word("tx", stop);
}

void RtfWriter::write(const CharFormat& format) {
  wordIf(format.font != now_.font, "f", static_cast<std::int64_t>(fonts_.of(format.font)));
  wordIf(format.halfPoints != now_.halfPoints, "fs", format.halfPoints);
  wordIf(format.offset != now_.offset, format.offset < 0 ? "dn" : "up",
         std::abs(format.offset) / kTwipsPerHalfPoint);
  if (format.color != now_.color)
    word("cf", format.color ? static_cast<std::int64_t>(colors_.of(*format.color)) + 1 : 0);
  toggleIf(format.bold != now_.bold, "b", format.bold);
  toggleIf(format.italic != now_.italic, "i", format.italic);
  if (format.underline != now_.underline) word(format.underline ? "ul" : "ulnone");
  toggleIf(format.strikeThrough != now_.strikeThrough, "strike", format.strikeThrough);
  now_ = format;
}

void RtfWriter::writeText(std::string_view text) {
  if (pending_) out_ += ' ';
  pending_ = false;
  out_ += escaped(text);
}

std::string RtfWriter::fontTable() const {
  std::string table = "{\\fonttbl";
  for (std::size_t i = 0; i < fonts_.things().size(); ++i) {
    // The semicolon of a name would end its entry.
    const std::string name = text::replaced(escaped(fonts_.things()[i]), ";", "\\'3b");
    table += "{\\f" + std::to_string(i) + "\\fnil " + name + ";}";
  }
  return table + "}";
}

std::string RtfWriter::colorTable() const {
  if (colors_.things().empty()) return {};
  std::string table = "{\\colortbl ;";
  for (const std::uint32_t color : colors_.things()) {
    const auto part = [&](int shift) { return std::to_string(color >> shift & 0xFF); };
    table += "\\red" + part(0) + "\\green" + part(8) + "\\blue" + part(16) + ";";
  }
  return table + "}";
}

}  // namespace

std::string writeRtf(const Document& document) { return RtfWriter().written(document); }

}  // namespace qrn::richtext
