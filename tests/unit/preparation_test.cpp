#include "core/preparation.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "core/block_linking.h"
#include "core_sandbox.h"

namespace tamrix {
namespace {

using testing::SplitLines;

std::string PrepareUnit0(const std::string& unit) { return TagStatements(NormaliseStatements(NumberUnit(unit, 0))); }

// One source line at source line 2 of unit 0, behind seven statements, so
// that its first statement gets the number 7.
std::vector<std::string> PrepareAsStatementSeven(const std::string& source) {
  const auto lines = SplitLines(PrepareUnit0("w0; w1; w2; w3\r\nw4; w5; w6\r\n" + source));
  return {lines.begin() + 7, lines.end()};
}

struct WorkedExample {
  const char* source;
  std::vector<std::string> prepared;
};

class WorkedExamples : public ::testing::TestWithParam<WorkedExample> {};

TEST_P(WorkedExamples, GiveTheirPreparedLines) {
  EXPECT_EQ(PrepareAsStatementSeven(GetParam().source), GetParam().prepared);
}

INSTANTIATE_TEST_SUITE_P(
    Preparation, WorkedExamples,
    ::testing::Values(WorkedExample{"n=1 ' counter", {"&#00007\xA7#00002$#00 n = 1"}},
                      WorkedExample{"x = 1", {"&#00007\xA7#00002$#00 x = 1"}},
                      WorkedExample{"x =1", {"&#00007\xA7#00002$#00 x =1"}},
                      WorkedExample{"x>=3", {"&#00007\xA7#00002$#00 x >= 3"}},
                      WorkedExample{"x<>\"a=b\"", {"&#00007\xA7#00002$#00 x <> \"a=b\""}},
                      WorkedExample{"n += 2", {"&#00007\xA7#00002$#00 n + =  2"}},
                      WorkedExample{"n+=2", {"&#00007\xA7#00002$#00 n+ = 2"}},
                      WorkedExample{"a = 1; b = 2", {"&#00007\xA7#00002$#00 a = 1", "&#00008\xA7#00002$#00 b = 2"}},
                      WorkedExample{"s = \"a;b\"", {"&#00007\xA7#00002$#00 s = \"a;b\""}},
                      WorkedExample{"n++", {"&#00007\xA7#00002$#00 n++"}}));

TEST(PreparationTest, TheTwoUnitProgramAfterLinking) {
  std::array<std::string, 7> codes;
  codes[0] = "Variable n Integer\r\nn=1\r\nIf n>=3\r\nWrite \"yes\"\r\nElse\r\nEndIf\r\nWhile n<5\r\nn++\r\nLoop";
  codes[1] = "Sub Foo()\r\nWrite \"x=1\"\r\nEndSub";
  const std::vector<std::string> expected = {
      "&#00000\xA7#00000$#00 Variable n Integer",
      "&#00001\xA7#00001$#00 n = 1",
      "&#00002\xA7#00002$#00 If[0] n >= 3",
      "&#00003\xA7#00003$#00 Write \"yes\"",
      "&#00004\xA7#00004$#00 Else[0]",
      "&#00005\xA7#00005$#00 EndIf[0]",
      "&#00006\xA7#00006$#00 While[0] n < 5",
      "&#00007\xA7#00007$#00 n++",
      "&#00008\xA7#00008$#00 Loop[0]",
      "&#00009\xA7#00009$#00 EndProgram",
      "&#00010\xA7#00000$#01 Sub Foo()",
      "&#00011\xA7#00001$#01 Write \"x=1\"",
      "&#00012\xA7#00002$#01 EndSub",
  };
  const std::string text = LinkWhileBlocks(LinkIfBlocks(PrepareSource(codes)));
  EXPECT_EQ(SplitLines(text), expected);
  EXPECT_TRUE(text.ends_with("EndSub\r\n"));
}

TEST(PreparationTest, NumberUnitTagsEveryPieceAndTrimsBlanksOnly) {
  EXPECT_EQ(NumberUnit("  a \r\n\r\nb\nc", 3), "\xA7#00000$#03 a\r\n\xA7#00001$#03 \r\n\xA7#00002$#03 b\nc\r\n");
}

TEST(PreparationTest, EmptyAndCommentOnlyUnitsGetNoStatements) {
  std::array<std::string, 7> codes;
  codes[0] = "x = 1";
  codes[2] = "  \r\n' only a comment\r\n   ";
  codes[3] = "y = 2";
  const auto lines = SplitLines(PrepareSource(codes));
  const std::vector<std::string> expected = {
      "&#00000\xA7#00000$#00 x = 1",
      "&#00001\xA7#00001$#00 EndProgram",
      "&#00002\xA7#00000$#03 y = 2",
  };
  EXPECT_EQ(lines, expected);
}

struct Normalised {
  const char* source;
  std::vector<std::string> statements;  // the text behind each tag
};

class NormalisationCases : public ::testing::TestWithParam<Normalised> {};

TEST_P(NormalisationCases, GiveTheseStatements) {
  EXPECT_EQ(testing::Statements(PrepareUnit0(GetParam().source)), GetParam().statements);
}

INSTANTIATE_TEST_SUITE_P(Preparation, NormalisationCases,
                         ::testing::Values(
                             // Quotes protect comment marks, separators and operators.
                             Normalised{"s = \"it's; <b>\" ' note", {"s = \"it's; <b>\""}},
                             // A separator behind a comment mark belongs to the comment.
                             Normalised{"a = 1 ' x; b = 2", {"a = 1"}},
                             // A line that ends in ";" loses nothing and adds no blank line.
                             Normalised{"a = 1;\r\nb = 2", {"a = 1", "b = 2"}},
                             // Only one blank behind ";" is skipped; the tag step trims the rest.
                             Normalised{"a = 1;   b = 2", {"a = 1", "b = 2"}},
                             // "==" is two spaced signs; "=>" is no compound operator.
                             Normalised{"x==1", {"x =  = 1"}}, Normalised{"x=>1", {"x =  > 1"}},
                             Normalised{"x<5", {"x < 5"}}, Normalised{"x <=5", {"x  <= 5"}},
                             // An unclosed literal runs on over the line end and swallows
                             // separators and operators up to the next quote.
                             Normalised{"s = \"a\r\nx=1;y=2\"", {"s = \"a", "x=1;y=2\""}}));

TEST(PreparationTest, StatementsOfOneLineShareItsSourcePosition) {
  const auto lines = SplitLines(PrepareUnit0("a = 1\r\n\r\nb = 2; c = 3"));
  const std::vector<std::string> expected = {
      "&#00000\xA7#00000$#00 a = 1",
      "&#00001\xA7#00002$#00 b = 2",
      "&#00002\xA7#00002$#00 c = 3",
  };
  EXPECT_EQ(lines, expected);
}

}  // namespace
}  // namespace tamrix
