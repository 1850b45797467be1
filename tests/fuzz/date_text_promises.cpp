#include "fuzz/date_text_promises.h"

#include "fuzz/run_time_promises.h"
#include "runtime/conversions.h"
#include "runtime/date_text.h"
#include "runtime/format.h"
#include "support/work.h"

namespace qrn::fuzz {
namespace {

constexpr int kThisYear = 2005;

std::optional<Date> dateOf(std::string_view text) {
  return valueOrOneOf({kOverflow, kTypeMismatch}, [&] { return CDate(Variant(text)); });
}

std::string brokenBy(std::string_view text) {
  const std::optional<Date> read = readDateText(text, currentLocale(), kThisYear);
  if (readDateText("\t " + std::string(text) + " ", currentLocale(), kThisYear) != read)
    return "blanks around a date make another one of it";
  if (read && !isInCalendar(*read)) return "a date outside the calendar was read";
  // To the second, as texts are.
  if (read && joinDate(splitDate(*read)) != *read) return "a date was read that no clock shows";
  const std::optional<Date> date = dateOf(text);
  if (read && !date) return "what reads as a date does not convert";
  if (!date) return {};
  if (!isInCalendar(*date)) return "a date outside the calendar was converted";
  const auto written = valueOrOneOf({kOverflow}, [&] { return CStr(*date); });
  if (!written) return {};  // the last half second of the calendar
  const std::optional<Date> again = dateOf(*written);
  if (!again || CStr(*again) != *written) return "a date does not come back from its text " + *written;
  const std::string full = Format(*date, "yyyy-mm-dd hh:nn:ss");
  if (Format(*again, "yyyy-mm-dd hh:nn:ss") != full) return "a date is another one after its text: " + full;
  return {};
}

}  // namespace

std::string brokenDateTextPromise(std::string_view text) {
  std::string broken = brokenInAnyLocale([&] { return brokenBy(text); });
  if (!broken.empty()) return broken;
  return test::brokenGrowth(text, kGrowthLength, [](std::string_view longer) { dateOf(longer); });
}

}  // namespace qrn::fuzz
