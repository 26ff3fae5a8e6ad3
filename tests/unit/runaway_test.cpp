// Programs that would run away: texts that double, expressions whose calls
// keep rewriting into more text. Each runs in a child process with a limit
// of processor time and a bound on the memory it may have touched, which a
// run that goes on long past the run-time's own limits would pass: it must
// end with its fault first.
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <string>

#include "core_sandbox.h"

namespace tamrix::testing {
namespace {

constexpr int kNoFault = 201;
constexpr int kThrown = 202;
constexpr int kTooMuchMemory = 203;

// The most memory the process has held so far, in bytes.
std::uint64_t PeakResident() {
  std::ifstream status("/proc/self/status");
  std::string word;
  while (status >> word) {
    if (word == "VmHWM:") {
      std::uint64_t kilobytes = 0;
      status >> kilobytes;
      return kilobytes * 1024;
    }
  }
  return 0;
}

// The number of the run-time error that `program` ended with, run in a child
// that may use `cpuSeconds` of processor time; kNoFault when it ended without
// one, kThrown when the allocator failed, kTooMuchMemory when the run held
// more than `megabytes` beyond what the child held before, -signal when the
// time limit stopped it.
int FaultUnderLimits(const std::string& program, std::uint64_t megabytes, rlim_t cpuSeconds) {
  const pid_t child = ::fork();
  if (child == 0) {
    ProgramRun run;
    const rlimit cpu{cpuSeconds, cpuSeconds};
    if (::setrlimit(RLIMIT_CPU, &cpu) != 0) std::_Exit(kThrown);
    const std::uint64_t before = PeakResident();
    try {
      run.Run(program);
    } catch (...) {
      std::_Exit(kThrown);
    }
    if (PeakResident() > before + (megabytes << 20)) std::_Exit(kTooMuchMemory);
    for (const auto& box : run.Boxes()) {
      const auto at = box.find("Run-time error '");
      if (at != std::string::npos) std::_Exit(std::atoi(box.c_str() + at + 16));
    }
    std::_Exit(kNoFault);
  }
  int status = 0;
  while (::waitpid(child, &status, 0) < 0) {
  }
  return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

constexpr const char* kPlusOne[] = {"Function F(n Integer) Integer", "Return n + 1", "EndFunction"};

std::string WithFunction(std::initializer_list<const char*> main) {
  std::string text = Lines(main);
  for (const char* line : kPlusOne) text += std::string("\r\n") + line;
  return text;
}

// The argument text also stands in front of the call, so the text behind it
// comes back with every rewrite and the expression doubles; the run must
// end with the memory fault long before the text limit, in little memory.
TEST(RunawayTest, ExpressionsThatDoubleWithEveryRewriteEndSoonAndSmall) {
  const std::string programs[] = {
      WithFunction({"Var a Integer, x Integer", "a = 2", "x = a + F(a)", "Write x", "EndProgram"}),
      WithFunction({"Var n Integer, d Decimal", "n = 2", "d = Round(F(n), 2)", "Write d", "EndProgram"}),
      WithFunction({"Var n Integer", "n = 2", "n = Int(F(n))", "Write n", "EndProgram"}),
  };
  for (const auto& program : programs) {
    SCOPED_TRACE(program);
    EXPECT_EQ(FaultUnderLimits(program, 600, 20), kOutOfMemory);
  }
}

// A text that doubles is refused before the memory of the step past the
// limit is taken: the text at the limit and the one before it are held
// (768 MiB), a further copy is not.
TEST(RunawayTest, ATextThatDoublesFaultsBeforeItTakesTheMemory) {
  const std::string program = Lines({"Var s String", "s = \"x\"", "While 1 = 1", "s = s & s", "Loop"});
  EXPECT_EQ(FaultUnderLimits(program, 800, 20), kOutOfMemory);
}

// Calls whose rewriting ends are not held up by the guards.
TEST(RunawayTest, ARewriteThatEndsIsNotStopped) {
  ProgramRun run;
  run.Run(WithFunction({"Var a Integer, x Integer", "a = 2", "x = F(a) + F(10)", "Write x", "EndProgram"}));
  EXPECT_EQ(run.Boxes(), std::vector<std::string>{});
  EXPECT_EQ(run.Written(), std::vector<std::string>{"14"});
}

}  // namespace
}  // namespace tamrix::testing
