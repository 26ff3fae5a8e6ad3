#include "core/calculate.h"

#include <gtest/gtest.h>

#include <string>

#include "core_sandbox.h"

namespace tamrix {
namespace {

struct Formula {
  const char* text;
  const char* value;  // with "." for the decimal sign
};

class Formulas : public testing::BothLocales {
 protected:
  void Expect(const Formula& formula) {
    const CalculateResult result = Calculate(formula.text);
    EXPECT_EQ(result.error, 0) << formula.text;
    EXPECT_EQ(result.text, testing::Localised(formula.value)) << formula.text;
  }
};

TEST_P(Formulas, FollowTheLanguagesGrouping) {
  for (const Formula& formula : {
           Formula{"1+2*3", "7"},
           Formula{"10-2-3", "5"},
           Formula{"2^3^2", "64"},  // left to right
           Formula{"(1+2)*3", "9"},
           Formula{"2*(1+2)+3", "12"},  // the bracket's frame goes on reading "+3"
           Formula{"2*(1+2)-1", "4"},
           Formula{"3*-5", "-5"},  // no unary minus behind an operator
           Formula{"-5", "-5"},
           Formula{"-2^2", "-4"},
           Formula{"2*3^2", "18"},
           Formula{"8/2/2", "2"},
           Formula{" 1 2 + 1 ", "13"},  // blanks are skipped, even between digits
           Formula{"", "0"},
       }) {
    Expect(formula);
  }
}

TEST_P(Formulas, WholeNumberOperatorsRoundTheirSidesHalfToEven) {
  for (const Formula& formula : {
           Formula{"7%3", "1"}, Formula{"-7%3", "-1"}, Formula{"7.5%2", "0"},    // 8 % 2
           Formula{"6.5%4", "2"},                                                // 6 % 4
           Formula{"12&10", "8"}, Formula{"12@3", "15"}, Formula{"1+6&3", "3"},  // "&" ranks as "*"
           Formula{"2@1*3", "9"},                                                // and so does "@": (2 @ 1) * 3
       }) {
    Expect(formula);
  }
}

TEST_P(Formulas, ResultsUseTheRegionalSignAndUpToFifteenDigits) {
  for (const Formula& formula : {
           Formula{"7/2", "3.5"},
           Formula{"1,5+1", "2.5"},  // a comma reads as a point
           Formula{"1/3", "0.333333333333333"},
           Formula{"2/3", "0.666666666666667"},
           Formula{"0.1+0.2", "0.3"},
       }) {
    Expect(formula);
  }
}

TEST_P(Formulas, MalformedFormulasAndDivisionByZeroGiveAnEmptyText) {
  const std::pair<const char*, int> failures[] = {
      {"1/0", 11}, {"5%0", 11}, {"3%0.4", 11}, {"1+a", 2}, {"1..2", 2}, {"1.5.2", 2}, {"2*[3]", 2},
  };
  for (const auto& [text, error] : failures) {
    const CalculateResult result = Calculate(text);
    EXPECT_EQ(result.error, error) << text;
    EXPECT_EQ(result.text, "") << text;
  }
}

TEST_P(Formulas, EvaluateReadsTheResultAsANumber) {
  testing::Sandbox box;
  box.Declare("d Decimal, i Integer, s String");
  box.Set("d", 1.5);
  box.Set("i", 3);
  box.Set("s", std::string("abc"));
  EXPECT_EQ(box.Eval("2*(1+2)+3"), Value(12.0));
  EXPECT_EQ(box.Eval("7 / 2"), Value(3.5));
  // A Decimal's regional text is read back before the formula is worked out.
  EXPECT_EQ(box.Eval("d * 2"), Value(3.0));
  EXPECT_EQ(box.Eval("d + i"), Value(4.5));
  EXPECT_EQ(box.Eval("1/0"), Value(0.0));
  EXPECT_EQ(box.Eval("s + 1"), Value(0.0));
  EXPECT_TRUE(box.Boxes().empty());
}

INSTANTIATE_TEST_SUITE_P(Calculate, Formulas, ::testing::Values('.', ','));

}  // namespace
}  // namespace tamrix
