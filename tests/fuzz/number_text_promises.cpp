#include "fuzz/number_text_promises.h"

#include <cmath>
#include <limits>

#include "fuzz/run_time_promises.h"
#include "runtime/conversions.h"
#include "runtime/hex.h"
#include "runtime/val.h"
#include "support/work.h"

namespace qrn::fuzz {
namespace {

template <class Convert>
auto converted(Convert convert, std::string_view text) {
  return valueOrOneOf({kOverflow, kTypeMismatch}, [&] { return convert(Variant(text)); });
}

// What a conversion answers, it answers again for its own text.
template <class Convert>
bool comesBack(Convert convert, std::string_view text) {
  const auto value = converted(convert, text);
  if (!value) return true;
  const std::string written = CStr(Variant(*value));
  const auto again = converted(convert, written);
  return again && CStr(Variant(*again)) == written;
}

// Seven digits are one too many to name every Single and one too few to tell all of them apart.
bool comesBackNearly(std::string_view text) {
  const auto value = converted(CSng, text);
  if (!value) return true;
  const auto again = valueOrOneOf({kOverflow}, [&] { return CSng(CStr(Variant(*value))); });
  constexpr float kSevenDigits = 1e-6F;
  constexpr float kLeast = std::numeric_limits<float>::denorm_min();
  if (!again) return std::fabs(*value) > std::numeric_limits<float>::max() * (1 - kSevenDigits);
  return std::fabs(*again - *value) <= std::fabs(*value) * kSevenDigits + kLeast;
}

std::string brokenBy(std::string_view text) {
  if (!comesBack(CBool, text)) return "CBool";
  if (!comesBack(CInt, text)) return "CInt";
  if (!comesBack(CLng, text)) return "CLng";
  if (!comesBackNearly(text)) return "CSng";
  if (!comesBack(CDec, text)) return "CDec";
  if (!comesBack(CCur, text)) return "CCur";
  // The largest doubles have a text that is larger still.
  const auto number = converted(CDbl, text);
  const bool isLargest = number && (*number > 1.7976931348623e308 || *number < -1.7976931348623e308);
  if (!isLargest && !comesBack(CDbl, text)) return "CDbl";
  if (isNumeric(Variant(text)) != number.has_value()) return "what is numeric makes no number";
  const bool hasBits = text.find('&') != std::string_view::npos;
  const auto whole = converted(CInt, text);
  if (whole && !hasBits && converted(CLng, text) != std::int32_t{*whole}) return "CInt and CLng differ";
  if (const auto wide = converted(CLng, text); wide && Hex(Variant(text)) != Hex(*wide)) return "Hex";
  return {};
}

std::string brokenValOf(std::string_view text) {
  const auto number = valueOrOneOf({kOverflow}, [&] { return Val(text); });
  if (!number || *number > 1.7976931348623e308 || *number < -1.7976931348623e308) return {};
  const std::string written = CStr(*number);
  if (CStr(Val(written)) != written) return "Val does not read what it has answered: " + written;
  if (CStr(Val(" \t" + std::string(text))) != written) return "Val is led astray by blanks";
  return {};
}

std::string brokenGrowthBy(std::string_view text) {
  return test::brokenGrowth(text, kGrowthLength, [](std::string_view longer) {
    converted(CDbl, longer);
    converted(CLng, longer);
    converted(CDec, longer);
    converted(CCur, longer);
    converted(CBool, longer);
    valueOrOneOf({kOverflow}, [&] { return Val(longer); });
  });
}

}  // namespace

std::string brokenNumberTextPromise(std::string_view text) {
  std::string broken = brokenInAnyLocale([&] { return brokenBy(text); });
  if (broken.empty()) broken = brokenValOf(text);
  if (broken.empty()) broken = brokenGrowthBy(text);
  return broken;
}

}  // namespace qrn::fuzz
