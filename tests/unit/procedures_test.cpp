#include "core/procedures.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core_sandbox.h"

namespace tamrix::testing {
namespace {

using Texts = std::vector<std::string>;

TEST(DeclarationScanTest, ListsFunctionsSubsAndTimers) {
  Sandbox box;
  ASSERT_EQ(
      box.Load({Lines({"Write \"Timer_Mention(5)\"", "EndProgram", "Function Twice(a Integer) Integer", "Return a * 2",
                       "EndFunction", "Function Greet(s String, n Integer)  String ", "Return s", "EndFunction",
                       "Sub Show()", "EndSub", "Sub Timer_Blink(3)", "EndSub", "Sub Timer_Off(0)", "EndSub"})}),
      "");
  const Procedures& procs = box.interpreter.Procs();
  EXPECT_EQ(procs.FunctionNames(), (Texts{"Twice", "Greet"}));
  EXPECT_EQ(procs.FunctionReturns(), (Texts{"Integer", "String"}));
  EXPECT_EQ(procs.SubNames(), (Texts{"Show()", "Timer_Blink(3)", "Timer_Off(0)"}));
  // Any "Timer_" with brackets counts, a literal too.
  EXPECT_EQ(procs.TimerNames(), (Texts{"Timer_Mention(5)", "Timer_Blink(3)", "Timer_Off(0)"}));
  EXPECT_EQ(box.interpreter.Procs().TimerPeriods(), (std::vector<std::int16_t>{5, 3, 0}));
  EXPECT_TRUE(procs.HasTimers());
  EXPECT_EQ(box.Boxes(), Texts{});
}

struct ScanCase {
  const char* name;
  std::vector<const char*> source;
  Texts functions;
  Texts subs;
  const char* message;  // of the stop box, escaped; empty for none
};

class ScanCases : public ::testing::TestWithParam<ScanCase> {};

TEST_P(ScanCases, StopAtTheFirstProblem) {
  Sandbox box;
  box.Load({"EndProgram\r\n" + Unit(GetParam().source)});
  EXPECT_EQ(box.interpreter.Procs().FunctionNames(), GetParam().functions);
  EXPECT_EQ(box.interpreter.Procs().SubNames(), GetParam().subs);
  const std::string message = GetParam().message;
  EXPECT_EQ(box.Boxes(), message.empty() ? Texts{} : Texts{StopBoxLine(message)});
}

INSTANTIATE_TEST_SUITE_P(
    DeclarationScan, ScanCases,
    ::testing::Values(
        ScanCase{"FunctionWithoutEnd",
                 {"Function F(a Integer) Integer", "Return a"},
                 {"F"},
                 {},
                 "Function without its command EndFunction: F"},
        ScanCase{"FunctionInsideAFunction",
                 {"Function A(x Integer) Integer", "Function B(y Integer) Integer", "EndFunction", "Sub S()", "EndSub"},
                 {"A"},
                 {"S()"},
                 "Function without its command EndFunction: A"},
        ScanCase{"SubWithoutEnd", {"Sub Show()", "Write 1"}, {}, {"Show()"}, "Sub without its command EndSub: Show()"},
        // A first "Function " that opens no statement hides all declarations.
        ScanCase{"AMentionBeforeTheDeclarations",
                 {"Write \"Function x\"", "Function F(a Integer) Integer", "EndFunction"},
                 {},
                 {},
                 ""},
        ScanCase{"LowerCaseSubIsNoDeclaration", {"sub Show()", "EndSub"}, {}, {}, ""},
        ScanCase{"NoBrackets",
                 {"Sub Show", "EndSub"},
                 {},
                 {},
                 "Error creating function or subroutine!\\r\\n"
                 "-You forgot to put parentheses to declare a function or subroutine?\\r\\n"
                 "-You put some ZR reserved word in the name of some function or subroutine?"}),
    ByName());

struct CallCase {
  const char* name;
  const char* statement;
  Texts written;
  const char* unknownWord;  // empty when no query box is expected
};

class SubCalls : public ::testing::TestWithParam<CallCase> {};

TEST_P(SubCalls, NeedTheExactNameWithItsBrackets) {
  ProgramRun run;
  run.Run(Lines({GetParam().statement, "EndProgram", "Sub Foo()", "Write \"foo\"", "EndSub"}));
  EXPECT_EQ(run.Written(), GetParam().written);
  const std::string word = GetParam().unknownWord;
  EXPECT_EQ(run.Boxes(),
            word.empty() ? Texts{} : Texts{QueryBoxLine("Editor: 0 Line: 1\\r\\nError: variable undeclared: " + word)});
}

INSTANTIATE_TEST_SUITE_P(Procedures, SubCalls,
                         ::testing::Values(CallCase{"Exact", "Foo()", {"foo"}, ""},
                                           CallCase{"BlankBeforeTheBrackets", "Foo ()", {}, "Foo"},
                                           CallCase{"OtherCase", "foo()", {}, "foo()"},
                                           CallCase{"WithoutBrackets", "Foo", {}, "Foo"}),
                         ByName());

INSTANTIATE_TEST_SUITE_P(
    Procedures, ProgramCases,
    ::testing::Values(
        ProgramCase{
            "ASubsVarLineMakesGlobals",
            {"Count()", "Count()", "Write t", "EndProgram", "Sub Count()", "Variable t Integer", "t++", "EndSub"},
            {"2"}},
        ProgramCase{"AnEmptyArgumentListInAnAssignment",
                    {"Variable x Integer", "x = Seven()", "Write x", "EndProgram", "Function Seven() Integer",
                     "Return 7", "EndFunction"},
                    {"7"}},
        ProgramCase{"ParametersAreRenamed",
                    {"Variable a Integer, r Integer", "a = 10", "r = Twice(3)", "Write r", "EndProgram",
                     "Function Twice(a Integer) Integer", "Return a * 2", "EndFunction"},
                    {"6"}},
        // Written in another case, or next to an operator, the parameter
        // keeps its name and reads the global a.
        ProgramCase{"AParameterInAnotherCaseIsNotRenamed",
                    {"Variable a Integer, r Integer", "a = 10", "r = Twice(3)", "Write r", "EndProgram",
                     "Function Twice(a Integer) Integer", "Return A * 2", "EndFunction"},
                    {"20"}},
        ProgramCase{"AParameterNextToAnOperatorIsNotRenamed",
                    {"Variable a Integer, r Integer", "a = 10", "r = Twice(3)", "Write r", "EndProgram",
                     "Function Twice(a Integer) Integer", "Return a*2", "EndFunction"},
                    {"20"}},
        // A parameter without its argument keeps its name: here the global b.
        ProgramCase{"AParameterWithoutArgumentIsNotRenamed",
                    {"Variable b Integer, r Integer", "b = 100", "r = Add(1)", "Write r", "EndProgram",
                     "Function Add(a Integer, b Integer) Integer", "Return a + b", "EndFunction"},
                    {"101"}},
        ProgramCase{"TheFirstOfTwoFunctionsWithOneNameRuns",
                    {"Variable x Integer", "x = Pick(1)", "Write x", "EndProgram", "Function Pick(a Integer) Integer",
                     "Return 1", "EndFunction", "Function Pick(a Integer) Integer", "Return 2", "EndFunction"},
                    {"1"}},
        // Return does not leave, and a function without Return gives the
        // last Return of any function.
        ProgramCase{"ReturnValues",
                    {"Variable x Integer, y Integer", "x = Two(0)", "y = Silent(0)", "Write x, y", "EndProgram",
                     "Function Two(a Integer) Integer", "Return 1", "Write \"still\"", "Return 2", "EndFunction",
                     "Function Silent(a Integer) Integer", "Write \"none\"", "EndFunction"},
                    {"still", "none", "22"}},
        // Only a Var line that opens the body declares locals.
        ProgramCase{"LocalsLiveForTheCall",
                    {"Variable r Integer", "r = Sum(2)", "Write r", "Write t", "Write u", "EndProgram",
                     "Function Sum(a Integer) Integer", "Var t Integer", "Var u Integer", "t = a + 1", "u = t",
                     "Return t", "EndFunction"},
                    {"3", "t", "3"}}),
    ByName());

TEST(FunctionCallTest, AParameterWithoutTypeFailsWithTheFunctionBox) {
  const std::string message =
      "Editor: 0 Line: 3\\r\\nError executing the function, make sure you set the argument types and the return "
      "type of the function!";
  for (const char* answer : {"OK", "Cancel"}) {
    ProgramRun run(answer);
    run.Run(Lines({"Variable s String", "s = \"old\"", "s = NoType(1)", "Write \"after\"", "EndProgram",
                   "Function NoType(a) Integer", "Return 1", "EndFunction"}));
    EXPECT_EQ(run.Boxes(), Texts{QueryBoxLine(message, answer)});
    EXPECT_EQ(run.Written(), std::string(answer) == "OK" ? Texts{"after"} : Texts{});
  }
}

TEST(FunctionCallTest, RecursionSharesTheCallersLocals) {
  ProgramRun run;
  run.Run(Lines({"Variable x Integer", "x = Down(1)", "EndProgram", "Function Down(n Integer) Integer", "If n > 0",
                 "x = Down(n - 1)", "EndIf", "Write n + 1", "Return 5", "EndFunction"}));
  // The inner call removes Down0n, which the outer call then misses.
  EXPECT_EQ(run.Written(), (Texts{"1", "1"}));
  EXPECT_EQ(run.Boxes(), Texts{StopBoxLine("Editor: 0 Line: 8\\r\\nCan't read Down0n: undeclared variable!")});
}

TEST(FunctionCallTest, DirectCallsFindTheirDeclarationByItsBeginning) {
  Sandbox box;
  box.Load({Lines({"EndProgram", "Sub Show()", "Write \"shown\"", "EndSub"})});
  ExecuteSub(box.interpreter, "Show");
  ExecuteSub(box.interpreter, "Nope()");
  EXPECT_EQ(CallFunction(box.interpreter, "Nope", "1"), Value(std::string()));
  EXPECT_EQ(box.Written(), Texts{"shown"});
  EXPECT_EQ(
      box.Boxes(),
      (Texts{StopBoxLine("Subroutine not found: Nope()"), StopBoxLine("Function not found: Nope"),
             // The position is that of the last line run, Show's EndSub.
             QueryBoxLine(
                 "Editor: 0 Line: 4\\r\\nError executing the function, make sure you set the argument types and the "
                 "return type of the function!")}));
}

TEST(TimerTest, ATimerFiresEveryPeriodTicksAndPeriodZeroNever) {
  ProgramRun run;
  run.Run(Lines({"EndProgram", "Sub Timer_Tick(2)", "Write \"tick\"", "EndSub", "Sub Timer_Never(0)", "Write \"never\"",
                 "EndSub"}));
  EXPECT_TRUE(run.desktop.timerRunning);
  for (int tick = 0; tick < 5; ++tick) run.interpreter.OnLanguageTimerTick();
  EXPECT_EQ(run.Written(), (Texts{"tick", "tick"}));
}

TEST(RenameInBodyTest, RenamesWholeNamesOnly) {
  const std::pair<const char*, const char*> cases[] = {
      {"Return a * 2\r\n", "Return X * 2\r\n"},
      {"f(a,b) a)", "f(X,b) X)"},
      {" a\r\n", " X\r\n"},
      {" a+b a++ xa a1 A ", " a+b a++ xa a1 A "},
      {" aa a ", " aa X "},
      {"Write \" a \"", "Write \" X \""},  // literals are not protected
  };
  for (const auto& [body, renamed] : cases) {
    std::string text = body;
    RenameInBody(text, "a", "X");
    EXPECT_EQ(text, renamed) << body;
  }
}

}  // namespace
}  // namespace tamrix::testing
