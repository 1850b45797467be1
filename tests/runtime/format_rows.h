#pragma once

#include <initializer_list>
#include <string>

#include "runtime/format.h"
#include "runtime/outcome.h"

namespace qrn::test {

struct FormatRow {
  Variant value;
  std::string pattern;
  std::string expected;
};

inline void expectFormats(std::initializer_list<FormatRow> rows) {
  int line = 0;
  for (const FormatRow& row : rows) {
    ++line;
    EXPECT_EQ(outcome([&] { return Format(row.value, row.pattern); }), row.expected)
        << "row " << line << ", pattern " << row.pattern;
  }
}

}  // namespace qrn::test
