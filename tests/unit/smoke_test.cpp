#include <gtest/gtest.h>

#include "headless_desktop.h"

namespace tamrix::testing {
namespace {

TEST(ProgramRunTest, WritesLoopAndFunction) {
  ProgramRun run;
  run.Run(Lines({"Variable n Integer, s String", "n=1", "While n<4", "Write \"n=\", n", "n++", "Loop",
                 "If n>=3", "Write \"big\"", "Else", "Write \"small\"", "EndIf", "s = Twice(21)",
                 "Write s", "EndProgram", "Function Twice(a Integer) Integer", "Return a * 2",
                 "EndFunction"}));
  EXPECT_EQ(run.Written(), (std::vector<std::string>{"n=1", "n=2", "n=3", "big", "42"}));
  EXPECT_TRUE(run.Boxes().empty()) << run.Boxes()[0];
}

}  // namespace
}  // namespace tamrix::testing
