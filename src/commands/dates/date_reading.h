// Reading dates and times from text by the regional settings.
#pragma once

#include <optional>
#include <string_view>

#include "commands/dates/date_time.h"

namespace tamrix {

// A date, a time, or a date followed by a time. Numbers of the date are
// taken in the order of the regional short date; a first number of three or
// more digits is the year. Two numbers without a year are of this year; a
// two-digit year below 30 is of the 2000s. Month and day names (regional or
// English) may stand for the month, and beside it. A time alone lies on the
// zero date. Nothing else is read: an impossible date is no date.
std::optional<DateTime> ReadDate(std::string_view text);

// A date argument of a command, read as Format reads its value: a number is
// a serial date, any other text must read as a date. A type mismatch fault
// when it doesn't, an overflow fault outside the date range.
DateTime DateArgument(std::string_view text);

}  // namespace tamrix
