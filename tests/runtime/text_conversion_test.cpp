// Into String.
#include <cmath>
#include <limits>

#include "runtime/outcome.h"

namespace qrn::test {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

std::string text(const Variant& value) { return CStr(value); }

TEST(CStrOf, ADoubleShowsFifteenDigits) {
  expectRows(text, {
                       {0.0, "0"},
                       {-0.0, "0"},
                       {1.0, "1"},
                       {-1.0, "-1"},
                       {0.5, "0.5"},
                       {0.1 + 0.2, "0.3"},
                       {1.0 / 3, "0.333333333333333"},
                       {2.0 / 3, "0.666666666666667"},
                       {100.0 / 3, "33.3333333333333"},
                       {3.14159265358979, "3.14159265358979"},
                       {123456789012345.0, "123456789012345"},
                       {999999999999999.0, "999999999999999"},
                       {12345678.9, "12345678.9"},
                       {0.00001, "0.00001"},
                       {0.000123, "0.000123"},
                   });
}

TEST(CStrOf, ADoubleTurnsToAnExponentWhenTheDigitsDoNotSuffice) {
  expectRows(text, {
                       {1e14, "100000000000000"},
                       {1e15, "1E+15"},
                       {-1e15, "-1E+15"},
                       {999999999999999.9, "1E+15"},
                       {1234567890123456.0, "1.23456789012346E+15"},
                       {1.5e300, "1.5E+300"},
                       {1e-10, "0.0000000001"},
                       {1.0 / 30, "3.33333333333333E-02"},
                       {1e-15, "0.000000000000001"},
                       {1e-16, "1E-16"},
                       {1.5e-15, "1.5E-15"},
                       {-2.5e-20, "-2.5E-20"},
                       {1.0 / 3e5, "3.33333333333333E-06"},
                       {5e-324, "4.94065645841247E-324"},
                       {1.7976931348623157e308, "1.79769313486232E+308"},
                   });
}

TEST(CStrOf, ASingleShowsSevenDigits) {
  expectRows(text, {
                       {0.1F, "0.1"},
                       {1.0F / 3, "0.3333333"},
                       {1234567.0F, "1234567"},
                       {12345678.0F, "1.234568E+07"},
                       {9999999.0F, "9999999"},
                       {1e7F, "1E+07"},
                       {1.0F / 30, "3.333334E-02"},
                       {-2.5F, "-2.5"},
                       {3.4028235e38F, "3.402823E+38"},
                       {std::numeric_limits<float>::infinity(), "1.#INF"},
                   });
}

TEST(CStrOf, ADoubleThatIsNotFiniteShowsAMarker) {
  expectRows(text, {{kInfinity, "1.#INF"},
                    {-kInfinity, "-1.#INF"},
                    {kNaN, "1.#QNAN"},
                    {std::copysign(kNaN, -1.0), "-1.#IND"}});
}

TEST(CStrOf, OtherTypesAreWrittenInFull) {
  expectRows(text, {
                       {Empty{}, ""},
                       {Null{}, "error 94"},
                       {true, "True"},
                       {false, "False"},
                       {std::int16_t{-32768}, "-32768"},
                       {2147483647, "2147483647"},
                       {Currency{0}, "0"},
                       {Currency{10000}, "1"},
                       {Currency{12500}, "1.25"},
                       {Currency{-1}, "-0.0001"},
                       {Currency{std::numeric_limits<std::int64_t>::min()}, "-922337203685477.5808"},
                       {Currency{1000000000000000}, "100000000000"},
                       {CDec("1.50"), "1.5"},
                       {CDec("-0.00"), "0"},
                       {CDec("79228162514264337593543950335"), "79228162514264337593543950335"},
                       {CDec("1e-28"), "0.0000000000000000000000000001"},
                       {"text stays", "text stays"},
                       {"", ""},
                       {ErrorValue{2042}, "Error 2042"},
                       {ObjectPtr(), "error 13"},
                   });
}

TEST(CStrOf, ADateShowsWhatItSays) {
  expectRows(text, {
                       {Date{0}, "12:00:00 AM"},
                       {Date{0.5}, "12:00:00 PM"},
                       {Date{1}, "12/31/1899"},
                       {Date{36526}, "1/1/2000"},
                       {Date{36526.75}, "1/1/2000 6:00:00 PM"},
                       {Date{-1.25}, "12/29/1899 6:00:00 AM"},
                       {Date{36525.9999999}, "1/1/2000"},
                       {Date{-657434}, "1/1/0100"},
                       {Date{2958465}, "12/31/9999"},
                       {Date{2958466}, "error 6"},
                       {Date{-657435}, "error 6"},
                       {Date{kNaN}, "error 6"},
                   });
}

TEST(CStrOf, TheLocaleGivesThePointAndTheDate) {
  const LocaleScope german(deDE());
  expectRows(text, {
                       {3.5, "3,5"},
                       {1.5e300, "1,5E+300"},
                       {12345.678, "12345,678"},
                       {0.25F, "0,25"},
                       {Currency{12500}, "1,25"},
                       {CDec("1,5"), "1,5"},
                       {kInfinity, "1,#INF"},
                       {-kInfinity, "-1,#INF"},
                       {kNaN, "1,#QNAN"},
                       {true, "True"},
                       {Date{36526.75}, "01.01.2000 18:00:00"},
                       {Date{0.5}, "12:00:00"},
                   });
}

}  // namespace
}  // namespace qrn::test
