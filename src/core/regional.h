// The regional settings that every number-to-text and text-to-number
// conversion of the core goes through, and the date and time forms and names
// of the command library. Built from the process locale; tests may replace
// them.
#pragma once

#include <array>
#include <string>

namespace tamrix {

// The order of day, month and year in the short date form.
enum class DateOrder { DayMonthYear, MonthDayYear, YearMonthDay };

struct Regional {
  char decimalSign = '.';
  char groupingSign = ',';

  char dateSeparator = '/';
  char timeSeparator = ':';
  // The date and time forms, written in Format's own pattern language: "/"
  // and ":" stand for the two separators above, "nn" for the minutes.
  std::string shortDate = "dd/mm/yyyy";
  std::string longDate = "dddd, d mmmm yyyy";
  std::string timeForm = "hh:nn:ss";

  // Sunday first; texts in the language's 8-bit code page.
  std::array<std::string, 7> dayNames{"Sunday",   "Monday", "Tuesday", "Wednesday",
                                      "Thursday", "Friday", "Saturday"};
  std::array<std::string, 7> shortDayNames{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
  std::array<std::string, 12> monthNames{"January", "February", "March",     "April",
                                         "May",     "June",     "July",      "August",
                                         "September", "October", "November", "December"};
  std::array<std::string, 12> shortMonthNames{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                              "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  std::string amSign = "AM";
  std::string pmSign = "PM";

  std::string currencySymbol = "$";
  bool currencyFirst = true;   // "$1.00" rather than "1.00$"
  bool currencySpaced = false;  // a blank between symbol and number

  DateOrder ShortDateOrder() const;

  // From LC_ALL, then LC_NUMERIC, LC_TIME or LC_MONETARY, then LANG, per
  // category; "C", "C.*" and "POSIX" give the settings above.
  static Regional FromEnvironment();
  // All categories from one named locale ("pt_BR.UTF-8"). A locale that the
  // system lacks gives the settings above.
  static Regional ForLocale(const std::string& name);

  static const Regional& Current();
  static void SetCurrent(const Regional& settings);
};

}  // namespace tamrix
