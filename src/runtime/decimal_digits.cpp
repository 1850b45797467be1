#include "runtime/decimal_digits.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace qrn {
namespace {

DecimalDigits fromInteger(bool negative, std::string_view digits, int scale) {
  DecimalDigits result;
  result.point = static_cast<int>(digits.size()) - scale;
  result.count = digits.find_last_not_of('0') + 1;
  std::copy_n(digits.data(), result.count, result.digits.data());
  result.negative = negative && result.count > 0;
  return result;
}

}  // namespace

DecimalDigits decimalDigits(double value, int significantDigits) {
  DecimalDigits result;
  if (value == 0) return result;
  // "d.ddde+xx": the point is taken out where it stands.
  char* const text = result.digits.data();
  const auto written = std::to_chars(text, text + result.digits.size(), std::fabs(value),
                                     std::chars_format::scientific, significantDigits - 1);
  char* const mark = std::find(text, written.ptr, 'e');
  int exponent = 0;
  std::from_chars(mark + 2, written.ptr, exponent);
  result.point = (mark[1] == '-' ? -exponent : exponent) + 1;
  result.negative = std::signbit(value);
  std::size_t count = static_cast<std::size_t>(mark - text);
  if (count > 1) {
    std::copy(text + 2, mark, text + 1);
    --count;
  }
  while (count > 0 && text[count - 1] == '0') --count;
  result.count = count;
  return result;
}

DecimalDigits decimalDigits(const Decimal& value) {
  return value.isZero() ? DecimalDigits{} : fromInteger(value.isNegative(), value.digits(), value.scale());
}

DecimalDigits decimalDigits(Currency value) {
  if (value.tenThousandths == 0) return {};
  const bool negative = value.tenThousandths < 0;
  const auto bits = static_cast<std::uint64_t>(value.tenThousandths);
  std::array<char, 24> text;
  const auto written = std::to_chars(text.data(), text.data() + text.size(), negative ? 0 - bits : bits);
  return fromInteger(negative, {text.data(), static_cast<std::size_t>(written.ptr - text.data())}, 4);
}

void DecimalDigits::roundAt(int position) {
  const int kept = point - position;
  if (kept >= static_cast<int>(count)) return;
  if (kept < 0) {
    count = 0;
    return;
  }
  std::size_t end = static_cast<std::size_t>(kept);
  const bool up = digits[end] >= '5';
  if (up) {
    while (end > 0 && digits[end - 1] == '9') --end;
    if (end > 0) {
      ++digits[end - 1];
    } else {
      digits[0] = '1';
      end = 1;
      ++point;
    }
  }
  while (end > 0 && digits[end - 1] == '0') --end;
  count = end;
}

}  // namespace qrn
