#include "runtime/date_text.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <initializer_list>
#include <vector>

#include "base/ascii.h"
#include "base/letter_case.h"

namespace qrn {
namespace {

struct Token {
  enum class Kind { Number, Word, Separator };
  Kind kind;
  std::string_view text;
  int number = 0;

  bool isNumber() const { return kind == Kind::Number; }
  bool isWord() const { return kind == Kind::Word; }
  bool is(std::string_view separator) const { return kind == Kind::Separator && text == separator; }
  /// Can only be a year: written with more than two digits, or too large for a day.
  bool isYear() const { return isNumber() && (text.size() > 2 || number > 31); }
};

using Tokens = std::vector<Token>;

// No written date has more parts.
constexpr std::size_t kMostTokens = 24;

using ascii::isBlank;
using ascii::isDigit;
bool isLetter(char c) { return ascii::isLetter(c) || static_cast<unsigned char>(c) >= 0x80; }

template <class Belongs>
std::string_view takeWhile(std::string_view& rest, Belongs belongs) {
  const auto end = std::find_if_not(rest.begin(), rest.end(), belongs);
  const std::string_view taken = rest.substr(0, static_cast<std::size_t>(end - rest.begin()));
  rest.remove_prefix(taken.size());
  return taken;
}

std::optional<Token> numberToken(std::string_view& rest) {
  Token token{Token::Kind::Number, takeWhile(rest, isDigit)};
  if (token.text.size() > 4) return std::nullopt;
  for (const char digit : token.text) token.number = token.number * 10 + (digit - '0');
  return token;
}

std::optional<Tokens> split(std::string_view rest) {
  Tokens tokens;
  for (takeWhile(rest, isBlank); !rest.empty(); takeWhile(rest, isBlank)) {
    if (tokens.size() == kMostTokens) return std::nullopt;
    if (isDigit(rest.front())) {
      const std::optional<Token> number = numberToken(rest);
      if (!number) return std::nullopt;
      tokens.push_back(*number);
    } else if (isLetter(rest.front())) {
      tokens.push_back({Token::Kind::Word, takeWhile(rest, isLetter)});
    } else {
      tokens.push_back({Token::Kind::Separator, rest.substr(0, 1)});
      rest.remove_prefix(1);
    }
  }
  return tokens;
}

template <std::size_t N>
std::optional<int> indexOfName(std::string_view word, const std::array<std::string, N>& names) {
  const auto found = std::find_if(names.begin(), names.end(),
                                  [&](const std::string& name) { return sameLetters(name, word); });
  if (found == names.end()) return std::nullopt;
  return static_cast<int>(found - names.begin());
}

class DateReader {
 public:
  DateReader(Tokens tokens, const Locale& locale, int thisYear)
      : tokens_(std::move(tokens)), locale_(locale), thisYear_(thisYear) {}

  std::optional<Date> read() {
    if (tokens_.empty() || !takeTime() || !takeWords() || !separatorsAreInPlace()) return std::nullopt;
    std::vector<Token> numbers;
    std::copy_if(tokens_.begin(), tokens_.end(), std::back_inserter(numbers),
                 [](const Token& token) { return token.isNumber(); });
    if (!hasTime_ && numbers.empty()) return std::nullopt;
    const std::optional<int> day = numbers.empty() && !month_ ? timeOnlyDay() : dayFrom(numbers);
    if (!day) return std::nullopt;
    return dateFromParts(*day, time_);
  }

 private:
  // --- time: numbers joined by ':' or followed by AM or PM ---

  bool isTimeSeparator(std::size_t index) const {
    return index < tokens_.size() && (tokens_[index].is(":") || tokens_[index].is(locale_.timeSeparator));
  }

  bool takeTime() {
    for (std::size_t i = 0; i < tokens_.size(); ++i) {
      if (!tokens_[i].isNumber()) continue;
      if (isTimeSeparator(i + 1) || halfOfDay(i + 1)) return takeTimeAt(i);
    }
    return true;
  }

