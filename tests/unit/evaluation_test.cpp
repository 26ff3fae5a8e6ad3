#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/evaluator.h"
#include "core/fault.h"
#include "core/value.h"
#include "core_sandbox.h"

namespace tamrix {
namespace {

using testing::Lines;
using testing::Sandbox;
using testing::StopBoxLine;
using Texts = std::vector<std::string>;

TEST(BracketTagsTest, CountDepthFromOneAndIgnoreQuotes) {
  const std::pair<const char*, const char*> cases[] = {
      {"f(x)", "f(1]x[1)"},           {"f(g(x),y)", "f(1]g(2]x[2),y[1)"}, {"f(a(1))", "f(1]a(2]1[2)[1)"},
      {"f(\"(\")", "f(1]\"(2]\"[2)"}, {"no brackets", "no brackets"},
  };
  for (const auto& [plain, tagged] : cases) {
    EXPECT_EQ(TagBrackets(plain), tagged);
    EXPECT_EQ(StripTags(tagged), plain);
    EXPECT_EQ(TagBrackets(tagged), tagged) << "old tags are removed first";
  }
}

TEST(ArithmeticTest, NeedsAnOperatorAndNoLeadingQuote) {
  const std::pair<const char*, bool> cases[] = {
      {"1+2", true},
      {"-x", true},
      {"a/b", true},
      {"2^3", true},
      {"7%2", true},
      {"a*b", true},
      {"x + \"1\"", true},
      {"x", false},
      {"\"a-b\"", false},
      {"a.b", false},
      {"\"a\" + \"b\"", false},
      {"", false},
  };
  for (const auto& [expr, arithmetic] : cases) EXPECT_EQ(IsArithmetic(expr), arithmetic) << expr;
}

TEST(ExpandVariablesTest, ReplacesNamesAndCountsItems) {
  Sandbox box;
  box.Declare("x Integer, a(2) Integer, name.Txt String");
  box.Set("x", 5);
  box.Set("a(1)", 7);
  box.Set("name.Txt", std::string("t"));
  const std::tuple<const char*, const char*, int> cases[] = {
      {"-x", "-5", 2},
      {"a(1)+x", "7+5", 3},
      {"x * 2", "5 * 2", 5},
      {"name.Txt+1", "t+1", 3},
  };
  for (const auto& [expr, expanded, items] : cases) {
    int itemCount = -1;
    EXPECT_EQ(ExpandVariables(box.interpreter, expr, itemCount), expanded);
    EXPECT_EQ(itemCount, items) << expr;
  }
}

TEST(EvaluateTest, ClassifiesWhatIsLeft) {
  Sandbox box;
  box.Declare("x Integer, s String");
  box.Set("x", 5);
  box.Set("s", std::string("hi"));
  EXPECT_EQ(box.Eval("12"), Value(12.0));
  EXPECT_EQ(box.Eval(" 1.5 "), Value(1.5));
  EXPECT_EQ(box.Eval("\"abc\""), Value(std::string("abc")));
  EXPECT_EQ(box.Eval("\"a\" + \"b\""), Value(std::string("a\" + \"b")));  // no concatenation
  EXPECT_EQ(box.Eval("s"), Value(std::string("hi")));
  EXPECT_EQ(box.Eval("x"), Value(std::int32_t{5}));
  EXPECT_EQ(box.Eval("-x"), Value(-5.0));
  EXPECT_EQ(box.Eval("unknown"), Value(std::string("unknown")));
  EXPECT_TRUE(box.Boxes().empty());
}

TEST(EvaluateTest, AnUndeclaredNameInAFormulaIsReportedAndCountsAsEmpty) {
  Sandbox box;
  box.interpreter.State().errorPosition = "Editor: 1 Line: 4";
  EXPECT_EQ(box.Eval("zz + 2"), Value(2.0));
  EXPECT_EQ(box.Boxes(), Texts{StopBoxLine("Editor: 1 Line: 4\\r\\nCan't read zz: undeclared variable!")});
}

TEST(EvaluateTest, ACommaNumberReadsOnlyItsLeadingPartUnderCommaSettings) {
  testing::ScopedRegional comma(testing::NumberSettings(','));
  Sandbox box;
  EXPECT_EQ(box.Eval("1,5"), Value(1.0));
}

TEST(EvaluateTest, TheTextReadingDoesNoArithmetic) {
  Sandbox box;
  box.Declare("x Integer");
  box.Set("x", 5);
  EXPECT_EQ(box.EvalText("1+2"), Value(std::string("1+2")));
  EXPECT_EQ(box.EvalText("x"), Value(std::int32_t{5}));
  EXPECT_EQ(box.EvalText("\"a\""), Value(std::string("a")));
}

TEST(RewritingTest, TheCharacterBehindANumericCallIsLost) {
  Sandbox box;
  bool numeric = false;
  EXPECT_EQ(Evaluate(box.interpreter, "Int(3.7)+1", numeric), Value(31.0));
  EXPECT_TRUE(numeric);
  EXPECT_EQ(box.Eval("Abs(-3) + 1"), Value(4.0));
  EXPECT_EQ(box.Eval("Int(3.7)"), Value(3.0));
}

TEST(RewritingTest, AssignmentsTakeTheRewrittenText) {
  testing::ProgramRun run;
  run.Run(Lines({"Variable i Integer, s String", "i = Int(3.7)+1", "s = Int(3.7)", "Write i", "Write s"}));
  EXPECT_EQ(run.Written(), (Texts{"31", "3"}));
}

TEST(RewritingTest, ATextAssignmentLosesWhatFollowsACallOnAVariable) {
  testing::ProgramRun run;
  run.Run(Lines(
      {"Variable s String, i Integer, x Integer", "x = -3", "s = Abs(x) + 1", "i = Abs(x) + 1", "Write s", "Write i"}));
  EXPECT_EQ(run.Written(), (Texts{"3", "4"}));
}

TEST(RewritingTest, ANumericCallsCommaResultIsReadWithAPoint) {
  testing::ScopedRegional comma(testing::NumberSettings(','));
  Sandbox box;
  EXPECT_EQ(box.Eval("Abs(-1.5)"), Value(1.5));
  EXPECT_EQ(box.Eval("Abs(-1.5) * 2"), Value(3.0));
}

TEST(RewritingTest, OnlyANumeroFunctionsCommaResultIsReadWithAPoint) {
  testing::ScopedRegional comma(testing::NumberSettings(','));
  Sandbox box;
  ASSERT_EQ(box.Load({Lines({"EndProgram", "Function Half(a Integer) Numero", "Return 1.5", "EndFunction",
                             "Function Whole(a Integer) Decimal", "Return 1.5", "EndFunction"})}),
            "");
  EXPECT_EQ(box.Eval("Half(1)"), Value(1.5));
  EXPECT_EQ(box.Eval("Whole(1)"), Value(1.0));  // "1,5" is numeric and reads as 1
}

TEST(RewritingTest, AnIndexIsNeverAFormula) {
  Sandbox box;
  box.Declare("a(3) Integer, i Integer");
  box.Set("a(0)", 4);
  box.Set("a(2)", 9);
  box.Set("i", 1);
  EXPECT_EQ(box.Eval("a(i+1)"), Value(std::string("4")));
  EXPECT_EQ(box.Boxes(), Texts{StopBoxLine("Can't read i+1: undeclared variable!")});
}

TEST(RewritingTest, AKeywordInsideANameSplitsIt) {
  Sandbox box;
  EXPECT_EQ(box.Eval("MyInt(3)"), Value(std::string("My3")));
}

TEST(RewritingTest, ATextCallOnAVariableLosesTheRestButKeepsOneCharacter) {
  Sandbox box;
  box.Declare("s String");
  box.Set("s", std::string("hi"));
  EXPECT_EQ(box.EvalText("Write(s)!rest"), Value(std::string("True!")));
  EXPECT_EQ(box.Written(), Texts{"hi"});
}

TEST(RewritingTest, ATextThatDoublesWithEveryRewriteEndsInTheMemoryFault) {
  // The arguments are found again in front of the call, so the text behind
  // them comes back a second time with every rewrite.
  SetTextLimit(4096);
  Sandbox box;
  try {
    box.Eval("(Y) Write(Y)");
    ADD_FAILURE() << "the text grew without a fault";
  } catch (const RuntimeFault& fault) {
    EXPECT_EQ(fault.Number(), kOutOfMemory);
  }
  SetTextLimit(kMaxTextBytes);
}

TEST(FindCallTest, TakesTheFirstKeywordOfTheListWithItsTaggedArguments) {
  Sandbox box;
  CallRecord call;
  ASSERT_TRUE(FindCommandCall(box.interpreter, "Abs(1) + Write(f(1), g(2))", call));
  EXPECT_EQ(call.name, "Write");  // Write stands before Abs in the list
  EXPECT_EQ(call.arguments, "f(2]1[2), g(2]2[2)");
}

TEST(FindCallTest, SkipsTextsThatCannotHoldACall) {
  Sandbox box;
  CallRecord call;
  for (const char* text : {"RetStr String, Write x", "\"Write x\"", "Writer(1)", "write(1)"}) {
    EXPECT_FALSE(FindCommandCall(box.interpreter, text, call)) << text;
  }
  EXPECT_TRUE(box.Boxes().empty());
}

TEST(FindCallTest, AKeywordWithoutBracketsAsksForThem) {
  Sandbox box;
  ASSERT_EQ(box.Load({Lines({"EndProgram", "Function Twice(a Integer) Integer", "Return a * 2", "EndFunction"})}), "");
  CallRecord call;
  std::string returnType;
  EXPECT_FALSE(FindCommandCall(box.interpreter, "Write x", call));
  EXPECT_FALSE(FindFunctionCall(box.interpreter, "Twice x", call, returnType));
  EXPECT_EQ(box.Boxes(),
            (Texts{StopBoxLine("Error in command Write\\r\\n\\r\\nMake sure you put the arguments in parentheses!"),
                   StopBoxLine("Error in function Twice\\r\\n\\r\\nMake sure you put the arguments in parentheses!")}));
}

TEST(FunctionRewritingTest, AStringResultIsQuotedAgainstArithmetic) {
  Sandbox box;
  ASSERT_EQ(box.Load({Lines({"EndProgram", "Function Pair(a Integer) String", "Return \"5-2\"", "EndFunction",
                             "Function Diff(a Integer) Integer", "Return \"5-2\"", "EndFunction"})}),
            "");
  CallRecord call;
  std::string returnType;
  ASSERT_TRUE(FindFunctionCall(box.interpreter, "Pair(1)", call, returnType));
  EXPECT_EQ(returnType, "String");
  EXPECT_EQ(box.Eval("Pair(1)"), Value(std::string("5-2")));
  EXPECT_EQ(box.Eval("Diff(1)"), Value(3.0));
}

}  // namespace
}  // namespace tamrix
