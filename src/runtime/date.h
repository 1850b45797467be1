#pragma once

#include <compare>

namespace qrn {

/// A moment in days since 1899-12-30. The whole part counts the days, the fraction is the time of that day
/// and counts forward for negative days too: -1.25 is 06:00 on 1899-12-29.
struct Date {
  double serial = 0;

  friend constexpr bool operator==(Date, Date) = default;
  friend constexpr auto operator<=>(Date, Date) = default;
};

/// First and last day of the calendar: 0100-01-01 and 9999-12-31.
inline constexpr int kFirstDay = -657434;
inline constexpr int kLastDay = 2958465;

/// A moment as people write it. Month and day count from 1.
struct CivilTime {
  int year = 1899;
  int month = 12;
  int day = 30;
  int hour = 0;
  int minute = 0;
  int second = 0;

  friend constexpr bool operator==(const CivilTime&, const CivilTime&) = default;
};

/// Whether the calendar reaches that far (and the serial is a number at all).
bool isInCalendar(Date date);

/// Whether the day exists in the Gregorian calendar, years 100 to 9999.
bool isCivilDay(int year, int month, int day);

/// Days since 1899-12-30; the day must exist.
int dayNumber(int year, int month, int day);

/// 0 for Sunday to 6 for Saturday.
int weekdayOf(int dayNumber);

/// Split to the nearest second, which may be the first of the next day. Error 6 outside the calendar.
CivilTime splitDate(Date date);

/// The inverse of splitDate; error 5 for a day or time that does not exist.
Date joinDate(const CivilTime& civil);

/// A whole day and a fraction of it (0 to below 1) as one serial.
Date dateFromParts(int dayNumber, double timeOfDay);

}  // namespace qrn