  /// 0 for the words of the morning, 12 for those of the afternoon.
  std::optional<int> halfOfDay(std::size_t index) const {
    if (index >= tokens_.size() || !tokens_[index].isWord()) return std::nullopt;
    const auto isOneOf = [&](std::initializer_list<std::string_view> words) {
      return std::any_of(words.begin(), words.end(),
                         [&](std::string_view word) { return sameLetters(word, tokens_[index].text); });
    };
    if (isOneOf({"AM", "A", locale_.amText})) return 0;
    if (isOneOf({"PM", "P", locale_.pmText})) return 12;
    return std::nullopt;
  }

  bool takeTimeAt(std::size_t first) {
    std::array<int, 3> parts{tokens_[first].number};
    std::size_t end = first + 1;
    for (std::size_t part = 1; part < parts.size() && isTimeSeparator(end); ++part, end += 2) {
      if (end + 1 >= tokens_.size() || !tokens_[end + 1].isNumber()) return false;
      parts[part] = tokens_[end + 1].number;
    }
    if (const std::optional<int> half = halfOfDay(end)) {
      if (!applyHalf(parts[0], *half)) return false;
      ++end;
    }
    if (parts[0] > 23 || parts[1] > 59 || parts[2] > 59) return false;
    time_ = (parts[0] * 3600 + parts[1] * 60 + parts[2]) / 86400.0;
    hasTime_ = true;
    const auto begin = tokens_.begin();
    tokens_.erase(begin + static_cast<std::ptrdiff_t>(first), begin + static_cast<std::ptrdiff_t>(end));
    return true;
  }

  static bool applyHalf(int& hour, int half) {
    if (half == 0 && hour > 12) return false;
    if (hour == 12) hour = 0;
    if (hour < 12) hour += half;
    return true;
  }

  // --- words: at most one month and one day of the week ---

  bool takeWords() {
    for (const Token& token : tokens_) {
      if (token.isWord() && !takeMonth(token.text) && !takeWeekday(token.text)) return false;
    }
    return true;
  }

  bool takeMonth(std::string_view word) {
    if (month_) return false;
    for (const Locale* locale : {&locale_, &enUS()}) {
      month_ = indexOfName(word, locale->monthNames);
      if (!month_) month_ = indexOfName(word, locale->monthAbbreviations);
      if (month_) return true;
    }
    return false;
  }

  bool takeWeekday(std::string_view word) {
    if (weekdaySeen_) return false;
    for (const Locale* locale : {&locale_, &enUS()}) {
      weekdaySeen_ = indexOfName(word, locale->dayNames) || indexOfName(word, locale->dayAbbreviations);
      if (weekdaySeen_) return true;
    }
    return false;
  }

  // --- separators: between two parts, a point or comma also beside a word or a day ---

  bool separatorsAreInPlace() const {
    for (std::size_t i = 0; i < tokens_.size(); ++i) {
      if (tokens_[i].kind == Token::Kind::Separator && !isInPlace(i)) return false;
    }
    return true;
  }

  bool isInPlace(std::size_t index) const {
    const Token& token = tokens_[index];
    if (index == 0) return false;
    const Token& before = tokens_[index - 1];
    const bool last = index + 1 == tokens_.size();
    if (token.is(".")) return before.isNumber() || before.isWord();
    if (last) return token.is(",") && before.isNumber() && hasTime_;
    const Token& after = tokens_[index + 1];
    if (token.is(",")) return month_ || before.isWord();
    const bool joins = token.is("/") || token.is("-") || token.is(locale_.dateSeparator);
    return joins && before.kind != Token::Kind::Separator && after.kind != Token::Kind::Separator;
  }

  // --- the day from what is left ---

  // A time without a date lies on the day the count begins; a lone weekday or separator makes no date.
  std::optional<int> timeOnlyDay() const { return tokens_.empty() ? std::optional<int>(0) : std::nullopt; }

  std::optional<int> dayFrom(const Tokens& numbers) const {
    if (month_) return dayWithMonthName(numbers);
    if (numbers.size() == 3) return dayOfThree(numbers);
    if (numbers.size() == 2 && areJoined()) return dayOfTwo(numbers);
    return std::nullopt;
  }

