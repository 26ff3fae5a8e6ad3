// The run-time's shortcuts must answer exactly as the plain text searches
// and conversions they stand for: the caches of texts without calls, the
// per-line records and jump searches of the executor, and the quick forms of
// number writing and reading.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>

#include "core/call_search_cache.h"
#include "core/keywords.h"
#include "core/numbers.h"
#include "core/procedures.h"
#include "core/text.h"
#include "core_sandbox.h"

namespace tamrix::testing {
namespace {

std::string PrintfGeneral(double value) {
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, "%.15G", value);
  return buffer;
}

TEST(FastNumberText, MatchesTheGeneralFormOfPrintf) {
  ScopedRegional point{NumberSettings('.')};
  for (double value : {1.0, -1.0, 7.0, 0.5, -0.25, 1e14, 999999999999999.0, 1e15, 1234567890123456.0,
                       1e-4, 1e-5, 1.5e-5, 0.1 + 0.2, 2.0 / 3.0, -1e300, 4.9e-324, 2999997.0, 19999900000.0}) {
    EXPECT_EQ(NumberText(value), PrintfGeneral(value)) << value;
  }
  std::mt19937_64 random(7);
  std::uniform_real_distribution<double> exponent(-20, 20);
  for (int i = 0; i < 2000; ++i) {
    const double value = std::pow(10.0, exponent(random)) * (i % 2 == 0 ? 1 : -1);
    const double whole = std::round(value);
    EXPECT_EQ(NumberText(value), PrintfGeneral(value)) << value;
    if (whole != 0) {
      EXPECT_EQ(NumberText(whole), PrintfGeneral(whole)) << whole;
    }
  }
}

TEST(FastNumberText, UsesTheRegionalDecimalSign) {
  ScopedRegional comma{NumberSettings(',')};
  EXPECT_EQ(NumberText(1.5), "1,5");
  EXPECT_EQ(NumberText(1.5e-7), "1,5E-07");
  EXPECT_EQ(NumberText(42), "42");
}

TEST(FastVal, WholeNumbersReadAsTheGeneralReading) {
  for (const char* digits : {"0", "7", "0042", "123456789012345", "999999999999999"}) {
    EXPECT_EQ(Val(digits), std::strtod(digits, nullptr)) << digits;
  }
  // Longer or mixed texts take the general way.
  EXPECT_EQ(Val("1234567890123456"), 1234567890123456.0);
  EXPECT_EQ(Val("12 34"), 1234);
  EXPECT_EQ(Val("12abc"), 12);
}

TEST(CallSearchCacheTest, KeepsOnlyShortTextsAndForgetsOnClear) {
  CallSearchCache cache;
  cache.RememberWithoutCall("x + 1");
  EXPECT_TRUE(cache.KnownWithoutCall("x + 1"));
  EXPECT_FALSE(cache.KnownWithoutCall("x + 2"));
  const std::string longText(600, 'a');
  cache.RememberWithoutCall(longText);
  EXPECT_FALSE(cache.KnownWithoutCall(longText));
  cache.Clear();
  EXPECT_FALSE(cache.KnownWithoutCall("x + 1"));
}

TEST(CallSearchCacheTest, AnUnmatchedBracketIsSearchedEachTimeAndAFoundCallIsKept) {
  Sandbox box;
  box.Load({Unit({"EndProgram", "Function Twice(a Integer) Integer", "Return a * 2", "EndFunction"})});
  box.Declare("n Integer");
  CallRecord call;
  // No call: the answer is the same from the search and from the cache.
  EXPECT_FALSE(FindCommandCall(box.interpreter, "n + 1", call));
  EXPECT_FALSE(FindCommandCall(box.interpreter, "n + 1", call));
  // A keyword whose bracket cannot be matched shows its box every time.
  EXPECT_FALSE(FindCommandCall(box.interpreter, "Int 3", call));
  EXPECT_FALSE(FindCommandCall(box.interpreter, "Int 3", call));
  EXPECT_EQ(box.Boxes().size(), 2u);
  // A call found again comes with the same name, tagged arguments and type.
  for (int pass = 0; pass < 2; ++pass) {
    EXPECT_TRUE(FindCommandCall(box.interpreter, "1 + Int(Int(3.7))", call));
    EXPECT_EQ(call.name, "Int");
    EXPECT_EQ(call.arguments, "Int(2]3.7[2)");
    std::string returnType;
    EXPECT_TRUE(FindFunctionCall(box.interpreter, "n + Twice(n)", call, returnType));
    EXPECT_EQ(call.name, "Twice");
    EXPECT_EQ(call.arguments, "n");
    EXPECT_EQ(returnType, "Integer");
  }
}

TEST(CallSearchCacheTest, FunctionNamesOfANewScanAreFound) {
  Sandbox box;
  CallRecord call;
  std::string returnType;
  box.Load({Unit({"EndProgram"})});
  EXPECT_FALSE(FindFunctionCall(box.interpreter, "Twice(2)", call, returnType));
  box.Load({Unit({"EndProgram", "Function Twice(a Integer) Integer", "Return a * 2", "EndFunction"})});
  EXPECT_TRUE(FindFunctionCall(box.interpreter, "Twice(2)", call, returnType));
  EXPECT_EQ(returnType, "Integer");
}

// Texts without letters are read without a search, as no keyword can stand
// in them; a function whose name holds no letter keeps them searched.
TEST(CallSearchCacheTest, EveryKeywordHoldsALetter) {
  for (const auto& keyword : KeywordList()) {
    EXPECT_TRUE(std::any_of(keyword.begin(), keyword.end(), IsLetter)) << keyword;
  }
}

TEST(CallSearchCacheTest, AFunctionNameWithoutLettersIsStillSearchedFor) {
  ProgramRun run;
  run.Run(Lines({"Variable x Integer", "x = 7(2) + 1", "Write x", "EndProgram", "Function 7(a Integer) Integer",
                 "Return a * 3", "EndFunction"}));
  // The name is found in front of its own digits, which the bracket
  // search takes for a name without brackets.
  const std::string box = StopBoxLine("Error in function 7\\r\\n\\r\\nMake sure you put the arguments in parentheses!");
  EXPECT_EQ(run.Boxes(), std::vector<std::string>(3, box));
  EXPECT_EQ(run.Written(), std::vector<std::string>{"73"});
}

// Loops run each line and each jump search many times, so that the second
// and later answers come from the frame's records.
INSTANTIATE_TEST_SUITE_P(
    RepeatedLines, ProgramCases,
    ::testing::Values(
        ProgramCase{"IfElseInALoop",
                    {"Variable i Integer", "While i < 4", "If i % 2 = 0", "Write \"even \", i", "Else",
                     "Write \"odd \", i", "EndIf", "i++", "Loop"},
                    {"even 0", "odd 1", "even 2", "odd 3"}},
        // The false way of the first If finds the Else of the second block
        // of the same depth, behind its own EndIf, and so goes to the EndIf.
        ProgramCase{"ElseOfALaterBlock",
                    {"Variable i Integer", "While i < 3", "If i = 1", "Write \"one\"", "EndIf", "If i = 2",
                     "Write \"two\"", "Else", "Write \"not two\"", "EndIf", "i++", "Loop"},
                    {"not two", "one", "not two", "two"}},
        // A literal holding the tag of a line behind the next one is passed
        // by the line search.
        ProgramCase{"LiteralHoldingALaterTag",
                    {"Variable s String, i Integer", "While i < 2", "s = \"&#00004\"", "Write \"a\", i", "i++",
                     "Loop", "Write \"end\""},
                    {"a0", "a1", "end"}},
        ProgramCase{"GoToBackwards",
                    {"Variable i Integer", "Again:", "i++", "If i < 3", "GoTo Again", "EndIf", "Write i"},
                    {"3"}},
        // Each call declares and removes the function's names, so the kept
        // places of the loop's names go stale at every pass; the function's
        // declaration is read once and its body renamed anew. The text
        // behind the call is cut after the first "i", the one in "Twice",
        // so the result and "(i)" are read together: 2(1) reads as 21.
        ProgramCase{"CallsInALoop",
                    {"Variable i Integer, s Decimal", "While i < 3", "s = s + Twice(i) * 10", "Write s", "i++",
                     "Loop", "EndProgram", "Function Twice(a Integer) Integer", "Var b Integer", "b = a * 2",
                     "Return b", "EndFunction"},
                    {"0", "210", "630"}},
        // Counting forms, with the sign glued to the name or apart from it.
        ProgramCase{"CountingForms",
                    {"Variable i Integer, n Integer, s Decimal", "n = 3", "While i < 3", "s += i", "s+= 1",
                     "n --", "i++", "Loop", "Write s, \" \", n"},
                    {"6 0"}},
        // Appends in place and the ordinary joining side by side: another
        // case of the name, a name behind, a piece that is searched for a
        // call, a target of another type, an element.
        ProgramCase{"Appends",
                    {"Variable t String, u String, n Integer, a(2) String, i Integer", "u = \"-\"", "n = 1",
                     "While i < 2", "t = t & \"x\"", "t = T & u & \"y\"", "t = t & 5", "t = t & Str(i)",
                     "n = n & 2", "a(1) = a(1) & \"z\"", "i++", "Loop", "Write t, \" \", n, \" \", a(1)"},
                    {"x-yx-y 1 zz"}},
        // The same text read as a number, a formula and a literal, with
        // values that change kind between the passes.
        ProgramCase{"ValuesThatChangeKind",
                    {"Variable i Integer, t String, d Decimal", "While i < 4", "d = t + i", "Write d",
                     "t = t & \"1\"", "i++", "Loop"},
                    {"0", "2", "13", "114"}}),
    ByName());

TEST(RepeatedLines, AnAppendPastTheTextLimitEndsInTheMemoryFault) {
  SetTextLimit(100);
  ProgramRun run;
  run.Run(Lines({"Variable t String, u String", "u = \"abcdefghijabcdefghijabcdefghij\"", "t = t & u",
                 "Write \"one\"", "t = t & u & u", "Write \"two \", StrLen(t)", "t = t & u", "Write \"three\""}));
  SetTextLimit(kMaxTextBytes);
  EXPECT_EQ(run.Written(), (std::vector<std::string>{"one", "two 90"}));
  ASSERT_EQ(run.Boxes().size(), 1u);
  EXPECT_NE(run.Boxes()[0].find("Out of memory"), std::string::npos) << run.Boxes()[0];
}

// A literal holding the tag of the very next line is taken for that line:
// the fetch lands inside the literal, the rest of its line is an unknown
// word, and the real next line is skipped, on every pass of the loop.
TEST(RepeatedLines, LiteralHoldingTheNextTagIsTakenForTheLine) {
  ProgramRun run;
  run.Run(Lines({"Variable s String, i Integer", "While i < 2", "s = \"&#00003\"", "Write \"skipped\"", "i++",
                 "Loop", "Write \"end\""}));
  EXPECT_EQ(run.Written(), std::vector<std::string>{"end"});
  const std::string unknownWord = QueryBoxLine("Editor: 0 Line: 3\\r\\nError: variable undeclared: ");
  EXPECT_EQ(run.Boxes(), (std::vector<std::string>{unknownWord, unknownWord}));
}

}  // namespace
}  // namespace tamrix::testing

