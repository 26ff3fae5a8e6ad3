#include "core/block_linking.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/preparation.h"
#include "core_sandbox.h"

namespace tamrix {
namespace {

using testing::Lines;
using testing::Statements;

std::string Linked(const std::vector<const char*>& source) {
  return LinkWhileBlocks(LinkIfBlocks(TagStatements(NormaliseStatements(NumberUnit(testing::Unit(source), 0)))));
}

TEST(BlockLinkingTest, IfAndWhileDepthsAreCountedApart) {
  EXPECT_EQ(Statements(Linked({"If c", "While b", "If a", "EndIf", "Loop", "EndIf"})),
            (std::vector<std::string>{"If[0] c", "While[0] b", "If[1] a", "EndIf[1]", "Loop[0]", "EndIf[0]"}));
}

TEST(BlockLinkingTest, SuccessiveBlocksShareTheirDepth) {
  EXPECT_EQ(Statements(Linked({"If a", "EndIf", "If b", "Else", "EndIf", "While c", "Loop", "While d", "Loop"})),
            (std::vector<std::string>{"If[0] a", "EndIf[0]", "If[0] b", "Else[0]", "EndIf[0]", "While[0] c", "Loop[0]",
                                      "While[0] d", "Loop[0]"}));
}

struct LinkCase {
  const char* name;
  std::vector<const char*> source;
  std::vector<std::string> linked;
};

class LinkCases : public ::testing::TestWithParam<LinkCase> {};

TEST_P(LinkCases, AreTaggedAsWritten) { EXPECT_EQ(Statements(Linked(GetParam().source)), GetParam().linked); }

INSTANTIATE_TEST_SUITE_P(
    BlockLinking, LinkCases,
    ::testing::Values(LinkCase{"LowerCaseIfIsNoKeyword", {"if x", "endif"}, {"if x", "endif"}},
                      LinkCase{"IfWithoutItsBlankIsNoKeyword", {"If(x)", "EndIf"}, {"If(x)", "EndIf[-1]"}},
                      LinkCase{"EndIfWithoutIf", {"EndIf"}, {"EndIf[-1]"}},
                      LinkCase{"WordsThatBeginWithAKeyword",
                               {"If a", "Elsewhere = 1", "EndIf", "While b", "Loop1 = 3", "Loop"},
                               {"If[0] a", "Else[0]where = 1", "EndIf[0]", "While[0] b", "Loop[0]1 = 3", "Loop[-1]"}},
                      LinkCase{"ElseKeepsTheRestOfItsLine",
                               {"If a", "Else Write \"x\"", "EndIf"},
                               {"If[0] a", "Else[0] Write \"x\"", "EndIf[0]"}},
                      LinkCase{"KeywordsInsideAStatementStayUntagged",
                               {"Write \"If x\"", "s = \"While y\"", "Write 1; If z", "EndIf"},
                               {"Write \"If x\"", "s = \"While y\"", "Write 1", "If[0] z", "EndIf[0]"}},
                      LinkCase{"TenLevelsMakeATwoDigitTag",
                               {"If a", "If a", "If a", "If a", "If a", "If a", "If a", "If a", "If a", "If a", "If b"},
                               {"If[0] a", "If[1] a", "If[2] a", "If[3] a", "If[4] a", "If[5] a", "If[6] a", "If[7] a",
                                "If[8] a", "If[9] a", "If[10] b"}}),
    testing::ByName());

struct CheckCase {
  const char* name;
  std::vector<const char*> source;
  const char* message;
};

class CheckCases : public ::testing::TestWithParam<CheckCase> {};

TEST_P(CheckCases, GiveTheirMessage) { EXPECT_EQ(CheckBlocks(Linked(GetParam().source)), GetParam().message); }

INSTANTIATE_TEST_SUITE_P(
    BlockLinking, CheckCases,
    ::testing::Values(
        CheckCase{"Balanced", {"If a", "While b", "Loop", "Else", "EndIf"}, ""},
        CheckCase{"IfWithoutEndIf", {"If a", "If b", "EndIf"}, "If statement without their EndIf!"},
        CheckCase{"EndIfWithoutIf", {"EndIf"}, "If statement without their EndIf!"},
        CheckCase{"WhileWithoutLoop", {"While a"}, "While statement without their Loop!"},
        CheckCase{"TheLoopMessageReplacesTheIfMessage", {"If a", "Loop"}, "While statement without their Loop!"},
        CheckCase{"ElseIsNotCounted", {"Else", "Elsewhere = 1"}, ""},
        CheckCase{"LowerCaseIfIsNotCounted", {"if a"}, ""},
        CheckCase{"TaggedFormsInLiteralsCount",
                  {"If a", "EndIf", "Write \"endif[0]\""},
                  "If statement without their EndIf!"}),
    testing::ByName());

TEST(BlockLinkingTest, AnUnbalancedProgramShowsTheCheckAndDoesNotStart) {
  testing::ProgramRun run;
  run.Run(Lines({"Write \"a\"", "While 1 = 1"}));
  EXPECT_TRUE(run.Written().empty());
  EXPECT_EQ(run.Boxes(), std::vector<std::string>{testing::StopBoxLine("While statement without their Loop!")});
}

}  // namespace
}  // namespace tamrix