  std::optional<int> dayWithMonthName(const Tokens& numbers) const {
    const int month = *month_ + 1;
    if (numbers.size() == 1) {
      if (numbers[0].isYear()) return day(numbers[0], month, 1);
      return checkedDay(thisYear_, month, numbers[0].number);
    }
    if (numbers.size() != 2) return std::nullopt;
    if (numbers[0].isYear()) return day(numbers[0], month, numbers[1].number);
    return day(numbers[1], month, numbers[0].number);
  }

  std::optional<int> dayOfThree(const Tokens& numbers) const {
    const int a = numbers[0].number;
    const int b = numbers[1].number;
    const int c = numbers[2].number;
    if (numbers[0].isYear()) return firstOf({day(numbers[0], b, c), day(numbers[0], c, b)});
    const std::optional<int> monthFirst = day(numbers[2], a, b);
    const std::optional<int> dayFirst = day(numbers[2], b, a);
    const std::optional<int> yearFirst = numbers[2].isYear() ? std::nullopt : day(numbers[0], b, c);
    switch (locale_.dateOrder) {
      case Locale::DateOrder::MonthDayYear: return firstOf({monthFirst, dayFirst, yearFirst});
      case Locale::DateOrder::DayMonthYear: return firstOf({dayFirst, monthFirst, yearFirst});
      case Locale::DateOrder::YearMonthDay: return firstOf({yearFirst, monthFirst, dayFirst});
    }
    return std::nullopt;
  }

  std::optional<int> dayOfTwo(const Tokens& numbers) const {
    const int a = numbers[0].number;
    const int b = numbers[1].number;
    if (numbers[0].isYear()) return day(numbers[0], b, 1);
    if (numbers[1].isYear()) return day(numbers[1], a, 1);
    const std::optional<int> monthFirst = checkedDay(thisYear_, a, b);
    const std::optional<int> dayFirst = checkedDay(thisYear_, b, a);
    const bool dayComesFirst = locale_.dateOrder == Locale::DateOrder::DayMonthYear;
    return dayComesFirst ? firstOf({dayFirst, monthFirst}) : firstOf({monthFirst, dayFirst});
  }

  // Two numbers with nothing but a point or a blank between them are rather a number.
  bool areJoined() const {
    const auto first =
        std::find_if(tokens_.begin(), tokens_.end(), [](const Token& token) { return token.isNumber(); });
    const auto next = first + 1;
    return next != tokens_.end() && (next->is("/") || next->is("-") || next->is(locale_.dateSeparator));
  }

  static std::optional<int> firstOf(std::initializer_list<std::optional<int>> readings) {
    for (const std::optional<int>& reading : readings) {
      if (reading) return reading;
    }
    return std::nullopt;
  }

  static std::optional<int> day(const Token& year, int month, int dayOfMonth) {
    if (year.text.size() > 2) return checkedDay(year.number, month, dayOfMonth);
    return checkedDay(year.number + (year.number < 30 ? 2000 : 1900), month, dayOfMonth);
  }

  static std::optional<int> checkedDay(int year, int month, int dayOfMonth) {
    if (!isCivilDay(year, month, dayOfMonth)) return std::nullopt;
    return dayNumber(year, month, dayOfMonth);
  }

  Tokens tokens_;
  const Locale& locale_;
  int thisYear_;
  double time_ = 0;
  bool hasTime_ = false;
  std::optional<int> month_;  // 0 for January
  bool weekdaySeen_ = false;
};

}  // namespace

std::optional<Date> readDateText(std::string_view text, const Locale& locale, int thisYear) {
  std::optional<Tokens> tokens = split(text);
  if (!tokens) return std::nullopt;
  return DateReader(*std::move(tokens), locale, thisYear).read();
}

int currentYear() {
  const auto today = std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now());
  return static_cast<int>(std::chrono::year_month_day(today).year());
}

}  // namespace qrn
