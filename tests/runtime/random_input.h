#pragma once

#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>

#include "runtime/outcome.h"
#include "support/error_of.h"

namespace qrn::test {

/// Tests that hold for any input. The seed is printed with a failure; QRN_SEED=<seed> in the environment
/// repeats it.
class RandomInput : public testing::Test {
 protected:
  std::uint64_t bits() { return random_(); }
  std::size_t below(std::size_t limit) { return static_cast<std::size_t>(random_() % limit); }
  bool toss() { return below(2) == 0; }

  template <class Options>
  const auto& oneOf(const Options& options) {
    return options[below(std::size(options))];
  }

  std::string text(std::string_view alphabet, std::size_t longest) {
    std::string result(below(longest + 1), ' ');
    for (char& c : result) c = alphabet[below(alphabet.size())];
    return result;
  }

  std::string bytes(std::size_t longest) {
    std::string result(below(longest + 1), ' ');
    for (char& c : result) c = static_cast<char>(below(256));
    return result;
  }

  /// Numbers of all sizes: a random number of bits of a random number.
  std::int64_t whole() { return static_cast<std::int64_t>(random_()) >> below(64); }

  /// Any finite double, small exponents preferred.
  double number() {
    const double mantissa = static_cast<double>(static_cast<std::int64_t>(random_())) / 9.3e18;
    const int range = toss() ? 20 : 300;
    return mantissa * std::pow(10.0, static_cast<int>(below(static_cast<std::size_t>(2 * range))) - range);
  }

  double specialNumber() {
    using Limits = std::numeric_limits<double>;
    const double numbers[] = {0.0,
                              -0.0,
                              Limits::infinity(),
                              -Limits::infinity(),
                              Limits::quiet_NaN(),
                              Limits::max(),
                              Limits::lowest(),
                              Limits::min(),
                              Limits::denorm_min(),
                              0.5,
                              2.5,
                              -0.5,
                              32767.5,
                              -32768.5,
                              2147483647.5,
                              -2147483648.5,
                              922337203685477.5807,
                              -657434.9,
                              2958465.99999999,
                              79228162514264337593543950335.0};
    return oneOf(numbers);
  }

  Decimal decimal() {
    const auto word = [&] { return static_cast<std::uint32_t>(random_()); };
    return Decimal::fromMantissa(toss(), {word(), toss() ? word() : 0, toss() ? word() : 0},
                                 static_cast<int>(below(Decimal::kMaxScale + 1)));
  }

  Date date() {
    const int day = kFirstDay + static_cast<int>(below(kLastDay - kFirstDay));
    return dateFromParts(day, static_cast<double>(below(86400)) / 86400);
  }

  std::string numberText() {
    constexpr std::string_view kParts[] = {
        "0",   "7", "123", ".", ",", "-",  "+",  "e5", "E-3", "D+12", "$", "(",  ")", "&H",      "&O",
        "F00", "&", " ",   "%", "€", "..", "\t", "5",  "99",  "e999", "8", "1e", "x", "\xc2\xa0"};
    std::string text;
    for (std::size_t parts = below(6); parts > 0; --parts) text += oneOf(kParts);
    return text;
  }

  std::string dateText() {
    constexpr std::string_view kParts[] = {"1",     "2",   "13",  "29", "31", "1900", "2000", "99",
                                           "/",     "-",   ".",   ":",  ",",  " ",    "Jan",  "März",
                                           "March", "Feb", "Mon", "AM", "PM", "a",    "12",   "24",
                                           "59",    "60",  "Dez", "0",  "x",  "T",    "100",  "10000"};
    std::string text;
    for (std::size_t parts = below(9); parts > 0; --parts) text += oneOf(kParts);
    return text;
  }

  /// Of every type.
  Variant value() {
    switch (below(17)) {
      case 0: return number();
      case 1: return specialNumber();
      case 2: return static_cast<float>(number() * 1e-280);
      case 3: return static_cast<std::int32_t>(random_());
      case 4: return static_cast<std::int16_t>(random_());
      case 5: return Currency{static_cast<std::int64_t>(random_())};
      case 6: return decimal();
      case 7: return Date{std::fmod(number(), 4e6)};
      case 8: return Date{specialNumber()};
      case 9: return toss();
      case 10: return Empty{};
      case 11: return Null{};
      case 12: return ErrorValue{static_cast<std::int32_t>(random_())};
      case 13: return ObjectPtr();
      case 14: return numberText();
      case 15: return dateText();
      default: return bytes(20);
    }
  }

 private:
  static std::uint64_t chosenSeed() {
    const char* const chosen = std::getenv("QRN_SEED");
    return chosen ? std::strtoull(chosen, nullptr, 10) : std::random_device{}();
  }

  const std::uint64_t seed_ = chosenSeed();
  std::mt19937_64 random_{seed_};
  testing::ScopedTrace trace_{__FILE__, __LINE__, "seed " + std::to_string(seed_)};
};

/// A value with its type, as a failure shows it.
inline std::string described(const Variant& value) {
  std::string text = std::string(typeName(value.type()));
  if (value.isObject() || value.isNull()) return text;
  return text + " " + outcome([&] {
           return value.type() == Variant::Type::Date ? shown(*value.get<Date>()) : CStr(value);
         });
}

}  // namespace qrn::test
