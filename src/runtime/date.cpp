#include "runtime/date.h"

#include <chrono>
#include <cmath>

#include "runtime/errors.h"

namespace qrn {
namespace {

constexpr int kSecondsPerDay = 24 * 60 * 60;

constexpr std::chrono::sys_days kEpoch = std::chrono::year{1899} / 12 / 30;

std::chrono::year_month_day civilDay(int year, int month, int day) {
  return {std::chrono::year{year}, std::chrono::month{static_cast<unsigned>(month)},
          std::chrono::day{static_cast<unsigned>(day)}};
}

bool isTimeOfDay(const CivilTime& civil) {
  return civil.hour >= 0 && civil.hour < 24 && civil.minute >= 0 && civil.minute < 60 && civil.second >= 0 &&
         civil.second < 60;
}

}  // namespace

bool isInCalendar(Date date) { return date.serial > kFirstDay - 1.0 && date.serial < kLastDay + 1.0; }

bool isCivilDay(int year, int month, int day) {
  if (year < 100 || year > 9999 || month < 1 || month > 12 || day < 1 || day > 31) return false;
  return civilDay(year, month, day).ok();
}

int dayNumber(int year, int month, int day) {
  return static_cast<int>((std::chrono::sys_days(civilDay(year, month, day)) - kEpoch).count());
}

int weekdayOf(int dayNumber) {
  // The epoch was a Saturday.
  const int days = (dayNumber + 6) % 7;
  return days < 0 ? days + 7 : days;
}

CivilTime splitDate(Date date) {
  if (!isInCalendar(date)) raiseRunTimeError(kOverflow);
  const double whole = std::trunc(date.serial);
  int day = static_cast<int>(whole);
  int seconds = static_cast<int>(std::floor(std::fabs(date.serial - whole) * kSecondsPerDay + 0.5));
  if (seconds == kSecondsPerDay) {
    seconds = 0;
    ++day;
  }
  if (day > kLastDay) raiseRunTimeError(kOverflow);
  const std::chrono::year_month_day civil(kEpoch + std::chrono::days(day));
  return {static_cast<int>(civil.year()),
          static_cast<int>(static_cast<unsigned>(civil.month())),
          static_cast<int>(static_cast<unsigned>(civil.day())),
          seconds / 3600,
          seconds / 60 % 60,
          seconds % 60};
}

Date joinDate(const CivilTime& civil) {
  if (!isCivilDay(civil.year, civil.month, civil.day) || !isTimeOfDay(civil)) {
    raiseRunTimeError(kInvalidProcedureCall);
  }
  const int seconds = civil.hour * 3600 + civil.minute * 60 + civil.second;
  return dateFromParts(dayNumber(civil.year, civil.month, civil.day),
                       static_cast<double>(seconds) / kSecondsPerDay);
}

Date dateFromParts(int dayNumber, double timeOfDay) {
  return {dayNumber < 0 ? dayNumber - timeOfDay : dayNumber + timeOfDay};
}

}  // namespace qrn
