#include "fuzz/format_promises.h"

#include <limits>
#include <vector>

#include "fuzz/run_time_promises.h"
#include "runtime/conversions.h"
#include "runtime/format.h"
#include "support/work.h"

namespace qrn::fuzz {
namespace {

// The text itself, and what can be made of it.
std::vector<Variant> valuesOf(std::string_view text) {
  std::vector<Variant> values = {Variant(text), Empty{}, Null{}, true,
                                 std::numeric_limits<double>::infinity()};
  ignoringErrors([&] { values.emplace_back(CDbl(text)); });
  ignoringErrors([&] { values.emplace_back(CSng(text)); });
  ignoringErrors([&] { values.emplace_back(CLng(text)); });
  ignoringErrors([&] { values.emplace_back(CDec(text)); });
  ignoringErrors([&] { values.emplace_back(CCur(text)); });
  ignoringErrors([&] { values.emplace_back(CDate(text)); });
  return values;
}

std::optional<std::string> formatted(const CompiledFormat& format, const Variant& value) {
  return valueOrOneOf({kInvalidProcedureCall, kOverflow, kTypeMismatch}, [&] { return format.apply(value); });
}

// A letter stands for a date and a time at most, a place for a character and a group separator. The largest
// double has 309 digits.
std::size_t longest(std::string_view text, std::string_view pattern) {
  return 100 * pattern.size() + 3 * text.size() + 1000;
}

std::string brokenBy(std::string_view text, std::string_view pattern) {
  const CompiledFormat format(pattern);
  for (const Variant& value : valuesOf(text)) {
    const std::optional<std::string> result = formatted(format, value);
    if (formatted(format, value) != result) return "the same value is formatted in two ways";
    if (formatted(CompiledFormat(pattern), value) != result) return "the same pattern is read in two ways";
    if (result && result->size() > longest(text, pattern)) return "a short pattern gives a long text";
  }
  // What no pattern can be filled with passes through, so a second time it does so again.
  for (const char* named : {"General Number", "Fixed", "Long Date", "Yes/No"}) {
    const auto once = formatted(CompiledFormat(named), Variant(text));
    if (once == text && formatted(CompiledFormat(named), Variant(*once)) != once)
      return std::string(named) + " changes what it has let pass";
  }
  const auto plain = formatted(CompiledFormat(""), Variant(text));
  if (plain != text) return "no pattern at all changes a text";
  return {};
}

std::string brokenGrowthBy(std::string_view pattern) {
  constexpr std::size_t kPatternLength = 128;  // no number is read here, so it can be shorter
  for (const Variant& value : {Variant(1234567.891), Variant(Date{36526.75}), Variant("text")}) {
    const std::string broken = test::brokenGrowth(pattern, kPatternLength, [&](std::string_view longer) {
      ignoringErrors([&] { static_cast<void>(Format(value, longer)); });
    });
    if (!broken.empty()) return broken;
  }
  return {};
}

}  // namespace

std::string brokenFormatPromise(std::string_view text) {
  const auto [value, pattern] = splitFirstLine(text);
  std::string broken = brokenInAnyLocale([&, &v = value, &p = pattern] { return brokenBy(v, p); });
  if (broken.empty()) broken = brokenGrowthBy(pattern);
  return broken;
}

}  // namespace qrn::fuzz
