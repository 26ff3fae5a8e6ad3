#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core_sandbox.h"

namespace tamrix::testing {
namespace {

using Texts = std::vector<std::string>;

// The "write" and "caption" lines of a run, in order.
Texts OutputLines(const ProgramRun& run) {
  Texts out;
  for (const auto& line : run.lines) {
    if (line.rfind("write\t", 0) == 0 || line.rfind("caption\t", 0) == 0) out.push_back(line);
  }
  return out;
}

TEST(WriteTest, JoinsItsValuesWithoutSeparator) {
  ProgramRun run;
  run.Run(Lines({"Variable d Decimal", "d = 0.5", "Write \"a\", 1 + 1, \"b\"", "Write d, \" \", d * 3"}));
  EXPECT_EQ(run.Written(), (Texts{"a2b", "0.5 1.5"}));
}

TEST(WriteTest, EachWriteStartsANewLineAtTheCursorsColumn) {
  ProgramRun run;
  run.Run(Lines({"Write", "Write \"x\"", "Position 2.5, 10", "Write \"p\"", "Write \"q\""}));
  EXPECT_EQ(OutputLines(run), (Texts{"write\tPARENT\t0\t0\t", "write\tPARENT\t0\t14\tx", "write\tPARENT\t80\t35\tp",
                                     "write\tPARENT\t80\t49\tq"}));
}

// Only WriteX and WriteY are shared: a Write on another window must not move
// the main window's line, and Position and Cls act on the current surface.
TEST(WriteTest, EveryWindowKeepsItsOwnCursor) {
  ProgramRun run;
  run.Run(Lines({"Write \"a\"", "NewWindow SET, W", "NewWindow W.USE", "Write \"w1\"", "Write \"w2\"",
                 "NewWindow PARENT.USE", "Write \"b\"", "NewWindow W.USE", "Position 2, 1", "NewWindow PARENT.USE",
                 "Write \"c\"", "Cls", "Write \"d\"", "NewWindow W.USE", "Write \"e\""}));
  EXPECT_EQ(OutputLines(run), (Texts{"write\tPARENT\t0\t0\ta", "write\tW\t0\t0\tw1", "write\tW\t0\t28\tw2",
                                     "write\tPARENT\t0\t14\tb", "write\tPARENT\t0\t56\tc",
                                     "write\tPARENT\t0\t0\td", "write\tW\t8\t28\te"}));
}

TEST(WriteTest, WindowTitleSetsTheCaptionAndKeepsTheCursor) {
  ProgramRun run;
  run.Run(Lines({"Write \"a\"", "Write \"Ti\", \"tle\", WINDOWTITLE", "Write \"b\"", "Write windowtitle, 7"}));
  EXPECT_EQ(OutputLines(run), (Texts{"write\tPARENT\t0\t0\ta", "caption\tPARENT\tTitle", "write\tPARENT\t0\t14\tb",
                                     "caption\tPARENT\t7"}));
  EXPECT_EQ(run.desktop.surface.caption, "7");
}

TEST(WriteTest, AsAFunctionItWritesAndGivesTrue) {
  ProgramRun run;
  run.Run(Lines({"Variable x String", "x = Write(\"a\")", "Write x"}));
  EXPECT_EQ(run.Written(), (Texts{"a", "True"}));
}

TEST(WriteTest, AnOverflowOfTheCursorShowsTheCommandErrorBox) {
  const std::string box = "Editor: 0 Line: 2\\rError in command Write: Overflow";
  {
    ProgramRun run("Cancel");
    run.Run(Lines({"Position 2340, 0", "Write \"a\"", "Write \"b\""}));
    EXPECT_EQ(run.Written(), Texts{"a"});  // printed before the cursor overflows
    EXPECT_EQ(run.Boxes(), Texts{QueryBoxLine(box, "Cancel")});
  }
  {
    ProgramRun run("OK");
    run.Run(Lines({"Position 2340, 0", "Write \"a\"", "Write \"b\""}));
    EXPECT_EQ(run.Written(), (Texts{"a", "b"}));
    EXPECT_EQ(run.Boxes(), (Texts{QueryBoxLine(box, "OK"),
                                  QueryBoxLine("Editor: 0 Line: 3\\rError in command Write: Overflow", "OK")}));
  }
}

TEST(PositionTest, ACursorBeyondSixteenBitsIsAnError) {
  ProgramRun run;
  run.Run(Lines({"Position 3000, 0"}));
  EXPECT_EQ(run.Boxes(), Texts{QueryBoxLine("Editor: 0 Line: 1\\rError in command Position: Overflow")});
}

TEST(ClearTest, ClsAndClearWindowIgnoreTheirArguments) {
  ProgramRun run;
  run.Run(Lines({"Cls 5", "ClearWindow \"x\", y"}));
  EXPECT_EQ(run.desktop.surface.clears, 2);
  EXPECT_EQ(run.Boxes(), Texts{});
}

struct MessageCase {
  const char* name;
  const char* answers;
  const char* statement;
  const char* box;  // escaped box line
  Texts written;
};

class MessageCases : public ::testing::TestWithParam<MessageCase> {};

TEST_P(MessageCases, ShowTheirBox) {
  ProgramRun run(GetParam().answers);
  run.Run(Lines({"Variable s String", GetParam().statement, "Write s"}));
  EXPECT_EQ(run.Boxes(), Texts{GetParam().box});
  EXPECT_EQ(run.Written(), GetParam().written);
}

INSTANTIATE_TEST_SUITE_P(
    TextOutput, MessageCases,
    ::testing::Values(
        MessageCase{"Information", "", "Message \"Hello \", 42", "box\tok\tinfo\tTEST\tHello 42\tOK", {""}},
        MessageCase{"QuestionTakesNoByDefault",
                    "",
                    "s = Message(\"Sure?\", OPTIONYESNO)",
                    "box\tyesno\tquestion\tTEST\tSure?\tNo",
                    {"False"}},
        MessageCase{"QuestionAnsweredYes",
                    "Yes",
                    "s = Message(\"Sure?\", optionyesno)",
                    "box\tyesno\tquestion\tTEST\tSure?\tYes",
                    {"True"}}),
    ByName());

}  // namespace
}  // namespace tamrix::testing
