#include "values/ieee_text.h"

#include <cmath>
#include <string>

#include "base/text.h"

namespace qrn {
namespace {

constexpr std::string_view kNotANumber = "IEEE#: NOT A NUMBER";
constexpr std::string_view kMinusInfinite = "IEEE#: -INFINITE";
constexpr std::string_view kPlusInfinite = "IEEE#: +INFINITE";

}  // namespace

bool isIeeeText(std::string_view text) {
  return text == kNotANumber || text == kMinusInfinite || text == kPlusInfinite;
}

std::string_view ieeeText(const Variant& value) {
  double number = 0;
  if (const auto* wide = value.get<double>())
    number = *wide;
  else if (const auto* narrow = value.get<float>())
    number = static_cast<double>(*narrow);
  if (std::isfinite(number)) return {};
  if (std::isnan(number)) return kNotANumber;
  return number < 0 ? kMinusInfinite : kPlusInfinite;
}

std::string_view ieeeText(std::string_view shown) {
  if (shown.find("1.#") == std::string_view::npos && shown.find("1,#") == std::string_view::npos) return {};
  if (text::lowered(shown).find("#inf") == std::string::npos) return kNotANumber;
  return shown.front() == '-' ? kMinusInfinite : kPlusInfinite;
}

}  // namespace qrn
