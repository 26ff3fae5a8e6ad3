#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core_sandbox.h"

namespace tamrix::testing {
namespace {

using Texts = std::vector<std::string>;

TEST_P(ProgramCases, WriteWhatTheyShould) {
  ProgramRun run;
  run.Run(Unit(GetParam().source));
  EXPECT_EQ(run.Written(), GetParam().written);
  EXPECT_EQ(run.Boxes(), Texts{});
}

INSTANTIATE_TEST_SUITE_P(
    EndForms, ProgramCases,
    ::testing::Values(
        ProgramCase{"EndProgramInsideALiteralStops", {"Write \"a\"", "Write \"EndProgram\"", "Write \"b\""}, {"a"}},
        ProgramCase{"EndFunctionEndsTheMainFrame", {"Write \"a\"", "Write \"endfunction\"", "Write \"b\""}, {"a"}}),
    ByName());

INSTANTIATE_TEST_SUITE_P(
    Jumps, ProgramCases,
    ::testing::Values(ProgramCase{"Forward", {"GoTo Skip", "Write \"no\"", "Skip:", "Write \"yes\""}, {"yes"}},
                      ProgramCase{"BackwardOutOfAnIf",
                                  {"Variable n Integer", "Again:", "n++", "If n < 3", "GoTo Again", "EndIf", "Write n"},
                                  {"3"}},
                      // The label is found by substring: "Fim:" first stands in "MeuFim:".
                      ProgramCase{"ALabelInsideALiteral",
                                  {"GoTo Skip", "Write \"no\"", "Write \"Skip:\"", "Skip:", "Write \"end\""},
                                  {"Skip:", "end"}},
                      ProgramCase{"ALabelInsideALongerOne",
                                  {"GoTo Fim", "MeuFim:", "Write \"wrong\"", "Fim:", "Write \"right\""},
                                  {"wrong", "right"}}),
    ByName());

INSTANTIATE_TEST_SUITE_P(
    Blocks, ProgramCases,
    ::testing::Values(
        ProgramCase{"NestedIfTrueTrue",
                    {"If 1 = 1", "If 2 = 2", "Write \"inner\"", "Else", "Write \"inner else\"", "EndIf",
                     "Write \"outer\"", "Else", "Write \"outer else\"", "EndIf", "Write \"end\""},
                    {"inner", "outer", "end"}},
        ProgramCase{"NestedIfTrueFalse",
                    {"If 1 = 1", "If 2 = 3", "Write \"inner\"", "Else", "Write \"inner else\"", "EndIf",
                     "Write \"outer\"", "Else", "Write \"outer else\"", "EndIf", "Write \"end\""},
                    {"inner else", "outer", "end"}},
        ProgramCase{"NestedIfFalse",
                    {"If 1 = 2", "If 2 = 2", "Write \"inner\"", "Else", "Write \"inner else\"", "EndIf",
                     "Write \"outer\"", "Else", "Write \"outer else\"", "EndIf", "Write \"end\""},
                    {"outer else", "end"}},
        // The Else of a later block at the same depth is not this block's.
        ProgramCase{"AnElseBehindTheEndIfBelongsToTheNextBlock",
                    {"If 1 = 2", "Write \"a\"", "EndIf", "If 1 = 1", "Write \"b\"", "Else", "Write \"c\"", "EndIf"},
                    {"b"}},
        ProgramCase{"TheRestOfAnElseLineNeverRuns",
                    {"If 1 = 1", "Else Write \"x\"", "EndIf", "If 1 = 2", "Else Write \"y\"", "EndIf", "Write \"end\""},
                    {"end"}},
        ProgramCase{"LowerCaseIfIsIgnored", {"if 1 = 2", "Write \"body\"", "endif"}, {"body"}},
        ProgramCase{"WhileLoops",
                    {"Variable n Integer", "While n < 3", "Write n", "n++", "Loop", "Write \"done\""},
                    {"0", "1", "2", "done"}},
        ProgramCase{"NestedWhileLoops",
                    {"Variable i Integer, j Integer", "While i < 2", "j = 0", "While j < 2", "Write i, j", "j++",
                     "Loop", "i++", "Loop"},
                    {"00", "01", "10", "11"}},
        ProgramCase{"AFalseWhileSkipsItsBody", {"While 1 = 2", "Write \"body\"", "Loop", "Write \"end\""}, {"end"}},
        ProgramCase{"AnIfInsideAWhile",
                    {"Variable n Integer", "While n < 4", "n++", "If n = 2", "Write \"two\"", "Else", "Write n",
                     "EndIf", "Loop"},
                    {"1", "two", "3", "4"}}),
    ByName());

INSTANTIATE_TEST_SUITE_P(
    Statements, ProgramCases,
    ::testing::Values(
        ProgramCase{"ACommaInAnAssignmentJoins",
                    {"Variable s String, i Integer", "s = 1, 2", "i = 1, 2", "Write s", "Write i + 1"},
                    {"12", "13"}},
        // A command inside a concatenation runs twice; numbers and formulas
        // there contribute nothing.
        ProgramCase{"Concatenation",
                    {"Variable s String, t String", "t = \"T\"", "s = \"a\" & Write(\"x\") & t & 5 & 1 + 1", "Write s"},
                    {"x", "x", "aTrueT"}},
        ProgramCase{
            "ArrayElements",
            {"var a(3) Integer, i Integer", "i = 2", "a(i) = 7", "a(0) = 1", "Write a(i) + 1", "Write a(2), a(0)"},
            {"8", "71"}},
        ProgramCase{"ReturnDoesNotLeave", {"Return 5", "Write \"after\""}, {"after"}},
        ProgramCase{
            "AStatementEndingInMinusMinusIsADecrement", {"Variable n Integer", "n = 5", "Write n--", "Write n"}, {"4"}},
        ProgramCase{"TwoTextsJoinInAnAddAssign", {"Variable s String", "s = \"a\"", "s += \"b\"", "Write s"}, {"ab"}}),
    ByName());

struct Increment {
  const char* name;
  const char* statement;
  const char* value;  // of n, which starts at 5
};

class Increments : public ::testing::TestWithParam<Increment> {};

TEST_P(Increments, ChangeTheVariable) {
  ProgramRun run;
  run.Run(Lines({"Variable n Integer", "n = 5", GetParam().statement, "Write n"}));
  EXPECT_EQ(run.Written(), Texts{GetParam().value});
  EXPECT_EQ(run.Boxes(), Texts{});
}

INSTANTIATE_TEST_SUITE_P(
    Executor, Increments,
    ::testing::Values(Increment{"PlusPlus", "n++", "6"}, Increment{"MinusMinus", "n--", "4"},
                      Increment{"MinusMinusAfterABlank", "n --", "4"}, Increment{"PlusAssignGlued", "n+=1", "6"},
                      Increment{"PlusAssignSpaced", "n += 2", "7"}, Increment{"PlusAssignHalfGlued", "n +=1", "6"},
                      Increment{"PlusAssignApart", "n + = 1", "6"}, Increment{"MinusAssign", "n -=1", "4"},
                      Increment{"MinusAssignGlued", "n-=2", "3"}, Increment{"PlusAssignFormula", "n += 2 * 3", "11"}),
    ByName());

// A frame complains about undeclared names on write only after its first
// "++" or "--".
TEST(ExecutorTest, AnUndeclaredNameIsFatalToAnAddAssignOnlyAfterAnIncrement) {
  const std::string cantRead = "\\r\\nCan't read zz: undeclared variable!";
  {
    ProgramRun run;
    EXPECT_EQ(run.Run(Lines({"zz += 1", "Write \"after\""})), -1);
    EXPECT_EQ(run.Written(), Texts{"after"});
    EXPECT_EQ(run.Boxes(), Texts{StopBoxLine("Editor: 0 Line: 1" + cantRead)});
  }
  {
    ProgramRun run;
    EXPECT_EQ(run.Run(Lines({"Variable n Integer", "n++", "zz += 1", "Write \"after\""})), 1);
    EXPECT_EQ(run.Written(), Texts{});
    EXPECT_EQ(run.Boxes(),
              (Texts{StopBoxLine("Editor: 0 Line: 3" + cantRead),
                     StopBoxLine(
                         "Run-time error '-2147221503':\\r\\n\\r\\nCan't assign value to zz: undeclared variable!")}));
  }
}

TEST(ExecutorTest, LabelProblemsEndTheFrameWithTheirMessages) {
  const std::pair<std::vector<const char*>, const char*> cases[] = {
      {{"Write \"a\"", "GoTo Skip:", "Write \"b\"", "Skip:"},
       "Error in command GoTo (Ed.: 0 Line 2): Label can't have character : (colon)!"},
      {{"Write \"a\"", "Variable s String", "s = \"GoTo x\"", "Write \"b\""},
       "Error in command GoTo (Ed.: 0 Line 3): Label not found: x\":"},
  };
  for (const auto& [source, message] : cases) {
    ProgramRun run;
    run.Run(Unit(source));
    EXPECT_EQ(run.Written(), Texts{"a"});
    EXPECT_EQ(run.Boxes(), Texts{StopBoxLine(message)});
  }
}

TEST(ExecutorTest, AGoToCannotLeaveASubroutine) {
  ProgramRun run;
  run.Run({Lines({"Jump()", "Write \"back\"", "Out:"}), Lines({"", "Sub Jump()", "GoTo Out", "EndSub"})});
  EXPECT_EQ(run.Written(), Texts{"back"});
  EXPECT_EQ(run.Boxes(), Texts{StopBoxLine("Error in command GoTo (Ed.: 1 Line 3): Label not found: Out:")});
}

TEST(ExecutorTest, AnUnknownWordAsksAndCancelStopsTheRun) {
  const char* source[] = {"Write \"a\"", "foo", "Write \"b\""};
  const std::string box = "Editor: 0 Line: 2\\r\\nError: variable undeclared: foo";
  {
    ProgramRun run;
    run.Run(Lines({source[0], source[1], source[2]}));
    EXPECT_EQ(run.Written(), (Texts{"a", "b"}));
    EXPECT_EQ(run.Boxes(), Texts{QueryBoxLine(box, "OK")});
  }
  {
    ProgramRun run("Cancel");
    run.Run(Lines({source[0], source[1], source[2]}));
    EXPECT_EQ(run.Written(), Texts{"a"});
    EXPECT_EQ(run.Boxes(), Texts{QueryBoxLine(box, "Cancel")});
  }
}

TEST(ExecutorTest, FallingIntoASubReportsItsFirstWord) {
  ProgramRun run;
  run.Run(Lines({"Write \"a\"", "Sub Foo()", "Write \"b\"", "EndSub"}));
  EXPECT_EQ(run.Written(), (Texts{"a", "b"}));
  EXPECT_EQ(run.Boxes(), Texts{QueryBoxLine("Editor: 0 Line: 2\\r\\nError: variable undeclared: Sub")});
}

TEST(ExecutorTest, ADeclarationThatIsNotExecutedDeclaresNothing) {
  ProgramRun run;
  run.Run(Lines({"GoTo Skip", "Variable v Integer", "Skip:", "v = 1"}));
  EXPECT_EQ(run.Boxes(), Texts{QueryBoxLine("Editor: 0 Line: 4\\r\\nError: variable undeclared: v")});
}

TEST(ExecutorTest, EndWindowClosesTheMainWindow) {
  ProgramRun run;
  run.Run(Lines({"Write \"a\"", "EndWindow", "Write \"b\""}));
  EXPECT_EQ(run.Written(), Texts{"a"});
  EXPECT_TRUE(run.desktop.closed);
}

}  // namespace
}  // namespace tamrix::testing