namespace tamrix::testing {
namespace {

// The first keyword, in list order, whose first occurrence in the text is
// followed by "(" or a blank: the plain search over the whole list.
int PlainFirstKeyword(const std::string& text) {
  const auto& list = KeywordList();
  for (std::size_t n = 0; n < list.size(); ++n) {
    const auto p = text.find(list[n]);
    if (p == std::string::npos) continue;
    const auto behind = p + list[n].size();
    if (behind < text.size() && (text[behind] == '(' || text[behind] == ' ')) return static_cast<int>(n);
  }
  return -1;
}

int FirstCandidateKeyword(const std::string& text) {
  const auto& list = KeywordList();
  for (const std::size_t n : KeywordCandidates(text)) {
    const auto p = text.find(list[n]);
    if (p == std::string::npos) continue;
    const auto behind = p + list[n].size();
    if (behind < text.size() && (text[behind] == '(' || text[behind] == ' ')) return static_cast<int>(n);
  }
  return -1;
}

TEST(KeywordCandidatesTest, FindTheSameKeywordAsTheWholeList) {
  // Texts glued from pieces of keywords, names and signs, so that keywords
  // overlap, stand inside names and are followed by all sorts of things.
  const std::vector<std::string> pieces = {"Int", "MyInt", "(", ")", " ", "Str", "Len", "SubStr", "x", "+",
                                           "Write", "Rep.", "TestEndPage", "Time", "Timer", "Dat", "e", "RGB",
                                           "\"", "Trim", "Tr", "Sub", "Format", "Var", "iable", "Cos", ","};
  std::mt19937 random(11);
  std::uniform_int_distribution<std::size_t> pick(0, pieces.size() - 1);
  std::uniform_int_distribution<int> length(1, 9);
  for (int i = 0; i < 20000; ++i) {
    std::string text;
    for (int k = length(random); k > 0; --k) text += pieces[pick(random)];
    ASSERT_EQ(FirstCandidateKeyword(text), PlainFirstKeyword(text)) << text;
  }
}

}  // namespace
}  // namespace tamrix::testing
