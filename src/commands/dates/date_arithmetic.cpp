#include "commands/dates/date_arithmetic.h"

#include <array>
#include <utility>

#include "core/fault.h"

namespace tamrix {

using namespace std::chrono;

namespace {

constexpr std::array<std::pair<std::string_view, DateUnit>, 9> kUnits{{
    {"SECOND", DateUnit::Second},
    {"MINUTE", DateUnit::Minute},
    {"HOUR", DateUnit::Hour},
    {"WEEK", DateUnit::Week},
    {"WEEKDAY", DateUnit::WeekDay},
    {"DAY", DateUnit::Day},
    {"DAYYEAR", DateUnit::DayYear},
    {"MONTH", DateUnit::Month},
    {"YEAR", DateUnit::Year},
}};

sys_seconds Instant(const DateTime& value) { return value.day + value.time; }

DateTime Checked(sys_days day, seconds time) {
  if (!InDateRange(day)) Throw(kInvalidCall);
  return DateTime{day, time};
}

DateTime AddSeconds(const DateTime& value, seconds step) {
  const sys_seconds instant = Instant(value) + step;
  const sys_days day = floor<days>(instant);
  return Checked(day, instant - day);
}

DateTime AddMonths(const DateTime& value, months step) {
  // The longest step that can stay inside the date range.
  constexpr long kMonthsInRange = 12 * 10000;
  if (step.count() > kMonthsInRange || step.count() < -kMonthsInRange) Throw(kInvalidCall);
  const year_month_day date = CivilDate(value);
  const year_month target = year_month{date.year(), date.month()} + step;
  if (!target.ok()) Throw(kInvalidCall);
  const day last = year_month_day_last{target.year(), month_day_last{target.month()}}.day();
  return Checked(sys_days{target / (date.day() < last ? date.day() : last)}, value.time);
}

// The Sunday that begins the week of `day`.
sys_days WeekStart(sys_days day) { return day - (weekday{day} - Sunday); }

}  // namespace

std::optional<DateUnit> DateUnitNamed(std::string_view upperWord) {
  for (const auto& [word, unit] : kUnits) {
    if (word == upperWord) return unit;
  }
  return std::nullopt;
}

DateTime AddToDate(DateUnit unit, long long count, const DateTime& value) {
  // Beyond this no step stays inside the date range; it keeps the sums small.
  constexpr long long kLongestStep = 400'000'000'000LL;
  if (count > kLongestStep || count < -kLongestStep) Throw(kInvalidCall);
  switch (unit) {
    case DateUnit::Second: return AddSeconds(value, seconds{count});
    case DateUnit::Minute: return AddSeconds(value, minutes{count});
    case DateUnit::Hour: return AddSeconds(value, hours{count});
    case DateUnit::Week:
    case DateUnit::WeekDay: return AddSeconds(value, weeks{count});
    case DateUnit::Day:
    case DateUnit::DayYear: return AddSeconds(value, days{count});
    case DateUnit::Month: return AddMonths(value, months{count});
    case DateUnit::Year: return AddMonths(value, years{count});
  }
  return value;
}

long long DateDifference(DateUnit unit, const DateTime& first, const DateTime& second) {
  const sys_seconds from = Instant(first);
  const sys_seconds to = Instant(second);
  const year_month_day a = CivilDate(first);
  const year_month_day b = CivilDate(second);
  switch (unit) {
    case DateUnit::Second: return (to - from).count();
    case DateUnit::Minute: return (floor<minutes>(to) - floor<minutes>(from)).count();
    case DateUnit::Hour: return (floor<hours>(to) - floor<hours>(from)).count();
    case DateUnit::Week: return (WeekStart(second.day) - WeekStart(first.day)).count() / 7;
    case DateUnit::WeekDay: return (second.day - first.day).count() / 7;
    case DateUnit::Day:
    case DateUnit::DayYear: return (second.day - first.day).count();
    case DateUnit::Month:
      return (year_month{b.year(), b.month()} - year_month{a.year(), a.month()}).count();
    case DateUnit::Year: return (b.year() - a.year()).count();
  }
  return 0;
}

}  // namespace tamrix
