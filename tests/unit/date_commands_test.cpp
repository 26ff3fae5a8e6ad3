#include <gtest/gtest.h>

#include "commands/dates/date_reading.h"
#include "library_test_support.h"

namespace tamrix::testing {
namespace {

using namespace std::chrono;

struct CommandCase {
  const char* name;
  const char* word;
  const char* arguments;
  const char* result;
};

class DateCommandResults : public ::testing::TestWithParam<CommandCase> {};

// 27 December 2003 is a Saturday, 28 December a Sunday.
TEST_P(DateCommandResults, GiveTheirResultInItsForm) {
  ScopedRegional settings("C.UTF-8");
  CommandRun run;
  EXPECT_EQ(run.Call(GetParam().word, GetParam().arguments), GetParam().result);
  EXPECT_EQ(run.BoxText(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Dates, DateCommandResults,
    ::testing::Values(
        CommandCase{"DayWithoutQuotes", "Day", R"("05/12/2003")", "5"},
        CommandCase{"MonthWithoutQuotes", "Month", R"("05/02/2003")", "2"},
        CommandCase{"YearWithoutQuotes", "Year", R"("05/02/2003")", "2003"},
        CommandCase{"RevDateSorts", "RevDate", R"("31/12/2003")", R"("20031231")"},
        CommandCase{"RevDatePadsWithZeros", "RevDate", R"("1/2/0100")", R"("01000201")"},
        CommandCase{"WeekDayDigitForUnknownLanguage", "WeekDay", R"("27/12/2003", "xx")", R"("6")"},
        CommandCase{"WeekDayDigitWithoutLanguage", "WeekDay", R"("28/12/2003")", R"("0")"},
        CommandCase{"WeekDayEnglish", "WeekDay", R"("31/12/2003", "EN")", R"("Wednesday")"},
        CommandCase{"WeekDayLanguageInAnyCase", "WeekDay", R"("27/12/2003", "pt")", "\"S\xE1" "bado\""},
        CommandCase{"WeekDayPortugueseTuesday", "WeekDay", R"("30/12/2003", "PT")", "\"Ter\xE7" "a-feira\""},
        CommandCase{"WeekDayGermanSaturdayIsSonntag", "WeekDay", R"("27/12/2003", "GR")", R"("Sonntag")"},
        CommandCase{"WeekDayGermanSunday", "WeekDay", R"("28/12/2003", "GR")", R"("Sonntag")"},
        CommandCase{"WeekDaySpanish", "WeekDay", R"("31/12/2003", "SP")", "\"Mi\xE9" "rcoles\""},
        CommandCase{"WeekDayItalianWithoutAccent", "WeekDay", R"("29/12/2003", "IT")", R"("Lunedi")"},
        CommandCase{"WeekDayItalianWithAccent", "WeekDay", R"("30/12/2003", "IT")", "\"Marted\xEC\""},
        CommandCase{"WeekDayFrench", "WeekDay", R"("2/1/2004", "FR")", R"("Vendredi")"},
        CommandCase{"DateAddMonthEnd", "DateAdd", R"("MONTH", 1, "31/01/2003")", R"("28/02/2003")"},
        CommandCase{"DateAddUnitInAnyCase", "DateAdd", R"("day", 1, "31/12/2003")", R"("01/01/2004")"},
        CommandCase{"DateAddKeepsTheTime", "DateAdd", R"("HOUR", 1, "31/12/2003 23:30")",
                    R"("01/01/2004 00:30:00")"},
        CommandCase{"DateAddBackToMidnight", "DateAdd", R"("MINUTE", -30, "31/12/2003 00:30")",
                    R"("31/12/2003")"},
        CommandCase{"DateAddTimeAlone", "DateAdd", R"("HOUR", 2, "10:00")", R"("12:00:00")"},
        CommandCase{"DateAddRoundsTheCountHalfToEven", "DateAdd", R"("DAY", 2.5, "1/1/2004")", R"("03/01/2004")"},
        CommandCase{"DateAddRoundsUpToEven", "DateAdd", R"("DAY", 1.5, "1/1/2004")", R"("03/01/2004")"},
        CommandCase{"DateDiffYear", "DateDiff", R"("YEAR", "31/12/2003", "01/01/2004")", "1"},
        CommandCase{"DateDiffSwapped", "DateDiff", R"("YEAR", "01/01/2004", "31/12/2003")", "-1"},
        CommandCase{"DateDiffWeekBySundays", "DateDiff", R"("week", "27/12/2003", "28/12/2003")", "1"},
        CommandCase{"TestDateOfFebruary31", "TestDate", R"("31/02/2003")", R"("FALSE")"},
        CommandCase{"TestDateOfLeapDay", "TestDate", R"("29/02/2004")", R"("TRUE")"},
        CommandCase{"TestDateOfTime", "TestDate", R"("10:30")", R"("TRUE")"},
        CommandCase{"TestDateOfNumber", "TestDate", "37986", R"("FALSE")"},
        CommandCase{"TestDateOfWord", "TestDate", R"("abc")", R"("FALSE")"}),
    NamedCase{});

struct FailureCase {
  const char* name;
  const char* word;
  const char* arguments;
  const char* words;
  const char* result;
};

class DateCommandFailures : public ::testing::TestWithParam<FailureCase> {};

TEST_P(DateCommandFailures, ShowTheErrorBox) {
  ScopedRegional settings("C.UTF-8");
  CommandRun run;
  EXPECT_EQ(run.Call(GetParam().word, GetParam().arguments), GetParam().result);
  EXPECT_EQ(run.BoxText(), std::string("\\r") + GetParam().words);
}

INSTANTIATE_TEST_SUITE_P(
    Dates, DateCommandFailures,
    ::testing::Values(
        FailureCase{"RevDateOfEmpty", "RevDate", R"("")", "Error in command RevDate: Type mismatch", ""},
        FailureCase{"DayOfWord", "Day", R"("abc")", "Error in command Day: Type mismatch", ""},
        FailureCase{"MonthOfBadDate", "Month", R"("31/02/2003")", "Error in command Month: Type mismatch", ""},
        FailureCase{"YearOfHugeSerial", "Year", "9999999", "Error in command Year: Overflow", ""},
        FailureCase{"WeekDayOfBadDate", "WeekDay", R"("abc", "EN")", "WeekDay: Invalid parameter!", ""},
        FailureCase{"DateAddUnknownUnit", "DateAdd", R"("FORTNIGHT", 1, "1/1/2004")",
                    "Error in command DateAdd: Invalid procedure call or argument", ""},
        FailureCase{"DateAddBeyondYear9999", "DateAdd", R"("YEAR", 1, "31/12/9999")",
                    "Error in command DateAdd: Invalid procedure call or argument", ""},
        FailureCase{"DateDiffUnknownUnit", "DateDiff", R"("DAYS", "1/1/2004", "2/1/2004")",
                    "Error in command DateDiff: Invalid procedure call or argument", "0"},
        FailureCase{"DateDiffBeyond32Bits", "DateDiff", R"("SECOND", "1/1/100", "31/12/9999")",
                    "Error in command DateDiff: Overflow", "0"},
        FailureCase{"TestDateWithTooManyArguments", "TestDate", R"("1/1/2004", 2)",
                    "Error in command TestDate: Subscript out of range", ""}),
    NamedCase{});

class TodayAndNow : public ::testing::TestWithParam<std::string> {};

// Date and Time give the clock in the regional forms; an empty date means
// today.
TEST_P(TodayAndNow, FollowTheClockAndTheSettings) {
  ScopedRegional settings(GetParam());
  CommandRun run;
  const year_month_day today{Now().day};
  const std::string date = run.Call("Date", "");
  ASSERT_GE(date.size(), 2U);
  const auto read = ReadDate(date.substr(1, date.size() - 2));
  ASSERT_TRUE(read.has_value()) << date;
  EXPECT_EQ(year_month_day{read->day}, today);
  EXPECT_EQ(read->time, seconds{0});
  const std::string time = run.Call("Time", "");
  const auto readTime = ReadDate(time.substr(1, time.size() - 2));
  ASSERT_TRUE(readTime.has_value()) << time;
  EXPECT_EQ(readTime->day, kZeroDate);
  EXPECT_EQ(run.Call("Day", R"("")"), std::to_string(static_cast<unsigned>(today.day())));
  EXPECT_EQ(run.Call("Month", ""), std::to_string(static_cast<unsigned>(today.month())));
  EXPECT_EQ(run.Call("Year", ""), std::to_string(static_cast<int>(today.year())));
  EXPECT_EQ(run.BoxText(), "");
}

INSTANTIATE_TEST_SUITE_P(Dates, TodayAndNow, ::testing::Values("C.UTF-8", "pt_BR.UTF-8", "en_US.UTF-8"),
                         LocaleTestName);

TEST(DatesInMonthFirstSettings, ReadAndWriteMonthFirst) {
  ScopedRegional settings("en_US.UTF-8");
  CommandRun run;
  EXPECT_EQ(run.Call("Day", R"("12/05/2003")"), "5");
  EXPECT_EQ(run.Call("DateAdd", R"("MONTH", 1, "01/31/2004")"), R"("02/29/2004")");
  EXPECT_EQ(run.Call("RevDate", R"("12/31/2003")"), R"("20031231")");
}

}  // namespace
}  // namespace tamrix::testing
