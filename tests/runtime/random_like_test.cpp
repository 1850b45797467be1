// Like against a matcher that is as plain as can be.
#include <functional>
#include <vector>

#include "runtime/like.h"
#include "runtime/random_input.h"

namespace qrn::test {
namespace {

using Characters = std::vector<std::string>;

// Only for texts without broken bytes.
Characters charactersOf(std::string_view text) {
  Characters characters;
  for (const char byte : text) {
    if ((static_cast<unsigned char>(byte) & 0xC0) != 0x80) characters.emplace_back();
    characters.back() += byte;
  }
  return characters;
}

// One place of a pattern: a run, or a test of one character. Of UTF-8, the order of the bytes is that of the
// code points.
struct Place {
  bool isRun = false;
  std::function<bool(const std::string&)> admits;
};

class NoPattern {};

std::function<bool(const std::string&)> listOf(Characters list) {
  const bool negated = list.size() > 1 && list.front() == "!";
  if (negated) list.erase(list.begin());
  std::vector<std::pair<std::string, std::string>> ranges;
  for (std::size_t i = 0; i < list.size(); ++i) {
    const bool isRange = i + 2 < list.size() && list[i + 1] == "-";
    ranges.emplace_back(list[i], list[isRange ? i + 2 : i]);
    if (ranges.back().second < ranges.back().first) throw NoPattern();
    if (isRange) i += 2;
  }
  return [ranges, negated](const std::string& c) {
    bool listed = false;
    for (const auto& [first, last] : ranges) listed = listed || (first <= c && c <= last);
    return listed != negated;
  };
}

std::vector<Place> placesOf(const Characters& pattern) {
  std::vector<Place> places;
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    const std::string& character = pattern[i];
    if (character == "*") {
      places.push_back({true, {}});
    } else if (character == "?") {
      places.push_back({false, [](const std::string&) { return true; }});
    } else if (character == "#") {
      places.push_back({false, [](const std::string& c) { return c >= "0" && c <= "9"; }});
    } else if (character == "[") {
      Characters list;
      for (++i; i < pattern.size() && pattern[i] != "]"; ++i) list.push_back(pattern[i]);
      if (i == pattern.size()) throw NoPattern();
      if (!list.empty()) places.push_back({false, listOf(list)});
    } else {
      places.push_back({false, [character](const std::string& c) { return c == character; }});
    }
  }
  return places;
}

// Every way a run could end is tried.
bool fits(const Characters& text, std::size_t at, const std::vector<Place>& places, std::size_t place) {
  if (place == places.size()) return at == text.size();
  if (places[place].isRun) {
    for (std::size_t end = at; end <= text.size(); ++end) {
      if (fits(text, end, places, place + 1)) return true;
    }
    return false;
  }
  return at < text.size() && places[place].admits(text[at]) && fits(text, at + 1, places, place + 1);
}

std::string likeByTrying(const std::string& text, const std::string& pattern) {
  try {
    return shown(fits(charactersOf(text), 0, placesOf(charactersOf(pattern)), 0));
  } catch (const NoPattern&) {
    return "error 93";
  }
}

class RandomLike : public RandomInput {
 protected:
  template <class Parts>
  std::string textOf(const Parts& parts, std::size_t most) {
    std::string text;
    for (std::size_t count = below(most + 1); count > 0; --count) text += oneOf(parts);
    return text;
  }
};

TEST_F(RandomLike, AgreesWithAMatcherThatTriesEverything) {
  constexpr std::string_view kCharacters[] = {"a", "b", "1", "-", "!", "ä", "]", "[", "z"};
  constexpr std::string_view kParts[] = {
      "a", "b",    "1",  "?",   "#",    "*",    "*",    "[ab]",  "[!a]",      "[b1]", "ä",     "[a-b]", "-",
      "]", "[!ä]", "[]", "[!]", "[!!]", "[a-]", "[-a]", "[--z]", "[!0-9a-z]", "[[]",  "[?*#]", "z"};
  int matches = 0;
  for (int round = 0; round < 50000; ++round) {
    const std::string subject = textOf(kCharacters, 8);
    const std::string pattern = textOf(kParts, 6);
    const std::string expected = likeByTrying(subject, pattern);
    ASSERT_EQ(outcome([&] { return Like(subject, pattern); }), expected)
        << '"' << subject << "\" Like \"" << pattern << '"';
    matches += expected == "true" ? 1 : 0;
  }
  EXPECT_GT(matches, 1000);
}

TEST_F(RandomLike, ReadsTheSamePatternsAsAMatcherThatTriesEverything) {
  int matches = 0;
  int refusals = 0;
  for (int round = 0; round < 50000; ++round) {
    const std::string subject = text("ab1-]!", 6);
    const std::string pattern = text("ab1?*#[[]]!-", 10);
    const std::string expected = likeByTrying(subject, pattern);
    ASSERT_EQ(outcome([&] { return Like(subject, pattern); }), expected)
        << '"' << subject << "\" Like \"" << pattern << '"';
    matches += expected == "true" ? 1 : 0;
    refusals += expected == "error 93" ? 1 : 0;
  }
  EXPECT_GT(matches, 500);
  EXPECT_GT(refusals, 1000);
}

TEST_F(RandomLike, TakesAnyBytes) {
  for (int round = 0; round < 50000; ++round) {
    const std::string subject = bytes(8);
    const std::string pattern = bytes(12);
    const std::int32_t error = errorOf([&] { return Like(subject, pattern); });
    ASSERT_TRUE(error == 0 || error == kInvalidPatternString) << testing::PrintToString(pattern);
    ASSERT_TRUE(Like(subject, "*")) << testing::PrintToString(subject);
  }
}

}  // namespace
}  // namespace qrn::test
