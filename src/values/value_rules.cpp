#include "values/value_rules.h"

#include <algorithm>
#include <optional>

#include "base/text.h"
#include "runtime/conversions.h"
#include "runtime/errors.h"
#include "runtime/like.h"
#include "runtime/val.h"

namespace qrn {
namespace {

constexpr std::string_view kTo = "..";

bool charactersAllowed(std::string_view s, std::string_view charSet) {
  if (s.empty()) return true;  // whatever the list is like
  const LikePattern allowed("[" + std::string(charSet) + "]");
  for (std::size_t at = 0; at < s.size();) {
    const std::size_t start = at;
    text::next(s, at);
    if (!allowed.matches(s.substr(start, at - start))) return false;
  }
  return true;
}

struct Range {
  std::optional<std::string_view> lowest;
  std::optional<std::string_view> highest;
};

std::optional<Range> rangeOf(std::string_view token) {
  const auto to = token.find(kTo);
  if (to == std::string_view::npos) return std::nullopt;
  Range range;
  if (to > 0) range.lowest = token.substr(0, to);
  if (to + kTo.size() < token.size()) range.highest = token.substr(to + kTo.size());
  return range;
}

bool admits(const Range& range, const Variant& value) {
  if (value.type() == Variant::Type::Decimal) {
    const Decimal& number = *value.get<Decimal>();
    return !(range.lowest && number < CDec(Variant(Val(*range.lowest)))) &&
           !(range.highest && number > CDec(Variant(Val(*range.highest))));
  }
  const double number = CDbl(value);
  return !(range.lowest && number < Val(*range.lowest)) && !(range.highest && number > Val(*range.highest));
}

}  // namespace

RuleResult CheckTextRule(const Variant& value, const TextRule& rule) {
  if (value.isNull()) return {};
  const std::string s = CStr(value);
  if (rule.maxLength >= 1 && text::length(s) > static_cast<std::size_t>(rule.maxLength)) {
    return {false, qrnErrorLength};
  }
  if (!rule.charSet.empty() && !charactersAllowed(s, rule.charSet)) return {false, qrnErrorCharSet};
  if (!rule.rule.empty() && !Like(s, rule.rule)) return {false, qrnErrorSyntax};
  return {true, qrnErrorNone};
}

RuleResult CheckNumberRule(const Variant& value, std::string_view rule) {
  if (value.isNull()) return {};
  if (!isNumeric(value)) return {false, qrnErrorTypeMismatch};
  if (rule.find(kTo) == std::string_view::npos) return {true, qrnErrorNone};
  while (!rule.empty()) {
    const auto end = std::min(rule.find(';'), rule.size());
    const auto range = rangeOf(text::trimmed(rule.substr(0, end), " "));
    rule.remove_prefix(std::min(end + 1, rule.size()));
    bool admitted = false;
    // A token that can't be evaluated admits nothing.
    if (range) ignoringErrors([&] { admitted = admits(*range, value); });
    if (admitted) return {true, qrnErrorNone};
  }
  return {false, qrnErrorRange};
}

}  // namespace qrn
