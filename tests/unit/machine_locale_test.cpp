// Programs under the machine's own settings: CTest runs them once with a
// point locale and once with a comma locale (LC_ALL=pt_BR.UTF-8).
#include <gtest/gtest.h>

#include "library_test_support.h"

namespace tamrix::testing {
namespace {

class MachineLocale : public ::testing::Test {
 protected:
  ScopedRegional settings_{Regional::FromEnvironment()};
};

TEST_F(MachineLocale, NumbersTravelThroughExpressionsInTheRegionalForm) {
  ProgramRun run;
  run.Run(Lines({"Variable d Decimal, s String", "d = Sqr(6.25)", "Write d", "s = Format(d, \"0.00\")", "Write s",
                 "Write Format(1234567.891, \"#,##0.00\")", "d = Abs(-1.5) * 2", "Write d", "Write ConvStr(2.5)",
                 "Write StrVal(\"3,75\")", "Write StrVal(\"3.75\")", "Write Int(3.7)+1"}));
  EXPECT_EQ(run.Written(), (std::vector<std::string>{Localised("2.5"), Localised("2.50"), Localised("1,234,567.89"),
                                                     "3", "2.5", "3", Localised("3.75"), "31"}));
  EXPECT_TRUE(run.Boxes().empty());
}

TEST_F(MachineLocale, DatesUseTheRegionalNames) {
  ProgramRun run;
  // Write cuts a call's arguments at their commas unless the call is one of
  // the protected few (Format, DateAdd...): WeekDay goes through a variable.
  run.Run(Lines({"Variable s String", "Write Format(\"31/12/2003\", \"dddd d mmmm\")",
                 "Write DateAdd(\"MONTH\", 1, \"31/01/2004\")", "s = WeekDay(\"31/12/2003\", \"PT\")", "Write s"}));
  const Regional& regional = Regional::Current();
  EXPECT_EQ(run.Written(), (std::vector<std::string>{regional.dayNames[3] + " 31 " + regional.monthNames[11],
                                                     "29/02/2004", "Quarta-feira"}));
  EXPECT_TRUE(run.Boxes().empty());
}

}  // namespace
}  // namespace tamrix::testing
