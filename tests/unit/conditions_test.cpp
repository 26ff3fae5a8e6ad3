#include "core/conditions.h"
#include "core/fault.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core_sandbox.h"

namespace tamrix {
namespace {

using testing::Lines;
using Texts = std::vector<std::string>;

// The entries up to the last one that is not empty.
template <std::size_t N>
Texts Filled(const std::array<std::string, N>& entries) {
  std::size_t end = N;
  while (end > 0 && entries[end - 1].empty()) --end;
  return {entries.begin(), entries.begin() + static_cast<std::ptrdiff_t>(end)};
}

struct Split {
  const char* name;
  const char* condition;
  Texts operands;
  Texts comparisons;
  Texts logics;
};

class ConditionSplits : public ::testing::TestWithParam<Split> {};

TEST_P(ConditionSplits, CutTheConditionAtOperatorsAndLogicalWords) {
  ConditionArrays arrays;
  SplitCondition(GetParam().condition, arrays);
  EXPECT_EQ(Filled(arrays.operands), GetParam().operands);
  EXPECT_EQ(Filled(arrays.comparisons), GetParam().comparisons);
  EXPECT_EQ(Filled(arrays.logics), GetParam().logics);
}

INSTANTIATE_TEST_SUITE_P(
    Conditions, ConditionSplits,
    ::testing::Values(
        Split{"AndOr", "a = 1 AND b = 2 Or c >= 3", {"a", "1", "b", "2", "c", "3"}, {"=", "=", ">="}, {"AND", "OR"}},
        Split{"NoBlanksNeeded", "x<>5", {"x", "5"}, {"<>"}, {}},
        Split{"LiteralsAreNotScanned", "s = \"A AND B\"", {"s", "\"A AND B\""}, {"="}, {}},
        Split{"LowerCaseWordsAreNoLogicalWords", "a = 1 and b = 2", {"a", "1 and b", "2"}, {"=", "="}, {}},
        Split{"CapitalLettersInsideANameCutIt", "FORMAT = 1", {"F", "MAT", "1"}, {"="}, {"OR"}},
        Split{"AndFoundInsideAName", "Andar < 2", {"", "ar", "2"}, {"<"}, {"AND"}}),
    testing::ByName());

TEST(ConditionsTest, SplittingClearsTheArraysOfTheLastCondition) {
  ConditionArrays arrays;
  SplitCondition("a = 1 AND b = 2 AND c = 3", arrays);
  SplitCondition("x > 0", arrays);
  EXPECT_EQ(Filled(arrays.operands), (Texts{"x", "0"}));
  EXPECT_EQ(Filled(arrays.comparisons), Texts{">"});
  EXPECT_EQ(Filled(arrays.logics), Texts{});
}

TEST(ConditionsTest, CompareValuesConvertsOnlyWhenTheLeftSideIsANumber) {
  const std::tuple<const char*, Value, Value, const char*> cases[] = {
      {"=", 5.0, std::string("5"), "TRUE"},    // the numeric text becomes a number
      {"=", std::string("5"), 5.0, "FALSE"},   // a text on the left converts nothing
      {"<", 5.0, std::string("abc"), "TRUE"},  // a number is less than a text
      {">", std::string("abc"), 5.0, "TRUE"},
      {"<", std::string("B"), std::string("a"), "TRUE"},  // binary, case-sensitive
      {"<>", std::string("a"), std::string("A"), "TRUE"},
      {">=", std::int32_t{3}, 3.0, "TRUE"},
      {"<=", std::int32_t{4}, std::string("3.5"), "FALSE"},
      {"<", 9.0, 10.0, "TRUE"},
      {"", 1.0, 1.0, ""},  // no operator: no result
  };
  for (const auto& [comparison, left, right, result] : cases) {
    EXPECT_EQ(CompareValues(comparison, left, right), result)
        << TextOf(left) << " " << comparison << " " << TextOf(right);
  }
}

TEST(ConditionsTest, LogicalWordsCombineStrictlyFromTheLeft) {
  testing::Sandbox box;
  const std::pair<const char*, const char*> cases[] = {
      {"1 = 1 OR 1 = 2 AND 1 = 2", "FALSE"},  // (TRUE or FALSE) and FALSE
      {"1 = 2 AND 1 = 1 OR 1 = 1", "TRUE"},   // (FALSE and TRUE) or TRUE
      {"1 = 1 AND 2 = 2 AND 3 = 4", "FALSE"},
      {"1 = 2 Or 2 = 3 Or 3 = 3", "TRUE"},
      {"\"A AND B\" = \"A AND B\"", "TRUE"},
      {"5 = \"5\"", "TRUE"},
      {"\"5\" = 5", "FALSE"},
      {"x", ""},  // a bare value has no comparison and no result
  };
  for (const auto& [condition, result] : cases) {
    ConditionArrays arrays;
    bool numeric = false;
    EXPECT_EQ(EvaluateCondition(box.interpreter, condition, arrays, numeric), result) << condition;
  }
}

TEST(ConditionsTest, TwentyComparisonsFitAndTwentyTwoAreABoundsFault) {
  testing::Sandbox box;
  const auto joined = [](int comparisons) {
    std::string text = "1 = 1";
    for (int i = 1; i < comparisons; ++i) text += " AND 1 = 1";
    return text;
  };
  ConditionArrays arrays;
  bool numeric = false;
  EXPECT_EQ(EvaluateCondition(box.interpreter, joined(20), arrays, numeric), "TRUE");
  try {
    EvaluateCondition(box.interpreter, joined(22), arrays, numeric);
    FAIL() << "no fault";
  } catch (const RuntimeFault& fault) {
    EXPECT_EQ(fault.Number(), kSubscriptOutOfRange);
  }
}

TEST(ConditionsTest, EveryOperandIsEvaluatedWithoutShortcut) {
  testing::Sandbox box;
  ConditionArrays arrays;
  bool numeric = false;
  EXPECT_EQ(EvaluateCondition(box.interpreter, "1 = 2 AND Write(\"side\") = 1", arrays, numeric), "FALSE");
  EXPECT_EQ(box.Written(), Texts{"side"});
}

TEST(ConditionsTest, AnIfOnMouseClickConsumesTheClickAndAWhileDoesNot) {
  testing::ProgramRun run;
  run.Run(Lines({"MouseClick = \"TRUE\"", "While MouseClick = \"x\"", "Loop", "Write MouseClick",
                 "If MouseClick = \"TRUE\"", "Write \"clicked\"", "EndIf", "Write MouseClick", "MouseClick = \"TRUE\"",
                 "If 1 = 2 OR \"MouseClick\" = \"\"", "EndIf", "Write MouseClick"}));
  EXPECT_EQ(run.Written(), (Texts{"TRUE", "clicked", "FALSE", "FALSE"}));
}

TEST(ConditionsTest, ConditionsInPrograms) {
  testing::ProgramRun run;
  run.Run(Lines({"Variable FORMAT Integer, s String, n Integer", "FORMAT = 1", "s = \"TRUE\"", "n = 5", "If FORMAT = 1",
                 "Write \"format\"", "EndIf",  // cut at "OR": never true
                 "If s", "Write \"bare\"", "Else", "Write \"bare value is false\"", "EndIf", "If n<>5",
                 "Write \"differs\"", "Else", "Write \"same\"", "EndIf"}));
  EXPECT_EQ(run.Written(), (Texts{"bare value is false", "same"}));
}

}  // namespace
}  // namespace tamrix
