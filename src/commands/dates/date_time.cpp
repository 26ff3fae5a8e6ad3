#include "commands/dates/date_time.h"

#include <cmath>
#include <ctime>

#include "core/fault.h"

namespace tamrix {

using namespace std::chrono;

namespace {

constexpr sys_days kFirstDate{year{100} / 1 / 1};
constexpr sys_days kLastDate{year{9999} / 12 / 31};
constexpr double kSecondsPerDay = 86400;

}  // namespace

bool InDateRange(sys_days day) { return day >= kFirstDate && day <= kLastDate; }

DateTime MakeDateTime(int y, unsigned m, unsigned d, long hour, long minute, long second) {
  return DateTime{sys_days{year{y} / month{m} / day{d}}, hours{hour} + minutes{minute} + seconds{second}};
}

double SerialOf(const DateTime& value) {
  const auto days = static_cast<double>((value.day - kZeroDate).count());
  const double fraction = static_cast<double>(value.time.count()) / kSecondsPerDay;
  return days < 0 ? days - fraction : days + fraction;
}

DateTime FromSerial(double serial) {
  const double whole = std::trunc(serial);
  if (!(whole >= (kFirstDate - kZeroDate).count() && whole <= (kLastDate - kZeroDate).count())) {
    Throw(kOverflow);
  }
  auto time = static_cast<long long>(std::llround(std::fabs(serial - whole) * kSecondsPerDay));
  auto day = kZeroDate + days{static_cast<long long>(whole)};
  // A time that rounds up to a whole day is the next midnight.
  if (time >= static_cast<long long>(kSecondsPerDay)) {
    time = 0;
    day += days{1};
  }
  return DateTime{day, seconds{time}};
}

DateTime Now() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return MakeDateTime(local.tm_year + 1900, static_cast<unsigned>(local.tm_mon + 1),
                      static_cast<unsigned>(local.tm_mday), local.tm_hour, local.tm_min, local.tm_sec);
}

year_month_day CivilDate(const DateTime& value) { return year_month_day{value.day}; }

hh_mm_ss<seconds> ClockTime(const DateTime& value) { return hh_mm_ss<seconds>{value.time}; }

}  // namespace tamrix
