#include <gtest/gtest.h>

#include "commands/dates/date_arithmetic.h"
#include "core/fault.h"
#include "library_test_support.h"

namespace tamrix::testing {
namespace {

struct AddCase {
  const char* name;
  DateUnit unit;
  long long count;
  DateTime from;
  DateTime to;
};

class DateAdding : public ::testing::TestWithParam<AddCase> {};

TEST_P(DateAdding, MovesByWholeUnits) { EXPECT_EQ(AddToDate(GetParam().unit, GetParam().count, GetParam().from), GetParam().to); }

DateTime At(int y, unsigned m, unsigned d, long h = 0, long n = 0, long s = 0) { return MakeDateTime(y, m, d, h, n, s); }

INSTANTIATE_TEST_SUITE_P(
    Dates, DateAdding,
    ::testing::Values(
        AddCase{"MonthEndStaysAtTheEnd", DateUnit::Month, 1, At(2003, 1, 31), At(2003, 2, 28)},
        AddCase{"MonthEndOfLeapYear", DateUnit::Month, 1, At(2004, 1, 31), At(2004, 2, 29)},
        AddCase{"MonthBackToShorterMonth", DateUnit::Month, -1, At(2003, 3, 31), At(2003, 2, 28)},
        AddCase{"MonthsAcrossTheYear", DateUnit::Month, 2, At(2003, 12, 15, 10), At(2004, 2, 15, 10)},
        AddCase{"MonthsBackAcrossTheYear", DateUnit::Month, -13, At(2004, 1, 31), At(2002, 12, 31)},
        AddCase{"YearFromLeapDay", DateUnit::Year, 1, At(2004, 2, 29), At(2005, 2, 28)},
        AddCase{"FourYearsFromLeapDay", DateUnit::Year, 4, At(2004, 2, 29), At(2008, 2, 29)},
        AddCase{"DayIntoNewYear", DateUnit::Day, 1, At(2003, 12, 31), At(2004, 1, 1)},
        AddCase{"DayBackToLeapDay", DateUnit::Day, -1, At(2004, 3, 1), At(2004, 2, 29)},
        AddCase{"DayOfYearIsADay", DateUnit::DayYear, 2, At(2003, 2, 27), At(2003, 3, 1)},
        AddCase{"WeekIsSevenDays", DateUnit::Week, 1, At(2003, 12, 28), At(2004, 1, 4)},
        AddCase{"WeekDayIsSevenDays", DateUnit::WeekDay, -2, At(2004, 1, 4), At(2003, 12, 21)},
        AddCase{"HourIntoNewYear", DateUnit::Hour, 1, At(2003, 12, 31, 23, 30), At(2004, 1, 1, 0, 30)},
        AddCase{"MinutesBackAcrossMidnight", DateUnit::Minute, -30, At(2004, 1, 1, 0, 10),
                At(2003, 12, 31, 23, 40)},
        AddCase{"SecondsOfADay", DateUnit::Second, 86400, At(2003, 12, 31, 12), At(2004, 1, 1, 12)}),
    NamedCase{});

TEST(DateAdding, RefusesToLeaveTheDateRange) {
  for (const auto& [unit, count, from] : {std::tuple{DateUnit::Year, 1LL, At(9999, 12, 31)},
                                          std::tuple{DateUnit::Day, -1LL, At(100, 1, 1)},
                                          std::tuple{DateUnit::Month, 2000000000LL, At(2003, 1, 1)},
                                          std::tuple{DateUnit::Second, 4000000000000LL, At(2003, 1, 1)}}) {
    try {
      AddToDate(unit, count, from);
      ADD_FAILURE() << count;
    } catch (const RuntimeFault& fault) {
      EXPECT_EQ(fault.Number(), kInvalidCall);
    }
  }
}

struct DiffCase {
  const char* name;
  DateUnit unit;
  DateTime first;
  DateTime second;
  long long difference;
};

class DateDifferences : public ::testing::TestWithParam<DiffCase> {};

TEST_P(DateDifferences, CountBoundariesCrossedEitherWay) {
  const DiffCase& c = GetParam();
  EXPECT_EQ(DateDifference(c.unit, c.first, c.second), c.difference);
  EXPECT_EQ(DateDifference(c.unit, c.second, c.first), -c.difference);
}

INSTANTIATE_TEST_SUITE_P(
    Dates, DateDifferences,
    ::testing::Values(
        DiffCase{"YearAtNewYear", DateUnit::Year, At(2003, 12, 31), At(2004, 1, 1), 1},
        DiffCase{"MonthAtNewYear", DateUnit::Month, At(2003, 12, 31), At(2004, 1, 1), 1},
        DiffCase{"DayAtNewYear", DateUnit::Day, At(2003, 12, 31, 23, 59), At(2004, 1, 1), 1},
        DiffCase{"NoYearWithinAYear", DateUnit::Year, At(2003, 1, 1), At(2003, 12, 31), 0},
        DiffCase{"MonthsFromAMonthEnd", DateUnit::Month, At(2003, 1, 31), At(2003, 3, 1), 2},
        DiffCase{"DaysOverLeapDay", DateUnit::Day, At(2004, 2, 28), At(2004, 3, 1), 2},
        DiffCase{"DaysWithoutLeapDay", DateUnit::Day, At(2003, 2, 28), At(2003, 3, 1), 1},
        DiffCase{"DayYearAsDays", DateUnit::DayYear, At(2003, 1, 1), At(2004, 1, 1), 365},
        DiffCase{"WeekAtASunday", DateUnit::Week, At(2004, 1, 3), At(2004, 1, 4), 1},
        DiffCase{"WeekFromSundayToSaturday", DateUnit::Week, At(2004, 1, 4), At(2004, 1, 10), 0},
        DiffCase{"WeeksOverNewYear", DateUnit::Week, At(2003, 12, 31), At(2004, 1, 14), 2},
        DiffCase{"WeekDaySixDays", DateUnit::WeekDay, At(2004, 1, 1), At(2004, 1, 7), 0},
        DiffCase{"WeekDaySevenDays", DateUnit::WeekDay, At(2004, 1, 1), At(2004, 1, 8), 1},
        DiffCase{"WeekDayThirteenDays", DateUnit::WeekDay, At(2004, 1, 1), At(2004, 1, 14), 1},
        DiffCase{"HourAtTheHour", DateUnit::Hour, At(2004, 1, 1, 10, 59, 59), At(2004, 1, 1, 11), 1},
        DiffCase{"MinuteAtTheMinute", DateUnit::Minute, At(2004, 1, 1, 10, 0, 59), At(2004, 1, 1, 10, 1), 1},
        DiffCase{"SecondsOfAnHour", DateUnit::Second, At(2004, 1, 1, 10), At(2004, 1, 1, 11), 3600},
        DiffCase{"HoursOverMidnight", DateUnit::Hour, At(2003, 12, 31, 23), At(2004, 1, 1, 1), 2}),
    NamedCase{});

TEST(DateUnits, AreTheNineWordsOnly) {
  EXPECT_EQ(DateUnitNamed("DAYYEAR"), DateUnit::DayYear);
  EXPECT_EQ(DateUnitNamed("WEEKDAY"), DateUnit::WeekDay);
  EXPECT_EQ(DateUnitNamed("SECOND"), DateUnit::Second);
  EXPECT_FALSE(DateUnitNamed("day").has_value());
  EXPECT_FALSE(DateUnitNamed("DAYS").has_value());
  EXPECT_FALSE(DateUnitNamed("").has_value());
}

}  // namespace
}  // namespace tamrix::testing
