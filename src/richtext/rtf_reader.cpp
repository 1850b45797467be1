#include "richtext/rtf_reader.h"

#include <utility>

#include "base/text.h"
#include "richtext/code_page.h"
#include "richtext/rtf_names.h"
#include "richtext/rtf_state.h"
#include "richtext/rtf_tables.h"
#include "richtext/rtf_tokens.h"

namespace qrn::richtext {
namespace {

using Kind = RtfToken::Kind;

constexpr char32_t kNoCharacter = 0xFFFD;

bool isUnicode(const RtfToken& token) { return token.kind == Kind::Word && token.word == "u"; }

/// Goes through the tokens once; groups are kept on a stack of its own.
class RtfReader {
 public:
  explicit RtfReader(std::string_view rtf) : tokens_(rtf) {}

  Document read();

 private:
  // Groups deeper than this share the state of the one they lie in.
  static constexpr std::size_t kDeepest = 1 << 16;

  void openGroup();
  void closeGroup();
  void take(const RtfToken& token);
  void takeWord(const RtfToken& token);
  void takeText(const RtfToken& token);
  void takeSymbol(unsigned char symbol);
  void takeCharacter(const RtfToken& token);
  void takeByte(unsigned char byte);
  void takeUnicode(std::int32_t number);
  void putLoneHalf();
  void put(char32_t c);
  void endParagraph();
  const CharFormat& format();
  std::vector<Paragraph> finished();

  RtfTokens tokens_;
  RtfState state_;
  std::vector<RtfState> outer_;
  std::size_t depth_ = 0;
  RtfFonts fonts_;
  RtfColors colors_;
  std::int32_t defaultFont_ = 0;
  int codePage_ = kWesternPage;

  bool starred_ = false;              // the next word names a destination that may be unknown
  bool bulletFound_ = false;          // in the group that describes one
  std::int32_t fallback_ = 0;         // tokens to leave out behind a \u
  char32_t highSurrogate_ = 0;        // of a pair whose other half has to come next
  std::optional<CharFormat> format_;  // of state_, while it is known

