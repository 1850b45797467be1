#include "runtime/number_text.h"

#include <algorithm>
#include <charconv>

#include "base/ascii.h"
#include "runtime/errors.h"

namespace qrn {
namespace {

using ascii::digitValue;
using ascii::isDigit;

// Far beyond every type's range, and far from the limits of the exponent's own arithmetic.
constexpr std::int64_t kHugeExponent = 1000000000;

class NumberReader {
 public:
  NumberReader(std::string_view text, const Locale& locale) : rest_(text), locale_(locale) {}

  std::optional<NumberText> read() {
    skipBlanks();
    const bool understood = rest_.starts_with('&') ? readBits() : readDecimal();
    skipBlanks();
    if (!understood || !rest_.empty()) return std::nullopt;
    return std::move(number_);
  }

 private:
  bool readDecimal() {
    readPrefix();
    if (!readDigits() || !readExponent()) return false;
    readSuffix();
    return !openParenthesis_;
  }

  void readPrefix() {
    do skipBlanks();
    while (readSign() || readCurrencySign() || readOpenParenthesis());
  }

  void readSuffix() {
    do skipBlanks();
    while (readSign() || readCurrencySign() || readCloseParenthesis());
  }

  bool readSign() {
    if (signed_ || !(rest_.starts_with('-') || rest_.starts_with('+'))) return false;
    signed_ = true;
    number_.negative = rest_.front() == '-';
    rest_.remove_prefix(1);
    return true;
  }

  bool readCurrencySign() {
    if (currencySeen_ || !skip(locale_.currencySymbol)) return false;
    currencySeen_ = true;
    return true;
  }

  // Parentheses are a sign, so there is no other one beside them.
  bool readOpenParenthesis() {
    if (signed_ || !skip("(")) return false;
    signed_ = openParenthesis_ = number_.negative = true;
    return true;
  }

  bool readCloseParenthesis() {
    if (!openParenthesis_ || !skip(")")) return false;
    openParenthesis_ = false;
    return true;
  }

  bool readDigits() {
    bool any = false;
    bool fraction = false;
    while (!rest_.empty()) {
      if (isDigit(rest_.front())) {
        any = true;
        takeDigit(fraction);
      } else if (!fraction && skip(locale_.decimalSeparator)) {
        fraction = true;
      } else if (fraction || !any || !skip(locale_.groupSeparator)) {
        break;
      }
    }
    return any;
  }

  void takeDigit(bool fraction) {
    const char digit = rest_.front();
    rest_.remove_prefix(1);
    if (digit != '0' || !number_.digits.empty()) number_.digits += digit;
    if (fraction) --number_.exponent;
  }

  bool readExponent() {
    if (rest_.empty() || std::string_view("eEdD").find(rest_.front()) == std::string_view::npos) return true;
    rest_.remove_prefix(1);
    const bool negative = rest_.starts_with('-');
    if (negative || rest_.starts_with('+')) rest_.remove_prefix(1);
    if (rest_.empty() || !isDigit(rest_.front())) return false;
    std::int64_t exponent = 0;
    for (; !rest_.empty() && isDigit(rest_.front()); rest_.remove_prefix(1)) {
      exponent = std::min(exponent * 10 + (rest_.front() - '0'), kHugeExponent);
    }
    number_.exponent += negative ? -exponent : exponent;
    return true;
  }

  bool readBits() {
    if (rest_.size() < 2) return false;
    const char mark = static_cast<char>(rest_[1] | 0x20);
    if (mark != 'h' && mark != 'o') return false;
    rest_.remove_prefix(2);
    const int shift = mark == 'h' ? 4 : 3;
    bool any = false;
    bool tooLong = false;
    for (; !rest_.empty() && digitValue(rest_.front()) < (1 << shift); rest_.remove_prefix(1), any = true) {
      tooLong = tooLong || (number_.bits >> (64 - shift)) != 0;
      number_.bits = (number_.bits << shift) | static_cast<std::uint64_t>(digitValue(rest_.front()));
    }
    skip("&");  // the mark of a 32-bit number
    number_.isBits = !tooLong;
    if (number_.bits != 0 || tooLong) number_.digits = tooLong ? "1" : std::to_string(number_.bits);
    if (tooLong) number_.exponent = kHugeExponent;
    return any;
  }

  bool skip(std::string_view expected) {
    if (expected.empty() || !rest_.starts_with(expected)) return false;
    rest_.remove_prefix(expected.size());
    return true;
  }

  void skipBlanks() {
    constexpr std::string_view kNoBreakSpace = "\u00a0";
    while (skip(" ") || skip("\t") || skip("\r") || skip("\n") || skip(kNoBreakSpace)) {
    }
  }

  std::string_view rest_;
  const Locale& locale_;
  NumberText number_;
  bool signed_ = false;
  bool openParenthesis_ = false;
  bool currencySeen_ = false;
};

}  // namespace

std::optional<NumberText> readNumberText(std::string_view text, const Locale& locale) {
  return NumberReader(text, locale).read();
}

double toDouble(const NumberText& number) {
  if (number.digits.empty()) return number.negative ? -0.0 : 0.0;
  const std::string text = number.digits + "e" + std::to_string(number.exponent);
  double value = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  if (result.ec == std::errc::result_out_of_range) {
    const std::int64_t magnitude = static_cast<std::int64_t>(number.digits.size()) + number.exponent;
    if (magnitude > 0) raiseRunTimeError(kOverflow);
    value = 0;
  }
  return number.negative ? -value : value;
}

}  // namespace qrn
