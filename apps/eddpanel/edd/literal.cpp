#include "edd/literal.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <vector>

#include "edd/utf8.h"

namespace qrn::edd {

namespace {

constexpr std::string_view english = "en";

struct Translation {
  std::string_view language;
  std::string_view written;
};

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
bool isLetter(char c) { return lower(c) >= 'a' && lower(c) <= 'z'; }

// "de" is the language of "de", "DE", "de-AT" and "de at".
std::string languageOf(std::string_view code) {
  std::string language(code.substr(0, 2));
  std::transform(language.begin(), language.end(), language.begin(), lower);
  return language;
}

// Length of a language mark such as |en| or |en us| at the start of `text`, or 0.
std::size_t markLength(std::string_view text) {
  const auto isMark = [text](std::size_t length) {
    return text.size() >= length && text[length - 1] == '|' && isLetter(text[length - 2]) &&
           isLetter(text[length - 3]);
  };
  if (text.size() < 4 || text[0] != '|' || !isLetter(text[1]) || !isLetter(text[2])) return 0;
  if (isMark(4)) return 4;
  const bool hasRegion = text[3] == ' ' || text[3] == '-' || text[3] == '_';
  return hasRegion && isMark(7) ? 7 : 0;
}

std::vector<Translation> translationsOf(std::string_view written) {
  std::vector<Translation> translations = {{english, written}};
  std::size_t start = 0;
  std::size_t i = 0;
  while (i < written.size()) {
    const std::size_t mark = markLength(written.substr(i));
    if (mark == 0) {
      i += written[i] == '\\' ? 2 : 1;
      continue;
    }
    translations.back().written = written.substr(start, i - start);
    translations.push_back({written.substr(i + 1, mark - 2), {}});
    start = i += mark;
    translations.back().written = written.substr(start);
  }
  return translations;
}

std::optional<std::string_view> inLanguage(const std::vector<Translation>& all, std::string_view wanted) {
  const auto found = std::find_if(all.begin(), all.end(), [&](const Translation& one) {
    return !one.written.empty() && languageOf(one.language) == languageOf(wanted);
  });
  if (found == all.end()) return std::nullopt;
  return found->written;
}

std::string_view chosen(std::string_view written, std::string_view language) {
  const auto translations = translationsOf(written);
  if (const auto text = inLanguage(translations, language)) return *text;
  if (const auto text = inLanguage(translations, english)) return *text;
  const auto first = std::find_if(translations.begin(), translations.end(),
                                  [](const Translation& one) { return !one.written.empty(); });
  return first == translations.end() ? std::string_view{} : first->written;
}

int hexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  const char letter = lower(c);
  return letter >= 'a' && letter <= 'f' ? letter - 'a' + 10 : -1;
}

// \x and up to two digits name a character of ISO 8859-1. `i` stands behind the x, and then behind the
// digits.
void appendHex(std::string& text, std::string_view written, std::size_t& i) {
  char32_t value = 0;
  for (int digits = 0; digits < 2 && i < written.size() && hexDigit(written[i]) >= 0; ++digits)
    value = value * 16 + static_cast<char32_t>(hexDigit(written[i++]));
  appendUtf8(text, value != 0 ? value : U'\uFFFD');
}

}  // namespace

std::string textOfLiteral(std::string_view written, std::string_view language) {
  const std::string_view from = chosen(written, language);
  std::string text;
  text.reserve(from.size());
  for (std::size_t i = 0; i < from.size();) {
    const char c = from[i++];
    if (c != '\\' || i == from.size()) {
      text += c;
      continue;
    }
    switch (const char escaped = from[i++]) {
      case 'n': text += '\n'; break;
      case 't': text += '\t'; break;
      case 'r': break;
      case '\n': break;
      case 'x': appendHex(text, from, i); break;
      default: text += escaped;
    }
  }
  return text;
}

}  // namespace qrn::edd
