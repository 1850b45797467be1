#include "fuzz/like_promises.h"

#include <algorithm>

#include "base/text.h"
#include "fuzz/run_time_promises.h"
#include "runtime/like.h"
#include "support/work.h"

namespace qrn::fuzz {
namespace {

std::optional<bool> matches(std::string_view text, std::string_view pattern) {
  return valueOrOneOf({kInvalidPatternString}, [&] { return Like(text, pattern); });
}

// A pattern for this text and no other. A ']' can only stand for itself outside a list.
std::string literalOf(std::string_view text) {
  std::string pattern;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t start = at;
    text::next(text, at);
    const std::string_view character = text.substr(start, at - start);
    pattern += character == "]" ? "]" : "[" + std::string(character) + "]";
  }
  return pattern;
}

std::string brokenBy(const std::string& text, const std::string& pattern) {
  const std::optional<bool> result = matches(text, pattern);
  if (result) {
    if (LikePattern(pattern).matches(text) != *result) return "the same text matches and does not";
    if (*result && !Like(text + "x", pattern + "*"))
      return "a run at the end does not take one more character";
    if (*result && !Like("x" + text, "*" + pattern))
      return "a run at the start does not take one more character";
    if (*result != Like(text + "x", pattern + "x"))
      return "the same character behind both makes a difference";
    if (*result != Like("x" + text, "x" + pattern))
      return "the same character before both makes a difference";
  } else if (pattern.find('[') == std::string::npos) {
    return "a pattern without a list was refused";
  }
  if (!Like(text, "*")) return "something is not matched by everything";
  if (!Like(text, literalOf(text))) return "a text does not match itself";
  if (Like(text + "x", literalOf(text))) return "a text matches another one";
  return {};
}

// Some steps to read each character of the pattern, and some for each of the text with each of the pattern.
std::string brokenCostBy(std::string_view text, std::string_view pattern) {
  constexpr std::uint64_t kSteps = 100;
  const std::uint64_t steps = test::stepsOf([&] { matches(text, pattern); });
  if (steps <= kSteps * (text.size() + 4) * (pattern.size() + 4)) return {};
  return std::to_string(text.size()) + " times " + std::to_string(pattern.size()) + " characters take " +
         std::to_string(steps) + " steps";
}

}  // namespace

std::string brokenLikePromise(std::string_view text) {
  const auto [subject, pattern] = splitFirstLine(text);
  std::string broken = brokenBy(std::string(subject), std::string(pattern));
  if (broken.empty()) broken = brokenCostBy(subject, pattern);
  if (!broken.empty()) return broken;
  std::string longer;
  while (!subject.empty() && longer.size() < kGrowthLength) longer += subject;
  if (broken = brokenCostBy(longer, pattern); !broken.empty()) return broken;
  return test::brokenGrowth(pattern, kGrowthLength,
                            [&](std::string_view repeated) { matches("", repeated); });
}

}  // namespace qrn::fuzz
