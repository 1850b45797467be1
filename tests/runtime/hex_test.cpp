#include "runtime/hex.h"

#include <limits>

#include "runtime/outcome.h"

namespace qrn::test {
namespace {

TEST(HexOf, ShowsUpperCaseDigitsWithoutPrefixOrPadding) {
  expectRows(Hex, {
                      {0, "0"},
                      {1, "1"},
                      {9, "9"},
                      {10, "A"},
                      {15, "F"},
                      {16, "10"},
                      {255, "FF"},
                      {256, "100"},
                      {4096, "1000"},
                      {65535, "FFFF"},
                      {65536, "10000"},
                      {1048575, "FFFFF"},
                      {11259375, "ABCDEF"},
                      {2147483647, "7FFFFFFF"},
                      {std::int16_t{171}, "AB"},
                      {Empty{}, "0"},
                  });
}

TEST(HexOf, NegativeNumbersAreThirtyTwoBitComplements) {
  expectRows(Hex, {
                      {-1, "FFFFFFFF"},
                      {-2, "FFFFFFFE"},
                      {-255, "FFFFFF01"},
                      {-32768, "FFFF8000"},
                      {std::numeric_limits<std::int32_t>::min(), "80000000"},
                      {std::int16_t{-1}, "FFFFFFFF"},
                      {true, "FFFFFFFF"},
                      {-1.0, "FFFFFFFF"},
                      {"-16", "FFFFFFF0"},
                  });
}

TEST(HexOf, OtherNumbersAreRoundedToTheEvenNeighbour) {
  expectRows(Hex, {
                      {10.4, "A"},
                      {10.5, "A"},
                      {11.5, "C"},
                      {-0.5, "0"},
                      {254.9F, "FF"},
                      {Currency{155000}, "10"},
                      {CDec("26.5"), "1A"},
                      {Date{36526.0}, "8EAE"},
                      {"255", "FF"},
                      {"&HfF", "FF"},
                      {"1e2", "64"},
                      {"1,000", "3E8"},
                      {2147483647.4, "7FFFFFFF"},
                  });
}

TEST(HexOf, WhatIsNoLongIsAnError) {
  expectRows(Hex, {
                      {2147483648.0, "error 6"},
                      {-2147483649.0, "error 6"},
                      {1e300, "error 6"},
                      {std::numeric_limits<double>::infinity(), "error 6"},
                      {"4294967295", "error 6"},
                      {"abc", "error 13"},
                      {"", "error 13"},
                      {Null{}, "error 94"},
                      {ErrorValue{1}, "error 13"},
                  });
}

}  // namespace
}  // namespace qrn::test
