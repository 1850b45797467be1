#include "runtime/locale.h"

namespace qrn {
namespace {

Locale makeEnUS() {
  Locale locale;
  locale.decimalSeparator = ".";
  locale.groupSeparator = ",";
  locale.currencySymbol = "$";
  locale.currencyPattern = "$#,##0.00;($#,##0.00)";
  locale.dateOrder = Locale::DateOrder::MonthDayYear;
  locale.dateSeparator = "/";
  locale.timeSeparator = ":";
  locale.shortDatePattern = "m/d/yyyy";
  locale.longDatePattern = "dddd, mmmm d, yyyy";
  locale.longTimePattern = "h:nn:ss AMPM";
  locale.firstWeekday = Locale::Weekday::Sunday;
  locale.monthNames = {"January", "February", "March",     "April",   "May",      "June",
                       "July",    "August",   "September", "October", "November", "December"};
  locale.monthAbbreviations = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                               "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  locale.dayNames = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
  locale.dayAbbreviations = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
  locale.amText = "AM";
  locale.pmText = "PM";
  locale.trueText = "True";
  locale.falseText = "False";
  locale.yesText = "Yes";
  locale.noText = "No";
  locale.onText = "On";
  locale.offText = "Off";
  return locale;
}

Locale makeDeDE() {
  Locale locale;
  locale.decimalSeparator = ",";
  locale.groupSeparator = ".";
  locale.currencySymbol = "€";
  locale.currencyPattern = "#,##0.00 €;-#,##0.00 €";
  locale.dateOrder = Locale::DateOrder::DayMonthYear;
  locale.dateSeparator = ".";
  locale.timeSeparator = ":";
  locale.shortDatePattern = "dd/mm/yyyy";
  locale.longDatePattern = "dddd, d. mmmm yyyy";
  locale.longTimePattern = "hh:nn:ss";
  locale.firstWeekday = Locale::Weekday::Monday;
  locale.monthNames = {"Januar", "Februar", "März",      "April",   "Mai",      "Juni",
                       "Juli",   "August",  "September", "Oktober", "November", "Dezember"};
  locale.monthAbbreviations = {"Jan", "Feb", "Mrz", "Apr", "Mai", "Jun",
                               "Jul", "Aug", "Sep", "Okt", "Nov", "Dez"};
  locale.dayNames = {"Sonntag", "Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Samstag"};
  locale.dayAbbreviations = {"So", "Mo", "Di", "Mi", "Do", "Fr", "Sa"};
  locale.trueText = "Wahr";
  locale.falseText = "Falsch";
  locale.yesText = "Ja";
  locale.noText = "Nein";
  locale.onText = "Ein";
  locale.offText = "Aus";
  return locale;
}

Locale& threadLocale() {
  thread_local Locale locale = enUS();
  return locale;
}

}  // namespace

const Locale& enUS() {
  static const Locale locale = makeEnUS();
  return locale;
}

const Locale& deDE() {
  static const Locale locale = makeDeDE();
  return locale;
}

const Locale& currentLocale() { return threadLocale(); }

void setCurrentLocale(const Locale& locale) { threadLocale() = locale; }

}  // namespace qrn
