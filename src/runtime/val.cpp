#include "runtime/val.h"

#include <cstdint>
#include <limits>
#include <string>

#include "base/ascii.h"
#include "runtime/errors.h"
#include "runtime/number_text.h"

namespace qrn {
namespace {

using ascii::digitValue;
using ascii::isBlank;
using ascii::isDigit;

// Looks at a text as if it had no blanks.
class Scanner {
 public:
  explicit Scanner(std::string_view text) : rest_(text) { skipBlanks(); }

  /// 0 at the end.
  char peek() const { return rest_.empty() ? '\0' : rest_.front(); }
  void skip() {
    rest_.remove_prefix(1);
    skipBlanks();
  }
  bool skipIf(char c) {
    if (peek() != c) return false;
    skip();
    return true;
  }

 private:
  void skipBlanks() {
    while (!rest_.empty() && isBlank(rest_.front())) rest_.remove_prefix(1);
  }

  std::string_view rest_;
};

bool skipSign(Scanner& scanner) {
  if (scanner.skipIf('-')) return true;
  scanner.skipIf('+');
  return false;
}

std::int64_t appendDigits(Scanner& scanner, std::string& digits) {
  std::int64_t count = 0;
  for (; isDigit(scanner.peek()); scanner.skip(), ++count) {
    if (scanner.peek() != '0' || !digits.empty()) digits += scanner.peek();
  }
  return count;
}

// An E without digits behind it is not part of the number.
std::int64_t readExponent(Scanner& scanner) {
  constexpr std::int64_t kFarTooLarge = 1000000000;
  const char letter = static_cast<char>(scanner.peek() | 0x20);
  if (letter != 'e' && letter != 'd') return 0;
  scanner.skip();
  const bool negative = skipSign(scanner);
  std::int64_t exponent = 0;
  for (; isDigit(scanner.peek()); scanner.skip()) {
    if (exponent < kFarTooLarge) exponent = exponent * 10 + (scanner.peek() - '0');
  }
  return negative ? -exponent : exponent;
}

double readDecimal(Scanner& scanner) {
  NumberText number;
  number.negative = skipSign(scanner);
  std::int64_t places = appendDigits(scanner, number.digits);
  if (scanner.skipIf('.')) {
    const std::int64_t decimals = appendDigits(scanner, number.digits);
    number.exponent -= decimals;
    places += decimals;
  }
  if (places == 0 || number.digits.empty()) return 0;
  number.exponent += readExponent(scanner);
  return toDouble(number);
}

double readBits(Scanner& scanner) {
  scanner.skip();
  const char letter = static_cast<char>(scanner.peek() | 0x20);
  const int shift = letter == 'h' ? 4 : 3;
  if (letter == 'h' || letter == 'o') scanner.skip();
  std::uint64_t bits = 0;
  for (; digitValue(scanner.peek()) < (1 << shift); scanner.skip()) {
    bits = (bits << shift) | static_cast<std::uint64_t>(digitValue(scanner.peek()));
    if (bits > std::numeric_limits<std::uint32_t>::max()) raiseRunTimeError(kOverflow);
  }
  const bool isLong = scanner.peek() == '&' || bits > std::numeric_limits<std::uint16_t>::max();
  return isLong ? static_cast<std::int32_t>(static_cast<std::uint32_t>(bits))
                : static_cast<std::int16_t>(static_cast<std::uint16_t>(bits));
}

}  // namespace

double Val(std::string_view text) {
  Scanner scanner(text);
  return scanner.peek() == '&' ? readBits(scanner) : readDecimal(scanner);
}

}  // namespace qrn
