// A date value of the language: a civil day and a time of day, with the
// conversions to and from the serial number form (days since 30 December
// 1899, the time as the fraction) that numbers stand for as dates.
#pragma once

#include <chrono>

namespace tamrix {

struct DateTime {
  std::chrono::sys_days day;
  std::chrono::seconds time{0};  // since midnight, below one day

  bool operator==(const DateTime&) const = default;
};

// Day 0 of the serial numbers; also the date part of a time alone.
inline constexpr std::chrono::sys_days kZeroDate{std::chrono::year{1899} / 12 / 30};

// Dates run from 1 January 100 to 31 December 9999.
bool InDateRange(std::chrono::sys_days day);

DateTime MakeDateTime(int year, unsigned month, unsigned day, long hour = 0, long minute = 0,
                      long second = 0);

// A negative serial number keeps its fraction as a positive time of day:
// -1.25 is 29 December 1899, 06:00.
double SerialOf(const DateTime& value);
// An overflow fault outside the date range.
DateTime FromSerial(double serial);

// The machine's local date and time, to the second.
DateTime Now();

std::chrono::year_month_day CivilDate(const DateTime& value);
std::chrono::hh_mm_ss<std::chrono::seconds> ClockTime(const DateTime& value);

}  // namespace tamrix