  Paragraph paragraph_;
  std::vector<Paragraph> paragraphs_;
};

Document RtfReader::read() {
  while (true) {
    const RtfToken token = tokens_.next();
    if (token.kind == Kind::End) break;
    const bool group = token.kind == Kind::GroupStart || token.kind == Kind::GroupEnd;
    if (fallback_ > 0 && !group) {
      --fallback_;
      continue;
    }
    if (!isUnicode(token)) putLoneHalf();
    // The last paragraph takes its format from the state before the document's own group is closed.
    if (token.kind == Kind::GroupEnd && depth_ == 1) break;
    if (token.kind == Kind::GroupStart)
      openGroup();
    else if (token.kind == Kind::GroupEnd)
      closeGroup();
    else if (state_.destination != Destination::Skipped)
      take(token);
  }
  return Document(finished());
}

void RtfReader::openGroup() {
  fallback_ = 0;
  starred_ = false;
  if (++depth_ <= kDeepest) outer_.push_back(state_);
}

void RtfReader::closeGroup() {
  fallback_ = 0;
  starred_ = false;
  if (depth_-- > kDeepest) return;
  const bool wasBullet = state_.destination == Destination::Bullet;
  state_ = std::move(outer_.back());
  outer_.pop_back();
  format_.reset();
  // The group as a whole formats the paragraph that it stands in.
  if (wasBullet && state_.destination == Destination::Text && std::exchange(bulletFound_, false))
    state_.paragraph.bullet = true;
}

void RtfReader::take(const RtfToken& token) {
  if (token.kind != Kind::Word) starred_ = false;
  switch (token.kind) {
    case Kind::Word: return takeWord(token);
    case Kind::Symbol: return takeSymbol(token.byte);
    case Kind::Hex: return takeByte(token.byte);
    case Kind::Character: return takeCharacter(token);
    default: return;
  }
}

void RtfReader::takeWord(const RtfToken& token) {
  const auto destination = destinationOf(token.word);
  if (std::exchange(starred_, false) || destination) {
    state_.destination = destination.value_or(Destination::Skipped);
    return;
  }
  const std::int32_t number = token.number.value_or(0);
  if (isUnicode(token)) return takeUnicode(number);
  switch (state_.destination) {
    case Destination::Fonts: return fonts_.word(token.word, number);
    case Destination::Colors: return colors_.word(token.word, number);
    case Destination::Bullet: bulletFound_ |= token.word == "pnlvlblt"; return;
    case Destination::Text: return takeText(token);
    case Destination::Skipped: return;
  }
}

void RtfReader::takeText(const RtfToken& token) {
  if (const char32_t named = characterNamed(token.word); named != 0) return put(named);
  if (endsParagraph(token.word)) return endParagraph();
  if (const int page = codePageNamed(token.word); page != 0) codePage_ = page;
  // The number 0 stands for the page of whatever system the text is read on.
  if (token.word == "ansicpg") codePage_ = token.number.value_or(0) != 0 ? *token.number : kWesternPage;
  if (token.word == "deff") defaultFont_ = token.number.value_or(0);
  state_.apply(token.word, token.number);
  format_.reset();
}

void RtfReader::takeSymbol(unsigned char symbol) {
  starred_ = symbol == '*';
  switch (symbol) {
    case '\\':
    case '{':
    case '}': return put(symbol);
    case '\t': return put(U'\t');
    case '~': return put(0xA0);
    case '_': return put(0x2011);
    case '\r':
    case '\n':
      if (state_.destination == Destination::Text) endParagraph();
      return;
    default: return;
  }
}

// A semicolon ends an entry of a table, but not one that is given by its number.
void RtfReader::takeCharacter(const RtfToken& token) {
  const bool ends = token.character == U';';
  if (ends && state_.destination == Destination::Fonts) return fonts_.endEntry();
  if (ends && state_.destination == Destination::Colors) return colors_.endEntry();
  token.broken ? takeByte(token.byte) : put(token.character);
}

void RtfReader::takeByte(unsigned char byte) {
  const bool table = state_.destination == Destination::Fonts;
  const std::int32_t font = state_.characters.font == kDefaultFont ? defaultFont_ : state_.characters.font;
  put(characterOf(byte, fonts_.codePage(table ? fonts_.current() : font, codePage_)));
}

// The number is one of 16 bits, mostly with a sign; characters beyond come as two halves, or all the same as
// one number.
void RtfReader::takeUnicode(std::int32_t number) {
  fallback_ = state_.unicodeFallback;
  const auto c = static_cast<char32_t>(number < 0 && number >= -0x8000 ? number + 0x10000 : number);
  const bool low = c >= 0xDC00 && c < 0xE000;
  if (low && highSurrogate_ != 0)
    return put(0x10000 + ((std::exchange(highSurrogate_, 0) - 0xD800) << 10) + (c - 0xDC00));
  putLoneHalf();
  if (c >= 0xD800 && c < 0xDC00)
    highSurrogate_ = c;
  else
    put(c <= 0x10FFFF && !low ? c : kNoCharacter);
}

void RtfReader::putLoneHalf() {
  if (std::exchange(highSurrogate_, 0) != 0) put(kNoCharacter);
}

void RtfReader::put(char32_t c) {
  switch (state_.destination) {
    case Destination::Fonts: return fonts_.character(c);
    case Destination::Text: break;
    default: return;
  }
  if (state_.characters.hidden || (c < 0x20 && c != U'\t' && c != kLineBreak)) return;
  std::string utf8;
  text::append(utf8, c);
  paragraph_.append(utf8, format());
}

void RtfReader::endParagraph() {
  paragraph_.format = state_.paragraphFormat();
  paragraph_.end = format();
  paragraphs_.push_back(std::exchange(paragraph_, {}));
}

const CharFormat& RtfReader::format() {
  if (!format_) {
    const RtfState::Characters& now = state_.characters;
    format_ = {.font = fonts_.name(now.font == kDefaultFont ? defaultFont_ : now.font),
               .halfPoints = state_.halfPoints(),
               .offset = state_.offset(),
               .color = colors_.color(now.color),
               .bold = now.bold,
               .italic = now.italic,
               .underline = now.underline,
               .strikeThrough = now.strikeThrough};
  }
  return *format_;
}

std::vector<Paragraph> RtfReader::finished() {
  if (paragraphs_.empty() || !paragraph_.runs.empty()) endParagraph();
  return std::move(paragraphs_);
}

}  // namespace

bool isRtf(std::string_view text) { return text.starts_with("{\\rtf"); }

std::optional<Document> readRtf(std::string_view text) {
  if (!isRtf(text)) return std::nullopt;
  return RtfReader(text).read();
}

}  // namespace qrn::richtext
