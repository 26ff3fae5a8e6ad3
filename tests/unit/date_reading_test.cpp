#include <gtest/gtest.h>

#include "commands/dates/date_reading.h"
#include "core/fault.h"
#include "library_test_support.h"

namespace tamrix::testing {
namespace {

using namespace std::chrono;

struct ReadCase {
  const char* text;
  int year;  // 0: no date can be read
  unsigned month;
  unsigned day;
  long hour = 0;
  long minute = 0;
  long second = 0;
};

std::ostream& operator<<(std::ostream& out, const ReadCase& c) { return out << '"' << c.text << '"'; }

void ExpectRead(const ReadCase& c) {
  const auto read = ReadDate(c.text);
  if (c.year == 0) {
    EXPECT_FALSE(read.has_value()) << c;
    return;
  }
  ASSERT_TRUE(read.has_value()) << c;
  EXPECT_EQ(*read, MakeDateTime(c.year, c.month, c.day, c.hour, c.minute, c.second)) << c;
}

class DayMonthOrder : public ::testing::TestWithParam<ReadCase> {};

TEST_P(DayMonthOrder, ReadsByThePointSettings) {
  ScopedRegional settings("C.UTF-8");
  ExpectRead(GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    Dates, DayMonthOrder,
    ::testing::Values(ReadCase{"31/12/2003", 2003, 12, 31}, ReadCase{"31-12-2003", 2003, 12, 31},
                      ReadCase{"31.12.2003", 2003, 12, 31}, ReadCase{" 1/2/2003 ", 2003, 2, 1},
                      ReadCase{"2003-12-31", 2003, 12, 31}, ReadCase{"31/12/03", 2003, 12, 31},
                      ReadCase{"1/1/29", 2029, 1, 1}, ReadCase{"1/1/30", 1930, 1, 1},
                      ReadCase{"1/1/0100", 100, 1, 1}, ReadCase{"29/02/2004", 2004, 2, 29},
                      ReadCase{"31 Dec 2003", 2003, 12, 31}, ReadCase{"December 31, 2003", 2003, 12, 31},
                      ReadCase{"Wednesday, 31 December 2003", 2003, 12, 31},
                      ReadCase{"31/12/2003 13:45:30", 2003, 12, 31, 13, 45, 30},
                      ReadCase{"31/12/2003 1:45 PM", 2003, 12, 31, 13, 45},
                      ReadCase{"13:45", 1899, 12, 30, 13, 45}, ReadCase{"12:00 AM", 1899, 12, 30, 0, 0},
                      ReadCase{"12:30 pm", 1899, 12, 30, 12, 30}, ReadCase{"3 PM", 1899, 12, 30, 15},
                      ReadCase{"23:59:59", 1899, 12, 30, 23, 59, 59},
                      // What can't be read.
                      ReadCase{"31/02/2003", 0, 0, 0}, ReadCase{"29/02/2003", 0, 0, 0},
                      ReadCase{"32/01/2003", 0, 0, 0}, ReadCase{"0/1/2003", 0, 0, 0},
                      ReadCase{"12/31/2003", 0, 0, 0}, ReadCase{"1/1/99", 1999, 1, 1},
                      ReadCase{"1/1/10000", 0, 0, 0}, ReadCase{"25:00", 0, 0, 0},
                      ReadCase{"10:60", 0, 0, 0}, ReadCase{"13:00 PM", 0, 0, 0},
                      ReadCase{"31/12/2003 10:", 0, 0, 0}, ReadCase{"10:30 xx", 0, 0, 0},
                      ReadCase{"abc", 0, 0, 0}, ReadCase{"", 0, 0, 0}, ReadCase{"2003", 0, 0, 0},
                      ReadCase{"31/12/2003 #", 0, 0, 0}, ReadCase{"Dec Jan 2003", 0, 0, 0}));

TEST(DatesWithoutYear, AreOfThisYear) {
  ScopedRegional settings("C.UTF-8");
  const auto thisYear = year_month_day{Now().day}.year();
  ASSERT_TRUE(ReadDate("5/6").has_value());
  EXPECT_EQ(year_month_day{ReadDate("5/6")->day}, thisYear / June / 5);
  ASSERT_TRUE(ReadDate("5 Jun").has_value());
  EXPECT_EQ(year_month_day{ReadDate("5 Jun")->day}, thisYear / June / 5);
}

TEST(MonthDayOrder, ReadsTheMonthFirst) {
  ScopedRegional settings("en_US.UTF-8");
  ExpectRead({"12/31/2003", 2003, 12, 31});
  ExpectRead({"2/1/2003 1:05:09 PM", 2003, 2, 1, 13, 5, 9});
  ExpectRead({"31/12/2003", 0, 0, 0});
  ExpectRead({"2003/12/31", 2003, 12, 31});
}

TEST(CommaSettings, ReadRegionalMonthNames) {
  ScopedRegional settings("pt_BR.UTF-8");
  ExpectRead({"31/12/2003", 2003, 12, 31});
  ExpectRead({"31 dezembro 2003", 2003, 12, 31});
  ExpectRead({"1 MAR\xC7O 2004", 2004, 3, 1});
  ExpectRead({"31 Dec 2003", 2003, 12, 31});
  ExpectRead({"1 fev 2004", 2004, 2, 1});
}

TEST(DateArgument, TakesNumbersAsSerialDates) {
  ScopedRegional settings("C.UTF-8");
  EXPECT_EQ(DateArgument("37986"), MakeDateTime(2003, 12, 31));
  EXPECT_EQ(DateArgument("0"), MakeDateTime(1899, 12, 30));
  EXPECT_EQ(DateArgument("31/12/2003"), MakeDateTime(2003, 12, 31));
  try {
    DateArgument("abc");
    FAIL() << "no fault";
  } catch (const RuntimeFault& fault) {
    EXPECT_EQ(fault.Number(), kTypeMismatch);
  }
  try {
    DateArgument("3000000");
    FAIL() << "no fault";
  } catch (const RuntimeFault& fault) {
    EXPECT_EQ(fault.Number(), kOverflow);
  }
}

struct SerialCase {
  double serial;
  DateTime date;
};

TEST(SerialDates, CountDaysFromTheZeroDateWithTheTimeAsFraction) {
  for (const auto& c : {SerialCase{0, MakeDateTime(1899, 12, 30)}, SerialCase{1, MakeDateTime(1899, 12, 31)},
                        SerialCase{37986.75, MakeDateTime(2003, 12, 31, 18)},
                        SerialCase{-1.25, MakeDateTime(1899, 12, 29, 6)},
                        SerialCase{60, MakeDateTime(1900, 2, 28)}}) {
    EXPECT_EQ(FromSerial(c.serial), c.date) << c.serial;
    EXPECT_DOUBLE_EQ(SerialOf(c.date), c.serial) << c.serial;
  }
  // A time that rounds to a whole day is the next midnight.
  EXPECT_EQ(FromSerial(0.9999999), MakeDateTime(1899, 12, 31));
}

}  // namespace
}  // namespace tamrix::testing
