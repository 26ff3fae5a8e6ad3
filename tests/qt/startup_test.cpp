#include "windows/startup.h"

#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>

#include "windows/automation_hooks.h"

namespace tamrix {
namespace {

TEST(CommandLineTail, JoinsTheArgumentsAndStripsOnlyTheOuterQuotes) {
  const char* argv[] = {"/x/prog", "\"quoted", "arg\"", "two"};
  EXPECT_EQ(CommandLineTail(4, argv), "quoted arg\" two");
  const char* bracketed[] = {"prog", "(\"a\")"};
  EXPECT_EQ(CommandLineTail(2, bracketed), "a");
  const char* alone[] = {"prog"};
  EXPECT_EQ(CommandLineTail(1, alone), "");
}

TEST(CommandLineTail, IsWindows1252) {
  const char* argv[] = {"prog", "caf\xC3\xA9", "\xE2\x82\xAC"};
  EXPECT_EQ(CommandLineTail(3, argv), "caf\xE9 \x80");
}

TEST(AutomationHooks, AnswersSetButEmptyAreActive) {
  setenv("TAMRIX_ANSWERS", "", 1);
  EXPECT_TRUE(MakeAnswers(ReadAutomationHooks()).Active());
  unsetenv("TAMRIX_ANSWERS");
  EXPECT_FALSE(MakeAnswers(ReadAutomationHooks()).Active());
}

TEST(AutomationHooks, ExitOnlyWithOne) {
  setenv("TAMRIX_EXIT", "1", 1);
  EXPECT_TRUE(ReadAutomationHooks().exitAfterRun);
  setenv("TAMRIX_EXIT", "yes", 1);
  EXPECT_FALSE(ReadAutomationHooks().exitAfterRun);
  unsetenv("TAMRIX_EXIT");
  EXPECT_FALSE(ReadAutomationHooks().exitAfterRun);
}

TEST(AutomationHooks, TraceGoesToTheNamedFileOnly) {
  unsetenv("TAMRIX_TRACE");
  EXPECT_FALSE(OpenTrace(ReadAutomationHooks())->Enabled());
  const std::string path = testing::TempDir() + "tamrix_hooks_trace.txt";
  setenv("TAMRIX_TRACE", path.c_str(), 1);
  EXPECT_TRUE(OpenTrace(ReadAutomationHooks())->Enabled());
  unsetenv("TAMRIX_TRACE");
  std::remove(path.c_str());
}

}  // namespace
}  // namespace tamrix
