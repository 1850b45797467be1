#pragma once

#include <charconv>
#include <initializer_list>
#include <string>

#include <gtest/gtest.h>

#include "runtime/conversions.h"
#include "runtime/errors.h"
#include "runtime/locale.h"
#include "runtime/variant.h"

namespace qrn::test {

/// Sets a locale for the length of a test.
class LocaleScope {
 public:
  explicit LocaleScope(const Locale& locale) : before_(currentLocale()) { setCurrentLocale(locale); }
  ~LocaleScope() { setCurrentLocale(before_); }
  LocaleScope(const LocaleScope&) = delete;
  LocaleScope& operator=(const LocaleScope&) = delete;

 private:
  Locale before_;
};

/// The shortest text that reads back as the same number.
template <class Real>
std::string shown(Real value) requires std::is_floating_point_v<Real> {
  char text[64];
  return {text, std::to_chars(text, text + sizeof text, value).ptr};
}
inline std::string shown(bool value) { return value ? "true" : "false"; }
inline std::string shown(int value) { return std::to_string(value); }
inline std::string shown(const std::string& text) { return text; }
inline std::string shown(Currency amount) { return std::to_string(amount.tenThousandths); }
inline std::string shown(const Decimal& value) { return value.toText(); }
inline std::string shown(Date date) { return shown(date.serial); }

/// What an action answers, or "error" and the number of the run-time error it raises.
template <class Action>
std::string outcome(Action&& action) {
  try {
    return shown(action());
  } catch (const RunTimeError& error) {
    return "error " + std::to_string(error.number());
  }
}

struct Row {
  Variant value;
  std::string expected;
};

/// Every row's value through one conversion.
template <class Convert>
void expectRows(Convert convert, std::initializer_list<Row> rows) {
  int line = 0;
  for (const Row& row : rows) {
    ++line;
    const std::string* text = row.value.get<std::string>();
    EXPECT_EQ(outcome([&] { return convert(row.value); }), row.expected)
        << "row " << line << " (" << typeName(row.value.type())
        << (text ? " \"" + text->substr(0, 60) + "\"" : "") << ")";
  }
}

}  // namespace qrn::test
