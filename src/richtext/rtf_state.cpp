#include "richtext/rtf_state.h"

#include <algorithm>
#include <unordered_map>

namespace qrn::richtext {
namespace {

using Number = std::optional<std::int32_t>;
using Characters = RtfState::Characters;
using Script = Characters::Script;

std::int32_t limited(std::int32_t twips) { return std::clamp(twips, -kMostTwips, kMostTwips); }
std::int32_t twips(Number number) { return limited(number.value_or(0)); }

// A word alone switches on, with the number 0 off.
template <bool Characters::*Field>
void toggle(RtfState& state, Number number) {
  state.characters.*Field = number.value_or(1) != 0;
}

void underlineNone(RtfState& state, Number) { state.characters.underline = false; }

void size(RtfState& state, Number number) {
  const std::int32_t halfPoints = number.value_or(0);
  state.characters.halfPoints =
      halfPoints > 0 ? std::min(halfPoints, kMostHalfPoints) : Characters().halfPoints;
}

template <int Sign>
void shift(RtfState& state, Number halfPoints) {
  constexpr std::int32_t kUsual = 6, kMost = kMostTwips / kTwipsPerHalfPoint;
  state.characters.offset =
      Sign * kTwipsPerHalfPoint * std::clamp(halfPoints.value_or(kUsual), -kMost, kMost);
}

template <Script To>
void script(RtfState& state, Number) {
  state.characters.script = To;
}

template <Alignment To>
void align(RtfState& state, Number) {
  state.paragraph.alignment = To;
}

void resetParagraph(RtfState& state, Number) {
  state.paragraph = {};
  state.indents = {};
}

void tabStop(RtfState& state, Number number) {
  auto& stops = state.paragraph.tabStops;
  const std::int32_t at = std::max(0, twips(number));
  const auto place = std::lower_bound(stops.begin(), stops.end(), at);
  if (stops.size() < kMostTabStops && (place == stops.end() || *place != at)) stops.insert(place, at);
}

using Action = void (*)(RtfState&, Number);

const std::unordered_map<std::string_view, Action>& actions() {
  static const std::unordered_map<std::string_view, Action> table = {
      {"plain", [](RtfState& state, Number) { state.characters = {}; }},
      {"f", [](RtfState& state, Number number) { state.characters.font = number.value_or(kDefaultFont); }},
      {"cf", [](RtfState& state, Number number) { state.characters.color = number.value_or(0); }},
      {"fs", size},
      {"b", toggle<&Characters::bold>},
      {"i", toggle<&Characters::italic>},
      {"strike", toggle<&Characters::strikeThrough>},
      {"striked", toggle<&Characters::strikeThrough>},
      {"v", toggle<&Characters::hidden>},
      {"ul", toggle<&Characters::underline>},
      {"uld", toggle<&Characters::underline>},
      {"uldash", toggle<&Characters::underline>},
      {"uldb", toggle<&Characters::underline>},
      {"ulth", toggle<&Characters::underline>},
      {"ulw", toggle<&Characters::underline>},
      {"ulwave", toggle<&Characters::underline>},
      {"ulnone", underlineNone},
      {"up", shift<1>},
      {"dn", shift<-1>},
      {"super", script<Script::Super>},
      {"sub", script<Script::Sub>},
      {"nosupersub", script<Script::None>},
      {"pard", resetParagraph},
      {"ql", align<Alignment::Left>},
      {"qj", align<Alignment::Left>},
      {"qr", align<Alignment::Right>},
      {"qc", align<Alignment::Centre>},
      {"li",
       [](RtfState& state, Number number) {
         state.indents.left = std::clamp(number.value_or(0), -2 * kMostTwips, 2 * kMostTwips);
       }},
      {"fi", [](RtfState& state, Number number) { state.indents.firstLine = twips(number); }},
      {"ri", [](RtfState& state, Number number) { state.paragraph.rightIndent = twips(number); }},
      {"tx", tabStop},
      {"uc", [](RtfState& state, Number number) { state.unicodeFallback = std::max(0, number.value_or(1)); }},
  };
  return table;
}

}  // namespace

// Two thirds as large, raised by a third of the size or lowered by a sixth.
std::int32_t RtfState::halfPoints() const {
  const bool full = characters.script == Script::None;
  return full ? characters.halfPoints : std::max(1, characters.halfPoints * 2 / 3);
}

std::int32_t RtfState::offset() const {
  switch (characters.script) {
    case Script::Super: return characters.halfPoints / 3 * kTwipsPerHalfPoint;
    case Script::Sub: return -(characters.halfPoints / 6) * kTwipsPerHalfPoint;
    default: return characters.offset;
  }
}

ParagraphFormat RtfState::paragraphFormat() const {
  ParagraphFormat result = paragraph;
  result.leftIndent = limited(indents.left + indents.firstLine);
  result.hangingIndent = limited(indents.left - result.leftIndent);
  return result;
}

void RtfState::apply(std::string_view word, std::optional<std::int32_t> number) {
  const auto found = actions().find(word);
  if (found != actions().end()) found->second(*this, number);
}

}  // namespace qrn::richtext
