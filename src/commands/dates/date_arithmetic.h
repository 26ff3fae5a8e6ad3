// The units of DateAdd and DateDiff and the arithmetic on them.
#pragma once

#include <optional>
#include <string_view>

#include "commands/dates/date_time.h"

namespace tamrix {

enum class DateUnit { Second, Minute, Hour, Week, WeekDay, Day, DayYear, Month, Year };

// "SECOND" ... "YEAR", in upper case; nullopt for any other word.
std::optional<DateUnit> DateUnitNamed(std::string_view upperWord);

// `count` units later (earlier when negative). A month or year step that
// lands behind a month's end stays on its last day. An invalid-call fault
// when the result leaves the date range.
DateTime AddToDate(DateUnit unit, long long count, const DateTime& value);

// The number of unit boundaries crossed from `first` to `second`, negative
// when `second` is earlier. "WEEK" counts the Sundays crossed, "WEEKDAY"
// whole periods of seven days.
long long DateDifference(DateUnit unit, const DateTime& first, const DateTime& second);

}  // namespace tamrix
